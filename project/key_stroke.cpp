#include "project/key_stroke.h"

#include <algorithm>

#include "scancodes/key_translation.h"
#include "services/module_state.h"

namespace plexel {

namespace {

/// Print is translated under a scan code of its own.
constexpr std::int32_t virtualKeyPrint = 0x2C, scanCodeOfPrint = 0;
constexpr KeyCode LeftCtrl = 0x14, RightCtrl = 0xE014, LeftAlt = 0x11, RightAlt = 0xE011;

/// The modifiers by which a key is translated, until its end.
class Modifiers {
 public:
  /// Shift and Num Lock change only the false shifts around a key, not the key.
  Modifiers(bool ctrl, bool alt) {
    ModuleState& state = Module();
    state.bShiftDown = state.bNumLockDown = False;
    state.bCtrlDown = ctrl ? True : False;
    state.bAltDown = alt ? True : False;
  }
  ~Modifiers() {
    Module().bShiftDown = shift_;
    Module().bNumLockDown = numLock_;
    Module().bCtrlDown = ctrl_;
    Module().bAltDown = alt_;
  }
  Modifiers(const Modifiers&) = delete;
  Modifiers& operator=(const Modifiers&) = delete;

 private:
  const Boolean shift_ = Module().bShiftDown, numLock_ = Module().bNumLockDown, ctrl_ = Module().bCtrlDown,
                alt_ = Module().bAltDown;
};

}  // namespace

void KeyStroke::Take(const KeyEvent& event) {
  const Held key{event.scanCode, event.extended};
  const bool isHeld = std::ranges::find(held_, key) != held_.end();
  if (event.down == isHeld) return;
  if (!event.down) {
    std::erase(held_, key);
    return;
  }
  if (IsOver()) Reset();
  begun_ = true;
  held_.push_back(key);
  Add(event);
}

void KeyStroke::Add(const KeyEvent& event) {
  const auto has = [this](KeyCode code) { return std::ranges::find(keys_, code) != keys_.end(); };
  KeyCodes codes;
  {
    const Modifiers modifiers(has(LeftCtrl) || has(RightCtrl), has(LeftAlt) || has(RightAlt));
    TranslateScanCode(event.virtualKey == virtualKeyPrint ? scanCodeOfPrint : event.scanCode, event.virtualKey,
                      event.extended ? 1 : 0, codes);
  }
  udtTactisBaseElement_TACTIS_SCANCODE buffer;
  for (std::int32_t place = 0; place < codes.make.length; ++place) {
    buffer.Value[static_cast<std::size_t>(++buffer.NextValue)] =
        static_cast<std::uint8_t>(codes.make.codes[static_cast<std::size_t>(place)]);
  }
  std::vector<KeyReport> reports;
  KeyReader().Read(buffer, Direction::Press, reports);
  for (const KeyReport& report : reports) {
    if (report.deed == KeyDeed::Down && !has(report.code)) keys_.push_back(report.code);
  }
}

}  // namespace plexel
