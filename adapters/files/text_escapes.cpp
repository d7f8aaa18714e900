#include "files/text_escapes.h"

#include "forms/characters.h"

namespace plexel {

std::string ReadEscapedText(const TextFile& file, std::size_t line, std::string_view text) {
  if (!characters::IsWellFormed(text)) throw file.Error(line, "the line is not UTF-8");
  std::string result;
  for (std::size_t index = 0; index < text.size(); ++index) {
    if (text[index] != '\\') {
      result += text[index];
      continue;
    }
    const char code = ++index < text.size() ? text[index] : '\0';
    if (code != 'n' && code != 's' && code != '\\') {
      throw file.Error(line, "a backslash stands only in \\n, \\s and \\\\");
    }
    result += code == 'n' ? '\n' : code == 's' ? ' ' : '\\';
  }
  return result;
}

}  // namespace plexel
