#pragma once

#include <ole2.h>
#include <windows.h>

#include <new>
#include <string>
#include <string_view>

namespace plexel {

/// Texts of automation, which are UTF-16. Inside the component texts are UTF-8.

/// What a text holds, whose null pointer is the empty one.
inline std::wstring_view ContentOf(BSTR text) { return {text == nullptr ? L"" : text, SysStringLen(text)}; }
/// The same in UTF-8.
std::string NarrowOf(BSTR text);

/// A text as a result, which whoever gets it frees. std::bad_alloc without memory.
inline BSTR NewBstr(std::wstring_view wide) {
  BSTR text = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (text == nullptr) throw std::bad_alloc();
  return text;
}
BSTR NewBstr(std::string_view utf8);

/// A text that is freed at the end.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::string_view utf8) : text_(NewBstr(utf8)) {}
  explicit Bstr(std::wstring_view wide) : text_(NewBstr(wide)) {}
  ~Bstr() { SysFreeString(text_); }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;

  BSTR Get() const { return text_; }
  /// Where a call puts a text, and where it finds one that it may replace.
  BSTR* Out() { return &text_; }

 private:
  BSTR text_ = nullptr;
};

}  // namespace plexel
