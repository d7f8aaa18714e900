#include "forms/caption.h"

#include <gtest/gtest.h>

#include <string>

namespace plexel {
namespace {

constexpr std::size_t none = ReadableCaption::NoLetter;

struct Reading {
  const char* caption;
  const char* text;
  std::size_t letterAt;
};

TEST(Caption, IsReadWithTheLetterThatItMarks) {
  for (const Reading& expected : {Reading{"", "", none},
                                  {"OK", "OK", none},
                                  {"&OK", "OK", 0},
                                  {"Ab&brechen", "Abbrechen", 2},
                                  {"&&", "&", none},
                                  {"Press && &release", "Press & release", 8},
                                  {"&one &two", "one two", 0},
                                  {"Keys & LEDs", "Keys & LEDs", none},
                                  {"at the end &", "at the end &", none},
                                  {"&\xC3\x9C"
                                   "ber",
                                   "\xC3\x9C"
                                   "ber",
                                   0}}) {
    const ReadableCaption read = ReadCaption(expected.caption);
    EXPECT_EQ(read.text, expected.text);
    EXPECT_EQ(read.letterAt, expected.letterAt) << expected.caption;
  }
}

TEST(Caption, IsLedToByTheKeyOfItsLetterInEitherCase) {
  EXPECT_TRUE(LeadsTo("&OK", 'O'));
  EXPECT_TRUE(LeadsTo("Ab&brechen", 'B'));
  EXPECT_TRUE(LeadsTo("Layer &1", '1'));
}

TEST(Caption, IsNotLedToByAnyOtherKey) {
  EXPECT_FALSE(LeadsTo("&OK", 'K'));
  EXPECT_FALSE(LeadsTo("OK", 'O'));
  EXPECT_FALSE(LeadsTo("&&OK", 'O'));
  constexpr std::int16_t keyOfPercent = '%';  // the left arrow
  EXPECT_FALSE(LeadsTo("100 &%", keyOfPercent));
}

TEST(Caption, IsNotLedToByWhatStandsBesideLettersAndDigits) {
  for (const char letter : {'/', ':', '@', '[', '!'}) {
    EXPECT_FALSE(LeadsTo(std::string("&") + letter, letter)) << letter;
  }
  for (const char letter : {'0', '9', 'A', 'Z'}) EXPECT_TRUE(LeadsTo(std::string("&") + letter, letter)) << letter;
}

}  // namespace
}  // namespace plexel
