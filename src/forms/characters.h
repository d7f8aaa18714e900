#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace plexel::characters {

/// The characters of a UTF-8 text, in order, as parts of it. Every byte of a broken sequence counts as one character.
std::vector<std::string_view> Split(std::string_view utf8);
int Count(std::string_view utf8);
/// The Unicode character that such a part stands for; U+FFFD for a broken byte.
char32_t Decode(std::string_view character);
std::string Encode(char32_t character);

/// The character of a code of Windows-1252. The five codes that it leaves undefined stand for themselves.
char32_t OfCode(std::uint8_t code);
/// The code of a character, or -1 when Windows-1252 lacks it.
int CodeOf(char32_t character);

/// The text as a sorted list compares it first: letters of Latin-1 without case and accent.
std::string Folded(std::string_view utf8);

}  // namespace plexel::characters
