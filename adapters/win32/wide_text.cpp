#include "win32/wide_text.h"

#include <windows.h>

#include <algorithm>

namespace plexel {

namespace {

std::string Bytes(UINT codePage, std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  if (size == 0) return {};
  const int needed = WideCharToMultiByte(codePage, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(codePage, 0, text.data(), size, bytes.data(), needed, nullptr, nullptr);
  return bytes;
}

bool IsHigh(wchar_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLow(wchar_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

}  // namespace

std::wstring Wide(std::string_view text) {
  const int size = static_cast<int>(text.size());
  if (size == 0) return {};
  const int needed = MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), needed);
  return wide;
}

std::string Narrow(std::wstring_view text) { return Bytes(CP_UTF8, text); }

std::string InSystemCodePage(std::string_view text) { return Bytes(CP_ACP, Wide(text)); }

int CharactersAhead(std::wstring_view text, int units) {
  const std::wstring_view ahead = text.substr(0, static_cast<std::size_t>(std::max(units, 0)));
  return static_cast<int>(std::count_if(ahead.begin(), ahead.end(), [](wchar_t unit) { return !IsLow(unit); }));
}

int UnitsAhead(std::wstring_view text, int characters) {
  std::size_t units = 0;
  for (; characters > 0 && units < text.size(); --characters) units += IsHigh(text[units]) ? 2 : 1;
  return static_cast<int>(std::min(units, text.size()));
}

bool SameInAnyCase(std::wstring_view a, std::wstring_view b) {
  const int size = static_cast<int>(a.size());
  return a.size() == b.size() && CompareStringOrdinal(a.data(), size, b.data(), size, TRUE) == CSTR_EQUAL;
}

std::wstring WithVisibleControls(std::wstring text) {
  constexpr wchar_t EmptyBox = 0x25A1, FirstPrintable = 0x20, Delete = 0x7F, LastControl = 0x9F;
  std::replace_if(
      text.begin(), text.end(),
      [](wchar_t unit) { return unit < FirstPrintable || (unit >= Delete && unit <= LastControl); }, EmptyBox);
  return text;
}

}  // namespace plexel
