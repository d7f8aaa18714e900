#include "activex/variant.h"

#include <string>

#include "activex/bstr.h"
#include "activex/guard.h"
#include "platform/failure.h"

namespace plexel::activex {

namespace {

struct ToVariant {
  VARIANT& given;
  void operator()(std::int16_t value) const {
    V_VT(&given) = VT_I2;
    V_I2(&given) = value;
  }
  void operator()(std::int32_t value) const {
    V_VT(&given) = VT_I4;
    V_I4(&given) = value;
  }
  void operator()(std::uint8_t value) const {
    V_VT(&given) = VT_UI1;
    V_UI1(&given) = value;
  }
  void operator()(Boolean value) const {
    V_VT(&given) = VT_BOOL;
    V_BOOL(&given) = value.Value();
  }
  void operator()(double value) const {
    V_VT(&given) = VT_R8;
    V_R8(&given) = value;
  }
  void operator()(const std::string& value) const {
    V_BSTR(&given) = NewBstr(value);
    V_VT(&given) = VT_BSTR;
  }
};

}  // namespace

const VARIANT& Behind(const VARIANT& value) {
  const bool refers = V_VT(&value) == (VT_BYREF | VT_VARIANT) && V_VARIANTREF(&value) != nullptr;
  return refers ? *V_VARIANTREF(&value) : value;
}

HRESULT CopyBehind(const VARIANT& given, VARIANT& copy) {
  const VARIANT& value = Behind(given);
  const VARTYPE type = V_VT(&value);
  const bool single = (type & ~(VT_BYREF | VT_TYPEMASK)) == 0 && (type & VT_TYPEMASK) != VT_RECORD;
  if (!single || ((type & VT_BYREF) != 0 && V_BYREF(&value) == nullptr)) return DISP_E_TYPEMISMATCH;
  return VariantCopyInd(&copy, const_cast<VARIANT*>(&value));  // which is only read
}

void Convert(const VARIANT& value, VARTYPE type, LCID locale, VARIANT& converted) {
  Variant held;
  Check(CopyBehind(value, held.Get()));
  if (V_VT(&held.Get()) == type) {
    converted = held.Get();
    V_VT(&held.Get()) = VT_EMPTY;
    return;
  }
  Check(VariantChangeTypeEx(&converted, &held.Get(), locale, 0, type));
}

BagValue ToBagValue(const VARIANT& value) {
  switch (V_VT(&value)) {
    case VT_I2:
      return V_I2(&value);
    case VT_I4:
      return static_cast<std::int32_t>(V_I4(&value));
    case VT_UI1:
      return V_UI1(&value);
    case VT_BOOL:
      return Boolean::Raw(V_BOOL(&value));
    case VT_R8:
      return V_R8(&value);
    case VT_BSTR:
      return NarrowOf(V_BSTR(&value));
    default:
      break;
  }
  // Numbers that only a foreign writer stores, however wide, and what refers to a value.
  Variant held, number;
  const bool text = FAILED(CopyBehind(value, held.Get())) || V_VT(&held.Get()) == VT_NULL;
  if (text || FAILED(VariantChangeType(&number.Get(), &held.Get(), 0, VT_R8))) {
    throw Failure(FailureKind::Conversion, "a stored value is of a type that no property has");
  }
  return V_R8(&number.Get());
}

void FromBagValue(const BagValue& value, VARIANT& given) { std::visit(ToVariant{given}, value); }

}  // namespace plexel::activex
