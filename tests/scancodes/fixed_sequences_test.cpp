#include <gtest/gtest.h>

#include <numeric>

#include "scancodes/keypad_codes.h"
#include "scancodes/scancode_session.h"
#include "scancodes/special_functions.h"
#include "scancodes/windows_shortcuts.h"

namespace plexel {
namespace {

std::string ShortCut(std::int32_t index) {
  KeyCodes codes{Filled(5, -1), Filled(6, -1)};
  GetWindowsShortCutCodes(codes, index);
  if (codes.make.length < 0 || codes.breaking.length < 0) return "untouched";
  return Counted(codes.make) + " / " + Counted(codes.breaking);
}

TEST(FixedSequences, ShortCutsStandInTheTable) {
  const char* const expected[] = {"14 11 E0 71 / E0 F0 71 F0 11 F0 14",
                                  "11 0D / F0 0D F0 11",
                                  "11 76 / F0 76 F0 11",
                                  "E0 1F / E0 F0 1F",
                                  "E0 27 / E0 F0 27",
                                  "08 / F0 08",
                                  "10 / F0 10",
                                  "18 / F0 18",
                                  "20 / F0 20",
                                  "28 / F0 28",
                                  "30 / F0 30",
                                  "38 / F0 38",
                                  "40 / F0 40",
                                  "48 / F0 48",
                                  "50 / F0 50",
                                  "57 / F0 57",
                                  "5F / F0 5F",
                                  "14 12 76 / F0 76 F0 12 F0 14",
                                  "11 0C / F0 0C F0 11"};
  std::int32_t index = 0;
  for (const char* const codes : expected) EXPECT_EQ(ShortCut(index++), codes);
  EXPECT_EQ(index, std::ssize(WindowsShortCuts()));
}

TEST(FixedSequences, AShortCutOutsideTheTableChangesNothing) {
  EXPECT_EQ(ShortCut(-1), "untouched");
  EXPECT_EQ(ShortCut(19), "untouched");
}

TEST(FixedSequences, AShortCutLeavesTheElementsBehindItsLengths) {
  KeyCodes codes{Filled(5, 0), Filled(6, 0)};
  GetWindowsShortCutCodes(codes, 5);
  EXPECT_EQ(codes.make.codes[1], 5);
  EXPECT_EQ(codes.breaking.codes[2], 6);
}

TEST(FixedSequences, TextsOfShortCutsRunOnFrom2610ButForTheLastTwo) {
  std::vector<std::int32_t> texts;
  for (const auto& shortCut : WindowsShortCuts()) texts.push_back(shortCut.textId);
  std::vector<std::int32_t> expected(17);
  std::iota(expected.begin(), expected.end(), 2610);
  expected.insert(expected.end(), {10928, 10929});
  EXPECT_EQ(texts, expected);
}

TEST(FixedSequences, EachPanelFunctionIsOneCode) {
  constexpr int expected[] = {0xFE, 0xF9, 0xFB, 0xF4, 0xF6, 0xF1, 0xF2, 0xF3, 0xF5};
  for (std::int32_t index = 0; index < NoSpecialFunction; ++index) {
    KeyCodes codes{Filled(5, 9), Filled(6, 9)};
    GetSpecialFunctionCode(codes, index);
    EXPECT_EQ(codes.make.codes[0], expected[index]);
    EXPECT_EQ(codes.make.length, 1);
    EXPECT_EQ(codes.breaking.length, 0);
    EXPECT_EQ(codes.breaking.codes[0], 6);
  }
}

TEST(FixedSequences, NoSpecialFunctionSetsTheBreakLengthAndNothingElse) {
  for (const std::int32_t index : {9, -1, 1000}) {
    KeyCodes codes{Filled(5, 9), Filled(6, 9)};
    GetSpecialFunctionCode(codes, index);
    EXPECT_EQ(codes.make.codes[0], 5);
    EXPECT_EQ(codes.make.length, 9);
    EXPECT_EQ(codes.breaking.length, 0);
  }
}

TEST(FixedSequences, PanelFunctionsHaveTheirTextsAndQueries) {
  struct Row {
    std::int32_t textId;
    Capability query;
  };
  constexpr Row expected[] = {{2608, Capability::HasSystemReset},
                              {2601, Capability::HasBackgroundLightLighter},
                              {2602, Capability::HasBackgroundLightDarker},
                              {2603, Capability::HasContrastHigher},
                              {2604, Capability::HasContrastLower},
                              {2605, Capability::HasLayer2Key},
                              {2606, Capability::HasLayer3Key},
                              {2607, Capability::HasLayer4Key},
                              {2600, Capability::HasWarmStart}};
  ASSERT_EQ(SpecialFunctions().size(), std::size(expected));
  for (std::size_t index = 0; index < std::size(expected); ++index) {
    EXPECT_EQ(SpecialFunctions()[index].textId, expected[index].textId);
    EXPECT_EQ(SpecialFunctions()[index].query, expected[index].query);
  }
}

TEST(FixedSequences, DigitsOfThePadHaveTheirCodes) {
  constexpr int expected[] = {0x70, 0x69, 0x72, 0x7A, 0x6B, 0x73, 0x74, 0x6C, 0x75, 0x7D};
  for (std::size_t digit = 0; digit < 10; ++digit) {
    EXPECT_EQ(DigitToKeypadCode(std::to_string(digit)), expected[digit]);
  }
}

TEST(FixedSequences, WhatIsNoDigitHasNoCode) {
  for (const char* const text : {"a", "", "10", "/", ":", " ", "\xC2\xB2"})
    EXPECT_EQ(DigitToKeypadCode(text), 0) << text;
}

TEST(FixedSequences, PanelFunctionsAreRecognisedInAFixedOrder) {
  ScanCodeSession session;
  const enumSpecialKeyFunctions order[] = {BackgroundLightLigther,
                                           BackgroundLightDarker,
                                           ContrastHigher,
                                           ContrastLower,
                                           WarmStart,
                                           Layer2,
                                           Layer3,
                                           Layer4,
                                           SystemReset};
  for (std::size_t first = 0; first < std::size(order); ++first) {
    // From here on all have the same text.
    for (std::size_t place = 0; place < std::size(order); ++place) {
      session.surroundings.Language().Set(SpecialFunctions()[order[place]].textId, place < first ? "other" : "same");
    }
    EXPECT_EQ(SpecialFunctionOfText("same"), order[first]);
  }
  EXPECT_EQ(SpecialFunctionOfText("none"), NoSpecialFunction);
}

TEST(FixedSequences, OnlyTheAnswerOneOffersAPanelFunction) {
  ScanCodeSession session;
  const SpecialFunction& reset = SpecialFunctions()[SystemReset];
  EXPECT_FALSE(IsOffered(reset, *session.element));
  session.surroundings.Capabilities().Set("PANEL", Capability::HasSystemReset, -1);
  EXPECT_FALSE(IsOffered(reset, *session.element));
  session.surroundings.Capabilities().Set("PANEL", Capability::HasSystemReset, 1);
  EXPECT_TRUE(IsOffered(reset, *session.element));
}

}  // namespace
}  // namespace plexel
