#include "cli/arguments.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "cli/command_error.h"

namespace plexel {
namespace {

std::int32_t Int32(const std::string& word) {
  const std::vector<Word> words = {{word, std::nullopt}};
  return Arguments(words, 0).Int32();
}

std::int16_t Int16(const std::string& word) {
  const std::vector<Word> words = {{word, std::nullopt}};
  return Arguments(words, 0).Int16();
}

std::int32_t Bits32(const std::string& word) {
  const std::vector<Word> words = {{word, std::nullopt}};
  return Arguments(words, 0).Bits32();
}

float Single(const std::string& word) {
  const std::vector<Word> words = {{word, std::nullopt}};
  return Arguments(words, 0).Single();
}

TEST(Arguments, NumbersAreDecimalOrHexadecimal) {
  EXPECT_EQ(Int32("42"), 42);
  EXPECT_EQ(Int32("-42"), -42);
  EXPECT_EQ(Int32("0x2A"), 42);
  EXPECT_EQ(Int32("0X2a"), 42);
  EXPECT_EQ(Int32("-0x2A"), -42);
  EXPECT_EQ(Int32("007"), 7);
}

TEST(Arguments, BoundariesOf32Bits) {
  EXPECT_EQ(Int32("2147483647"), INT32_MAX);
  EXPECT_EQ(Int32("-2147483648"), INT32_MIN);
  EXPECT_EQ(Int32("0xFFFFFFFF"), -1);
  EXPECT_THROW(Int32("2147483648"), CommandError);
  EXPECT_THROW(Int32("-2147483649"), CommandError);
  EXPECT_THROW(Int32("0x100000000"), CommandError);
  EXPECT_THROW(Int32("99999999999999999999999"), CommandError);
}

TEST(Arguments, BoundariesOf16Bits) {
  EXPECT_EQ(Int16("32767"), INT16_MAX);
  EXPECT_EQ(Int16("-32768"), INT16_MIN);
  EXPECT_EQ(Int16("0xFFFF"), -1);
  EXPECT_THROW(Int16("32768"), CommandError);
  EXPECT_THROW(Int16("0x10000"), CommandError);
}

TEST(Arguments, AWordOf32BitsTakesBothReadings) {
  EXPECT_EQ(Bits32("3223191553"), Bits32("0xC01E0001"));
  EXPECT_EQ(Bits32("-1"), Bits32("4294967295"));
  EXPECT_THROW(Bits32("4294967296"), CommandError);
  EXPECT_THROW(Bits32("-2147483649"), CommandError);
}

TEST(Arguments, WhatIsNoNumberIsRefused) {
  for (const char* word : {"", "-", "0x", "1.5", "1e3", "+1", "--1", "12a", "0xG", "\u0661"}) {
    EXPECT_THROW(Int32(word), CommandError) << word;
  }
}

TEST(Arguments, FloatsTakeFractionsAndHexadecimalNumbers) {
  EXPECT_EQ(Single("12.5"), 12.5F);
  EXPECT_EQ(Single("-1e2"), -100.0F);
  EXPECT_EQ(Single("0x10"), 16.0F);
  for (const char* word : {"", "inf", "nan", "1e99", "1,5"}) EXPECT_THROW(Single(word), CommandError) << word;
}

TEST(Arguments, AJsonTextIsTextAndNoNumber) {
  const std::vector<Word> words = {{"12", Json("12")}};
  EXPECT_EQ(Arguments(words, 0).Text(), "12");
  EXPECT_THROW(Arguments(words, 0).Int32(), CommandError);
}

TEST(Arguments, AnObjectIsNoText) {
  const std::vector<Word> words = {{"", Json::object()}};
  EXPECT_THROW(Arguments(words, 0).Text(), CommandError);
  EXPECT_EQ(Arguments(words, 0).Object(), Json::object());
}

TEST(Arguments, AMissingArgumentIsRefused) {
  const std::vector<Word> words = {{"get", std::nullopt}};
  Arguments arguments(words);
  EXPECT_FALSE(arguments.More());
  EXPECT_THROW(arguments.Text(), CommandError);
}

TEST(Arguments, ANumberInJsonIsNoWordOfANumber) {
  const std::vector<Word> number = {{"5", Json(5)}};
  EXPECT_THROW(Arguments(number, 0).Single(), CommandError);
  EXPECT_THROW(Arguments(number, 0).Object(), CommandError);
  const std::vector<Word> word = {{"5", std::nullopt}};
  EXPECT_THROW(Arguments(word, 0).Object(), CommandError);
  const std::vector<Word> object = {{"{}", Json::object()}};
  EXPECT_TRUE(Arguments(object, 0).Object().is_object());
}

TEST(Arguments, ASequenceIsARowOrTellsItsLengthToo) {
  const std::vector<Word> words = {{"E0", std::nullopt}, {"", Json::parse(R"({"bytes":"F0 1C","length":1})")}};
  const KeyCodes codes = Arguments(words, 0).Codes();
  EXPECT_EQ(codes.make.codes[0], 0xE0);
  EXPECT_EQ(codes.make.length, 1);
  EXPECT_EQ(codes.breaking.codes[0], 0xF0);
  EXPECT_EQ(codes.breaking.codes[1], 0x1C);
  EXPECT_EQ(codes.breaking.length, 1);
}

}  // namespace
}  // namespace plexel
