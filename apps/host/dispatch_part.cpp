#include "host/dispatch_part.h"

#include <algorithm>

namespace plexel::host {

namespace {

bool Same(std::wstring_view a, std::wstring_view b) {
  return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()), TRUE) ==
         CSTR_EQUAL;
}

}  // namespace

HRESULT FindMember(std::span<const NamedMember> members, LPOLESTR* names, UINT count, DISPID* numbers) {
  if (names == nullptr || numbers == nullptr) return E_POINTER;
  std::fill_n(numbers, count, DISPID_UNKNOWN);
  if (count == 0) return S_OK;
  const std::wstring_view wanted = names[0];
  for (const NamedMember& member : members) {
    if (Same(member.name, wanted)) numbers[0] = member.number;
  }
  return count == 1 && numbers[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
}

}  // namespace plexel::host
