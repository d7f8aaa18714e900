#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace plexel::characters {

/// Whether a number is one of a Unicode character: within the planes and no surrogate.
constexpr bool IsCharacter(char32_t number) { return number <= 0x10FFFF && (number < 0xD800 || number > 0xDFFF); }

/// The character at one place of a UTF-8 text. Every byte of a broken sequence counts as a character of its own.
struct Decoded {
  char32_t character;  ///< U+FFFD for a broken byte
  std::size_t length;  ///< bytes
  bool broken;
};
/// The character at the start of a text that is not empty.
Decoded First(std::string_view utf8);

/// The place of the first broken byte, npos for a well-formed text.
std::size_t FindBroken(std::string_view utf8);
inline bool IsWellFormed(std::string_view utf8) { return FindBroken(utf8) == std::string_view::npos; }

/// The characters of a UTF-8 text, in order, as parts of it.
std::vector<std::string_view> Split(std::string_view utf8);
int Count(std::string_view utf8);
/// The Unicode character that such a part stands for; U+FFFD for a broken byte.
char32_t Decode(std::string_view character);
std::string Encode(char32_t character);
/// Adds the UTF-8 of a character to the end of a text.
void Append(std::string& text, char32_t character);

/// The character of a code of Windows-1252. The five codes that it leaves undefined stand for themselves.
char32_t OfCode(std::uint8_t code);
/// The code of a character, or -1 when Windows-1252 lacks it.
int CodeOf(char32_t character);

/// The text as a sorted list compares it first: letters of Latin-1 without case and accent.
std::string Folded(std::string_view utf8);

}  // namespace plexel::characters
