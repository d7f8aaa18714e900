#pragma once

#include <cstdint>

#include "scancodes/code_sequence.h"

namespace plexel {

/// modPlexelGlobalScancodeFunctions.

/// Takes the physical state of Shift, Num Lock, Alt and Ctrl into the module state. Ends quietly on a failure.
void SampleModifierKeys();

/// Turns one key into its make and break sequence of scan code set 2. `varScanCode` is of set 1; a `lngExtended` that
/// is not 0 is extended. What is not written stays as the caller left it, lengths included. No allocation.
void TranslateScanCode(std::int32_t varScanCode, std::int32_t varVirtualKey, std::int32_t lngExtended, KeyCodes& codes);

}  // namespace plexel
