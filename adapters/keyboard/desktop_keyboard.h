#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <variant>

#include "keyboard/table_layout.h"
#include "keyboard/win_keys.h"

struct xcb_connection_t;

namespace plexel {

/// A key of the desktop, with the state of the keyboard before it.
struct DesktopKey {
  RawKey key;
  bool numLock = false;
  std::uint32_t group = 0;  ///< of the layout
  bool operator==(const DesktopKey&) const = default;
};

/// The keys come to a window of the program or leave it. What taking the keyboard does to the focus is not told.
struct DesktopFocus {
  std::uintptr_t window = 0;
  bool comes = true;
  bool operator==(const DesktopFocus&) const = default;
};

/// A button of the mouse goes down or up.
struct DesktopButton {
  bool operator==(const DesktopButton&) const = default;
};

/// The keyboard or its layout is another one from now on.
struct DesktopLayout {
  bool operator==(const DesktopLayout&) const = default;
};

/// What one message of a desktop says of the keyboard; nothing for most of them.
using DesktopEvent = std::variant<std::monostate, DesktopKey, DesktopFocus, DesktopButton, DesktopLayout>;

/// A desktop that tells more of its keyboard than a toolkit does, and can leave it to one program.
class DesktopKeyboard {
 public:
  virtual ~DesktopKeyboard() = default;

  /// Reads a message as the toolkit hands it on, with its name for that kind of message.
  virtual DesktopEvent Read(std::string_view kind, const void* message) const = 0;
  /// The layout in the group that is in force now. Failure (Platform) when the desktop does not tell.
  virtual std::unique_ptr<TableLayout> ReadLayout() const = 0;
  /// The keys that are physically down now, as evdev codes; none when the desktop does not answer.
  virtual WinKeys::KeySet ReadKeys() const = 0;

  /// Takes all keys for the window, so that the desktop does not act on them; events go on to the program's windows as
  /// usual. False when another program holds the keyboard.
  virtual bool Grab(std::uintptr_t window) = 0;
  virtual void Ungrab() = 0;
};

/// The keyboard of an X server, over a connection that its owner keeps open for longer; null for no connection. It
/// stands in the room x11, which no other adapter includes.
std::unique_ptr<DesktopKeyboard> KeyboardOfXServer(xcb_connection_t* connection);

}  // namespace plexel
