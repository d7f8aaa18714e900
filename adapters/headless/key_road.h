#pragma once

#include <cstdint>

#include "platform/keyboard.h"

namespace plexel {

class HeadlessPlatform;

/// The road of a key through the headless platform: the physical state, the low-level hook, the keyboard hook, and then
/// the topmost form and its control with the focus.
class KeyRoad {
 public:
  /// Keys above have no road.
  static constexpr std::int32_t LastVirtualKey = 255;
  /// The platform outlives the road.
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
