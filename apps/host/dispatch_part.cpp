#include "host/dispatch_part.h"

#include <algorithm>

#include "win32/variant.h"
#include "win32/wide_text.h"

namespace plexel::host {

HRESULT FindMember(std::span<const NamedMember> members, LPOLESTR* names, UINT count, DISPID* numbers) {
  if (names == nullptr || numbers == nullptr) return E_POINTER;
  std::fill_n(numbers, count, DISPID_UNKNOWN);
  if (count == 0) return S_OK;
  const std::wstring_view wanted = names[0];
  for (const NamedMember& member : members) {
    if (SameInAnyCase(member.name, wanted)) numbers[0] = member.number;
  }
  return count == 1 && numbers[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT TakeNumber(VARIANTARG& argument, LONG& number) {
  Variant value;
  HRESULT result = VariantCopyInd(&value.Get(), &argument);
  if (SUCCEEDED(result)) result = VariantChangeType(&value.Get(), &value.Get(), 0, VT_I4);
  if (SUCCEEDED(result)) number = V_I4(&value.Get());
  return result;
}

}  // namespace plexel::host
