#pragma once

#include "forms/controls.h"

namespace plexel {

/// The caret and Delete keys of a text box, which `control` must be. A line break counts as one place.
void EditByKey(Control& control, std::int16_t keyCode);

/// Enters a character at the caret of a text box, or deletes the one ahead of it (Backspace). Characters that a box
/// does not take, or has no room for, change nothing.
void EnterCharacter(TextBox& box, char32_t character);

}  // namespace plexel
