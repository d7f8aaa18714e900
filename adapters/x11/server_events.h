#pragma once

#include <xcb/xcb.h>

#include <cstdint>

#include "keyboard/desktop_keyboard.h"

namespace plexel {

/// What an event of an X server says of the keyboard. `keyboardEvent` is the first event number of the server's
/// keyboard extension, 0 for a server without it.
DesktopEvent ReadServerEvent(const xcb_generic_event_t& event, std::uint8_t keyboardEvent);

}  // namespace plexel
