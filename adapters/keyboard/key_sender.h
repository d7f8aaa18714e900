#pragma once

#include <memory>

namespace plexel {

/// Sends keys to a desktop as a keyboard does: they reach the program in front.
class KeySender {
 public:
  virtual ~KeySender() = default;
  /// A key by its code of the kernel's input layer goes down or comes up. False for a key that the desktop does not
  /// have, and when the desktop is gone.
  virtual bool Send(int evdev, bool down) = 0;
};

/// Sends to the X server that DISPLAY names, over a connection of its own; null when there is none, or when it takes no
/// keys from programs. It stands in the room x11.
std::unique_ptr<KeySender> KeySenderOfXServer();

}  // namespace plexel
