#include "activex/bstr.h"

#include <new>

#include "win32/wide_text.h"

namespace plexel::activex {

std::string NarrowOf(BSTR text) { return Narrow(std::wstring_view(text, SysStringLen(text))); }

BSTR NewBstr(std::wstring_view wide) {
  BSTR text = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (text == nullptr) throw std::bad_alloc();
  return text;
}

BSTR NewBstr(std::string_view utf8) { return NewBstr(std::wstring_view(Wide(utf8))); }

}  // namespace plexel::activex
