#pragma once

#include <cstdint>

#include "services/boolean.h"

namespace plexel {

/// Keyboard capture: the hooks, the key table and what becomes of a finished combination.

/// Starts or stops capture for a target (0 configuration dialog, 2 wizard). The result of the hook call that it made,
/// not 0 on success; 0 when it did nothing.
std::int32_t SetDirectInput(Boolean bActive, std::int32_t lngTarget);

std::int32_t KeyboardHookProc(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam);
/// Runs for every key of the whole system: no allocation, no lock, no input or output.
std::int32_t LowLevelKeyboardProc(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam);

void TrackKeyEvent(std::int32_t lngVirtualKey, std::int32_t lngParam, std::int32_t lngScanCode,
                   std::int32_t lngExtended);
bool AllKeysReleased();
void RemoveAltGrControl();
void ParkInputFocus();
std::int32_t ScanCodeOf(std::int32_t lngParam);
std::int32_t ExtendedFlagOf(std::int32_t lngParam);

}  // namespace plexel
