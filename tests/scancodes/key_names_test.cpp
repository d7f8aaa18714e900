#include "scancodes/key_names.h"

#include <gtest/gtest.h>

#include "scancodes/scancode_session.h"

namespace plexel {
namespace {

/// The name as the layout of 16-bit characters gives it.
std::string Name(std::int32_t virtualKey, std::int32_t scanCode = 0, std::int32_t extended = 0) {
  return GetKeyName(virtualKey, scanCode, extended, 1);
}
/// The name as the layout of 8-bit characters gives it.
std::string OldName(std::int32_t virtualKey) { return GetKeyName(virtualKey, 0, 0, 0); }

struct Row {
  std::int32_t virtualKey;
  const char* name;
};

TEST(KeyNames, FixedNamesStandInTheTable) {
  constexpr Row rows[] = {
      {0x08, "Backspace"}, {0x09, "Tab"},          {0x0C, "Numpad (off) 5"}, {0x13, "Pause"},
      {0x14, "Caps Lock"}, {0x1B, "Esc"},          {0x20, "Space"},          {0x21, "Page Up"},
      {0x22, "Page down"}, {0x23, "End"},          {0x24, "Pos1"},           {0x25, "Cursor Left"},
      {0x26, "Cursor Up"}, {0x27, "Cursor Right"}, {0x28, "Cursor Down"},    {0x2C, "Print"},
      {0x2D, "Insert"},    {0x2E, "Del"},          {0x5B, "Windows Left"},   {0x5C, "Windows Right"},
      {0x5D, "Context"},   {0x6A, "Numpad *"},     {0x6B, "Numpad +"},       {0x6D, "Numpad -"},
      {0x6F, "Numpad /"},  {0x90, "Num Lock"},     {0x91, "Scroll Lock"}};
  ScanCodeSession session;
  for (const Row& row : rows) {
    EXPECT_EQ(Name(row.virtualKey), row.name);
    EXPECT_EQ(OldName(row.virtualKey), row.name);
  }
}

TEST(KeyNames, DigitsOfThePadAndFunctionKeysAreNumbered) {
  ScanCodeSession session;
  for (std::int32_t digit = 0; digit <= 9; ++digit) EXPECT_EQ(Name(0x60 + digit), "Numpad " + std::to_string(digit));
  for (std::int32_t number = 1; number <= 24; ++number) EXPECT_EQ(Name(0x6F + number), "F" + std::to_string(number));
}

TEST(KeyNames, AFixedNameAsksForTheLayoutAndForNoCharacter) {
  ScanCodeSession session;
  Name(0x24);
  EXPECT_EQ(session.platform.faults.Calls(Fault::Layout), 1);
}

TEST(KeyNames, TheExtendedFlagTellsReturnFromThePadsEnter) {
  ScanCodeSession session;
  EXPECT_EQ(Name(0x0D, 0x1C, 0), "Return");
  EXPECT_EQ(Name(0x0D, 0x1C, 1), "Numpad Enter");
  EXPECT_EQ(Name(0x0D, 0x1C, 2), "Return");
}

TEST(KeyNames, OnlyScanCode2AIsTheLeftShift) {
  ScanCodeSession session;
  EXPECT_EQ(Name(0x10, 0x2A), "Shift Left");
  EXPECT_EQ(Name(0x10, 0x36), "Shift Right");
  EXPECT_EQ(Name(0x10, 0x00), "Shift Right");
}

TEST(KeyNames, TheExtendedFlagTellsTheSidesOfCtrlAndAlt) {
  ScanCodeSession session;
  EXPECT_EQ(Name(0x11, 0x1D, 0), "Ctrl Left");
  EXPECT_EQ(Name(0x11, 0x1D, 1), "Ctrl Right");
  EXPECT_EQ(Name(0x12, 0x38, 0), "Alt");
  EXPECT_EQ(Name(0x12, 0x38, 1), "Alt Gr");
}

TEST(KeyNames, ALetterHasItsUnshiftedCharacterWithShiftHeldToo) {
  ScanCodeSession session;
  session.platform.Keys().Hold(0x10);
  EXPECT_EQ(Name(0x41), "a");
  EXPECT_EQ(OldName(0x41), "a");
}

TEST(KeyNames, TheDecimalKeyOfThePadHasTheCharacterOfTheLayout) {
  ScanCodeSession session;
  EXPECT_EQ(Name(0x6E), "Numpad .");
  EXPECT_EQ(OldName(0x6E), "Numpad .");
  session.platform.Layout().KeyText(0x6E, 1, u",");
  EXPECT_EQ(Name(0x6E), "Numpad ,");
}

TEST(KeyNames, TheDecimalKeyWithoutACharacterHasAComma) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x6E, 0, u"");
  EXPECT_EQ(Name(0x6E), "Numpad ,");
}

