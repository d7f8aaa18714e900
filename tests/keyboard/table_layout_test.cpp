#include <gtest/gtest.h>

#include "keyboard/key_table.h"
#include "keyboard/named_layout.h"
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

Answer Ask(TableLayout& layout, std::int32_t virtualKey) {
  char16_t text = 0;
  const std::int32_t count = layout.ToUnicode(virtualKey, 0, &text, 48, layout.Current());
  return {count, text};
}

TEST(NamedLayout, ALetterHasItsUnshiftedCharacter) {
  const auto us = NamedLayout("us");
  EXPECT_EQ(Ask(*us, 'A'), (Answer{1, u'a'}));
  EXPECT_EQ(Ask(*us, '7'), (Answer{1, u'7'}));
}

TEST(NamedLayout, SignsFollowTheLayout) {
  const auto us = NamedLayout("us");
  const auto german = NamedLayout("de");
  EXPECT_EQ(Ask(*us, 0xDB), (Answer{1, u'['}));
  EXPECT_EQ(Ask(*german, 0xBA), (Answer{1, u'\u00FC'}));
  EXPECT_EQ(Ask(*german, 0xDB), (Answer{1, u'\u00DF'}));
}

TEST(NamedLayout, GermanYAndZHaveTheirLettersByVirtualKey) {
  const auto german = NamedLayout("de");
  EXPECT_EQ(Ask(*german, 'Y'), (Answer{1, u'y'}));
  EXPECT_EQ(german->VirtualKeyOf(21), 'Z');
  EXPECT_EQ(german->VirtualKeyOf(44), 'Y');
}

TEST(NamedLayout, ADeadKeyGivesItsAccentAndMinusOne) {
  const auto german = NamedLayout("de");
  EXPECT_EQ(Ask(*german, 0xDC), (Answer{-1, u'^'}));
  EXPECT_EQ(Ask(*german, 0xDD), (Answer{-1, u'\u00B4'}));
}

TEST(NamedLayout, ThePadsDecimalKeyFollowsTheLayout) {
  const auto us = NamedLayout("us");
  const auto german = NamedLayout("de");
  EXPECT_EQ(Ask(*us, 0x6E), (Answer{1, u'.'}));
  EXPECT_EQ(Ask(*german, 0x6E), (Answer{1, u','}));
}

TEST(NamedLayout, AVirtualKeyWithoutCharacterGivesNone) {
  const auto us = NamedLayout("us");
  EXPECT_EQ(Ask(*us, 0x88).count, 0);
  EXPECT_EQ(Ask(*us, 0).count, 0);
}

TEST(NamedLayout, TheEightBitAnswerIsACodeOfTheCodePage) {
  const auto german = NamedLayout("de");
  std::uint16_t result = 0;
  EXPECT_EQ(german->ToAscii(0xBA, 0, result, 1), 1);
  EXPECT_EQ(result, 0xFC);
}

TEST(NamedLayout, AltGrIsKnownByTheRightAltKey) {
  EXPECT_TRUE(NamedLayout("de")->HasAltGr());
  EXPECT_FALSE(NamedLayout("us")->HasAltGr());
}

TEST(NamedLayout, AVariantStandsInRoundBrackets) {
  const auto plain = NamedLayout("de(nodeadkeys)");
  EXPECT_EQ(Ask(*plain, 0xDC), (Answer{1, u'^'}));
}

TEST(NamedLayout, FrenchLettersHaveTheVirtualKeyOfTheirPlace) {
  const auto french = NamedLayout("fr");
  EXPECT_EQ(french->VirtualKeyOf(16), 'A');
  EXPECT_EQ(Ask(*french, 'A'), (Answer{1, u'a'}));
  EXPECT_EQ(Ask(*french, 'M'), (Answer{1, u'm'}));
}

TEST(NamedLayout, AnotherLayoutTakesLettersByTheirCharacter) {
  const auto dvorak = NamedLayout("us(dvorak)");
  EXPECT_EQ(dvorak->VirtualKeyOf(31), 'O');
  EXPECT_EQ(Ask(*dvorak, 'O'), (Answer{1, u'o'}));
}

TEST(NamedLayout, AnUnknownLayoutFailsAtTheFirstQuestion) {
  const auto unknown = NamedLayout("no-such-layout");
  EXPECT_THROW(unknown->Load(), Failure);
  EXPECT_THROW(Ask(*unknown, 'A'), Failure);
  EXPECT_THROW(NamedLayout("")->Load(), Failure);
}

}  // namespace
}  // namespace plexel
