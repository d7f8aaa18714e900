#pragma once

#include <cstddef>
#include <cstdint>

namespace plexel {

/// The keys of a combination that is being entered, in the module state.

/// Keys of one combination. The slot behind them takes the ones that are too many.
inline constexpr std::int32_t MaxPressedKeys = 10;

/// Fields of a slot of the key table.
namespace key_field {
inline constexpr std::size_t VirtualKey = 0, Down = 1, ScanCode = 2, Extended = 3;
}

/// Enters one event into the key table; bit 31 of `lngParam` tells that the key goes up.
void TrackKeyEvent(std::int32_t lngVirtualKey, std::int32_t lngParam, std::int32_t lngScanCode,
                   std::int32_t lngExtended);
bool AllKeysReleased();
/// Takes the false left Ctrl of an Alt Gr out of the key table.
void RemoveAltGrControl();
/// Bits 16 to 23 and bit 24 of the flag word.
std::int32_t ScanCodeOf(std::int32_t lngParam);
std::int32_t ExtendedFlagOf(std::int32_t lngParam);

}  // namespace plexel
