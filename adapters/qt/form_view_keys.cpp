#include "qt/form_view.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

#include "platform/platform.h"
#include "qt/input_events.h"
#include "qt/keyboard.h"
#include "services/module_state.h"

namespace plexel {

namespace {

/// The virtual key of a character that comes without a key of its own.
constexpr std::int32_t PacketKey = 0xE7;

bool AsksToUnfold(const KeyEvent& event, std::int16_t shift) {
  if (event.virtualKey == key::F4) return shift == 0;
  return shift == key::AltBit && (event.virtualKey == key::Down || event.virtualKey == key::Up);
}

std::int32_t HelpContextOf(const Form& form) {
  for (const Control* control = form.Focus(); control != nullptr; control = control->Container()) {
    if (control->HelpContextID() != 0) return control->HelpContextID();
  }
  return form.HelpContextID();
}

}  // namespace

bool FormView::KeyArrives(QObject* receiver, QKeyEvent& event) {
  const QWidget* const target = window_->focusWidget() != nullptr ? window_->focusWidget() : window_.get();
  if (receiver != target) return true;
  const bool down = event.type() == QEvent::KeyPress;
  if (!down && event.isAutoRepeat()) return true;
  const char32_t character = down ? CharacterOf(event) : 0;
  leftToEditor_ = false;
  const RawKey raw{EvdevOf(event), down, static_cast<std::uint32_t>(event.timestamp())};
  if (raw.evdev != 0) {
    Contain([&] {
      desk_.Keys().Feed(raw, NumLockOn(event),
                        [this, character](const KeyEvent& one, bool leads) { TakeKey(one, leads ? character : 0); });
    });
  } else if (down && character != 0) {
    TakeKey({PacketKey, 0, false, true, raw.time}, character);
  }
  return !leftToEditor_;
}

void FormView::TakeKey(const KeyEvent& event, char32_t character) {
  if (!form_.IsShown()) return;
  const auto keyCode = static_cast<std::int16_t>(event.virtualKey);
  const std::int16_t shift = desk_.Keys().ShiftState();
  const bool captured = desk_.Keys().Captures();
  ControlView* const view = ViewOf(form_.Focus());
  Guarded([&] {
    Hand hand(form_);
    if (!event.down) return hand.KeyUp(keyCode, shift);
    if (view != nullptr && view->EditsItself() && !captured) {
      leftToEditor_ = hand.PreviewKey(keyCode, shift, character);
    } else if (hand.Key(keyCode, shift, character) == keyCode && view != nullptr && AsksToUnfold(event, shift)) {
      view->Unfold();
    }
    if (keyCode == key::F1 && shift == 0 && !captured) ShowHelp();
  });
}

void FormView::ShowHelp() {
  const std::string& file = Module().HelpFile;
  const std::int32_t topic = HelpContextOf(form_);
  if (form_.IsShown() && !file.empty() && topic != 0) {
    Platform::Current().Help().Show(0, file, HelpViewer::HelpContext, topic);
  }
}

}  // namespace plexel
