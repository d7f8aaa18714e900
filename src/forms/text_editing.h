#pragma once

#include "forms/controls.h"

namespace plexel {

/// The caret and Delete keys of a text box, which `control` must be. A line break counts as one place.
void EditByKey(Control& control, std::int16_t keyCode);

}  // namespace plexel
