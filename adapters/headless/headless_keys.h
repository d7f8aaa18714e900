#pragma once

#include <bitset>

#include "headless/faults.h"
#include "platform/keyboard.h"

namespace plexel {

/// The physical state of a keyboard that is not there: keys are held and freed by command.
class HeadlessKeys : public KeyState {
 public:
  /// The faults outlive it.
  explicit HeadlessKeys(Faults& faults) : faults_(faults) {}
  std::int16_t Asynchronous(std::int32_t virtualKey) override { return Ask(virtualKey); }
  std::int16_t Synchronous(std::int32_t virtualKey) override { return Ask(virtualKey); }

  /// Virtual keys from 0 to 255; others are never down.
  void Hold(std::int32_t virtualKey) { Set(virtualKey, true); }
  /// Lets a key go.
  void Free(std::int32_t virtualKey) { Set(virtualKey, false); }
  /// Whether a key is held.
  bool IsDown(std::int32_t virtualKey) const;
  /// The state of Shift, Ctrl and Alt as the bits of a key event.
  std::int16_t ShiftState() const;

 private:
  std::int16_t Ask(std::int32_t virtualKey);
  void Set(std::int32_t virtualKey, bool down);

  Faults& faults_;
  std::bitset<256> down_;
};

}  // namespace plexel
