#include "files/text_lines.h"

#include <algorithm>

#include "files/system_files.h"
#include "forms/characters.h"

namespace plexel {

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view Utf16Little = "\xFF\xFE";
constexpr std::string_view Utf16Big = "\xFE\xFF";

}  // namespace

std::size_t Utf8MarkLength(std::string_view content) { return content.starts_with(Utf8Mark) ? Utf8Mark.size() : 0; }

bool HasUtf16Mark(std::string_view content) {
  return content.starts_with(Utf16Little) || content.starts_with(Utf16Big);
}

TextFile::TextFile(std::filesystem::path file, std::size_t limit) : path_(std::move(file)) {
  content_ = ReadWholeFile(path_, limit);
  Check();
}

TextFile::TextFile(std::filesystem::path file, std::string content)
    : path_(std::move(file)), content_(std::move(content)) {
  Check();
}

TextFile TextFile::Behind(std::size_t lines, std::size_t length) const {
  TextFile rest(path_, std::string(Text().substr(length)));
  rest.linesAhead_ = linesAhead_ + lines;
  return rest;
}

void TextFile::Check() {
  const std::string_view content = content_;
  if (HasUtf16Mark(content)) throw Error(1, "the text is UTF-16; save it as UTF-8");
  start_ = Utf8MarkLength(content);
  const std::string_view text = Text();
  if (const std::size_t nul = text.find('\0'); nul != std::string_view::npos) {
    throw Error(LineOf(text, nul), "a NUL byte; this is no text file");
  }
  CheckLineLengths();
}

void TextFile::CheckLineLengths() const {
  const std::string_view text = Text();
  std::size_t start = 0;
  while (text.size() - start > LongestLine) {
    const std::size_t end = text.find_last_of("\r\n", start + LongestLine);
    if (end == std::string_view::npos || end < start) {
      throw Error(LineOf(text, start), "the line is longer than " + std::to_string(LongestLine) + " bytes");
    }
    start = end + 1;
  }
}

std::size_t LineOf(std::string_view text, std::size_t position) {
  LineWalk lines(text.substr(0, std::min(position + 1, text.size())));
  for (std::string_view line; lines.Next(line);) {
  }
  return std::max<std::size_t>(lines.Number(), 1);
}

std::string_view TrimBlanks(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string Excerpt(std::string_view text) {
  constexpr std::size_t longest = 40;
  std::string excerpt;
  while (!text.empty()) {
    const characters::Decoded next = characters::First(text);
    if (excerpt.size() + next.length > longest) return excerpt + "...";
    const bool plain = !next.broken && next.character >= 0x20 && next.character != 0x7F;
    excerpt += plain ? text.substr(0, next.length) : "?";
    text.remove_prefix(next.length);
  }
  return excerpt;
}

}  // namespace plexel
