#include "forms/ascii.h"

#include <gtest/gtest.h>

namespace plexel {
namespace {

TEST(Ascii, CaseIsThatOfTheLettersAToZAlone) {
  EXPECT_EQ(ascii::Lower('A'), 'a');
  EXPECT_EQ(ascii::Lower('Z'), 'z');
  EXPECT_EQ(ascii::Upper('a'), 'A');
  EXPECT_EQ(ascii::Upper('z'), 'Z');
  for (const char other : {'@', '[', '`', '{', '0', '\xC4', '\xE4'}) {
    EXPECT_EQ(ascii::Lower(other), other);
    EXPECT_EQ(ascii::Upper(other), other);
  }
}

TEST(Ascii, TextsAreTheSameInAnyCase) {
  EXPECT_TRUE(ascii::Same("Key1", "kEY1"));
  EXPECT_TRUE(ascii::Same("", ""));
  EXPECT_FALSE(ascii::Same("Key", "Key1"));
  EXPECT_FALSE(ascii::Same("Key[", "Key{"));
}

TEST(Ascii, EveryByteHasItsHexadecimalValueOrNone) {
  for (int code = 0; code < 256; ++code) {
    const char c = static_cast<char>(code);
    const std::size_t place = ascii::HexDigits.find(ascii::Upper(c));
    EXPECT_EQ(ascii::HexValue(c), place == std::string_view::npos ? ascii::NoDigit : place) << code;
  }
}

TEST(Ascii, TheMarkOfAHexadecimalNumberIsTakenOff) {
  for (const std::string_view marked : {"&HFF", "&hFF"}) {
    std::string_view text = marked;
    EXPECT_TRUE(ascii::TakeHexMark(text));
    EXPECT_EQ(text, "FF");
  }
  for (const std::string_view plain : {"", "&", "H1", "&1H"}) {
    std::string_view text = plain;
    EXPECT_FALSE(ascii::TakeHexMark(text));
    EXPECT_EQ(text, plain);
  }
}

}  // namespace
}  // namespace plexel
