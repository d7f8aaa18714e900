#pragma once

#include <ole2.h>
#include <windows.h>

#include <new>
#include <string_view>

namespace plexel::host {

/// A value of automation that is let go of at the end.
class Variant {
 public:
  Variant() { VariantInit(&value_); }
  ~Variant() { VariantClear(&value_); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT& Get() { return value_; }
  const VARIANT& Get() const { return value_; }

 private:
  VARIANT value_;
};

/// A new text of automation, which whoever gets it frees.
inline BSTR NewBstr(std::wstring_view text) {
  BSTR made = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
  if (made == nullptr) throw std::bad_alloc();
  return made;
}

/// A text of automation; null is the empty one.
inline std::wstring_view ContentOf(BSTR text) { return {text == nullptr ? L"" : text, SysStringLen(text)}; }

/// A text of automation that is freed at the end.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::wstring_view text) : text_(NewBstr(text)) {}
  ~Bstr() { SysFreeString(text_); }
  Bstr(const Bstr&) = delete;
  Bstr& operator=(const Bstr&) = delete;

  BSTR Get() const { return text_; }
  /// Where a call puts a text that this then frees; only for an empty one.
  BSTR* Out() { return &text_; }

 private:
  BSTR text_ = nullptr;
};

}  // namespace plexel::host
