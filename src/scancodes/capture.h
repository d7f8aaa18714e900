#pragma once

#include <cstddef>
#include <cstdint>

#include "services/boolean.h"

namespace plexel {

/// Keyboard capture: the hooks, the key table and what becomes of a finished combination.

/// Keys of one combination. The slot behind them takes the ones that are too many.
inline constexpr std::int32_t MaxPressedKeys = 10;

/// Fields of a slot of the key table.
namespace key_field {
inline constexpr std::size_t VirtualKey = 0, Down = 1, ScanCode = 2, Extended = 3;
}

/// Starts or stops capture for a target (0 configuration dialog, 2 wizard). The result of the hook call that it made,
/// not 0 on success; 0 when it did nothing.
std::int32_t SetDirectInput(Boolean bActive, std::int32_t lngTarget);

/// `lParam` is the 32-bit flag word of the key. A failing statement is passed over.
std::int32_t KeyboardHookProc(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam);
/// `lParam` is the address of a LowLevelKey. Runs for every key of the whole system: no allocation, no lock, no input
/// or output. -1 keeps the key from the system; after a failure the key passes.
std::int32_t LowLevelKeyboardProc(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam);

/// Enters one event into the key table; bit 31 of `lngParam` tells that the key goes up.
void TrackKeyEvent(std::int32_t lngVirtualKey, std::int32_t lngParam, std::int32_t lngScanCode,
                   std::int32_t lngExtended);
bool AllKeysReleased();
/// Takes the false left Ctrl of an Alt Gr out of the key table.
void RemoveAltGrControl();
/// Gives the focus to the focus catcher of the input target. No guard.
void ParkInputFocus();
/// Bits 16 to 23 and bit 24 of the flag word.
std::int32_t ScanCodeOf(std::int32_t lngParam);
std::int32_t ExtendedFlagOf(std::int32_t lngParam);

}  // namespace plexel
