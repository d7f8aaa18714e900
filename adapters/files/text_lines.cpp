#include "files/text_lines.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "files/system_files.h"

namespace plexel {

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view Utf16Little = "\xFF\xFE";
constexpr std::string_view Utf16Big = "\xFE\xFF";

/// The length of the well-formed UTF-8 sequence at the start of the bytes, 0 when it is broken.
std::size_t SequenceLength(std::string_view bytes) {
  const auto at = [&bytes](std::size_t index) { return static_cast<std::uint8_t>(bytes[index]); };
  const std::uint8_t lead = at(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return 0;
  for (std::size_t index = 1; index < length; ++index) {
    if ((at(index) & 0xC0) != 0x80) return 0;
  }
  const std::uint8_t second = at(1);
  const bool overlong = (lead == 0xE0 && second < 0xA0) || (lead == 0xF0 && second < 0x90);
  const bool surrogate = lead == 0xED && second > 0x9F;
  const bool beyond = lead == 0xF4 && second > 0x8F;
  return overlong || surrogate || beyond ? 0 : length;
}

}  // namespace

bool LineWalk::Next(std::string_view& line) {
  if (position_ >= text_.size()) return false;
  if (lineFeed_ < position_) lineFeed_ = Find('\n');
  if (carriageReturn_ < position_) carriageReturn_ = Find('\r');
  const std::size_t end = std::min(lineFeed_, carriageReturn_);
  line = std::string_view(text_.data() + position_, end - position_);
  position_ = end == carriageReturn_ && lineFeed_ == end + 1 ? end + 2 : end + 1;
  ++number_;
  return true;
}

TextFile::TextFile(std::filesystem::path file, std::size_t limit) : path_(std::move(file)) {
  content_ = ReadWholeFile(path_, limit);
  Check();
}

TextFile::TextFile(std::filesystem::path file, std::string content)
    : path_(std::move(file)), content_(std::move(content)) {
  Check();
}

void TextFile::Check() {
  const std::string_view content = content_;
  if (content.starts_with(Utf16Little) || content.starts_with(Utf16Big)) {
    throw Error(1, "the text is UTF-16; save it as UTF-8");
  }
  if (content.starts_with(Utf8Mark)) start_ = Utf8Mark.size();
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

bool IsUtf8(std::string_view bytes) {
  constexpr std::uint64_t highBits = 0x8080808080808080U;
  while (!bytes.empty()) {
    std::uint64_t word = highBits;
    if (bytes.size() >= sizeof(word)) std::memcpy(&word, bytes.data(), sizeof(word));
    const bool plain = (word & highBits) == 0;
    const std::size_t length = plain ? sizeof(word) : SequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::string Excerpt(std::string_view text) {
  constexpr std::size_t longest = 40;
  std::string excerpt;
  while (!text.empty()) {
    const std::size_t length = SequenceLength(text);
    if (excerpt.size() + std::max<std::size_t>(length, 1) > longest) return excerpt + "...";
    const bool plain = length > 1 || (length == 1 && static_cast<std::uint8_t>(text[0]) >= 0x20 && text[0] != 0x7F);
    excerpt += plain ? text.substr(0, length) : "?";
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return excerpt;
}

}  // namespace plexel
