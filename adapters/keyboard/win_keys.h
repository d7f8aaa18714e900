#pragma once

#include <array>
#include <bitset>
#include <cstdint>

#include "platform/keyboard.h"

namespace plexel {

/// One event of one key, as a Linux desktop delivers it. An automatic repeat is a further press without a release.
struct RawKey {
  int evdev = 0;  ///< X11 keycode less 8
  bool down = true;
  std::uint32_t time = 0;  ///< milliseconds
  bool operator==(const RawKey&) const = default;
};

/// What a layout says about keys, apart from their characters.
class LayoutKeys {
 public:
  virtual ~LayoutKeys() = default;
  /// The virtual key that the layout puts on a position, with Num Lock off; 0 for an unknown one.
  virtual std::int32_t VirtualKeyOf(int evdev) const = 0;
  /// Whether the right Alt key is Alt Gr, which reports a left Ctrl ahead of itself.
  virtual bool HasAltGr() const = 0;
};

/// A short row of key events without allocation.
class KeyEvents {
 public:
  void Add(const KeyEvent& event) { events_[count_++] = event; }
  const KeyEvent* begin() const { return events_.data(); }
  const KeyEvent* end() const { return events_.data() + count_; }

 private:
  std::array<KeyEvent, 6> events_{};
  std::size_t count_ = 0;
};

/// Turns keys of a Linux desktop into the events that a Windows keyboard hook reports: positions into scan codes, the
/// layout's virtual keys, Alt Gr with its false left Ctrl, Print by its release only, Pause and its release together,
/// the number pad with its false Shift, one Shift of two.
class WinKeys {
 public:
  using KeySet = std::bitset<256>;

  /// The hook's events for one key event; none for keys that no PC keyboard has and for those that report nothing.
  KeyEvents Translate(const RawKey& key, const LayoutKeys& layout, bool numLock);

  /// Keys that are down as far as the events told.
  const KeySet& Down() const { return down_; }
  /// A key that is down here but not in `really`, or -1: its release was lost. Deliver it as a release.
  int LostRelease(const KeySet& really) const;
  /// Forgets every key.
  void Reset();

 private:
  KeyEvents Shift(const RawKey& key);
  KeyEvents NumberPad(const RawKey& key, std::int32_t navigation, std::int32_t digit, std::int32_t scanCode,
                      bool numLock);
  bool IsDown(int evdev) const { return down_[static_cast<std::size_t>(evdev)]; }

  KeySet down_;
  std::array<std::int32_t, 256> reported_{};  ///< virtual key of each press, kept for its release
  KeySet padUnderShift_;                      ///< pad keys that hold a false release of Shift
  std::int32_t hiddenShift_ = 0;              ///< scan code of the Shift that is held but reported as released
};

}  // namespace plexel
