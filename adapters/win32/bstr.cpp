#include "win32/bstr.h"

#include "win32/wide_text.h"

namespace plexel {

std::string NarrowOf(BSTR text) { return Narrow(ContentOf(text)); }

BSTR NewBstr(std::string_view utf8) { return NewBstr(std::wstring_view(Wide(utf8))); }

}  // namespace plexel
