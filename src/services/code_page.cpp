#include "services/code_page.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/failure.h"

namespace plexel {

namespace {

/// The characters of the codes 80 to 9F; every other code is the character of the same number.
constexpr std::array<char32_t, 32> middleCharacters = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                       0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                       0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                       0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr std::uint8_t middleStart = 0x80, middleEnd = 0xA0;
static_assert(middleCharacters.size() == middleEnd - middleStart);

constexpr char32_t lastCharacter = 0x10FFFF;

constexpr bool IsSurrogate(char32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

struct Decoded {
  char32_t character = 0;  ///< for a broken sequence its first byte
  std::size_t length = 1;  ///< bytes
  bool broken = false;
};

/// The character at the start of a text that is not empty.
Decoded DecodeFirst(std::string_view utf8) {
  const auto lead = static_cast<std::uint8_t>(utf8[0]);
  if (lead < 0x80) return {lead, 1, false};
  const Decoded broken{lead, 1, true};
  if (lead < 0xC2 || lead > 0xF4) return broken;
  const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (utf8.size() < length) return broken;
  char32_t character = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<std::uint8_t>(utf8[i]);
    if ((next & 0xC0U) != 0x80U) return broken;
    character = (character << 6) | (next & 0x3FU);
  }
  constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
  if (character < smallest[length] || character > lastCharacter || IsSurrogate(character)) return broken;
  return {character, length, false};
}

void AppendUtf8(std::string& text, char32_t character) {
  const auto byte = [&](char32_t bits) { text += static_cast<char>(static_cast<std::uint8_t>(bits)); };
  const auto next = [&](int shift) { byte(0x80U | ((character >> shift) & 0x3FU)); };
  if (character < 0x80) {
    byte(character);
  } else if (character < 0x800) {
    byte(0xC0U | (character >> 6));
    next(0);
  } else if (character < 0x10000) {
    byte(0xE0U | (character >> 12));
    next(6);
    next(0);
  } else {
    byte(0xF0U | (character >> 18));
    next(12);
    next(6);
    next(0);
  }
}

char32_t CharacterNumber(std::uint8_t code) {
  return code >= middleStart && code < middleEnd ? middleCharacters[code - middleStart] : code;
}

void AppendEscape(std::string& bytes, char kind, char32_t number) {
  std::array<char, 8> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<std::uint32_t>(number), 16);
  bytes += '\\';
  bytes += kind;
  bytes += '{';
  bytes.append(digits.data(), end.ptr);
  bytes += '}';
}

[[noreturn]] void FailEscape() { throw Failure(FailureKind::Conversion, "broken escape in a text"); }

/// Reads the escape at the start of the bytes, appends what it stands for, and gives its length.
std::size_t ReadEscape(std::string_view bytes, std::string& text) {
  if (bytes.starts_with("\\\\")) {
    text += '\\';
    return 2;
  }
  const bool character = bytes.starts_with("\\u{");
  if (!character && !bytes.starts_with("\\x{")) FailEscape();
  constexpr std::size_t digitsStart = 3;
  const auto digitsEnd = bytes.find('}', digitsStart);
  if (digitsEnd == std::string_view::npos) FailEscape();
  std::uint32_t number = 0;
  const auto [stop, error] = std::from_chars(bytes.data() + digitsStart, bytes.data() + digitsEnd, number, 16);
  if (error != std::errc() || stop != bytes.data() + digitsEnd) FailEscape();
  if (character) {
    if (number > lastCharacter || IsSurrogate(number)) FailEscape();
    AppendUtf8(text, number);
  } else {
    if (number > 0xFF) FailEscape();
    text += static_cast<char>(static_cast<std::uint8_t>(number));
  }
  return digitsEnd + 1;
}

}  // namespace

std::string CharacterOf(std::uint8_t code) {
  std::string text;
  AppendUtf8(text, CharacterNumber(code));
  return text;
}

std::int32_t CodeOf(char32_t character) {
  if (character < middleStart || (character >= middleEnd && character <= 0xFF)) {
    return static_cast<std::int32_t>(character);
  }
  const auto found = std::find(middleCharacters.begin(), middleCharacters.end(), character);
  return found == middleCharacters.end() ? -1
                                         : middleStart + static_cast<std::int32_t>(found - middleCharacters.begin());
}

std::string FromCodePage(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) AppendUtf8(text, CharacterNumber(static_cast<std::uint8_t>(byte)));
  return text;
}

std::string ToCodePage(std::string_view utf8, char replacement) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const Decoded next = DecodeFirst(utf8);
    const std::int32_t code = next.broken ? -1 : CodeOf(next.character);
    bytes += code < 0 ? replacement : static_cast<char>(static_cast<std::uint8_t>(code));
    utf8.remove_prefix(next.length);
  }
  return bytes;
}

std::string ToCodePageEscaped(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const Decoded next = DecodeFirst(utf8);
    const std::int32_t code = next.broken ? -1 : CodeOf(next.character);
    if (code == '\\') {
      bytes += "\\\\";
    } else if (code >= 0) {
      bytes += static_cast<char>(static_cast<std::uint8_t>(code));
    } else {
      AppendEscape(bytes, next.broken ? 'x' : 'u', next.character);
    }
    utf8.remove_prefix(next.length);
  }
  return bytes;
}

std::string FromCodePageEscaped(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    std::size_t length = 1;
    if (bytes[0] == '\\') {
      length = ReadEscape(bytes, text);
    } else {
      AppendUtf8(text, CharacterNumber(static_cast<std::uint8_t>(bytes[0])));
    }
    bytes.remove_prefix(length);
  }
  return text;
}

std::size_t CountCharacters(std::string_view utf8) {
  std::size_t count = 0;
  for (; !utf8.empty(); ++count) utf8.remove_prefix(DecodeFirst(utf8).length);
  return count;
}

std::string_view FirstCharacters(std::string_view utf8, std::size_t count) {
  std::size_t length = 0;
  for (; count > 0 && length < utf8.size(); --count) length += DecodeFirst(utf8.substr(length)).length;
  return utf8.substr(0, length);
}

}  // namespace plexel
