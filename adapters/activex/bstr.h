#pragma once

#include <ole2.h>
#include <windows.h>

#include <string>
#include <string_view>

namespace plexel::activex {

/// Texts of automation, which are UTF-16. Inside the component texts are UTF-8.

/// The text, whose null pointer is the empty one, in UTF-8.
std::string NarrowOf(BSTR text);
/// A text as a result, which whoever gets it frees. std::bad_alloc without memory.
BSTR NewBstr(std::string_view utf8);
BSTR NewBstr(std::wstring_view wide);

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

}  // namespace plexel::activex
