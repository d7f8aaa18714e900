#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/characters.h"

namespace plexel {

/// Windows-1252, the system's 8-bit code page, and back. Memory holds UTF-8. The five bytes that the code page leaves
/// undefined (81, 8D, 8F, 90, 9D) stand for the control characters of the same code.

/// The character of a code, as UTF-8.
std::string CharacterOf(std::uint8_t code);
/// The code of a Unicode character, or -1 when the code page lacks it.
using characters::CodeOf;

std::string FromCodePage(std::string_view bytes);
/// The other way, without loss: a backslash becomes two, a character that the code page lacks "\u{HEX}", a byte of a
/// broken sequence "\x{HEX}".
std::string ToCodePageEscaped(std::string_view utf8);
/// Undoes ToCodePageEscaped; Failure (Conversion) for a broken escape.
std::string FromCodePageEscaped(std::string_view bytes);

/// The number of characters of a UTF-8 text; every byte of a broken sequence counts as one.
inline std::size_t CountCharacters(std::string_view utf8) { return static_cast<std::size_t>(characters::Count(utf8)); }

/// The marks of a definition text: codes 139 and 155 of the code page.
inline constexpr std::string_view chrMakeMark = "\u2039";
inline constexpr std::string_view chrBreakMark = "\u203A";

}  // namespace plexel
