#include "activex/conversion.h"

#include "activex/guard.h"
#include "win32/variant.h"

namespace plexel::activex {

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

}  // namespace plexel::activex
