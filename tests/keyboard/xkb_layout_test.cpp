#include "keyboard/xkb_layout.h"

#include <gtest/gtest.h>

#include "keyboard/key_table.h"
#include "platform/failure.h"

namespace plexel {
namespace {

struct Answer {
  std::int32_t count;
  char16_t text;
  bool operator==(const Answer&) const = default;
};

void PrintTo(const Answer& answer, std::ostream* out) {
  *out << answer.count << " U+" << std::hex << static_cast<int>(answer.text);
}

Answer Ask(XkbLayout& layout, std::int32_t virtualKey) {
  char16_t text = 0;
  const std::int32_t count = layout.ToUnicode(virtualKey, 0, &text, 48, layout.Current());
  return {count, text};
}

TEST(XkbLayout, ALetterHasItsUnshiftedCharacter) {
  XkbLayout us("us");
  EXPECT_EQ(Ask(us, 'A'), (Answer{1, u'a'}));
  EXPECT_EQ(Ask(us, '7'), (Answer{1, u'7'}));
}

TEST(XkbLayout, SignsFollowTheLayout) {
  XkbLayout us("us"), german("de");
  EXPECT_EQ(Ask(us, 0xDB), (Answer{1, u'['}));
  EXPECT_EQ(Ask(german, 0xBA), (Answer{1, u'\u00FC'}));
  EXPECT_EQ(Ask(german, 0xDB), (Answer{1, u'\u00DF'}));
}

TEST(XkbLayout, GermanYAndZHaveTheirLettersByVirtualKey) {
  XkbLayout german("de");
  EXPECT_EQ(Ask(german, 'Y'), (Answer{1, u'y'}));
  EXPECT_EQ(german.VirtualKeyOf(21), 'Z');
  EXPECT_EQ(german.VirtualKeyOf(44), 'Y');
}

TEST(XkbLayout, ADeadKeyGivesItsAccentAndMinusOne) {
  XkbLayout german("de");
  EXPECT_EQ(Ask(german, 0xDC), (Answer{-1, u'^'}));
  EXPECT_EQ(Ask(german, 0xDD), (Answer{-1, u'\u00B4'}));
}

TEST(XkbLayout, ThePadsDecimalKeyFollowsTheLayout) {
  XkbLayout us("us"), german("de");
  EXPECT_EQ(Ask(us, 0x6E), (Answer{1, u'.'}));
  EXPECT_EQ(Ask(german, 0x6E), (Answer{1, u','}));
}

TEST(XkbLayout, AVirtualKeyWithoutCharacterGivesNone) {
  XkbLayout us("us");
  EXPECT_EQ(Ask(us, 0x88).count, 0);
  EXPECT_EQ(Ask(us, 0).count, 0);
}

TEST(XkbLayout, TheEightBitAnswerIsACodeOfTheCodePage) {
  XkbLayout german("de");
  std::uint16_t result = 0;
  EXPECT_EQ(german.ToAscii(0xBA, 0, result, 1), 1);
  EXPECT_EQ(result, 0xFC);
}

TEST(XkbLayout, AltGrIsKnownByTheRightAltKey) {
  EXPECT_TRUE(XkbLayout("de").HasAltGr());
  EXPECT_FALSE(XkbLayout("us").HasAltGr());
}

TEST(XkbLayout, AVariantStandsInRoundBrackets) {
  XkbLayout plain("de(nodeadkeys)");
  EXPECT_EQ(Ask(plain, 0xDC), (Answer{1, u'^'}));
}

TEST(XkbLayout, FrenchLettersHaveTheVirtualKeyOfTheirPlace) {
  XkbLayout french("fr");
  EXPECT_EQ(french.VirtualKeyOf(16), 'A');
  EXPECT_EQ(Ask(french, 'A'), (Answer{1, u'a'}));
  EXPECT_EQ(Ask(french, 'M'), (Answer{1, u'm'}));
}

TEST(XkbLayout, AnotherLayoutTakesLettersByTheirCharacter) {
  XkbLayout dvorak("us(dvorak)");
  EXPECT_EQ(dvorak.VirtualKeyOf(31), 'O');
  EXPECT_EQ(Ask(dvorak, 'O'), (Answer{1, u'o'}));
}

TEST(XkbLayout, AnUnknownLayoutFailsAtTheFirstQuestion) {
  XkbLayout unknown("no-such-layout");
  EXPECT_THROW(unknown.Load(), Failure);
  EXPECT_THROW(Ask(unknown, 'A'), Failure);
  EXPECT_THROW(XkbLayout("").Load(), Failure);
}

}  // namespace
}  // namespace plexel
