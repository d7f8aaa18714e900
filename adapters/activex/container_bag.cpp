#include "activex/container_bag.h"

#include "activex/conversion.h"
#include "platform/failure.h"
#include "win32/bag_value.h"
#include "win32/variant.h"
#include "win32/wide_text.h"

namespace plexel::activex {

namespace {

/// A value of the bag as the element knows it. Failure (Conversion) for one of a type that no property has or is made
/// of.
BagValue Known(const VARIANT& value) {
  if (std::optional<BagValue> kept = BagValueOf(value)) return *std::move(kept);
  // Numbers that only a foreign writer stores, however wide, and what refers to a value.
  Variant held, number;
  const bool text = FAILED(CopyBehind(value, held.Get())) || V_VT(&held.Get()) == VT_NULL;
  if (text || FAILED(VariantChangeType(&number.Get(), &held.Get(), 0, VT_R8))) {
    throw Failure(FailureKind::Conversion, "a stored value is of a type that no property has");
  }
  return V_R8(&number.Get());
}

}  // namespace

const BagValue* ContainerBag::Find(std::string_view key) const {
  Variant value;
  const HRESULT result = bag_->Read(Wide(key).c_str(), &value.Get(), log_.Get());
  if (FAILED(result) || V_VT(&value.Get()) == VT_EMPTY) return nullptr;
  return &found_.emplace(Known(value.Get()));
}

void ContainerBag::Store(std::string_view key, BagValue value) {
  Variant given;
  PutBagValue(value, given.Get());
  const HRESULT result = bag_->Write(Wide(key).c_str(), &given.Get());
  if (SUCCEEDED(result)) return;
  refusal_ = result;
  throw Failure(FailureKind::Platform, "the container's bag does not take a value");
}

}  // namespace plexel::activex
