#pragma once

#include <ocidl.h>
#include <ole2.h>
#include <windows.h>

#include <optional>

#include "activex/com_pointer.h"
#include "element/property_bag.h"

namespace plexel::activex {

/// A container's bag as the element sees it. A container has no way to take a value away: one that is saved again gives
/// a bag that is empty.
class ContainerBag : public PropertyBag {
 public:
  ContainerBag(IPropertyBag* bag, IErrorLog* log) : bag_(bag), log_(log) {}

  /// Failure (Conversion) for a value of a type that no property has.
  const BagValue* Find(std::string_view key) const override;
  /// Failure (Platform) when the container does not take the value.
  void Store(std::string_view key, BagValue value) override;
  void Remove(std::string_view) override {}

  /// What the container answered when it last refused a value.
  HRESULT Refusal() const { return refusal_; }

 private:
  ComPointer<IPropertyBag> bag_;
  ComPointer<IErrorLog> log_;
  mutable std::optional<BagValue> found_;
  HRESULT refusal_ = S_OK;
};

}  // namespace plexel::activex
