#include "files/language_file.h"

#include "files/number_text.h"
#include "files/text_escapes.h"
#include "files/text_lines.h"

namespace plexel {

namespace {

constexpr std::size_t Limit = std::size_t{4} << 20U;

std::int32_t TextNumber(const TextFile& file, std::size_t line, std::string_view text) {
  const std::optional<std::int32_t> number = ParseNumber<std::int32_t>(text);
  if (!number || *number < 1) throw file.Error(line, "\"" + Excerpt(text) + "\" is no text number");
  return *number;
}

}  // namespace

LanguageTexts ReadLanguageFile(const std::filesystem::path& path) {
  const TextFile file(path, Limit);
  LanguageTexts texts;
  LineWalk lines = file.Lines();
  for (std::string_view line; lines.Next(line);) {
    const std::string_view content = TrimBlanks(line);
    if (content.empty() || content.front() == '#') continue;
    const std::size_t equals = content.find('=');
    if (equals == std::string_view::npos) throw file.Error(lines.Number(), "a line must be NUMBER=TEXT");
    const std::int32_t number = TextNumber(file, lines.Number(), TrimBlanks(content.substr(0, equals)));
    std::string text = ReadEscapedText(file, lines.Number(), TrimBlanks(content.substr(equals + 1)));
    if (!texts.emplace(number, std::move(text)).second) {
      throw file.Error(lines.Number(), "the text " + std::to_string(number) + " stands twice");
    }
  }
  return texts;
}

}  // namespace plexel