TEST(KeyNames, ADeadDecimalKeyIsUnknown) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x6E, -1, u".");
  EXPECT_EQ(Name(0x6E), "UnknownKey");
}

TEST(KeyNames, TheDecimalKeyKeepsABracket) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x6E, 1, u"[");
  EXPECT_EQ(Name(0x6E), "Numpad [");
}

TEST(KeyNames, BracketsAreSpelledOutInTheWordsOfEachFamily) {
  ScanCodeSession session;
  EXPECT_EQ(Name(0xDB), "Squared Bracket Open");
  EXPECT_EQ(Name(0xDD), "Squared Bracket Close");
  EXPECT_EQ(OldName(0xDB), "Squared Bracket Open");
  EXPECT_EQ(OldName(0xDD), "Square Bracket Close");
}

TEST(KeyNames, AKeyWithoutACharacterIsUnknown) {
  ScanCodeSession session;
  EXPECT_EQ(Name(0x88), "UnknownKey");
  EXPECT_EQ(OldName(0x88), "UnknownKey");
}

TEST(KeyNames, KeysBeyondTheTableAreAskedOfTheLayout) {
  ScanCodeSession session;
  for (const std::int32_t virtualKey : {0x01, 0x07, 0x6C, 0x92, 0xE2}) {
    session.platform.Layout().KeyText(virtualKey, 1, u"#");
    EXPECT_EQ(Name(virtualKey), "#") << virtualKey;
  }
}

TEST(KeyNames, AnyFamilyButZeroIsThatOfSixteenBitCharacters) {
  ScanCodeSession session;
  EXPECT_EQ(GetKeyName(0xDD, 0, 0, 2), "Squared Bracket Close");
  EXPECT_EQ(GetKeyName(0xDD, 0, 0, -1), "Squared Bracket Close");
}

TEST(KeyNames, ACharacterAboveTheCodePageKeepsItsLowByte) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x41, 1, u"\u0436");  // low byte 36, the digit 6
  EXPECT_EQ(Name(0x41), "6");
}

TEST(KeyNames, ALowByteIsReadInTheCodePage) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x41, 1, u"\u00E4");
  session.platform.Layout().KeyText(0x42, 1, u"\u0480");  // low byte 80, the euro sign
  EXPECT_EQ(Name(0x41), "\u00E4");
  EXPECT_EQ(Name(0x42), "\u20AC");
}

TEST(KeyNames, ALowByteOfZeroLeavesNoName) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x41, 1, u"\u0100");
  EXPECT_EQ(Name(0x41), "");
}

TEST(KeyNames, TwoCharactersAreTheTwoBytesOfTheFirst) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x41, 2, u"ab");
  session.platform.Layout().KeyText(0x42, 2, u"\u3130");
  EXPECT_EQ(Name(0x41), "a");
  EXPECT_EQ(Name(0x42), "01");
}

TEST(KeyNames, ThreeCharactersKeepTheNulBetweenThem) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x41, 3, u"abc");
  EXPECT_EQ(Name(0x41), (std::string{'a', '\0', 'b'}));
}

