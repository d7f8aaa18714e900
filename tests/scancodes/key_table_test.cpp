#include "scancodes/key_table.h"

#include <gtest/gtest.h>

#include <limits>

#include "scancodes/scancode_session.h"

namespace plexel {
namespace {

using Slot = ModuleState::KeySlot;

constexpr std::int32_t upFlag = std::numeric_limits<std::int32_t>::min();

void Down(std::int32_t virtualKey, std::int32_t scanCode = 0, std::int32_t extended = 0) {
  TrackKeyEvent(virtualKey, 1, scanCode, extended);
}
void Up(std::int32_t virtualKey, std::int32_t scanCode = 0, std::int32_t extended = 0) {
  TrackKeyEvent(virtualKey, upFlag | 1, scanCode, extended);
}
Slot At(std::size_t place) { return Module().lngPressedKeys[place]; }
std::int32_t Count() { return Module().lngPressedKeyCount; }

TEST(KeyTable, ScanCodeAndExtendedFlagComeOutOfTheFlagWord) {
  EXPECT_EQ(ScanCodeOf(0x00E00001), 0xE0);
  EXPECT_EQ(ScanCodeOf(static_cast<std::int32_t>(0xFF1CFFFFU)), 0x1C);
  EXPECT_EQ(ExtendedFlagOf(0x01000000), 1);
  EXPECT_EQ(ExtendedFlagOf(static_cast<std::int32_t>(0xFEFFFFFFU)), 0);
}

TEST(KeyTable, AKeyDownTakesTheNextSlot) {
  ScanCodeSession session;
  Down(0x11, 0x1D, 1);
  Down(0x41, 0x1E, 0);
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(At(0), (Slot{0x11, 1, 0x1D, 1}));
  EXPECT_EQ(At(1), (Slot{0x41, 1, 0x1E, 0}));
}

TEST(KeyTable, ARepeatedKeyRewritesItsSlot) {
  ScanCodeSession session;
  Down(0x41, 0x1E, 0);
  Down(0x42, 0x30, 0);
  Down(0x41, 0x77, 1);
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(At(0), (Slot{0x41, 1, 0x77, 1}));
}

TEST(KeyTable, AKeyUpClearsTheDownFlagAlone) {
  ScanCodeSession session;
  Down(0x41, 0x1E, 1);
  Up(0x41, 0x22, 0);
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(At(0), (Slot{0x41, 0, 0x1E, 1}));
}

TEST(KeyTable, AnUnknownKeyUpChangesNothing) {
  ScanCodeSession session;
  Down(0x41, 0x1E, 0);
  const auto before = Module().lngPressedKeys;
  Up(0x42, 0x30, 0);
  EXPECT_EQ(Module().lngPressedKeys, before);
  EXPECT_EQ(Count(), 1);
}

TEST(KeyTable, TenKeysAreKeptAndTheEleventhLandsInTheScratchSlot) {
  ScanCodeSession session;
  for (std::int32_t key = 0x41; key < 0x4B; ++key) Down(key, key, 0);
  EXPECT_EQ(Count(), 10);
  Down(0x50, 0x19, 0);
  EXPECT_EQ(Count(), 10);
  EXPECT_EQ(At(10), (Slot{0x50, 1, 0x19, 0}));
  Down(0x51, 0x10, 0);
  EXPECT_EQ(Count(), 10);
  EXPECT_EQ(At(10), (Slot{0x51, 1, 0x10, 0}));
  EXPECT_EQ(At(11), Slot{});
}

TEST(KeyTable, TheScratchSlotHoldsTheCombinationOpen) {
  ScanCodeSession session;
  for (std::int32_t key = 0x41; key < 0x4C; ++key) Down(key, key, 0);
  for (std::int32_t key = 0x41; key < 0x4B; ++key) Up(key, key, 0);
  EXPECT_FALSE(AllKeysReleased());
  Up(0x4B, 0x4B, 0);
  EXPECT_TRUE(AllKeysReleased());
}

TEST(KeyTable, PrintEntersWithScanCodeZeroAtItsRelease) {
  ScanCodeSession session;
  Up(0x2C, 0x37, 1);
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(At(0), (Slot{0x2C, 0, 0, 1}));
  EXPECT_EQ(At(1), Slot{});
}

TEST(KeyTable, PrintEntersOnceForEachKeyAheadOfItsFirstCopy) {
  for (const std::int32_t held : {1, 2, 4}) {
    ScanCodeSession session;
    for (std::int32_t key = 0; key < held; ++key) Down(0x41 + key, 0x1E, 0);
    Up(0x2C, 0x37, 0);
    EXPECT_EQ(Count(), 2 * held);
    for (std::int32_t place = held; place < 2 * held; ++place) {
      EXPECT_EQ(At(static_cast<std::size_t>(place)), (Slot{0x2C, 0, 0, 0}));
    }
    EXPECT_EQ(At(static_cast<std::size_t>(2 * held)), Slot{});
  }
}

TEST(KeyTable, PrintStopsAtTenKeys) {
  ScanCodeSession session;
  for (std::int32_t key = 0; key < 8; ++key) Down(0x41 + key, 0x1E, 0);
  Up(0x2C, 0x37, 0);
  EXPECT_EQ(Count(), 10);
  EXPECT_EQ(At(8)[0], 0x2C);
  EXPECT_EQ(At(9)[0], 0x2C);
  EXPECT_EQ(At(10)[0], 0x2C);
  EXPECT_EQ(At(11), Slot{});
}

TEST(KeyTable, PrintInTheTableIsReleasedLikeAnyKey) {
  ScanCodeSession session;
  Down(0x2C, 0x37, 1);
  Up(0x2C, 0x37, 1);
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(At(0), (Slot{0x2C, 0, 0x37, 1}));
}

TEST(KeyTable, TheEmptyTableIsReleased) {
  ScanCodeSession session;
  EXPECT_TRUE(AllKeysReleased());
}

TEST(KeyTable, ADownFlagOneSlotBeyondTheKeysHoldsTheCombinationOpen) {
  ScanCodeSession session;
  Module().lngPressedKeys[0][key_field::Down] = 1;
  EXPECT_FALSE(AllKeysReleased());
  Module().lngPressedKeys[0][key_field::Down] = 2;
  EXPECT_TRUE(AllKeysReleased());
}

TEST(KeyTable, AKeyOneSlotBeyondTheKeysIsFoundThereAndNotCounted) {
  ScanCodeSession session;
  Down(0x41);
  Module().lngPressedKeys[1][key_field::VirtualKey] = 0x42;
  Down(0x42, 0x30);
  EXPECT_EQ(Count(), 1);
  EXPECT_EQ(At(1), (Slot{0x42, 1, 0x30, 0}));
}

TEST(KeyTable, AFlagWordOfZeroIsAKeyThatGoesDown) {
  ScanCodeSession session;
  TrackKeyEvent(0x41, 0, 0x1E, 0);
  EXPECT_EQ(At(0), (Slot{0x41, 1, 0x1E, 0}));
}

TEST(KeyTable, TheFalseControlAheadOfAltGrIsRemoved) {
  ScanCodeSession session;
  Down(0x41, 0x1E, 0);
  Down(0x11, 0x1D, 0);
  Down(0x12, 0x38, 1);
  Down(0x42, 0x30, 0);
  RemoveAltGrControl();
  EXPECT_EQ(Count(), 3);
  EXPECT_EQ(At(0)[0], 0x41);
  EXPECT_EQ(At(1), (Slot{0x12, 1, 0x38, 1}));
  EXPECT_EQ(At(2)[0], 0x42);
  EXPECT_EQ(At(3), Slot{});
}

TEST(KeyTable, TheFalseControlIsRemovedThoughAltGrIsOneSlotBeyondTheKeys) {
  ScanCodeSession session;
  Down(0x11, 0x1D, 0);
  Module().lngPressedKeys[1] = {0x12, 1, 0x38, 1};
  RemoveAltGrControl();
  EXPECT_EQ(Count(), 0);
  EXPECT_EQ(At(0), (Slot{0x12, 1, 0x38, 1}));
}

TEST(KeyTable, AControlThatIsNotDirectlyAheadOfAltGrStays) {
  ScanCodeSession session;
  Down(0x11, 0x1D, 0);
  Down(0x41, 0x1E, 0);
  Down(0x12, 0x38, 1);
  RemoveAltGrControl();
  EXPECT_EQ(Count(), 3);
}

TEST(KeyTable, OnlyALeftControlAndARightAltBelongTogether) {
  for (const bool leftControl : {false, true}) {
    ScanCodeSession session;
    Down(0x11, 0x1D, leftControl ? 0 : 1);
    Down(0x12, 0x38, leftControl ? 0 : 1);
    RemoveAltGrControl();
    EXPECT_EQ(Count(), 2);
  }
}

TEST(KeyTable, AnAltGrInTheFirstSlotRemovesNothing) {
  ScanCodeSession session;
  Down(0x12, 0x38, 1);
  Down(0x11, 0x1D, 0);
  RemoveAltGrControl();
  EXPECT_EQ(Count(), 2);
}

TEST(KeyTable, AControlOfAnotherPlaceAheadOfAltGrStays) {
  for (const auto& [scanCode, extended] : {std::pair{0x21D, 0}, {0x1D, 1}}) {
    ScanCodeSession session;
    Down(0x11, scanCode, extended);
    Down(0x12, 0x38, 1);
    RemoveAltGrControl();
    EXPECT_EQ(Count(), 2) << scanCode << ' ' << extended;
  }
  ScanCodeSession session;
  Down(0x11, 0x1D, 0);
  Down(0x12, 0x39, 1);  // no Alt Gr
  RemoveAltGrControl();
  EXPECT_EQ(Count(), 2);
}

}  // namespace
}  // namespace plexel
