#include "project/json_text.h"

#include <cstdint>

#include "forms/ascii.h"
#include "forms/characters.h"

namespace plexel {

namespace {

constexpr std::string_view BytesMark = "\uFFFD";

void AppendHex(std::string& out, std::uint8_t byte) {
  out += ascii::HexDigits[byte >> 4U];
  out += ascii::HexDigits[byte & 0xFU];
}

/// Whether a character cannot be seen where it stands, or turns around what stands beside it.
bool IsHidden(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0) || (character >= 0x200B && character <= 0x200F) ||
         (character >= 0x2028 && character <= 0x202E) || (character >= 0x2066 && character <= 0x2069) ||
         character == 0xFEFF;
}

void AppendEscaped(std::string& out, char32_t character) {
  switch (character) {
    case '\n':
      out += "\\n";
      return;
    case '\r':
      out += "\\r";
      return;
    case '\t':
      out += "\\t";
      return;
    default:
      out += "\\u";
      AppendHex(out, static_cast<std::uint8_t>(character >> 8U));
      AppendHex(out, static_cast<std::uint8_t>(character));
  }
}

void AppendCharacters(std::string& out, std::string_view text) {
  while (!text.empty()) {
    const characters::Decoded next = characters::First(text);
    if (next.character == '"' || next.character == '\\') out += '\\';
    if (IsHidden(next.character)) {
      AppendEscaped(out, next.character);
    } else {
      out += text.substr(0, next.length);
    }
    text.remove_prefix(next.length);
  }
}

}  // namespace

void AppendJsonText(std::string& out, std::string_view text) {
  out += '"';
  if (text.starts_with(BytesMark) || !characters::IsWellFormed(text)) {
    out += BytesMark;
    for (const char c : text) AppendHex(out, static_cast<std::uint8_t>(c));
  } else {
    AppendCharacters(out, text);
  }
  out += '"';
}

std::optional<std::string> FromJsonText(std::string_view text) {
  if (!text.starts_with(BytesMark)) return std::string(text);
  text.remove_prefix(BytesMark.size());
  if (text.empty() || text.size() % 2 != 0) return std::nullopt;
  std::string bytes;
  for (std::size_t index = 0; index < text.size(); index += 2) {
    const std::uint8_t high = ascii::HexValue(text[index]), low = ascii::HexValue(text[index + 1]);
    if (high == ascii::NoDigit || low == ascii::NoDigit) return std::nullopt;
    bytes += static_cast<char>(high * 16 + low);
  }
  return bytes;
}

}  // namespace plexel
