#pragma once

#include <cstdint>

namespace plexel {

/// What the keyboard hooks call, and what becomes of a finished combination.

/// `lParam` is the 32-bit flag word of the key. A failing statement is passed over.
std::int32_t KeyboardHookProc(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam);
/// `lParam` is the address of a LowLevelKey. Runs for every key of the whole system: no allocation, no lock, no input
/// or output. -1 keeps the key from the system; after a failure the key passes.
std::int32_t LowLevelKeyboardProc(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam);

}  // namespace plexel
