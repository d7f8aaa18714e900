#pragma once

#include <vector>

#include "platform/keyboard.h"
#include "project/key_reading.h"

namespace plexel {

/// Keys that a person presses together, told by what a PC would get of each. It begins anew with the first key behind
/// the last release.
class KeyStroke {
 public:
  /// Takes what happens to a key of the keyboard itself, with the virtual key that it has with Num Lock. A repeat and a
  /// release without a press change nothing.
  void Take(const KeyEvent& event);
  /// The keys of the stroke, in the order in which they went down. Keys that set 2 has no code for are not among them.
  const std::vector<KeyCode>& Keys() const { return keys_; }
  /// Whether it has begun and every key of it is up again.
  bool IsOver() const { return begun_ && held_.empty(); }
  /// Forgets all keys.
  void Reset() { *this = KeyStroke(); }

 private:
  struct Held {
    std::int32_t scanCode;
    bool extended;
    bool operator==(const Held&) const = default;
  };
  void Add(const KeyEvent& event);

  std::vector<KeyCode> keys_;
  std::vector<Held> held_;
  bool begun_ = false;
};

}  // namespace plexel
