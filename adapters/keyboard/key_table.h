#pragma once

#include <cstdint>
#include <span>

namespace plexel {

/// One key by its place on the keyboard: what the system reports for it.
struct KeyPosition {
  int evdev;  ///< code of the kernel's input layer; the X11 keycode less 8
  std::int32_t scanCode;
  bool extended;
  std::int32_t virtualKeyUs;       ///< with Num Lock off
  std::int32_t virtualKeyNumLock;  ///< with Num Lock on; differs on the number pad only
  std::int32_t virtualKeyGerman;
  std::int32_t virtualKeyFrench;

  bool OnNumberPad() const { return virtualKeyNumLock != virtualKeyUs; }
};

/// Codes of the keys that need rules of their own.
namespace evdev {
inline constexpr int LeftCtrl = 29, LeftShift = 42, RightShift = 54, LeftAlt = 56, NumLock = 69, ScrollLock = 70,
                     PadDecimal = 83, RightCtrl = 97, Print = 99, RightAlt = 100, Pause = 119;
}

/// Null for a code that no key of a PC has.
const KeyPosition* FindKeyPosition(int evdev);
std::span<const KeyPosition> KeyPositions();

}  // namespace plexel
