#include "forms/hand.h"

#include <array>
#include <string_view>

#include "forms/acting.h"
#include "forms/characters.h"

namespace plexel {

namespace {

/// The keys beside letters and digits that carry characters on a US keyboard: alone and with Shift.
struct CharacterKey {
  std::int16_t keyCode;
  char alone, shifted;
};

constexpr auto CharacterKeys = std::to_array<CharacterKey>({
    {'0', '0', ')'},   {'1', '1', '!'},  {'2', '2', '@'},   {'3', '3', '#'},  {'4', '4', '$'},  {'5', '5', '%'},
    {'6', '6', '^'},   {'7', '7', '&'},  {'8', '8', '*'},   {'9', '9', '('},  {0xBA, ';', ':'}, {0xBB, '=', '+'},
    {0xBC, ',', '<'},  {0xBD, '-', '_'}, {0xBE, '.', '>'},  {0xBF, '/', '?'}, {0xC0, '`', '~'}, {0xDB, '[', '{'},
    {0xDC, '\\', '|'}, {0xDD, ']', '}'}, {0xDE, '\'', '"'},
});

/// The key of a character that no key of its own carries.
constexpr std::int16_t PacketKey = 0xE7;

struct Stroke {
  std::int16_t keyCode, shift;
};

Stroke StrokeOf(char32_t character) {
  if (character >= U'a' && character <= U'z') return {static_cast<std::int16_t>(character - U'a' + U'A'), 0};
  if (character >= U'A' && character <= U'Z') return {static_cast<std::int16_t>(character), key::ShiftBit};
  for (const std::int16_t plain : {key::Space, key::Back, key::Tab, key::Return}) {
    if (character == static_cast<char32_t>(plain)) return {plain, 0};
  }
  for (const CharacterKey& carrier : CharacterKeys) {
    if (character == static_cast<char32_t>(carrier.alone)) return {carrier.keyCode, 0};
    if (character == static_cast<char32_t>(carrier.shifted)) return {carrier.keyCode, key::ShiftBit};
  }
  return {PacketKey, 0};
}

}  // namespace

void Hand::Type(TextBox& box, std::string_view text) {
  CheckUsable(box);
  DismissMenu();
  const OpenForm open(form_);
  TakeFocus(box, LeftButton);
  if (!open) return;
  box.SelStart(box.TextLength());
  char32_t before = 0;
  for (const std::string_view part : characters::Split(text)) {
    if (!open) return;
    const char32_t character = characters::Decode(part);
    const bool restOfLineBreak = character == U'\n' && before == U'\r';
    before = character;
    if (restOfLineBreak) continue;
    const char32_t typed = character == U'\n' ? U'\r' : character;
    const Stroke stroke = StrokeOf(typed);
    Key(stroke.keyCode, stroke.shift, typed);
    if (open) KeyUp(stroke.keyCode, stroke.shift);
  }
}

}  // namespace plexel
