#pragma once

#include <ole2.h>
#include <windows.h>

#include "element/property_bag.h"

namespace plexel::activex {

/// A value of automation that is let go of at the end.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  ~Variant() { VariantClear(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT& Get() { return value_; }
  const VARIANT& Get() const { return value_; }

 private:
  VARIANT value_;
};

/// The value of a variant that may refer to another variant.
const VARIANT& Behind(const VARIANT& value);

/// A copy of a single value, or of what it refers to. DISP_E_TYPEMISMATCH for arrays, records, and what refers to
/// nothing.
HRESULT CopyBehind(const VARIANT& value, VARIANT& copy);

/// What a variant means as a type: itself when it has that type already, with all its bits, and otherwise as automation
/// converts it. ResultError when it does not.
void Convert(const VARIANT& value, VARTYPE type, LCID locale, VARIANT& converted);

/// A value of a container's bag as the element knows it, and back. Failure (Conversion) for one of a type that no
/// property has or is made of.
BagValue ToBagValue(const VARIANT& value);
void FromBagValue(const BagValue& value, VARIANT& given);

}  // namespace plexel::activex
