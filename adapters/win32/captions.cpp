#include "win32/captions.h"

#include <string_view>

#include "forms/caption.h"
#include "win32/wide_text.h"

namespace plexel {

namespace {

/// The system takes two for one that marks nothing.
std::wstring Doubled(std::string_view text) {
  std::wstring doubled;
  for (const wchar_t unit : Wide(text)) doubled.append(unit == L'&' ? 2 : 1, unit);
  return doubled;
}

}  // namespace

std::wstring WithLetter(const std::string& caption) {
  const ReadableCaption read = ReadCaption(caption);
  if (read.letterAt == ReadableCaption::NoLetter) return Doubled(read.text);
  const std::string_view text = read.text;
  return Doubled(text.substr(0, read.letterAt)) + L'&' + Doubled(text.substr(read.letterAt));
}

std::wstring WithoutLetter(const std::string& caption) { return Doubled(ReadCaption(caption).text); }

}  // namespace plexel
