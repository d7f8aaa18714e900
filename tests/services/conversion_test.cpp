#include "services/conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/failure.h"

namespace plexel {
namespace {

template <typename Conversion>
FailureKind KindOf(Conversion&& conversion) {
  try {
    conversion();
  } catch (const Failure& failure) {
    return failure.Kind();
  }
  ADD_FAILURE() << "no failure";
  return FailureKind::Handler;
}

TEST(Conversion, DecimalTextIsRead) {
  EXPECT_EQ(TextToInt32("65535"), 65535);
  EXPECT_EQ(TextToInt32("0"), 0);
  EXPECT_EQ(TextToInt32("007"), 7);
}

TEST(Conversion, BlanksAroundANumberDoNotCount) { EXPECT_EQ(TextToInt32(" \t 42\t "), 42); }

TEST(Conversion, ASignIsRead) {
  EXPECT_EQ(TextToInt32("-12"), -12);
  EXPECT_EQ(TextToInt32("+12"), 12);
}

TEST(Conversion, AFractionMayLackDigitsOnOneSideOfThePoint) {
  EXPECT_EQ(TextToNumber(".25"), 0.25);
  EXPECT_EQ(TextToNumber(".5"), 0.5);
  EXPECT_EQ(TextToNumber("3."), 3.0);
}

TEST(Conversion, AnExponentIsReadInBothCasesAndWithASign) {
  EXPECT_EQ(TextToNumber("1e3"), 1000.0);
  EXPECT_EQ(TextToNumber("1E+3"), 1000.0);
  EXPECT_EQ(TextToNumber("25e-1"), 2.5);
}

TEST(Conversion, HexadecimalTextIsReadInBothCases) {
  EXPECT_EQ(TextToInt32("&HFF"), 255);
  EXPECT_EQ(TextToInt32("&hff"), 255);
  EXPECT_EQ(TextToInt32("&H7FFFFFFF"), std::numeric_limits<std::int32_t>::max());
}

TEST(Conversion, TiesAreRoundedToTheEvenNumber) {
  EXPECT_EQ(TextToInt32("0.5"), 0);
  EXPECT_EQ(TextToInt32("1.5"), 2);
  EXPECT_EQ(TextToInt32("2.5"), 2);
  EXPECT_EQ(TextToInt32("-2.5"), -2);
}

TEST(Conversion, WhatIsNoNumberIsAConversionFailure) {
  for (const char* text : {"",   " ",   "abc",   "1a",   "1:", "1/",  "1 2",   "--1",  "+-1",  "-",   ".",   "e5",
                           "1e", "1e+", "1.2.3", "0x10", "&H", "&HG", "&H12G", "&Hzz", "&H-1", "nan", "inf", "1,5"}) {
    EXPECT_EQ(KindOf([&] { TextToNumber(text); }), FailureKind::Conversion) << text;
  }
}

TEST(Conversion, ATextWithANulByteIsNoNumber) {
  EXPECT_EQ(KindOf([] { TextToNumber(std::string_view("1\0", 2)); }), FailureKind::Conversion);
}

TEST(Conversion, TheLimitsOf32BitsFit) {
  EXPECT_EQ(TextToInt32("2147483647"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(TextToInt32("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(TextToInt32("2147483647.4"), std::numeric_limits<std::int32_t>::max());
}

TEST(Conversion, WhatRoundsPast32BitsIsAnOverflow) {
  EXPECT_EQ(KindOf([] { TextToInt32("2147483647.5"); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { TextToInt32("2147483648"); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { TextToInt32("-2147483649"); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { TextToInt32("&HFFFFFFFF"); }), FailureKind::Overflow);
}

TEST(Conversion, AByteHoldsZeroTo255) {
  EXPECT_EQ(TextToUInt8("0"), 0);
  EXPECT_EQ(TextToUInt8("255"), 255);
  EXPECT_EQ(KindOf([] { TextToUInt8("256"); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { TextToUInt8("-1"); }), FailureKind::Overflow);
}

TEST(Conversion, AnOverflowTellsWhatDoesNotFit) {
  try {
    TextToUInt8("256");
    ADD_FAILURE() << "no failure";
  } catch (const Failure& failure) {
    EXPECT_STREQ(failure.what(), "256.000000 does not fit its type");
  }
}

TEST(Conversion, MinusAHalfIsZeroAsAByte) { EXPECT_EQ(TextToUInt8("-0.5"), 0); }

TEST(Conversion, A16BitIntegerHoldsItsLimits) {
  EXPECT_EQ(RoundToInt16(32767.0), 32767);
  EXPECT_EQ(RoundToInt16(-32768.0), -32768);
  EXPECT_EQ(KindOf([] { RoundToInt16(32767.5); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { RoundToInt16(-32769.0); }), FailureKind::Overflow);
}

TEST(Conversion, WhatIsNotFiniteDoesNotRound) {
  EXPECT_EQ(KindOf([] { RoundToInt32(std::nan("")); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { RoundToInt32(HUGE_VAL); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { RoundToUInt8(-HUGE_VAL); }), FailureKind::Overflow);
}

TEST(Conversion, ANumberTooLargeForItsTypeIsAnOverflow) {
  EXPECT_EQ(KindOf([] { TextToNumber("1e309"); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { TextToSingle("1e39"); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { TextToNumber("&H10000000000000000"); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { TextToNumber("1e99999999999999999999"); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { TextToNumber("1" + std::string(400, '0') + "e-5"); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { TextToNumber("0.1e+400"); }), FailureKind::Overflow);
}

TEST(Conversion, WhatStandsBehindATextIsNotRead) {
  const std::string more = "1" + std::string(400, '0') + "e-5000";
  EXPECT_EQ(KindOf([&] { TextToNumber(std::string_view(more).substr(0, more.size() - 3)); }), FailureKind::Overflow);
  EXPECT_EQ(TextToNumber(std::string_view("1234").substr(0, 2)), 12.0);
  EXPECT_EQ(TextToNumber(std::string_view("&H1234").substr(0, 4)), 18.0);
}

TEST(Conversion, ANumberTooSmallForItsTypeIsZero) {
  EXPECT_EQ(TextToNumber("1e-400"), 0.0);
  EXPECT_EQ(TextToSingle("1e-60"), 0.0F);
  EXPECT_EQ(TextToNumber("1e-99999999999999999999"), 0.0);
  EXPECT_EQ(TextToNumber("0." + std::string(400, '0') + "1"), 0.0);
}

TEST(Conversion, WholeSinglesHaveNoPoint) {
  EXPECT_EQ(SingleToText(1530.0F), "1530");
  EXPECT_EQ(SingleToText(-105.0F), "-105");
}

TEST(Conversion, ZeroOfEitherSignIsZero) {
  EXPECT_EQ(SingleToText(0.0F), "0");
  EXPECT_EQ(SingleToText(-0.0F), "0");
}

TEST(Conversion, FractionsOfSinglesAreShortest) {
  EXPECT_EQ(SingleToText(22.5F), "22.5");
  EXPECT_EQ(SingleToText(0.1F), "0.1");
  EXPECT_EQ(SingleToText(1.0F / 3), "0.33333334");
}

TEST(Conversion, SevenDigitsNeedNoExponent) {
  EXPECT_EQ(SingleToText(100000.0F), "100000");
  EXPECT_EQ(SingleToText(9999999.0F), "9999999");
  EXPECT_NE(SingleToText(10000000.0F).find('e'), std::string::npos);
}

TEST(Conversion, FourPlacesBehindThePointNeedNoExponent) {
  EXPECT_EQ(SingleToText(1e-4F), "0.0001");
  EXPECT_EQ(SingleToText(-1e-4F), "-0.0001");
  EXPECT_EQ(SingleToText(9e-5F), "9e-05");
}

TEST(Conversion, ATextOfASingleReadsBackAsTheSameNumber) {
  for (const float value : {1.0F, 0.1F, 16777216.0F, 3.4028235e38F, 1e-45F, 123.456F, -0.00012F}) {
    EXPECT_EQ(TextToSingle(SingleToText(value)), value) << value;
  }
}

TEST(Conversion, NothingMayFollowTheExponent) {
  EXPECT_EQ(TextToNumber("1e5"), 1e5);
  for (const char* const text : {"1e5x", "1e5.", "1e+5e", "1e", "1e-"}) {
    EXPECT_EQ(KindOf([text] { TextToNumber(text); }), FailureKind::Conversion) << text;
  }
}

}  // namespace
}  // namespace plexel
