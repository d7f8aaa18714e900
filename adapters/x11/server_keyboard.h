#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>

#include "keyboard/win_keys.h"
#include "keyboard/xkb_layout.h"

namespace plexel {

/// The keyboard of an X server, over a connection that its owner keeps open.
class ServerKeyboard {
 public:
  explicit ServerKeyboard(xcb_connection_t* connection) : connection_(connection) {}
  ~ServerKeyboard() { Ungrab(); }
  ServerKeyboard(const ServerKeyboard&) = delete;
  ServerKeyboard& operator=(const ServerKeyboard&) = delete;

  /// The server's layout in the group that is in force now, named by the server's rules. Failure (Platform) when the
  /// server has no keyboard extension.
  std::unique_ptr<XkbLayout> ReadLayout() const;
  /// The keys that are physically down now, as evdev codes; none when the server does not answer.
  WinKeys::KeySet ReadKeys() const;
  /// Whether Num Lock is on, out of the modifier state of a key event.
  static bool NumLockOn(std::uint16_t state) { return (state & XCB_MOD_MASK_2) != 0; }

  /// Takes all keys for the window, so that the desktop does not act on them; events go on to the program's windows as
  /// usual. False when another program holds the keyboard.
  bool Grab(xcb_window_t window);
  void Ungrab();
  bool Grabbed() const { return grabbed_; }

 private:
  xcb_connection_t* connection_;
  bool grabbed_ = false;
};

}  // namespace plexel
