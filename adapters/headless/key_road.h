#pragma once

#include <cstdint>

#include "platform/keyboard.h"

namespace plexel {

class HeadlessPlatform;

/// The Unicode character that a key types; 0 for none. `plain` is the layout's character without any modifier, `shift`
/// the bits of a key event. Tab and keys with Alt type nothing, Ctrl and a letter the codes 1 to 26.
char32_t TypedCharacter(std::int32_t virtualKey, std::int16_t shift, char32_t plain);

/// The road of a key through the headless platform: the physical state, the low-level hook, the keyboard hook, and then
/// the topmost form and its control with the focus.
class KeyRoad {
 public:
  static constexpr std::int32_t LastVirtualKey = 255;
  explicit KeyRoad(HeadlessPlatform& platform) : platform_(platform) {}
  /// The whole road. True when the low-level hook kept the key.
  bool Send(const KeyEvent& event);
  /// The road up to the keyboard hook, for a key that reaches no form.
  bool ToHooks(const KeyEvent& event);

 private:
  void ToForm(const KeyEvent& event);
  HeadlessPlatform& platform_;
};

}  // namespace plexel
