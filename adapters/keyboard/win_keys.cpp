#include "keyboard/win_keys.h"

#include "keyboard/key_table.h"

namespace plexel {

namespace {

constexpr std::int32_t VkCancel = 0x03, VkShift = 0x10, VkControl = 0x11, VkMenu = 0x12, VkPause = 0x13, VkPrint = 0x2C;
constexpr std::int32_t ScanLeftCtrl = 0x1D, ScanAlt = 0x38, ScanPrint = 0x37, ScanSysRq = 0x54, ScanPause = 0x45,
                       ScanBreak = 0x46;

KeyEvent Event(const RawKey& key, std::int32_t virtualKey, std::int32_t scanCode, bool extended, bool down) {
  return {virtualKey, scanCode, extended, down, key.time};
}

std::int32_t ScanOf(int evdev) { return FindKeyPosition(evdev)->scanCode; }

}  // namespace

KeyEvents WinKeys::Translate(const RawKey& key, const LayoutKeys& layout, bool numLock) {
  KeyEvents events;
  const KeyPosition* position = FindKeyPosition(key.evdev);
  if (position == nullptr) return events;
  const auto slot = static_cast<std::size_t>(key.evdev);
  const bool repeats = key.down && down_[slot];
  if (!key.down && !down_[slot] && key.evdev != evdev::Print) return events;

  if (key.evdev == evdev::LeftShift || key.evdev == evdev::RightShift) return Shift(key);
  down_[slot] = key.down;
  const bool ctrl = IsDown(evdev::LeftCtrl) || IsDown(evdev::RightCtrl);
  const bool alt = IsDown(evdev::LeftAlt) || IsDown(evdev::RightAlt);

  if (position->OnNumberPad())
    return NumberPad(key, position->virtualKeyUs, position->virtualKeyNumLock, position->scanCode, numLock);
  switch (key.evdev) {
    case evdev::Print:
      if (!key.down) events.Add(Event(key, VkPrint, alt ? ScanSysRq : ScanPrint, !alt, false));
      return events;
    case evdev::Pause:
      if (!key.down || repeats) return events;
      for (const bool down : {true, false})
        events.Add(ctrl ? Event(key, VkCancel, ScanBreak, true, down) : Event(key, VkPause, ScanPause, false, down));
      return events;
    case evdev::RightAlt:
      if (layout.HasAltGr()) events.Add(Event(key, VkControl, ScanLeftCtrl, false, key.down));
      events.Add(Event(key, VkMenu, ScanAlt, true, key.down));
      return events;
    default:
      break;
  }
  if (key.down && !repeats) {
    std::int32_t virtualKey = layout.VirtualKeyOf(key.evdev);
    if (ctrl && key.evdev == evdev::NumLock) virtualKey = VkPause;
    if (ctrl && key.evdev == evdev::ScrollLock) virtualKey = VkCancel;
    reported_[slot] = virtualKey;
  }
  events.Add(Event(key, reported_[slot], position->scanCode, position->extended, key.down));
  return events;
}

KeyEvents WinKeys::Shift(const RawKey& key) {
  KeyEvents events;
  const int other = key.evdev == evdev::LeftShift ? evdev::RightShift : evdev::LeftShift;
  const std::int32_t scanCode = ScanOf(key.evdev);
  down_[static_cast<std::size_t>(key.evdev)] = key.down;
  if (key.down) {
    events.Add(Event(key, VkShift, scanCode, false, true));
    return events;
  }
  if (IsDown(other)) {
    if (hiddenShift_ == scanCode) hiddenShift_ = ScanOf(other);
    return events;
  }
  if (hiddenShift_ == 0)
    events.Add(Event(key, VkShift, scanCode, false, false));
  else
    hiddenShift_ = 0;
  return events;
}

KeyEvents WinKeys::NumberPad(const RawKey& key, std::int32_t navigation, std::int32_t digit, std::int32_t scanCode,
                             bool numLock) {
  KeyEvents events;
  const auto slot = static_cast<std::size_t>(key.evdev);
  const bool fresh = key.down && reported_[slot] == 0;
  const bool shift = IsDown(evdev::LeftShift) || IsDown(evdev::RightShift);
  if (fresh) {
    reported_[slot] = numLock && !shift ? digit : navigation;
    if (numLock && shift) {
      padUnderShift_.set(slot);
      if (hiddenShift_ == 0) {
        hiddenShift_ = ScanOf(IsDown(evdev::LeftShift) ? evdev::LeftShift : evdev::RightShift);
        events.Add(Event(key, VkShift, hiddenShift_, false, false));
      }
    }
  }
  events.Add(Event(key, reported_[slot], scanCode, false, key.down));
  if (!key.down) {
    reported_[slot] = 0;
    padUnderShift_.reset(slot);
    if (padUnderShift_.none() && hiddenShift_ != 0) {
      events.Add(Event(key, VkShift, hiddenShift_, false, true));
      hiddenShift_ = 0;
    }
  }
  return events;
}

int WinKeys::LostRelease(const KeySet& really) const {
  const KeySet lost = down_ & ~really;
  for (std::size_t code = 0; code < lost.size(); ++code)
    if (lost[code]) return static_cast<int>(code);
  return -1;
}

void WinKeys::Reset() { *this = WinKeys(); }

}  // namespace plexel
