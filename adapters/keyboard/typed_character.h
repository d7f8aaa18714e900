#pragma once

#include <cstdint>

namespace plexel {

/// The Unicode character that a key types; 0 for none. `plain` is the layout's character without any modifier, `shift`
/// the bits of a key event. Tab and keys with Alt type nothing, Ctrl and a letter the codes 1 to 26.
char32_t TypedCharacter(std::int32_t virtualKey, std::int16_t shift, char32_t plain);

}  // namespace plexel
