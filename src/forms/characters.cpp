#include "forms/characters.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace plexel::characters {

namespace {

constexpr char32_t Replacement = 0xFFFD;
constexpr std::uint8_t FirstSpecialCode = 0x80, FirstLatinCode = 0xA0;

/// Codes 80 to 9F; outside them Windows-1252 and Unicode agree.
constexpr std::array<char16_t, 32> SpecialCodes = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                   0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
static_assert(SpecialCodes.size() == FirstLatinCode - FirstSpecialCode);

/// Letters of U+00C0 to U+00FF without case and accent; null for the two that are no letters.
constexpr std::array<const char*, 64> FoldedLetters = {
    "a", "a", "a", "a", "a", "a", "ae", "c",     "e", "e", "e", "e", "i", "i", "i",  "i",
    "d", "n", "o", "o", "o", "o", "o",  nullptr, "o", "u", "u", "u", "u", "y", "th", "ss",
    "a", "a", "a", "a", "a", "a", "ae", "c",     "e", "e", "e", "e", "i", "i", "i",  "i",
    "d", "n", "o", "o", "o", "o", "o",  nullptr, "o", "u", "u", "u", "u", "y", "th", "y"};

std::uint8_t Byte(std::string_view text, std::size_t place) { return static_cast<std::uint8_t>(text[place]); }

/// Bytes of the sequence that a byte leads; 0 for a byte that leads none.
std::size_t LengthLedBy(std::uint8_t lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

}  // namespace

Decoded First(std::string_view utf8) {
  constexpr Decoded broken{Replacement, 1, true};
  constexpr std::array<char32_t, 3> smallest = {0x80, 0x800, 0x10000};
  const std::uint8_t lead = Byte(utf8, 0);
  const std::size_t length = LengthLedBy(lead);
  if (length == 1) return {lead, 1, false};
  if (length == 0 || utf8.size() < length) return broken;
  char32_t character = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((Byte(utf8, i) & 0xC0) != 0x80) return broken;
    character = character << 6 | (Byte(utf8, i) & 0x3FU);
  }
  if (character < smallest[length - 2] || !IsCharacter(character)) return broken;
  return {character, length, false};
}

std::size_t FindBroken(std::string_view utf8) {
  constexpr std::uint64_t highBits = 0x8080808080808080U;
  for (std::size_t place = 0; place < utf8.size();) {
    std::uint64_t word = highBits;
    if (utf8.size() - place >= sizeof(word)) std::memcpy(&word, utf8.data() + place, sizeof(word));
    if ((word & highBits) == 0) {
      place += sizeof(word);
      continue;
    }
    const Decoded next = First(utf8.substr(place));
    if (next.broken) return place;
    place += next.length;
  }
  return std::string_view::npos;
}

std::vector<std::string_view> Split(std::string_view utf8) {
  std::vector<std::string_view> parts;
  while (!utf8.empty()) {
    const std::size_t length = First(utf8).length;
    parts.push_back(utf8.substr(0, length));
    utf8.remove_prefix(length);
  }
  return parts;
}

int Count(std::string_view utf8) {
  int count = 0;
  for (; !utf8.empty(); ++count) utf8.remove_prefix(First(utf8).length);
  return count;
}

char32_t Decode(std::string_view character) { return First(character).character; }

std::string Encode(char32_t character) {
  std::string text;
  Append(text, character);
  return text;
}

void Append(std::string& text, char32_t character) {
  const auto byte = [&](char32_t bits) { text += static_cast<char>(static_cast<std::uint8_t>(bits)); };
  const auto next = [&](int shift) { byte(0x80U | (character >> shift & 0x3FU)); };
  if (character < 0x80) return byte(character);
  if (character < 0x800) {
    byte(0xC0U | character >> 6);
  } else {
    if (character < 0x10000) {
      byte(0xE0U | character >> 12);
    } else {
      byte(0xF0U | character >> 18);
      next(12);
    }
    next(6);
  }
  next(0);
}

char32_t OfCode(std::uint8_t code) {
  if (code < FirstSpecialCode || code >= FirstLatinCode) return code;
  return SpecialCodes[code - FirstSpecialCode];
}

int CodeOf(char32_t character) {
  if (character < FirstSpecialCode || (character >= FirstLatinCode && character <= 0xFF)) {
    return static_cast<int>(character);
  }
  const auto place = std::find(SpecialCodes.begin(), SpecialCodes.end(), character);
  return place == SpecialCodes.end() ? -1 : FirstSpecialCode + static_cast<int>(place - SpecialCodes.begin());
}

std::string Folded(std::string_view utf8) {
  std::string folded;
  for (const std::string_view part : Split(utf8)) {
    const char32_t character = Decode(part);
    if (character >= U'A' && character <= U'Z') {
      folded += static_cast<char>(character - U'A' + U'a');
    } else if (character >= 0xC0 && character <= 0xFF && FoldedLetters[character - 0xC0] != nullptr) {
      folded += FoldedLetters[character - 0xC0];
    } else {
      folded += part;
    }
  }
  return folded;
}

}  // namespace plexel::characters
