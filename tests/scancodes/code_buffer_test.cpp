#include "scancodes/code_buffer.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/failure.h"
#include "scancodes/code_type.h"
#include "scancodes/element_codes.h"
#include "scancodes/scancode_session.h"

namespace plexel {
namespace {

using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;
using Info = udtTactisBaseElement_ScanCodeInfo;

void Append(Buffer& buffer, const std::vector<int>& make, const std::vector<int>& breaking, std::int32_t codeType) {
  AppendCodeGroup(buffer, {Sequence(make), Sequence(breaking)}, codeType, 0);
}

/// Codes with a length that is not their number.
CodeSequence OfLength(std::int32_t length, const std::vector<int>& codes) {
  CodeSequence sequence = Sequence(codes);
  sequence.length = length;
  return sequence;
}

Buffer With(const std::vector<int>& make, const std::vector<int>& breaking, std::int32_t codeType) {
  Buffer buffer = InitialBuffer();
  Append(buffer, make, breaking, codeType);
  return buffer;
}

FailureKind KindOf(const std::function<void()>& act) {
  try {
    act();
  } catch (const Failure& failure) {
    return failure.Kind();
  }
  ADD_FAILURE() << "nothing failed";
  return FailureKind::Handler;
}

TEST(CodeBuffer, APlainKeyWithMakeAndBreakFillsAnEmptyBuffer) {
  const Buffer buffer = With({0x1C}, {0xF0, 0x1C}, MakeAndBreak);
  EXPECT_EQ(Used(buffer), "FF 1C F0 1C FF");
  EXPECT_EQ(buffer.NextValue, 4);
}

TEST(CodeBuffer, MakeOnlyAndBreakOnlyEachEndWithOneMark) {
  EXPECT_EQ(Used(With({0x1C}, {0xF0, 0x1C}, MakeOnly)), "FF 1C FF");
  EXPECT_EQ(Used(With({0x1C}, {0xF0, 0x1C}, BreakOnly)), "FF F0 1C FF");
}

TEST(CodeBuffer, AnEmptyBreakSequenceWritesTheMakeCodesAndOneMark) {
  EXPECT_EQ(Used(With({0xE1, 0x14}, {}, MakeAndBreak)), "FF E1 14 FF");
}

TEST(CodeBuffer, ABreakSequenceOfNoCodesIsNotLookedAt) {
  Buffer buffer = InitialBuffer();
  AppendCodeGroup(buffer, {{}, OfLength(0, {0xFF})}, BreakOnly, 0);
  EXPECT_EQ(Used(buffer), Used(With({}, {}, BreakOnly)));
}

TEST(CodeBuffer, AMarkAheadOfTheBreakCodesIsARangeOfItsOwn) {
  EXPECT_EQ(Used(With({}, {0xFF, 0xB0}, BreakOnly)), "FF FF B0 00 FF");
}

TEST(CodeBuffer, AnEmptyGroupIsAMarkAlone) {
  EXPECT_EQ(Used(With({}, {}, MakeAndBreak)), "FF FF");
  EXPECT_EQ(Used(With({}, {}, MakeOnly)), "FF FF");
  EXPECT_EQ(Used(With({}, {}, BreakOnly)), "FF FF");
}

TEST(CodeBuffer, ASeparatorIsDroppedFromMakeCodes) {
  EXPECT_EQ(Used(With({0x1C, 0xFF, 0x32}, {0xF0, 0x1C}, MakeOnly)), "FF 1C 32 FF");
  EXPECT_EQ(Used(With({0x1C, 0xFF, 0x32}, {0xF0}, MakeAndBreak)), "FF 1C 32 F0 FF");
}

TEST(CodeBuffer, SeparatedBreakCodesComeInReverseOrderWithTheElementPastTheLength) {
  Buffer buffer = InitialBuffer();
  AppendCodeGroup(buffer, {{}, OfLength(3, {0xB0, 0xFF, 0xB1, 0x77})}, BreakOnly, 0);
  EXPECT_EQ(Used(buffer), "FF FF B1 77 B0 FF");
}

TEST(CodeBuffer, TwoSeparatorsReverseThreeSubSequences) {
  Buffer buffer = InitialBuffer();
  AppendCodeGroup(buffer, {{}, OfLength(5, {0xA0, 0xFF, 0xB0, 0xFF, 0xC0, 0x77})}, BreakOnly, 0);
  EXPECT_EQ(Used(buffer), "FF FF C0 77 FF B0 FF A0 FF");
}

TEST(CodeBuffer, ASeparatorAtTheEndTakesTheElementPastTheLengthAlong) {
  Buffer buffer = InitialBuffer();
  AppendCodeGroup(buffer, {{}, OfLength(2, {0xB0, 0xFF, 0x77})}, BreakOnly, 0);
  EXPECT_EQ(Used(buffer), "FF FF 77 B0 FF");
}

TEST(CodeBuffer, AnUnknownCodeTypeAppendsNothing) {
  for (const std::int32_t codeType : {-1, 4, 1000}) {
    EXPECT_EQ(With({0x1C}, {0xF0, 0x1C}, codeType), InitialBuffer());
  }
}

TEST(CodeBuffer, GroupsFollowEachOther) {
  Buffer buffer = With({0x1C}, {0xF0, 0x1C}, MakeAndBreak);
  Append(buffer, {0x32}, {0xF0, 0x32}, MakeOnly);
  EXPECT_EQ(Used(buffer), "FF 1C F0 1C FF 32 FF");
}

TEST(CodeBuffer, TheLastIndexCanBeFilled) {
  Buffer buffer = InitialBuffer();
  Append(buffer, std::vector<int>(87, 0x1C), {}, MakeOnly);
  EXPECT_EQ(buffer.NextValue, 88);
  EXPECT_EQ(buffer.Value[88], 0xFF);
}

TEST(CodeBuffer, AByteAboveTheLastIndexFailsAndWhatWasWrittenStays) {
  Buffer buffer = InitialBuffer();
  EXPECT_EQ(KindOf([&] { Append(buffer, std::vector<int>(90, 0x1C), {}, MakeOnly); }), FailureKind::Index);
  EXPECT_EQ(buffer.Value[88], 0x1C);
  EXPECT_EQ(buffer.NextValue, 89);
}

TEST(CodeBuffer, ACodeThatIsNoByteFails) {
  for (const int code : {256, -1, 511}) {
    Buffer buffer = InitialBuffer();
    try {
      Append(buffer, {0x1C, code}, {}, MakeOnly);
      ADD_FAILURE() << "nothing failed";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
      EXPECT_EQ(failure.what(), std::to_string(code) + " is no byte");
    }
    EXPECT_EQ(buffer.Value[1], 0x1C);
  }
}

TEST(CodeBuffer, LengthsBeyondTheSequenceFail) {
  Buffer buffer = InitialBuffer();
  EXPECT_EQ(KindOf([&] { AppendCodeGroup(buffer, {Filled(0xFF, 102), Filled(0xFF, 0)}, MakeOnly, 0); }),
            FailureKind::Index);
  EXPECT_EQ(KindOf([&] { AppendCodeGroup(buffer, {Filled(0xFF, 0), Filled(0xFF, 102)}, BreakOnly, 0); }),
            FailureKind::Index);
  EXPECT_EQ(KindOf([&] { AppendCodeGroup(buffer, {Filled(0xFF, 0), Filled(0xFF, 101)}, BreakOnly, 0); }),
            FailureKind::Index);
}

TEST(CodeBuffer, MakeCodesMayFillTheWholeSequence) {
  Buffer buffer = InitialBuffer();
  AppendCodeGroup(buffer, {Filled(0xFF, 101), Filled(0xFF, 0)}, MakeOnly, 0);
  EXPECT_EQ(Used(buffer), "FF FF");
}

TEST(CodeBuffer, ANegativeBreakLengthOverwritesTheLastByteInUse) {
  for (const std::int32_t length : {-1, std::numeric_limits<std::int32_t>::min()}) {
    Buffer buffer = InitialBuffer();
    AppendCodeGroup(buffer, {Sequence({0x1C, 0x32}), OfLength(length, {0xF0})}, MakeAndBreak, 0);
    EXPECT_EQ(Used(buffer), "FF 1C FF");
  }
}

TEST(CodeBuffer, ANegativeMakeLengthAppendsTheMarkAlone) {
  Buffer buffer = InitialBuffer();
  AppendCodeGroup(buffer, {OfLength(std::numeric_limits<std::int32_t>::min(), {0x1C}), {}}, MakeOnly, 0);
  EXPECT_EQ(Used(buffer), "FF FF");
}

TEST(CodeBuffer, ABrokenNextValueFailsInsteadOfWritingElsewhere) {
  for (const std::int32_t next : {-5, 88, 1000, std::numeric_limits<std::int32_t>::min()}) {
    Buffer buffer = InitialBuffer();
    buffer.NextValue = next;
    EXPECT_EQ(KindOf([&] { Append(buffer, {0x1C}, {}, MakeOnly); }), FailureKind::Index) << next;
  }
  Buffer buffer = InitialBuffer();
  buffer.NextValue = std::numeric_limits<std::int32_t>::max();
  try {
    Append(buffer, {0x1C}, {}, MakeOnly);
    ADD_FAILURE() << "nothing failed";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_STREQ(failure.what(), "NextValue cannot be raised");
  }
}

TEST(CodeBuffer, CodeTypeThreeIsTakenFromTheDialog) {
  ScanCodeSession session;
  session.InConfigurationDialog([](StandInConfigurationDialog& dialog) {
    EXPECT_EQ(Used(With({0x1C}, {0xF0, 0x1C}, FromDialog)), "FF 1C F0 1C FF");
    dialog.optCodeType[1].Value(true);
    EXPECT_EQ(Used(With({0x1C}, {0xF0, 0x1C}, FromDialog)), "FF 1C FF");
    dialog.optCodeType[2].Value(true);
    EXPECT_EQ(Used(With({0x1C}, {0xF0, 0x1C}, FromDialog)), "FF F0 1C FF");
  });
}

TEST(CodeBuffer, TheSelectedCodeTypeIsTwoWhenNoOptionIsSet) {
  ScanCodeSession session;
  session.InConfigurationDialog([](StandInConfigurationDialog& dialog) {
    EXPECT_EQ(GetSelectedCodeType(), 0);
    dialog.optCodeType[0].Value(false);
    EXPECT_EQ(GetSelectedCodeType(), 2);
  });
}

TEST(CodeBuffer, TheSelectedCodeTypeNeedsTheDialog) {
  ScanCodeSession session;
  EXPECT_EQ(KindOf([] { GetSelectedCodeType(); }), FailureKind::ObjectNotSet);
}

TEST(CodeBuffer, RemovingTheFirstOfTwoGroupsLeavesItsMarkAtIndexZero) {
  Buffer buffer = With({0x1C}, {0xF0, 0x1C}, MakeAndBreak);
  Append(buffer, {0x32, 0x33}, {}, MakeOnly);
  EXPECT_TRUE(RemoveFirstCodeGroup(buffer));
  EXPECT_EQ(Used(buffer), "FF 32 33 FF");
  EXPECT_EQ(buffer.NextValue, 3);
  for (std::size_t index = 4; index <= 7; ++index) EXPECT_EQ(buffer.Value[index], 0xFF);
}

TEST(CodeBuffer, RemovingTheFirstOfTwoGroupsFillsAsManyBytesAsItTookAndNoMore) {
  Buffer buffer;
  buffer.Value = {0x00, 0x11, 0xFF, 0x22, 0x33, 0xFF, 0x44, 0x55};
  buffer.NextValue = 5;
  EXPECT_TRUE(RemoveFirstCodeGroup(buffer));
  EXPECT_EQ(buffer.NextValue, 3);
  EXPECT_EQ(Hex({buffer.Value.begin(), buffer.Value.begin() + 8}), "FF 22 33 FF FF FF 44 55");
}

TEST(CodeBuffer, RemovingTheFirstOfTwoGroupsFillsTheLastByteThatStaysAndTheLastThatWas) {
  Buffer buffer;
  buffer.Value = {0x00, 0x11, 0xFF, 0x22, 0x33, 0x44, 0x55};
  buffer.NextValue = 5;
  EXPECT_TRUE(RemoveFirstCodeGroup(buffer));
  EXPECT_EQ(buffer.NextValue, 3);
  EXPECT_EQ(Hex({buffer.Value.begin(), buffer.Value.begin() + 7}), "FF 22 33 FF FF FF 55");
}

TEST(CodeBuffer, RemovingTheFirstGroupFailsAheadOfNextValueWhenTheLastByteIsOutside) {
  Buffer buffer;
  buffer.Value = {0x00, 0x11, 0xFF, 0x22, 0x33};
  buffer.NextValue = 89;
  EXPECT_EQ(KindOf([&] { RemoveFirstCodeGroup(buffer); }), FailureKind::Index);
  EXPECT_EQ(buffer.NextValue, 89);
  EXPECT_EQ(Hex({buffer.Value.begin(), buffer.Value.begin() + 3}), "FF 22 33");
}

TEST(CodeBuffer, RemovingTheOnlyGroupFillsTheWholeBufferWithMarks) {
  Buffer buffer = With({0x1C}, {0xF0, 0x1C}, MakeAndBreak);
  buffer.Value[88] = 0x12;
  EXPECT_TRUE(RemoveFirstCodeGroup(buffer));
  EXPECT_EQ(buffer.NextValue, 0);
  for (const std::uint8_t byte : buffer.Value) EXPECT_EQ(byte, 0xFF);
}

TEST(CodeBuffer, AnEmptyGroupIsRemovedLikeAnyOther) {
  Buffer alone = With({}, {}, MakeOnly);
  EXPECT_TRUE(RemoveFirstCodeGroup(alone));
  EXPECT_EQ(alone.NextValue, 0);
  Buffer first = With({}, {}, MakeOnly);
  Append(first, {0x1C}, {}, MakeOnly);
  EXPECT_EQ(Used(first), "FF FF 1C FF");
  EXPECT_TRUE(RemoveFirstCodeGroup(first));
  EXPECT_EQ(Used(first), "FF 1C FF");
}

TEST(CodeBuffer, AnEmptyBufferHasNoGroupToRemove) {
  Buffer buffer = InitialBuffer();
  EXPECT_FALSE(RemoveFirstCodeGroup(buffer));
  RemoveLastCodeGroup(buffer);
  EXPECT_EQ(buffer, InitialBuffer());
}

TEST(CodeBuffer, ABufferWithoutAMarkHasNoFirstGroup) {
  Buffer buffer;
  buffer.Value[1] = 0x1C;
  buffer.NextValue = 1;
  const Buffer before = buffer;
  EXPECT_FALSE(RemoveFirstCodeGroup(buffer));
  EXPECT_EQ(buffer, before);
}

TEST(CodeBuffer, RemovingTheFirstFromAWholeBufferStaysInside) {
  Buffer buffer = InitialBuffer();
  Append(buffer, {0x1C}, {}, MakeOnly);
  Append(buffer, std::vector<int>(85, 0x32), {}, MakeOnly);
  EXPECT_EQ(buffer.NextValue, 88);
  EXPECT_TRUE(RemoveFirstCodeGroup(buffer));
  EXPECT_EQ(buffer.NextValue, 86);
  EXPECT_EQ(buffer.Value[86], 0xFF);
}

TEST(CodeBuffer, RemovingTheLastOfTwoGroupsLeavesTheFirst) {
  Buffer buffer = With({0x1C}, {0xF0, 0x1C}, MakeAndBreak);
  Append(buffer, {0x32, 0x33}, {}, MakeOnly);
  RemoveLastCodeGroup(buffer);
  EXPECT_EQ(Used(buffer), "FF 1C F0 1C FF");
  for (std::size_t index = 5; index <= 7; ++index) EXPECT_EQ(buffer.Value[index], 0xFF);
}

TEST(CodeBuffer, RemovingTheLastOfOneGroupEmptiesTheBuffer) {
  Buffer buffer = With({0x1C}, {0xF0, 0x1C}, MakeAndBreak);
  RemoveLastCodeGroup(buffer);
  EXPECT_EQ(buffer, InitialBuffer());
}

TEST(CodeBuffer, RemovingTheLastWithoutAMarkAheadKeepsNextValue) {
  Buffer buffer;
  Append(buffer, {0x1C}, {}, MakeOnly);
  RemoveLastCodeGroup(buffer);
  EXPECT_EQ(buffer.NextValue, 2);
  EXPECT_EQ(Used(buffer), "FF FF FF");
}

TEST(CodeBuffer, RemovingFromABrokenNextValueFailsOrDoesNothing) {
  Buffer buffer;
  buffer.NextValue = 200;
  EXPECT_EQ(KindOf([&] { RemoveFirstCodeGroup(buffer); }), FailureKind::Index);
  EXPECT_EQ(KindOf([&] { RemoveLastCodeGroup(buffer); }), FailureKind::Index);
  for (const std::int32_t next : {std::numeric_limits<std::int32_t>::min(), -1, 0}) {
    buffer = InitialBuffer();
    buffer.NextValue = next;
    const Buffer before = buffer;
    EXPECT_FALSE(RemoveFirstCodeGroup(buffer));
    RemoveLastCodeGroup(buffer);
    EXPECT_EQ(buffer, before) << next;
  }
}

TEST(CodeBuffer, GroupEndsAreCountedInBothBuffersUpToNextValue) {
  Info info;
  info.strLayer2PressScanCode = With({0x1C}, {}, MakeOnly);
  info.strLayer2ReleaseScanCode = InitialBuffer();
  EXPECT_EQ(CountGroupEnds(2, info), 3);
  EXPECT_EQ(CountGroupEnds(1, info), 0);
  EXPECT_EQ(CountGroupEnds(0, info), 0);
  EXPECT_EQ(CountGroupEnds(5, info), 0);
}

TEST(CodeBuffer, CountingBeyondTheBufferFails) {
  Info info;
  info.strLayer1PressScanCode.NextValue = 88;
  EXPECT_EQ(CountGroupEnds(1, info), 0);
  info.strLayer1PressScanCode.NextValue = 89;
  EXPECT_EQ(KindOf([&] { CountGroupEnds(1, info); }), FailureKind::Index);
}

/// A record whose buffers are all as in a new element.
Info InitialInfo() {
  Info info;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    *PressBuffer(info, layer) = InitialBuffer();
    *ReleaseBuffer(info, layer) = InitialBuffer();
  }
  return info;
}

TEST(CodeBuffer, AnEmptyLayerTakesOneCodeMoreThanTheLimit) {
  ScanCodeSession session;
  EXPECT_TRUE(HasRoomForCodes(1, InitialInfo(), 44));
  EXPECT_FALSE(HasRoomForCodes(1, InitialInfo(), 45));
  Module().lngMaxScanCodes = 22;
  EXPECT_TRUE(HasRoomForCodes(1, InitialInfo(), 23));
  EXPECT_FALSE(HasRoomForCodes(1, InitialInfo(), 24));
}

TEST(CodeBuffer, EndMarksTakeNoRoom) {
  ScanCodeSession session;
  Info info = InitialInfo();
  Append(info.strLayer1PressScanCode, std::vector<int>(20, 0x1C), {}, MakeOnly);
  Append(info.strLayer1ReleaseScanCode, std::vector<int>(20, 0x1C), {}, MakeOnly);
  EXPECT_TRUE(HasRoomForCodes(1, info, 4));
  EXPECT_FALSE(HasRoomForCodes(1, info, 5));
  EXPECT_TRUE(HasRoomForCodes(2, info, 44));
}

TEST(CodeBuffer, ALayerThatDoesNotExistHasNoRoom) {
  ScanCodeSession session;
  EXPECT_FALSE(HasRoomForCodes(0, InitialInfo(), 0));
  EXPECT_FALSE(HasRoomForCodes(5, InitialInfo(), 0));
}

}  // namespace
}  // namespace plexel
