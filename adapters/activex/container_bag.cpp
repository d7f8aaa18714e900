#include "activex/container_bag.h"

#include "activex/variant.h"
#include "platform/failure.h"
#include "win32/wide_text.h"

namespace plexel::activex {

const BagValue* ContainerBag::Find(std::string_view key) const {
  Variant value;
  const HRESULT result = bag_->Read(Wide(key).c_str(), &value.Get(), log_.Get());
  if (FAILED(result) || V_VT(&value.Get()) == VT_EMPTY) return nullptr;
  return &found_.emplace(ToBagValue(value.Get()));
}

void ContainerBag::Store(std::string_view key, BagValue value) {
  Variant given;
  FromBagValue(value, given.Get());
  const HRESULT result = bag_->Write(Wide(key).c_str(), &given.Get());
  if (SUCCEEDED(result)) return;
  refusal_ = result;
  throw Failure(FailureKind::Platform, "the container's bag does not take a value");
}

}  // namespace plexel::activex
