#include "keyboard/typed_character.h"

#include <gtest/gtest.h>

namespace plexel {
namespace {

TEST(TypedCharacter, FollowsKeyAndModifiers) {
  EXPECT_EQ(TypedCharacter(0x41, 0, U'a'), U'a');
  EXPECT_EQ(TypedCharacter(0x41, 1, U'a'), U'A');
  EXPECT_EQ(TypedCharacter(0xDE, 1, U'\u00E4'), U'\u00C4');
  EXPECT_EQ(TypedCharacter(0x31, 1, U'1'), U'1');
  EXPECT_EQ(TypedCharacter(0x56, 2, U'v'), 22U);
  EXPECT_EQ(TypedCharacter(0x31, 2, U'1'), 0U);
  EXPECT_EQ(TypedCharacter(0x5B, 2, 0), 0U);
  EXPECT_EQ(TypedCharacter(0x41, 4, U'a'), 0U);
  EXPECT_EQ(TypedCharacter(0x09, 0, U'\t'), 0U);
  EXPECT_EQ(TypedCharacter(0x08, 0, U'\b'), 8U);
  EXPECT_EQ(TypedCharacter(0x0D, 0, U'\r'), 13U);
  EXPECT_EQ(TypedCharacter(0x1B, 0, 0), 27U);
  EXPECT_EQ(TypedCharacter(0x70, 0, 0), 0U);
}

TEST(TypedCharacter, ShiftTurnsLettersAndNothingElseIntoCapitals) {
  constexpr std::int16_t shift = 1;
  for (const char32_t letter : {U'a', U'z', U'\u00E0', U'\u00F6', U'\u00F8', U'\u00FE'}) {
    EXPECT_EQ(TypedCharacter(0x41, shift, letter), letter - 0x20) << static_cast<std::uint32_t>(letter);
  }
  for (const char32_t other : {U'`', U'{', U'\u00DF', U'\u00F7', U'\u00FF', U'\u0436'}) {
    EXPECT_EQ(TypedCharacter(0x41, shift, other), other) << static_cast<std::uint32_t>(other);
  }
}

}  // namespace
}  // namespace plexel
