#include "headless/sample_layout.h"

#include <array>

#include "forms/ascii.h"

namespace plexel {

namespace {

struct KeyCharacter {
  std::int32_t virtualKey;
  char16_t character;
};

constexpr auto characters = std::to_array<KeyCharacter>(
    {{0x08, u'\b'}, {0x09, u'\t'}, {0x0D, u'\r'}, {0x1B, u'\x1B'}, {0x20, u' '},  {0x6A, u'*'}, {0x6B, u'+'},
     {0x6D, u'-'},  {0x6E, u'.'},  {0x6F, u'/'},  {0xBA, u';'},    {0xBB, u'='},  {0xBC, u','}, {0xBD, u'-'},
     {0xBE, u'.'},  {0xBF, u'/'},  {0xC0, u'`'},  {0xDB, u'['},    {0xDC, u'\\'}, {0xDD, u']'}, {0xDE, u'\''}});

char16_t CharacterOn(std::int32_t virtualKey) {
  if (virtualKey >= 'A' && virtualKey <= 'Z') return static_cast<char16_t>(ascii::Lower(static_cast<char>(virtualKey)));
  if (virtualKey >= '0' && virtualKey <= '9') return static_cast<char16_t>(virtualKey);
  if (virtualKey >= 0x60 && virtualKey <= 0x69) return static_cast<char16_t>(virtualKey - 0x60 + '0');
  for (const KeyCharacter& one : characters) {
    if (one.virtualKey == virtualKey) return one.character;
  }
  return 0;
}

}  // namespace

std::int32_t SampleLayout::ToUnicode(std::int32_t virtualKey, std::int32_t, char16_t* text, std::int32_t capacity,
                                     Handle) {
  const char16_t character = CharacterOn(virtualKey);
  if (character == 0 || capacity < 1) return 0;
  text[0] = character;
  return 1;
}

std::int32_t SampleLayout::ToAscii(std::int32_t virtualKey, std::int32_t, std::uint16_t& result, Handle) {
  const char16_t character = CharacterOn(virtualKey);
  if (character == 0) return 0;
  result = character;
  return 1;
}

}  // namespace plexel
