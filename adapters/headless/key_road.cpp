#include "headless/key_road.h"

#include "forms/hand.h"
#include "headless/headless_platform.h"

namespace plexel {

namespace {

constexpr std::int32_t AltKey = 0x12;
constexpr char32_t LatinCapitalOffset = 0x20;

bool IsPlainLetter(char32_t character) {
  constexpr char32_t DivisionSign = 0xF7, SmallYWithDiaeresis = 0xFF;
  return (character >= U'a' && character <= U'z') ||
         (character >= 0xE0 && character < SmallYWithDiaeresis && character != DivisionSign);
}

}  // namespace

char32_t TypedCharacter(std::int32_t virtualKey, std::int16_t shift, char32_t plain) {
  if ((shift & key::AltBit) != 0 || virtualKey == key::Tab) return 0;
  if (virtualKey == key::Back || virtualKey == key::Return || virtualKey == key::Escape) {
    return static_cast<char32_t>(virtualKey);
  }
  if ((shift & key::ControlBit) != 0) {
    return virtualKey >= 'A' && virtualKey <= 'Z' ? static_cast<char32_t>(virtualKey - 'A' + 1) : 0;
  }
  const bool upper = (shift & key::ShiftBit) != 0 && IsPlainLetter(plain);
  return upper ? plain - LatinCapitalOffset : plain;
}

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
