#pragma once

#include <cstdint>
#include <string_view>

namespace plexel {

/// Set 2 code of a digit of the number pad; 0 for anything else.
std::int32_t DigitToKeypadCode(std::string_view strDigit);

}  // namespace plexel
