#pragma once

#include <windows.h>

#include <cstdint>

namespace plexel {

/// What a message tells of the mouse.
enum class MouseMove { None, Down, Up, DoubleClick };
MouseMove MouseMoveOf(UINT message);
/// The button of such a message as the form model numbers it.
std::int16_t ButtonOf(UINT message);
/// The shift state of such a message, as the bits of a key event.
std::int16_t ShiftOf(WPARAM keys);

}  // namespace plexel
