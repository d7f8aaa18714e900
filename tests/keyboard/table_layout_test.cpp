#include <gtest/gtest.h>
#include <stdlib.h>

#include <optional>
#include <string>

#include "keyboard/key_table.h"
#include "keyboard/named_layout.h"
#include "platform/failure.h"
#include "world/temporary_directory.h"

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

TEST(NamedLayout, AustrianKeysHaveTheVirtualKeysOfGermanOnes) {
  const auto german = NamedLayout("de"), austrian = NamedLayout("at");
  for (const KeyPosition& position : KeyPositions()) {
    EXPECT_EQ(austrian->VirtualKeyOf(position.evdev), german->VirtualKeyOf(position.evdev)) << position.evdev;
  }
}

TEST(NamedLayout, ASignHasItsVirtualKeyWhereverALayoutPutsIt) {
  const auto spanish = NamedLayout("es");
  EXPECT_EQ(spanish->VirtualKeyOf(27), 0xBB);
  EXPECT_EQ(spanish->VirtualKeyOf(53), 0xBD);
  const auto dvorak = NamedLayout("us(dvorak)");
  EXPECT_EQ(dvorak->VirtualKeyOf(17), 0xBC);
  EXPECT_EQ(dvorak->VirtualKeyOf(18), 0xBE);
}

TEST(NamedLayout, AKeyThatNoPcHasHasNoVirtualKey) {
  EXPECT_EQ(NamedLayout("us")->VirtualKeyOf(255), 0);
  EXPECT_EQ(NamedLayout("us")->VirtualKeyOf(-1), 0);
}

TEST(NamedLayout, WhereThereIsNoRoomThereIsNoCharacter) {
  const auto us = NamedLayout("us");
  char16_t text = u'x';
  EXPECT_EQ(us->ToUnicode('A', 0, &text, 0, 1), 0);
  EXPECT_EQ(text, u'x');
  EXPECT_EQ(us->ToUnicode('A', 0, &text, 1, 1), 1);
  EXPECT_EQ(text, u'a');
}

TEST(TableLayout, ACharacterBeyond16BitsIsNone) {
  TableLayout layout("x", [] { return LayoutTable{{{30, {U'\U0001F600'}}, {31, {U'\uFFFD'}}}, {}, false}; });
  EXPECT_EQ(Ask(layout, 'A').count, 0);
  EXPECT_EQ(Ask(layout, 'S'), (Answer{1, u'\uFFFD'}));
}

TEST(NamedLayout, TheEightBitAnswerIsNothingForWhatTheCodePageLacks) {
  const auto russian = NamedLayout("ru");
  std::uint16_t result = 77;
  EXPECT_EQ(Ask(*russian, 'A').count, 1);
  EXPECT_EQ(russian->ToAscii('A', 0, result, 1), 0);
  EXPECT_EQ(russian->ToAscii(0x88, 0, result, 1), 0);
  EXPECT_EQ(result, 77);
}

TEST(NamedLayout, ABracketThatIsNotClosedNamesNoVariant) {
  EXPECT_EQ(NamedLayout("us(dvorak")->Table(), NamedLayout("us")->Table());
  EXPECT_NE(NamedLayout("us(dvorak)")->Table(), NamedLayout("us")->Table());
}

/// Sets an environment variable for the life of this object.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* old = ::getenv(name)) old_ = old;
    ::setenv(name, value, 1);
  }
  ~Variable() { old_ ? ::setenv(name_, old_->c_str(), 1) : ::unsetenv(name_); }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  std::optional<std::string> old_;
};

TEST(NamedLayout, WithoutTheLayoutsOfTheSystemEveryLayoutIsUnknown) {
  const TemporaryDirectory directory;
  const std::string none = (directory / "none").string();
  const Variable root("XKB_CONFIG_ROOT", none.c_str()), more("XKB_CONFIG_EXTRA_PATH", none.c_str()),
      home("HOME", none.c_str()), configuration("XDG_CONFIG_HOME", none.c_str()), quiet("XKB_LOG_LEVEL", "critical");
  try {
    NamedLayout("us")->Load();
    ADD_FAILURE() << "it is known";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind(), FailureKind::Platform);
    EXPECT_STREQ(failure.what(), "no context for keyboard layouts");
  }
}

TEST(NamedLayout, AnUnknownLayoutFailsAtTheFirstQuestion) {
  const auto unknown = NamedLayout("no-such-layout");
  EXPECT_THROW(unknown->Load(), Failure);
  EXPECT_THROW(Ask(*unknown, 'A'), Failure);
  EXPECT_THROW(NamedLayout("")->Load(), Failure);
}

}  // namespace
}  // namespace plexel
