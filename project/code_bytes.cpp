#include "project/code_bytes.h"

#include <algorithm>
#include <cstdint>

#include "forms/ascii.h"

namespace plexel {

std::size_t LastInUse(const udtTactisBaseElement_TACTIS_SCANCODE& codes) {
  return static_cast<std::size_t>(std::max(codes.NextValue, 0));
}

std::string BytesText(const udtTactisBaseElement_TACTIS_SCANCODE& codes, std::size_t first, std::size_t last) {
  std::string text;
  for (std::size_t index = first; index <= last && index < codes.Value.size(); ++index) {
    if (!text.empty()) text += ' ';
    text += ascii::HexDigits[codes.Value[index] >> 4U];
    text += ascii::HexDigits[codes.Value[index] & 0xFU];
  }
  return text;
}

std::string ChangedBytes(const udtTactisBaseElement_TACTIS_SCANCODE& codes) {
  constexpr auto initial = InitialCodes();
  std::size_t last = codes.Value.size() - 1;
  while (last > LastInUse(codes) && codes.Value[last] == initial.Value[last]) --last;
  return BytesText(codes, 0, last);
}

bool PutBytes(std::string_view text, udtTactisBaseElement_TACTIS_SCANCODE& codes) {
  if (text.empty()) return true;
  for (std::uint8_t& byte : codes.Value) {
    const std::uint8_t high = ascii::HexValue(text.front());
    const std::uint8_t low = text.size() > 1 ? ascii::HexValue(text[1]) : ascii::NoDigit;
    if (high == ascii::NoDigit || low == ascii::NoDigit) return false;
    byte = static_cast<std::uint8_t>(high * 16 + low);
    text.remove_prefix(2);
    if (text.empty()) return true;
    if (text.size() < 3 || text.front() != ' ') return false;
    text.remove_prefix(1);
  }
  return false;
}

}  // namespace plexel
