#include "files/parameter_syntax.h"

#include "files/text_lines.h"
#include "forms/characters.h"
#include "services/code_page.h"

namespace plexel {

ParameterLine ReadParameterLine(std::string_view line) {
  const std::string_view text = TrimBlanks(line);
  if (text.empty() || text.front() == ';' || text.front() == '#') return {};
  if (text.front() == '[') {
    if (text.back() != ']') return {ParameterLineKind::Other, text, {}};
    return {ParameterLineKind::Section, TrimBlanks(text.substr(1, text.size() - 2)), {}};
  }
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos) return {ParameterLineKind::Other, text, {}};
  return {ParameterLineKind::Key, TrimBlanks(text.substr(0, equals)), TrimBlanks(text.substr(equals + 1))};
}

std::string_view ParameterItem(std::string_view value, std::string_view delimiter, int number) {
  if (number < 1) return {};
  if (delimiter.empty()) return number == 1 ? TrimBlanks(value) : std::string_view();
  for (; number > 1; --number) {
    const std::size_t end = value.find(delimiter);
    if (end == std::string_view::npos) return {};
    value.remove_prefix(end + delimiter.size());
  }
  return TrimBlanks(value.substr(0, value.find(delimiter)));
}

ParameterText::ParameterText(std::string bytes)
    : content(std::move(bytes)), start(Utf8MarkLength(content)), isUtf8(characters::IsWellFormed(Text())) {}

std::string ParameterText::Decode(std::string_view piece) const {
  return isUtf8 ? std::string(piece) : FromCodePage(piece);
}

}  // namespace plexel