TEST(KeyNames, WhatTheLayoutDidNotWriteIsBlank) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x41, 6, u"a");
  EXPECT_EQ(Name(0x41), (std::string{'a', '\0', ' ', ' ', ' ', ' '}));
}

TEST(KeyNames, NoNameIsLongerThanTheBuffer) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x41, 1000, u"");
  EXPECT_EQ(Name(0x41), std::string(100, ' '));
}

TEST(KeyNames, TheLayoutHasRoomForFortyEightCharacters) {
  ScanCodeSession session;
  const std::u16string doubled(50, u'\u6161');  // two letters a each
  session.platform.Layout().KeyText(0x41, 98, doubled);
  session.platform.Layout().KeyText(0x6E, 98, doubled);
  EXPECT_EQ(Name(0x41), std::string(96, 'a') + "  ");
  EXPECT_EQ(Name(0x6E), "Numpad " + std::string(96, 'a') + "  ");
}

TEST(KeyNames, EveryBracketOfANameIsSpelledOut) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x41, 2, u"\u5D5B");
  EXPECT_EQ(Name(0x41), "Squared Bracket OpenSquared Bracket Close");
}

TEST(KeyNames, ADeadKeyHasItsAccentAndIsTakenOutOfTheLayout) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0xC0, -1, u"^");
  EXPECT_EQ(Name(0xC0), "^");
  // The layout itself, the character, and once more to take the accent out.
  EXPECT_EQ(session.platform.faults.Calls(Fault::Layout), 3);
}

TEST(KeyNames, ADeadKeyIsNamedByOneByte) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0xC0, -1, u"\u3130");
  EXPECT_EQ(Name(0xC0), "0");
}

TEST(KeyNames, ALivingKeyIsAskedOnce) {
  ScanCodeSession session;
  Name(0x41);
  EXPECT_EQ(session.platform.faults.Calls(Fault::Layout), 2);
}

TEST(KeyNames, AnyOtherNegativeCountIsUnknown) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x41, -2, u"a");
  EXPECT_EQ(Name(0x41), "UnknownKey");
}

TEST(KeyNames, ADeadKeyOfTheOldFamilyHasItsAccent) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0xC0, -1, u"^");
  EXPECT_EQ(OldName(0xC0), "^");
}

TEST(KeyNames, AResultWordAboveTheCodePageIsUnknown) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0x41, 1, u"\u00FF");
  EXPECT_EQ(OldName(0x41), "\u00FF");
  session.platform.Layout().KeyText(0x41, 2, u"\u0100");
  EXPECT_EQ(OldName(0x41), "UnknownKey");
}

TEST(KeyNames, AnyFailureOfTheLayoutIsUnknown) {
  ScanCodeSession session;
  session.platform.Layout().KeyText(0xC0, -1, u"^");
  for (const std::int64_t call : {1, 2, 3}) {
    session.platform.faults.Arm(Fault::Layout, call);
    EXPECT_EQ(Name(0xC0), "UnknownKey") << call;
  }
  session.platform.faults.Arm(Fault::Layout, 1);
  EXPECT_EQ(Name(0x24), "UnknownKey");
  session.platform.faults.Arm(Fault::Layout, 2);
  EXPECT_EQ(OldName(0x41), "UnknownKey");
}

TEST(KeyNames, KeysBetweenAndBehindThoseOfTheTableHaveNoFixedName) {
  EXPECT_EQ(FixedKeyName(0x70, 0x3B, 0), "F1");
  EXPECT_EQ(FixedKeyName(0x01, 0, 0), "");
  EXPECT_EQ(FixedKeyName(0x41, 0x1E, 0), "");
  EXPECT_EQ(FixedKeyName(0xFF, 0, 0), "");
  EXPECT_EQ(FixedKeyName(0x7FFFFFFF, 0, 0), "");
}

}  // namespace
}  // namespace plexel
