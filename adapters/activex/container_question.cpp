#include "activex/container_question.h"

#include <ocidl.h>

#include <array>

#include "activex/com_pointer.h"
#include "activex/dispatch_call.h"
#include "platform/failure.h"

namespace plexel::activex {

namespace {

constexpr const wchar_t* Question = L"CheckIfLedIsAlreadyDefined";

ComPointer<IDispatch> ParentOf(IOleClientSite* site) {
  const auto control = As<IOleControlSite>(site);
  ComPointer<IDispatch> extended;
  if (!control || FAILED(control->GetExtendedControl(extended.Out())) || !extended) return nullptr;
  Variant parent;
  if (!FetchProperty(*extended.Get(), L"Parent", parent)) return nullptr;
  const VARTYPE type = V_VT(&parent.Get());
  return As<IDispatch>(type == VT_DISPATCH || type == VT_UNKNOWN ? V_UNKNOWN(&parent.Get()) : nullptr);
}

ComPointer<IDispatch> ContainerOf(IOleClientSite* site) {
  ComPointer<IOleContainer> container;
  if (site == nullptr || FAILED(site->GetContainer(container.Out()))) return nullptr;
  return As<IDispatch>(container);
}

Boolean Ask(IDispatch& object, DISPID member, std::int32_t& LEDType, std::int32_t& Layer) {
  LONG type = LEDType, layer = Layer;
  std::array<VARIANTARG, 2> arguments{};
  for (VARIANTARG& argument : arguments) V_VT(&argument) = VT_BYREF | VT_I4;
  V_I4REF(&arguments[1]) = &type;
  V_I4REF(&arguments[0]) = &layer;
  Variant answer, decided;
  if (FAILED(Call(object, member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, answer))) {
    throw Failure(FailureKind::Handler, "the container's CheckIfLedIsAlreadyDefined has failed");
  }
  LEDType = type;
  Layer = layer;
  if (FAILED(VariantChangeType(&decided.Get(), &answer.Get(), 0, VT_BOOL))) {
    throw Failure(FailureKind::Conversion, "the container's answer is neither yes nor no");
  }
  return Boolean::Raw(V_BOOL(&decided.Get()));
}

}  // namespace

Boolean AskContainer(IOleClientSite* site, std::int32_t& LEDType, std::int32_t& Layer) {
  for (const auto find : {ParentOf, ContainerOf}) {
    const ComPointer<IDispatch> object = find(site);
    if (!object) continue;
    if (const std::optional<DISPID> member = MemberOf(*object.Get(), Question)) {
      return Ask(*object.Get(), *member, LEDType, Layer);
    }
  }
  throw Failure(FailureKind::NoSuchMember, "the container has no CheckIfLedIsAlreadyDefined");
}

}  // namespace plexel::activex
