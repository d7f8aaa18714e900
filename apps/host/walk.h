#pragma once

#include <windows.h>

#include <cstddef>
#include <span>

namespace plexel::host {

/// Where a key leads from one of several places on a panel: Tab to the next, with Shift to the one before, around the
/// ends; an arrow key to the nearest in its direction. `none` is the place ahead of the first. Gives the same place for
/// other keys, and where there is none to go to.
inline constexpr std::size_t NoPlace = static_cast<std::size_t>(-1);
std::size_t PlaceBehind(std::span<const RECT> places, std::size_t from, WPARAM key, bool shift);

}  // namespace plexel::host
