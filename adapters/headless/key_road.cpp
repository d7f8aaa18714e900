#include "headless/key_road.h"

#include "forms/hand.h"
#include "headless/headless_platform.h"
#include "keyboard/typed_character.h"

namespace plexel {

namespace {
constexpr std::int32_t AltKey = 0x12;
}  // namespace

bool KeyRoad::ToHooks(const KeyEvent& event) {
  HeadlessKeys& keys = platform_.Keys();
  if (event.down) {
    keys.Hold(event.virtualKey);
  } else {
    keys.Free(event.virtualKey);
  }
  return platform_.Hooks().Deliver(event, keys.IsDown(AltKey));
}

bool KeyRoad::Send(const KeyEvent& event) {
  if (ToHooks(event)) return true;
  ToForm(event);
  return false;
}

void KeyRoad::ToForm(const KeyEvent& event) {
  Form* form = platform_.Modal().Topmost();
  if (form == nullptr) return;
  const auto keyCode = static_cast<std::int16_t>(event.virtualKey);
  const std::int16_t shift = platform_.Keys().ShiftState();
  if (event.down) {
    const char16_t plain = platform_.Layout().Typed(event.virtualKey, event.scanCode);
    Hand(*form).Key(keyCode, shift, TypedCharacter(event.virtualKey, shift, plain));
  } else {
    Hand(*form).KeyUp(keyCode, shift);
  }
}

}  // namespace plexel
