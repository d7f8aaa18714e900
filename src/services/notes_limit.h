#pragma once

#include <cstdint>

namespace plexel {

/// The most characters that the note of an element has.
inline constexpr std::int32_t NotesLimit = 1000;

}  // namespace plexel
