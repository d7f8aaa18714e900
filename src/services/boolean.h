#pragma once

#include <cstdint>

namespace plexel {

/// The system's boolean: a 16-bit integer. Tests for true compare with exactly -1, so any other value that is not 0 is
/// neither true nor false.
using Boolean = std::int16_t;
inline constexpr Boolean True = -1;
inline constexpr Boolean False = 0;

constexpr Boolean ToBoolean(bool value) { return value ? True : False; }
constexpr bool IsTrue(Boolean value) { return value == True; }

}  // namespace plexel
