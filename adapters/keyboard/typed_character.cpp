#include "keyboard/typed_character.h"

#include "forms/control.h"

namespace plexel {

namespace {

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

}  // namespace plexel
