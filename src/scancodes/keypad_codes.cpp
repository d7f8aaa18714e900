#include "scancodes/keypad_codes.h"

#include <array>
#include <cstddef>

namespace plexel {

std::int32_t DigitToKeypadCode(std::string_view strDigit) {
  constexpr std::array<std::uint8_t, 10> codes = {0x70, 0x69, 0x72, 0x7A, 0x6B, 0x73, 0x74, 0x6C, 0x75, 0x7D};
  if (strDigit.size() != 1 || strDigit[0] < '0' || strDigit[0] > '9') return 0;
  return codes[static_cast<std::size_t>(strDigit[0] - '0')];
}

}  // namespace plexel
