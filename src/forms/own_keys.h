#pragma once

#include <cstdint>

#include "forms/control.h"

namespace plexel {

/// Carries out a key's own action on the control with the focus, as Hand tells them; nothing for a key without one.
void ActOnKey(Control& control, std::int16_t keyCode, std::int16_t shift);

}  // namespace plexel
