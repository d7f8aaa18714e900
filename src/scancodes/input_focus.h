#pragma once

#include <cstdint>

namespace plexel {

/// The focus of a dialog while it captures keys.

/// Makes the focus catcher of a target reachable and gives it the focus. Nothing for a target that is none. No guard.
void CatchFocus(std::int32_t lngTarget);
/// Takes the focus catcher out of the tab order again and gives the focus back. No guard.
void ReturnFocus(std::int32_t lngTarget);
/// The first for the input target. Ends quietly when the focus catcher cannot take the focus or no dialog is open.
void ParkInputFocus();

}  // namespace plexel
