#include "scancodes/key_translation.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "platform/platform_in_force.h"
#include "scancodes/scancode_session.h"
#include "scancodes/toggled_platform.h"

namespace plexel {
namespace {

constexpr std::int32_t Shift = 0x10, Control = 0x11, Menu = 0x12, NumLock = 0x90;
constexpr std::int32_t untouchedCode = -7, untouchedLength = 77;

/// What one translation wrote, with arrays and lengths that told nothing before it.
struct Translation {
  Translation(std::int32_t scanCode, std::int32_t virtualKey, std::int32_t extended) {
    TranslateScanCode(scanCode, virtualKey, extended, codes);
  }
  std::string Make() const { return Written(codes.make); }
  std::string Break() const { return Written(codes.breaking); }
  std::string Both() const { return Make() + " / " + Break(); }

  KeyCodes codes{Filled(untouchedCode, untouchedLength), Filled(untouchedCode, untouchedLength)};

 private:
  static std::string Written(const CodeSequence& sequence) {
    std::int32_t count = 0;
    while (sequence.codes[static_cast<std::size_t>(count)] != untouchedCode) ++count;
    return First(count, sequence) + " (" + std::to_string(sequence.length) + ")";
  }
};

std::string Translated(std::int32_t scanCode, std::int32_t virtualKey, std::int32_t extended) {
  return Translation(scanCode, virtualKey, extended).Both();
}

const std::string nothing = " (77) /  (77)";

std::string Simple(const std::string& code) { return code + " (1) / F0 " + code + " (2)"; }
std::string Extended(const std::string& code) { return "E0 " + code + " (2) / E0 F0 " + code + " (3)"; }

/// The codes of the plain keys, sixteen scan codes to a line.
constexpr std::string_view plainCodes =
    "-- 76 16 1E 26 25 2E 36 3D 3E 46 45 4E 55 66 0D "
    "15 1D 24 2D 2C 35 3C 43 44 4D 54 5B -- -- 1C 1B "
    "23 2B 34 33 3B 42 4B 4C 52 0E 12 5D 1A 22 21 2A "
    "32 31 3A 41 49 -- 59 7C -- 29 58 05 06 04 0C 03 "
    "0B 83 0A 01 09 -- 7E -- -- -- 7B -- 73 -- 79 -- "
    "-- -- -- -- -- -- 61 78 07 -- -- -- -- -- -- -- "
    "-- -- -- -- 08 10 18 20 28 30 38 40 48 50 57 -- "
    "-- -- -- -- -- -- 5F -- -- -- -- -- -- -- -- -- ";

std::string PlainCode(std::int32_t scanCode) {
  return std::string(plainCodes.substr(static_cast<std::size_t>(scanCode) * 3, 2));
}

struct CursorKey {
  std::int32_t scanCode, navigationKey;
  const char* code;
};
constexpr CursorKey cursorKeys[] = {{0x47, 0x24, "6C"}, {0x48, 0x26, "75"}, {0x49, 0x21, "7D"}, {0x4B, 0x25, "6B"},
                                    {0x4D, 0x27, "74"}, {0x4F, 0x23, "69"}, {0x50, 0x28, "72"}, {0x51, 0x22, "7A"},
                                    {0x52, 0x2D, "70"}, {0x53, 0x2E, "71"}};

TEST(KeyTranslation, PlainKeysSendTheirCodeWhateverTheFlagAndTheKey) {
  ScanCodeSession session;
  int walked = 0;
  for (std::int32_t scanCode = 0; scanCode < 0x80; ++scanCode) {
    if (PlainCode(scanCode) == "--") continue;
    ++walked;
    for (const std::int32_t extended : {0, 1}) {
      EXPECT_EQ(Translated(scanCode, 0x41, extended), Simple(PlainCode(scanCode))) << scanCode;
      EXPECT_EQ(Translated(scanCode, 0x6F, extended), Simple(PlainCode(scanCode))) << scanCode;
    }
  }
  EXPECT_EQ(walked, 83);
}

TEST(KeyTranslation, PlainKeysAskForNoModifier) {
  ScanCodeSession session;
  for (std::int32_t scanCode = 0; scanCode < 0x80; ++scanCode) {
    if (PlainCode(scanCode) != "--") Translation(scanCode, 0x41, 0);
  }
  EXPECT_EQ(session.platform.faults.Calls(Fault::Keys), 0);
}

TEST(KeyTranslation, EveryOtherScanCodeWritesNothing) {
  ScanCodeSession session;
  const std::set<std::int32_t> special = {0x00, 0x1C, 0x1D, 0x35, 0x38, 0x45, 0x47, 0x48, 0x49, 0x4B,
                                          0x4D, 0x4F, 0x50, 0x51, 0x52, 0x53, 0x5B, 0x5C, 0x5D};
  int untouched = 0;
  for (std::int32_t scanCode = -3; scanCode < 0x300; ++scanCode) {
    const bool plain = scanCode >= 0 && scanCode < 0x80 && PlainCode(scanCode) != "--";
    if (plain || special.contains(scanCode)) continue;
    ++untouched;
    EXPECT_EQ(Translated(scanCode, 0x41, 1), nothing) << scanCode;
  }
  EXPECT_EQ(untouched, 0x303 - 83 - 19);
}

TEST(KeyTranslation, TheExtendedFlagTellsTheSideOfReturnCtrlAndAlt) {
  ScanCodeSession session;
  EXPECT_EQ(Translated(0x1C, 0x0D, 0), "5A (1) / F0 5A (2)");
  EXPECT_EQ(Translated(0x1C, 0x0D, 1), "E0 5A (2) / E0 F0 5A (3)");
  EXPECT_EQ(Translated(0x1D, 0x11, 0), "14 (1) / F0 14 (2)");
  EXPECT_EQ(Translated(0x1D, 0x11, 1), "E0 14 (2) / E0 F0 14 (3)");
  EXPECT_EQ(Translated(0x38, 0x12, 0), "11 (1) / F0 11 (2)");
  EXPECT_EQ(Translated(0x38, 0x12, 1), "E0 11 (2) / E0 F0 11 (3)");
}

TEST(KeyTranslation, AnyFlagThatIsNotZeroCountsAsExtended) {
  ScanCodeSession session;
  EXPECT_EQ(Translated(0x1C, 0x0D, -1), "E0 5A (2) / E0 F0 5A (3)");
  EXPECT_EQ(Translated(0x1C, 0x0D, 2), "E0 5A (2) / E0 F0 5A (3)");
}

TEST(KeyTranslation, WindowsAndContextKeysAreAlwaysExtended) {
  ScanCodeSession session;
  for (const std::int32_t extended : {0, 1}) {
    EXPECT_EQ(Translated(0x5B, 0x5B, extended), Extended("1F"));
    EXPECT_EQ(Translated(0x5C, 0x5C, extended), Extended("27"));
    EXPECT_EQ(Translated(0x5D, 0x5D, extended), Extended("2F"));
  }
}

TEST(KeyTranslation, AnotherVirtualKeyMakesACursorKeyAPadKeyWhateverTheModifiers) {
  ScanCodeSession session;
  session.platform.Keys().Hold(Shift);
  session.platform.Keys().Hold(NumLock);
  for (const CursorKey& key : cursorKeys) {
    for (const std::int32_t extended : {0, 1}) {
      EXPECT_EQ(Translated(key.scanCode, 0x66, extended), Simple(key.code)) << key.code;
    }
  }
  EXPECT_EQ(session.platform.faults.Calls(Fault::Keys), 0);
}

TEST(KeyTranslation, CursorKeysWithoutModifierSendTheirExtendedCode) {
  ScanCodeSession session;
  for (const CursorKey& key : cursorKeys) {
    for (const std::int32_t extended : {0, 1}) {
      EXPECT_EQ(Translated(key.scanCode, key.navigationKey, extended), Extended(key.code)) << key.code;
    }
  }
}

TEST(KeyTranslation, CursorKeysWithShiftLiftIt) {
  ScanCodeSession session;
  session.platform.Keys().Hold(Shift);
  for (const CursorKey& key : cursorKeys) {
    const std::string cc = key.code;
    const std::string make = cc == "69" ? "E0 F0 12 12 E0 69 (6)" : "E0 F0 12 E0 " + cc + " (5)";
    EXPECT_EQ(Translated(key.scanCode, key.navigationKey, 1), make + " / E0 F0 " + cc + " E0 12 (5)");
  }
}

TEST(KeyTranslation, CursorKeysWithNumLockHeldSetShift) {
  ScanCodeSession session;
  session.platform.Keys().Hold(NumLock);
  for (const CursorKey& key : cursorKeys) {
    const std::string cc = key.code;
    std::string make = "E0 12 E0 " + cc + " (4)", breaking = "E0 F0 " + cc + " E0 F0 12 (6)";
    if (cc == "6B") make = "E0 12 E0 6B (77)";
    if (cc == "70") make = "E0 12 70 (3)";
    if (cc == "72") breaking = "E0 F0 72 40 F0 12 (6)";
    EXPECT_EQ(Translated(key.scanCode, key.navigationKey, 0), make + " / " + breaking);
  }
}

TEST(KeyTranslation, ShiftWinsOverNumLock) {
  ScanCodeSession session;
  session.platform.Keys().Hold(Shift);
  session.platform.Keys().Hold(NumLock);
  EXPECT_EQ(Translated(0x4D, 0x27, 1), "E0 F0 12 E0 74 (5) / E0 F0 74 E0 12 (5)");
}

TEST(KeyTranslation, CtrlAndAltPlayNoPartInTheCursorBlock) {
  ScanCodeSession session;
  session.platform.Keys().Hold(Control);
  session.platform.Keys().Hold(Menu);
  EXPECT_EQ(Translated(0x4D, 0x27, 1), Extended("74"));
}

TEST(KeyTranslation, CursorLeftWithNumLockKeepsAMakeLengthOfZero) {
  ScanCodeSession session;
  session.platform.Keys().Hold(NumLock);
  KeyCodes codes;
  TranslateScanCode(0x4B, 0x25, 1, codes);
  EXPECT_EQ(codes.make.length, 0);
  EXPECT_EQ(First(5, codes.make), "E0 12 E0 6B 00");
}

TEST(KeyTranslation, DivideOfThePadTakesShiftIntoAccount) {
  ScanCodeSession session;
  EXPECT_EQ(Translated(0x35, 0x6F, 1), "E0 4A (2) / E0 F0 4A (3)");
  session.platform.Keys().Hold(NumLock);
  EXPECT_EQ(Translated(0x35, 0x6F, 0), "E0 4A (2) / E0 F0 4A (3)");
  session.platform.Keys().Hold(Shift);
  EXPECT_EQ(Translated(0x35, 0x6F, 1), "E0 F0 12 4A (4) / E0 12 F0 4A (4)");
}

TEST(KeyTranslation, TheSlashOfTheMainBlockIsPlain) {
  ScanCodeSession session;
  session.platform.Keys().Hold(Shift);
  EXPECT_EQ(Translated(0x35, 0xBF, 1), "4A (1) / F0 4A (2)");
  EXPECT_EQ(session.platform.faults.Calls(Fault::Keys), 0);
}

TEST(KeyTranslation, PrintAloneSetsShift) {
  ScanCodeSession session;
  EXPECT_EQ(Translated(0x00, 0x2C, 1), "E0 12 E0 7C (4) / E0 F0 7C E0 F0 12 (6)");
}

TEST(KeyTranslation, PrintWithShiftOrCtrlIsBare) {
  for (const std::int32_t modifier : {Shift, Control}) {
    ScanCodeSession session;
    session.platform.Keys().Hold(modifier);
    session.platform.Keys().Hold(Menu);
    EXPECT_EQ(Translated(0x00, 0x2C, 0), "E0 7C (2) / E0 F0 7C (3)") << modifier;
  }
}

TEST(KeyTranslation, PrintWithAltIsSystemRequest) {
  ScanCodeSession session;
  session.platform.Keys().Hold(Menu);
  EXPECT_EQ(Translated(0x00, 0x2C, 0), "84 (1) / F0 84 (2)");
}

TEST(KeyTranslation, NumLockIsNamedByItsVirtualKeyAndAsksForNoModifier) {
  ScanCodeSession session;
  session.platform.Keys().Hold(Control);
  EXPECT_EQ(Translated(0x45, 0x90, 1), "77 (1) / F0 77 (2)");
  EXPECT_EQ(session.platform.faults.Calls(Fault::Keys), 0);
}

TEST(KeyTranslation, PauseHoldsItsOwnReleaseAndHasAnEmptyBreakSequence) {
  ScanCodeSession session;
  EXPECT_EQ(Translated(0x45, 0x13, 0), "E1 14 77 E1 F0 14 F0 77 (8) / 00 (0)");
}

TEST(KeyTranslation, PauseWithCtrlCountsFourOfFiveCodesAndBreaksWithZero) {
  ScanCodeSession session;
  session.platform.Keys().Hold(Control);
  EXPECT_EQ(Translated(0x45, 0x13, 0), "E0 7E E0 F0 7E (4) / 00 (1)");
}

TEST(KeyTranslation, SamplingAsksForShiftNumLockAltAndCtrlAtEachCall) {
  ScanCodeSession session;
  SampleModifierKeys();
  EXPECT_EQ(session.platform.faults.Calls(Fault::Keys), 4);
  session.platform.Keys().Hold(NumLock);
  session.platform.Keys().Hold(Menu);
  SampleModifierKeys();
  EXPECT_EQ(Module().bShiftDown, False);
  EXPECT_EQ(Module().bNumLockDown, True);
  EXPECT_EQ(Module().bAltDown, True);
  EXPECT_EQ(Module().bCtrlDown, False);
}

TEST(KeyTranslation, AFailingQuestionKeepsTheStateOfTheKeysBehindIt) {
  ScanCodeSession session;
  Module().bAltDown = Module().bCtrlDown = Module().bShiftDown = True;
  session.platform.Keys().Hold(NumLock);
  session.platform.faults.Arm(Fault::Keys, 3);
  SampleModifierKeys();
  EXPECT_EQ(Module().bShiftDown, False);
  EXPECT_EQ(Module().bNumLockDown, True);
  EXPECT_EQ(Module().bAltDown, True);
  EXPECT_EQ(Module().bCtrlDown, True);
}

TEST(KeyTranslation, AFailingQuestionLetsTheTranslationGoOnWithTheLastState) {
  ScanCodeSession session;
  Module().bShiftDown = True;
  session.platform.faults.Turn(Fault::Keys, true);
  EXPECT_EQ(Translated(0x4D, 0x27, 1), "E0 F0 12 E0 74 (5) / E0 F0 74 E0 12 (5)");
}

TEST(KeyTranslation, TheToggleBitOfAKeyDoesNotCount) {
  ToggledPlatform platform;
  const PlatformInForce use(platform);
  Module().bNumLockDown = Module().bShiftDown = True;
  SampleModifierKeys();
  EXPECT_EQ(Module().bNumLockDown, False);
  EXPECT_EQ(Module().bShiftDown, False);
}

}  // namespace
}  // namespace plexel
