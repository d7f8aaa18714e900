#pragma once

#include <cstdint>

#include "scancodes/key_translation.h"

namespace plexel {

/// The shortcuts of the operating system that a key can send, by the index of GetWindowsShortCutCodes.
inline constexpr std::int32_t WindowsShortCutCount = 19;

/// The number of the language text that names a shortcut in a list; Failure (Index) outside 0 to 18.
std::int32_t WindowsShortCutTextId(std::int32_t index);

/// Sequences of a Windows shortcut, 0 to 18; any other index changes nothing.
void GetWindowsShortCutCodes(CodeArray& lngMake, std::int32_t& lngMakeLength, CodeArray& lngBreak,
                             std::int32_t& lngBreakLength, std::int32_t lngIndex);

}  // namespace plexel
