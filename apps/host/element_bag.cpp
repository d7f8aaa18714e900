#include "host/element_bag.h"

#include "win32/bag_value.h"
#include "win32/variant.h"
#include "win32/wide_text.h"

namespace plexel::host {

HRESULT ElementBag::Read(LPCOLESTR name, VARIANT* value, IErrorLog*) {
  if (name == nullptr || value == nullptr) return E_POINTER;
  const VARTYPE wanted = V_VT(value);
  VariantInit(value);
  lastAsked_ = Narrow(name);
  const BagValue* const kept = values_.Find(lastAsked_);
  if (kept == nullptr) return E_INVALIDARG;
  PutBagValue(*kept, *value);
  if (wanted == VT_EMPTY || wanted == V_VT(value)) return S_OK;
  return VariantChangeType(value, value, 0, wanted);
}

HRESULT ElementBag::Write(LPCOLESTR name, VARIANT* value) {
  if (name == nullptr || value == nullptr) return E_POINTER;
  Variant held;
  if (const HRESULT result = VariantCopyInd(&held.Get(), value); FAILED(result)) return result;
  std::optional<BagValue> kept = BagValueOf(held.Get());
  if (!kept) return DISP_E_TYPEMISMATCH;
  values_.Store(Narrow(name), *std::move(kept));
  return S_OK;
}

}  // namespace plexel::host
