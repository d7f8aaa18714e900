#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

/// Case and hexadecimal digits of the characters A to Z and 0 to 9, whatever the locale. All other bytes stay as they
/// are.
namespace plexel::ascii {

constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

/// Whether two texts are the same in any case.
constexpr bool Same(std::string_view a, std::string_view b) {
  if (a == b) return true;
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Lower(x) == Lower(y); });
}

inline constexpr std::string_view HexDigits = "0123456789ABCDEF";

/// The value of each hexadecimal digit, in any case; NoDigit for any other character.
inline constexpr std::uint8_t NoDigit = 0xFF;
inline constexpr auto HexValues = [] {
  std::array<std::uint8_t, 256> values{};
  values.fill(NoDigit);
  for (std::size_t value = 0; value < HexDigits.size(); ++value) {
    values[static_cast<std::uint8_t>(HexDigits[value])] = static_cast<std::uint8_t>(value);
    values[static_cast<std::uint8_t>(Lower(HexDigits[value]))] = static_cast<std::uint8_t>(value);
  }
  return values;
}();
constexpr std::uint8_t HexValue(char digit) { return HexValues[static_cast<std::uint8_t>(digit)]; }

/// Takes "&H", the mark of a hexadecimal number, from the start of a text; false when it has none.
constexpr bool TakeHexMark(std::string_view& text) {
  const bool marked = text.size() >= 2 && text[0] == '&' && Lower(text[1]) == 'h';
  if (marked) text.remove_prefix(2);
  return marked;
}

}  // namespace plexel::ascii
