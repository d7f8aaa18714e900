#pragma once

#include <ole2.h>
#include <windows.h>

#include <string>
#include <utility>

namespace plexel::activex {

/// A text of automation for the length of a call.
class Text {
 public:
  Text(const wchar_t* text) : text_(SysAllocString(text)) {}
  ~Text() { SysFreeString(text_); }
  Text(const Text&) = delete;
  Text& operator=(const Text&) = delete;
  operator BSTR() const { return text_; }

 private:
  BSTR text_;
};

/// A text that a call has given, which is freed.
inline std::wstring Taken(BSTR text) {
  std::wstring taken(text == nullptr ? L"" : text, SysStringLen(text));
  SysFreeString(text);
  return taken;
}

}  // namespace plexel::activex
