#include "host/texts.h"

#include "win32/wide_text.h"

namespace plexel::host {

std::string Texts::Say(Text text) const {
  std::string words;
  language_.GetText(static_cast<std::int32_t>(text), words);
  return words;
}

std::string Texts::Say(Text text, std::string_view value) const {
  constexpr std::string_view Mark = "%1";
  std::string words = Say(text);
  if (const std::size_t place = words.find(Mark); place != std::string::npos) {
    words.replace(place, Mark.size(), value);
  }
  return words;
}

std::wstring Texts::SayWide(Text text) const { return Wide(Say(text)); }

std::wstring FilterOf(const std::string& kinds) {
  constexpr std::string_view Between = ";;";
  std::wstring filter;
  std::string_view left = kinds;
  while (!left.empty()) {
    const std::size_t end = left.find(Between);
    const std::string_view kind = left.substr(0, end);
    left.remove_prefix(end == std::string_view::npos ? left.size() : end + Between.size());
    const std::size_t open = kind.rfind('('), close = kind.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open) continue;
    const std::string_view pattern = kind.substr(open + 1, close - open - 1);
    filter += Wide(kind) + L'\0' + Wide(pattern == "*" ? "*.*" : pattern) + L'\0';
  }
  return filter + L'\0';
}

}  // namespace plexel::host
