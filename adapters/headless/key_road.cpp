#include "headless/key_road.h"

#include "forms/hand.h"
#include "headless/headless_platform.h"
#include "services/code_page.h"

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

std::int16_t TypedCharacter(std::int32_t virtualKey, std::int16_t shift, char32_t plain) {
  if ((shift & key::AltBit) != 0 || virtualKey == key::Tab) return 0;
  if (virtualKey == key::Back || virtualKey == key::Return || virtualKey == key::Escape) {
    return static_cast<std::int16_t>(virtualKey);
  }
  if ((shift & key::ControlBit) != 0) {
    return virtualKey >= 'A' && virtualKey <= 'Z' ? static_cast<std::int16_t>(virtualKey - 'A' + 1) : std::int16_t{0};
  }
  if (plain == 0) return 0;
  const bool upper = (shift & key::ShiftBit) != 0 && IsPlainLetter(plain);
  const std::int32_t code = CodeOf(upper ? plain - LatinCapitalOffset : plain);
  return code < 0 ? std::int16_t{0} : static_cast<std::int16_t>(code);
}

bool KeyRoad::Send(const KeyEvent& event) {
  HeadlessKeys& keys = platform_.Keys();
  if (event.down) {
    keys.Hold(event.virtualKey);
  } else {
    keys.Free(event.virtualKey);
  }
  if (platform_.Hooks().Deliver(event, keys.IsDown(AltKey))) return true;
  ToForm(event);
  return false;
}

void KeyRoad::ToForm(const KeyEvent& event) {
  Form* form = platform_.Modal().Topmost();
  if (form == nullptr) return;
  const auto keyCode = static_cast<std::int16_t>(event.virtualKey);
  const std::int16_t shift = platform_.Keys().ShiftState();
  Hand hand(*form);
  if (!event.down) {
    hand.KeyUp(keyCode, shift);
    return;
  }
  const std::int16_t character =
      TypedCharacter(event.virtualKey, shift, platform_.Layout().Typed(event.virtualKey, event.scanCode));
  hand.KeyDown(keyCode, shift);
  if (character != 0 && platform_.Modal().Topmost() == form && form->IsShown()) hand.KeyPress(character);
}

}  // namespace plexel
