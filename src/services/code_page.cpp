#include "services/code_page.h"

#include <array>
#include <charconv>

#include "platform/failure.h"

namespace plexel {

namespace {

void AppendCode(std::string& text, char code) {
  characters::Append(text, characters::OfCode(static_cast<std::uint8_t>(code)));
}

/// The code of a character; -1 also for a broken one.
std::int32_t CodeOf(const characters::Decoded& decoded) {
  return decoded.broken ? -1 : characters::CodeOf(decoded.character);
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
    if (!characters::IsCharacter(number)) FailEscape();
    characters::Append(text, number);
  } else {
    if (number > 0xFF) FailEscape();
    text += static_cast<char>(static_cast<std::uint8_t>(number));
  }
  return digitsEnd + 1;
}

}  // namespace

std::string CharacterOf(std::uint8_t code) { return characters::Encode(characters::OfCode(code)); }

std::string FromCodePage(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) AppendCode(text, byte);
  return text;
}

std::string ToCodePageEscaped(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const characters::Decoded next = characters::First(utf8);
    const std::int32_t code = CodeOf(next);
    if (code == '\\') {
      bytes += "\\\\";
    } else if (code >= 0) {
      bytes += static_cast<char>(static_cast<std::uint8_t>(code));
    } else if (next.broken) {
      AppendEscape(bytes, 'x', static_cast<std::uint8_t>(utf8[0]));
    } else {
      AppendEscape(bytes, 'u', next.character);
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
      AppendCode(text, bytes[0]);
    }
    bytes.remove_prefix(length);
  }
  return text;
}

}  // namespace plexel
