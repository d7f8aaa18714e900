#include "win32/form_view.h"

#include <optional>

#include "platform/platform.h"
#include "services/module_state.h"
#include "win32/native_keyboard.h"

namespace plexel {

namespace {

/// The virtual key of a character that comes without a key of its own.
constexpr std::int16_t PacketKey = VK_PACKET;

bool AsksToUnfold(std::int16_t keyCode, std::int16_t shift) {
  if (keyCode == key::F4) return shift == 0;
  return shift == key::AltBit && (keyCode == key::Down || keyCode == key::Up);
}

std::int32_t HelpContextOf(const Form& form) {
  for (const Control* control = form.Focus(); control != nullptr; control = control->Container()) {
    if (control->HelpContextID() != 0) return control->HelpContextID();
  }
  return form.HelpContextID();
}

bool IsCharacter(UINT message) {
  return message == WM_CHAR || message == WM_SYSCHAR || message == WM_DEADCHAR || message == WM_SYSDEADCHAR;
}

/// The character messages that the system has made of a key, taken out of the queue.
std::vector<MSG> TakeCharacters(HWND window) {
  std::vector<MSG> taken;
  for (const UINT first : {WM_CHAR, WM_SYSCHAR}) {
    MSG message;
    while (PeekMessageW(&message, window, first, first + 1, PM_REMOVE | PM_NOYIELD) != FALSE) taken.push_back(message);
  }
  return taken;
}

/// The characters that the messages stand for, without those that the form model does not take for typed ones.
std::vector<char32_t> CharactersOf(const std::vector<MSG>& messages) {
  constexpr char32_t Delete = 0x7F, HighFirst = 0xD800, LowFirst = 0xDC00, LowLast = 0xDFFF, Beyond = 0x10000;
  std::vector<char32_t> characters;
  char32_t high = 0;
  for (const MSG& message : messages) {
    if (message.message != WM_CHAR) continue;
    const auto unit = static_cast<char32_t>(message.wParam);
    if (unit >= HighFirst && unit < LowFirst) {
      high = unit;
    } else if (unit >= LowFirst && unit <= LowLast) {
      if (high != 0) characters.push_back(Beyond + ((high - HighFirst) << 10U) + (unit - LowFirst));
      high = 0;
    } else if (unit != key::Tab && unit != Delete) {
      characters.push_back(unit);
    }
  }
  return characters;
}

/// What the system does on its own with a key that the form has no use for.
std::optional<WPARAM> SystemCommandOf(std::int16_t keyCode, std::int16_t shift) {
  if (shift != key::AltBit) return std::nullopt;
  if (keyCode == key::F4) return SC_CLOSE;
  if (keyCode == key::Space) return SC_KEYMENU;
  return std::nullopt;
}

}  // namespace

bool FormView::TakeMessage(const MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST || window_ == nullptr) return false;
  if (message.hwnd != window_ && IsChild(window_, message.hwnd) == FALSE) return false;
  // Of the system's own ways to write, such as those of the far east, the outcome alone arrives.
  if (message.wParam == VK_PROCESSKEY) return false;
  ControlView* const view = ViewOf(form_.Focus());
  if (view != nullptr && view->IsUnfolded() && !desk_.Captures()) {
    if (message.wParam != VK_TAB) return ListTakes(*view, message);
    view->Fold();
  }
  KeyArrives(message);
  return true;
}

bool FormView::ListTakes(const ControlView& view, const MSG& message) {
  TranslateMessage(&message);
  DispatchMessageW(&message);
  // The key that folds it up types nothing.
  for (const MSG& typed : TakeCharacters(message.hwnd)) {
    if (window_ != nullptr && view.IsUnfolded()) DispatchMessageW(&typed);
  }
  return true;
}

void FormView::KeyArrives(const MSG& message) {
  if (IsCharacter(message.message)) {
    for (const char32_t character : CharactersOf({message})) TakeKey(PacketKey, true, character);
    return;
  }
  const auto keyCode = static_cast<std::int16_t>(message.wParam);
  const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
  const std::int16_t shift = ShiftStateNow();
  const bool captured = desk_.Captures();
  TranslateMessage(&message);
  const std::vector<MSG> typed = TakeCharacters(message.hwnd);
  const std::vector<char32_t> characters = CharactersOf(typed);
  const bool first = down && !characters.empty();
  bool left = TakeKey(keyCode, down, first ? characters.front() : 0);
  // A dead key that fits no letter gives two characters, and one by its number comes with the release of Alt.
  for (std::size_t place = first ? 1 : 0; place < characters.size(); ++place) {
    left = TakeKey(PacketKey, true, characters[place]) || left;
  }
  if (!form_.IsShown() || window_ == nullptr) return;
  if (left) {
    DispatchMessageW(&message);
    for (const MSG& one : typed) DispatchMessageW(&one);
  } else if (const auto command = SystemCommandOf(keyCode, shift); down && command && !captured) {
    PostMessageW(window_, WM_SYSCOMMAND, *command, *command == SC_KEYMENU ? ' ' : 0);
  }
}

bool FormView::TakeKey(std::int16_t keyCode, bool down, char32_t character) {
  if (!form_.IsShown()) return false;
  const std::int16_t shift = ShiftStateNow();
  const bool captured = desk_.Captures();
  ControlView* const view = ViewOf(form_.Focus());
  bool left = false;
  Guarded([&] {
    Hand hand(form_);
    if (!down) return hand.KeyUp(keyCode, shift);
    if (view != nullptr && view->EditsItself() && !captured) {
      left = hand.PreviewKey(keyCode, shift, character);
    } else if (hand.Key(keyCode, shift, character) == keyCode && view != nullptr && !captured &&
               AsksToUnfold(keyCode, shift) && form_.IsShown()) {
      view->Unfold();
    }
    if (keyCode == key::F1 && shift == 0 && !captured) ShowHelp();
  });
  return left;
}

void FormView::ShowHelp() {
  const std::string& file = Module().HelpFile;
  const std::int32_t topic = HelpContextOf(form_);
  if (form_.IsShown() && !file.empty() && topic != 0) {
    Platform::Current().Help().Show(0, file, HelpViewer::HelpContext, topic);
  }
}

}  // namespace plexel
