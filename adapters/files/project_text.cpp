#include "files/project_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "files/project_syntax.h"
#include "forms/ascii.h"
#include "services/code_page.h"

namespace plexel {

namespace {

bool IsPlain(char c) { return c >= ' ' && c <= '~' && c != '\\'; }

void AppendEscape(std::string& out, char c) {
  const auto digit = [](unsigned value) { return ascii::Lower(ascii::HexDigits[value]); };
  const auto code = static_cast<unsigned char>(c);
  const std::array<char, 6> escape = {'\\', 'u', '{', digit(code >> 4U), digit(code & 0xFU), '}'};
  out.append(escape.data(), escape.size());
}

/// How many bytes at the start are ASCII, the backslash apart. It looks at eight at once.
std::size_t PlainLength(std::string_view bytes) {
  constexpr std::uint64_t ones = 0x0101010101010101, highBits = ones << 7U, backslashes = ones * '\\';
  std::size_t length = 0;
  for (std::uint64_t word = 0; length + sizeof(word) <= bytes.size(); length += sizeof(word)) {
    std::memcpy(&word, bytes.data() + length, sizeof(word));
    // Of bytes without their high bit, those that are 0 alone get it when 1 is taken away.
    if (((word | ((word ^ backslashes) - ones)) & highBits) != 0) break;
  }
  while (length < bytes.size() && static_cast<signed char>(bytes[length]) >= 0 && bytes[length] != '\\') ++length;
  return length;
}

/// Appends a text of plain characters and marks, the usual content of a definition; false for any other.
bool AppendDefinition(std::string& out, std::string_view text) {
  constexpr std::string_view lead = chrMakeMark.substr(0, 2);
  static_assert(chrMakeMark.size() == 3 && chrBreakMark.size() == 3 && chrBreakMark.starts_with(lead));
  const std::size_t start = out.size();
  while (!text.empty()) {
    const auto plainEnd = std::find_if_not(text.begin(), text.end(), IsPlain);
    const auto plain = static_cast<std::size_t>(plainEnd - text.begin());
    out.append(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty()) return true;
    const bool make = text.starts_with(chrMakeMark);
    if (!make && !text.starts_with(chrBreakMark)) {
      out.resize(start);
      return false;
    }
    out += project_syntax::Marks[make ? 0 : 1];
    text.remove_prefix(chrMakeMark.size());
  }
  return true;
}

}  // namespace

void AppendProjectText(std::string& out, std::string_view text, std::string_view reserved) {
  if (text.empty()) return;
  const bool bordered = text.front() == ' ' || text.back() == ' ';
  if (!bordered && reserved.empty() && AppendDefinition(out, text)) return;
  const std::string bytes = ToCodePageEscaped(text);
  for (std::size_t index = 0; index < bytes.size(); ++index) {
    const char c = bytes[index];
    const bool control = (c >= 0 && c < ' ') || c == '\x7F';
    const bool border = c == ' ' && (index == 0 || index + 1 == bytes.size());
    if (control || border || reserved.find(c) != std::string_view::npos) {
      AppendEscape(out, c);
    } else {
      out += c;
    }
  }
}

std::string ReadProjectText(std::string_view bytes) {
  std::size_t plain = PlainLength(bytes);
  if (plain == bytes.size()) return std::string(bytes);
  if (bytes.find('\\', plain) != std::string_view::npos) return FromCodePageEscaped(bytes);
  static const auto characters = [] {
    std::array<std::string, 128> made;
    for (std::size_t index = 0; index < made.size(); ++index)
      made[index] = CharacterOf(static_cast<std::uint8_t>(index + 128));
    return made;
  }();
  constexpr std::size_t longest = 3;
  std::string text;
  text.reserve(plain + (bytes.size() - plain) * longest);
  for (; plain < bytes.size(); plain = PlainLength(bytes)) {
    text.append(bytes, 0, plain).append(characters[static_cast<std::uint8_t>(bytes[plain]) - 128U]);
    bytes.remove_prefix(plain + 1);
  }
  text += bytes;
  return text;
}

}  // namespace plexel
