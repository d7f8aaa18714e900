#pragma once

#include <cstdint>
#include <span>

#include "scancodes/code_sequence.h"

namespace plexel {

/// A shortcut of the operating system that a key can send.
struct ShortCut {
  std::int32_t textId = 0;  ///< number of the language text that names it in a list
  FixedCodes make, breaking;
};

/// The shortcuts in the order of the list, by the index of GetWindowsShortCutCodes.
std::span<const ShortCut> WindowsShortCuts();

/// Sequences of a Windows shortcut, 0 to 18; any other index changes nothing.
void GetWindowsShortCutCodes(KeyCodes& codes, std::int32_t lngIndex);

}  // namespace plexel
