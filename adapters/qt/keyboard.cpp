#include "qt/keyboard.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QLocale>
#include <algorithm>

#include "forms/control.h"
#include "keyboard/named_layout.h"

namespace plexel {

namespace {

constexpr std::int32_t VkShift = 0x10, VkControl = 0x11, VkMenu = 0x12, VkNumLock = 0x90;
constexpr std::uint16_t DownBit = 0x8000;

/// The virtual keys that name one of two keys, with the key's place.
struct SidedKey {
  std::int32_t virtualKey, scanCode;
  bool extended;
};
constexpr std::array sidedKeys = {SidedKey{0xA0, 0x2A, false}, SidedKey{0xA1, 0x36, false}, SidedKey{0xA2, 0x1D, false},
                                  SidedKey{0xA3, 0x1D, true},  SidedKey{0xA4, 0x38, false}, SidedKey{0xA5, 0x38, true}};

std::size_t SlotOf(std::int32_t scanCode, bool extended) {
  return (static_cast<std::size_t>(scanCode) & 0xFFU) * 2 + (extended ? 1 : 0);
}

}  // namespace

Keyboard::Keyboard(HookTable& hooks) : hooks_(hooks), layout_(NamedLayout(SessionLayout())) {}

std::string Keyboard::SessionLayout() {
  const QString named = qEnvironmentVariable("XKB_DEFAULT_LAYOUT").section(',', 0, 0);
  if (!named.isEmpty()) return named.toStdString();
  return QGuiApplication::inputMethod()->locale().language() == QLocale::German ? "de" : "us";
}

void Keyboard::Feed(const RawKey& key, bool numLock, const ToForm& toForm) {
  numLock_ = numLock;
  const KeyEvents events = winKeys_.Translate(key, *layout_, numLock);
  const KeyEvent* leading = nullptr;
  for (const KeyEvent& event : events) {
    if (event.down == key.down && event.virtualKey != VkShift) leading = &event;
  }
  for (const KeyEvent& event : events) {
    Keep(event);
    if (!hooks_.Deliver(event, IsDown(VkMenu))) toForm(event, &event == leading);
  }
}

void Keyboard::ReleaseLost(const WinKeys::KeySet& really, const ToForm& toForm) {
  for (int lost = winKeys_.LostRelease(really); lost >= 0; lost = winKeys_.LostRelease(really)) {
    Feed({lost, false, 0}, numLock_, toForm);
  }
}

void Keyboard::Keep(const KeyEvent& event) {
  // Of two Shifts one release alone is told: behind it neither is down.
  if (!event.down && event.virtualKey == VkShift) std::replace(down_.begin(), down_.end(), VkShift, 0);
  down_[SlotOf(event.scanCode, event.extended)] = event.down ? event.virtualKey : 0;
}

bool Keyboard::IsDown(std::int32_t virtualKey) const {
  for (const SidedKey& sided : sidedKeys) {
    if (sided.virtualKey == virtualKey) return down_[SlotOf(sided.scanCode, sided.extended)] != 0;
  }
  return virtualKey != 0 && std::find(down_.begin(), down_.end(), virtualKey) != down_.end();
}

std::int16_t Keyboard::StateOf(std::int32_t virtualKey) const {
  const bool toggled = virtualKey == VkNumLock && numLock_;
  return static_cast<std::int16_t>((IsDown(virtualKey) ? DownBit : 0U) | (toggled ? 1U : 0U));
}

std::int16_t Keyboard::ShiftState() const {
  int shift = 0;
  if (IsDown(VkShift)) shift |= key::ShiftBit;
  if (IsDown(VkControl)) shift |= key::ControlBit;
  if (IsDown(VkMenu)) shift |= key::AltBit;
  return static_cast<std::int16_t>(shift);
}

}  // namespace plexel
