#include "files/number_text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

namespace plexel {
namespace {

template <typename Number>
class ParseNumberOf : public testing::Test {};

using Whole = testing::Types<std::uint8_t, std::int16_t, std::int32_t, std::uint32_t, std::int64_t, std::size_t>;
TYPED_TEST_SUITE(ParseNumberOf, Whole);

TYPED_TEST(ParseNumberOf, TheEndsOfTheTypeAreNumbersAndWhatLiesBehindThemIsNone) {
  const std::string least = std::to_string(std::numeric_limits<TypeParam>::min());
  const std::string most = std::to_string(std::numeric_limits<TypeParam>::max());
  EXPECT_EQ(ParseNumber<TypeParam>(least), std::numeric_limits<TypeParam>::min());
  EXPECT_EQ(ParseNumber<TypeParam>(most), std::numeric_limits<TypeParam>::max());
  // Their last digits are 0, 5, 7 or 8, so that the next number differs in that digit alone.
  const auto behind = [](std::string number) {
    ++number.back();
    return number;
  };
  EXPECT_FALSE(ParseNumber<TypeParam>(behind(most)));
  EXPECT_FALSE(ParseNumber<TypeParam>(least == "0" ? "-1" : behind(least)));
}

TYPED_TEST(ParseNumberOf, AnyNumberOfLeadingZerosCountsForNothing) {
  for (const std::size_t zeros : {1U, 17U, 18U, 19U, 40U}) {
    EXPECT_EQ(ParseNumber<TypeParam>(std::string(zeros, '0')), TypeParam{0}) << zeros;
    EXPECT_EQ(ParseNumber<TypeParam>(std::string(zeros, '0') + "12"), TypeParam{12}) << zeros;
  }
}

TYPED_TEST(ParseNumberOf, DigitsWithoutEndAreNoNumber) {
  for (const std::size_t digits : {20U, 21U, 40U})
    EXPECT_FALSE(ParseNumber<TypeParam>(std::string(digits, '9'))) << digits;
  if (sizeof(TypeParam) == sizeof(std::int64_t)) return;
  for (const std::size_t digits : {18U, 19U}) EXPECT_FALSE(ParseNumber<TypeParam>(std::string(digits, '9'))) << digits;
}

TYPED_TEST(ParseNumberOf, WhatIsNoDigitIsRefusedAnywhere) {
  for (const char* const text : {"", "-", "+1", " 1", "1 ", "1.", "1a", "a1", "--1", "1-", "/", ":", "0x1"}) {
    EXPECT_FALSE(ParseNumber<TypeParam>(text)) << text;
  }
}

TYPED_TEST(ParseNumberOf, OnlyATypeWithASignTakesOne) {
  EXPECT_EQ(ParseNumber<TypeParam>("-12").has_value(), std::numeric_limits<TypeParam>::is_signed);
  EXPECT_EQ(ParseNumber<TypeParam>("-0").has_value(), std::numeric_limits<TypeParam>::is_signed);
}

TEST(ParseNumber, BoundsAreIncluded) {
  EXPECT_FALSE(ParseNumber<std::int32_t>("4", 5, 7));
  EXPECT_EQ(ParseNumber<std::int32_t>("5", 5, 7), 5);
  EXPECT_EQ(ParseNumber<std::int32_t>("7", 5, 7), 7);
  EXPECT_FALSE(ParseNumber<std::int32_t>("8", 5, 7));
}

TEST(ParseNumber, AFractionIsReadWhole) {
  EXPECT_EQ(ParseNumber<double>("-1.5"), -1.5);
  EXPECT_FALSE(ParseNumber<double>("1.5x"));
}

}  // namespace
}  // namespace plexel
