#include "project/trial.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "project/time_line.h"
#include "scancodes/special_functions.h"

namespace plexel {
namespace {

using Record = udtTactisBaseElement_ScanCodeInfo;
using Bytes = std::initializer_list<std::uint8_t>;
using Keys = std::vector<KeyCode>;

void Put(udtTactisBaseElement_TACTIS_SCANCODE& buffer, Bytes bytes) {
  for (const std::uint8_t byte : bytes) buffer.Value[static_cast<std::size_t>(++buffer.NextValue)] = byte;
  buffer.Value[static_cast<std::size_t>(++buffer.NextValue)] = 0xFF;
}

Record Element(Bytes press, Bytes release, std::int32_t layer = 1) {
  Record record;
  for (std::int32_t one = 1; one <= LayerCount; ++one) {
    *PressBuffer(record, one) = InitialCodes();
    *ReleaseBuffer(record, one) = InitialCodes();
  }
  Put(*PressBuffer(record, layer), press);
  Put(*ReleaseBuffer(record, layer), release);
  return record;
}

/// Presses and lets go of a fresh element that sends all its bytes on press.
void Stroke(Trial& trial, Bytes press) {
  const Record record = Element(press, {});
  trial.Press(99, record);
  trial.Release(99);
}

const Record keyA = Element({0x1C}, {0xF0, 0x1C}), ctrl = Element({0x14}, {0xF0, 0x14});
const Record stuck = Element({0x12}, {});
const Record layer2Key = Element({0xF1}, {}), layer3Key = Element({0xF2}, {}), layer4OnRelease = Element({}, {0xF3});

TEST(Trial, PressAndReleaseAreWhatTheReadingOfTheLayerTells) {
  Record record = Element({0x14, 0x1C, 0xF0, 0x1C}, {0xF0, 0x14, 0xF1});
  Trial trial;
  const Trial::Event press = *trial.Press(7, record), release = *trial.Release(7);
  EXPECT_EQ(press.bytes, std::vector<std::uint8_t>({0x14, 0x1C, 0xF0, 0x1C}));
  EXPECT_EQ(release.bytes, std::vector<std::uint8_t>({0xF0, 0x14, 0xF1}));
  EXPECT_EQ(trial.Reports(), ReadLayer(record, 1).reports);
}

TEST(Trial, ACommandThatCallsNoLayerLeavesTheLayer) {
  const Record darker = Element({SpecialFunctions()[BackgroundLightDarker].code}, {}, 2);
  Trial trial;
  trial.Press(0, layer2Key);
  ASSERT_EQ(trial.Layer(), 2);
  ASSERT_EQ(trial.Press(1, darker)->reports.at(0).deed, KeyDeed::Panel);
  EXPECT_EQ(trial.Layer(), 2);
}

TEST(Trial, EndMarksAreNotSent) {
  Record record = Element({0x1C}, {});
  Put(record.strLayer1PressScanCode, {0x32});
  Trial trial;
  EXPECT_EQ(trial.Press(0, record)->bytes, std::vector<std::uint8_t>({0x1C, 0x32}));
}

TEST(Trial, AHeldElementIsPressedOnceAndLetGoOnce) {
  Trial trial;
  EXPECT_NE(trial.Press(0, keyA), nullptr);
  EXPECT_TRUE(trial.IsHeld(0));
  EXPECT_EQ(trial.Press(0, keyA), nullptr);
  EXPECT_NE(trial.Release(0), nullptr);
  EXPECT_EQ(trial.Release(0), nullptr);
  EXPECT_FALSE(trial.AnyHeld());
}

TEST(Trial, KeysStayDownAcrossElements) {
  Trial trial;
  trial.Press(0, ctrl);
  trial.Press(1, keyA);
  EXPECT_EQ(trial.Down(), Keys({0x14, 0x1C}));
  trial.Release(0);
  EXPECT_EQ(trial.Down(), Keys({0x1C}));
}

TEST(Trial, AKeyIsLeftDownOnceItsElementIsLetGo) {
  Trial trial;
  trial.Press(0, stuck);
  EXPECT_EQ(trial.LeftDown(), Keys());
  EXPECT_FALSE(trial.HasLeftDown(0));
  trial.Release(0);
  EXPECT_TRUE(trial.HasLeftDown(0));
  EXPECT_FALSE(trial.HasLeftDown(1));
  trial.Press(1, keyA);
  EXPECT_EQ(trial.LeftDown(), Keys({0x12}));
  EXPECT_TRUE(trial.HasLeftDown(0));
  EXPECT_FALSE(trial.HasLeftDown(1));
}

TEST(Trial, AnotherElementMayBringAKeyUp) {
  Trial trial;
  trial.Press(0, stuck);
  trial.Release(0);
  trial.Press(1, Element({0xF0, 0x12}, {}));
  EXPECT_EQ(trial.Down(), Keys());
  EXPECT_FALSE(trial.HasLeftDown(0));
}

TEST(Trial, LettingGoOfAllBringsEveryKeyUpAndTellsIt) {
  Trial trial;
  trial.Press(0, stuck);
  trial.Release(0);
  trial.Press(1, layer2Key);
  const Trial::Event event = *trial.LetGoOfAll();
  EXPECT_EQ(event.reports, std::vector<KeyReport>({{Direction::Release, KeyDeed::Up, 0x12, true}}));
  EXPECT_TRUE(event.bytes.empty());
  EXPECT_EQ(trial.Down(), Keys());
  EXPECT_EQ(trial.Layer(), 1);
  EXPECT_FALSE(trial.AnyHeld());
  EXPECT_FALSE(trial.HasLeftDown(0));
}

TEST(Trial, ALayerHoldsAsLongAsItsKey) {
  Trial trial;
  trial.Press(0, layer2Key);
  EXPECT_EQ(trial.Layer(), 2);
  trial.Press(1, layer3Key);
  EXPECT_EQ(trial.Layer(), 2) << "layer 2 of that key sends nothing";
  trial.Press(2, Element({0x1C}, {}, 2));
  EXPECT_EQ(trial.Layer(), 2) << "a key calls no layer";
  trial.Release(0);
  EXPECT_EQ(trial.Layer(), 1);
}

TEST(Trial, EachCommandOfALayerCallsItAndNoOtherCommandDoes) {
  constexpr std::pair<std::uint8_t, std::int32_t> commands[] = {{0xF1, 2}, {0xF2, 3}, {0xF3, 4}, {0xF4, 1}, {0xF5, 1},
                                                                {0xF6, 1}, {0xF9, 1}, {0xFB, 1}, {0xFE, 1}};
  for (const auto& [command, layer] : commands) {
    Trial trial;
    EXPECT_EQ(trial.Press(0, Element({command}, {}))->reports.front().deed, KeyDeed::Panel);
    EXPECT_EQ(trial.Layer(), layer) << static_cast<int>(command);
  }
}

TEST(Trial, TheLatestOfTwoLayerKeysCounts) {
  Record both = Element({0xF1}, {});
  Put(both.strLayer2PressScanCode, {0xF2});
  Trial trial;
  trial.Press(0, both);
  trial.Press(1, both);
  EXPECT_EQ(trial.Layer(), 3);
  trial.Release(1);
  EXPECT_EQ(trial.Layer(), 2);
  trial.Release(0);
  EXPECT_EQ(trial.Layer(), 1);
}

TEST(Trial, ALayerCalledOnReleaseStaysUntilAllIsLetGo) {
  Trial trial;
  trial.Press(0, layer4OnRelease);
  EXPECT_EQ(trial.Layer(), 1);
  trial.Release(0);
  EXPECT_EQ(trial.Layer(), 4);
  trial.LetGoOfAll();
  EXPECT_EQ(trial.Layer(), 1);
}

TEST(Trial, TheChosenLayerIsTheOneThatComesBack) {
  Record key = Element({0xF1}, {}, 3);
  Trial trial;
  trial.ChooseLayer(3);
  trial.Press(0, key);
  EXPECT_EQ(trial.Layer(), 2);
  trial.Release(0);
  EXPECT_EQ(trial.Layer(), 3);
}

TEST(Trial, AnElementIsLetGoOnTheLayerOnWhichItWasPressed) {
  Record key = Element({0x1C}, {0xF0, 0x1C}, 2);
  Trial trial;
  trial.Press(0, layer2Key);
  trial.Press(1, key);
  trial.Release(0);
  const Trial::Event release = *trial.Release(1);
  EXPECT_EQ(release.layer, 2);
  EXPECT_EQ(trial.Down(), Keys());
}

TEST(Trial, LedsOfLayersAndLocksAreLit) {
  Trial trial;
  EXPECT_TRUE(trial.IsLit(Layer1Led));
  EXPECT_FALSE(trial.IsLit(Layer2Led));
  trial.Press(0, layer2Key);
  EXPECT_FALSE(trial.IsLit(Layer1Led));
  EXPECT_TRUE(trial.IsLit(Layer2Led));
  trial.Release(0);
  for (const std::int32_t layer : {1, 2, 3, 4}) {
    trial.ChooseLayer(layer);
    for (const std::int32_t other : {1, 2, 3, 4}) {
      EXPECT_EQ(trial.IsLit(static_cast<enumLedType>(Layer1Led + other - 1)), layer == other) << layer << ' ' << other;
    }
  }
  trial.ChooseLayer(1);
  const struct {
    std::uint8_t code;
    enumLedType led;
  } locks[] = {{0x58, CapsLockLed}, {0x77, NumLockLed}, {0x7E, ScrollLockLed}};
  for (const auto& [code, led] : locks) {
    EXPECT_FALSE(trial.IsLit(led));
    Stroke(trial, {code, code, 0xF0, code});
    EXPECT_TRUE(trial.IsLit(led)) << "a repeat does not count";
    Stroke(trial, {code, 0xF0, code});
    EXPECT_FALSE(trial.IsLit(led));
  }
  for (const enumLedType other : {HarddiskLed, PowerLed, AlarmLed, LedNotEnabled, RunLed}) {
    EXPECT_FALSE(trial.IsLit(other)) << other;
  }
}

TEST(Trial, ClearingForgetsWhatWasSentAndKeepsWhatIsDown) {
  Trial trial;
  trial.Press(0, keyA);
  EXPECT_EQ(trial.Pc().Text(), "a");
  trial.Clear();
  EXPECT_TRUE(trial.Events().empty());
  EXPECT_EQ(trial.Pc().Text(), "");
  EXPECT_EQ(trial.Down(), Keys({0x1C}));
}

TEST(Trial, OldEventsAreForgotten) {
  Trial trial;
  for (std::size_t stroke = 0; stroke < 200; ++stroke) {
    trial.Press(stroke, keyA);
    trial.Release(stroke);
  }
  EXPECT_EQ(trial.Events().size(), 200U);
  EXPECT_EQ(trial.Events().back().place, 199U);
}

TEST(TrialPc, ShiftAndCapsLockChangeLettersAndShiftAloneTheOthers) {
  Trial trial;
  Stroke(trial, {0x1C, 0xF0, 0x1C, 0x12, 0x1C, 0x16, 0xF0, 0x1C, 0xF0, 0x16, 0xF0, 0x12});
  Stroke(trial, {0x58, 0xF0, 0x58, 0x1C, 0x16, 0xF0, 0x1C, 0xF0, 0x16, 0x59, 0x1C, 0xF0, 0x1C, 0xF0, 0x59});
  EXPECT_EQ(trial.Pc().Text(), "aA!A1a");
}

TEST(TrialPc, ARepeatTypesAgainAndBackspaceTakesBack) {
  Trial trial;
  Stroke(trial, {0x1C, 0x1C, 0x1C, 0xF0, 0x1C, 0x66, 0xF0, 0x66});
  EXPECT_EQ(trial.Pc().Text(), "aa");
  Stroke(trial, {0x66, 0x66, 0x66, 0xF0, 0x66, 0x32, 0xF0, 0x32});
  EXPECT_EQ(trial.Pc().Text(), "b");
}

TEST(TrialPc, ShortcutsTypeNothing) {
  for (const Bytes held :
       {Bytes{0x14}, Bytes{0x11}, Bytes{0xE0, 0x14}, Bytes{0xE0, 0x11}, Bytes{0xE0, 0x1F}, Bytes{0xE0, 0x27}}) {
    Trial trial;
    Stroke(trial, held);
    Stroke(trial, {0x1C, 0xF0, 0x1C});
    EXPECT_EQ(trial.Pc().Text(), "");
  }
}

TEST(TrialPc, ThePadTypesDigitsWithNumLock) {
  Trial trial;
  Stroke(trial, {0x70, 0xF0, 0x70, 0x79, 0xF0, 0x79});
  EXPECT_EQ(trial.Pc().Text(), "+");
  Stroke(trial, {0x77, 0xF0, 0x77, 0x70, 0xF0, 0x70, 0xE0, 0x70, 0xE0, 0xF0, 0x70});
  EXPECT_EQ(trial.Pc().Text(), "+0");
}

TEST(TrialPc, KeysWithoutACharacterTypeNothing) {
  Trial trial;
  Stroke(trial, {0x05, 0xF0, 0x05, 0xE0, 0x74, 0xE0, 0xF0, 0x74, 0xE1, 0x14, 0x77, 0xE1, 0xF0, 0x14, 0xF0, 0x77});
  EXPECT_EQ(trial.Pc().Text(), "");
  EXPECT_FALSE(trial.Pc().NumLock());
}

TEST(TrialPc, OfALongTextTheEndStays) {
  Trial trial;
  Stroke(trial, {0x21, 0xF0, 0x21});
  for (std::size_t key = 0; key < 1999; ++key) Stroke(trial, {0x1C, 0xF0, 0x1C});
  EXPECT_EQ(trial.Pc().Text().front(), 'c');
  Stroke(trial, {0x32, 0xF0, 0x32});
  EXPECT_EQ(trial.Pc().Text().front(), 'a');
  EXPECT_EQ(trial.Pc().Text().size(), 2000U);
  EXPECT_EQ(trial.Pc().Text().back(), 'b');
}

using Marks = std::vector<TimeMark>;

TEST(TimeLine, ARowTellsWhatEachEventDoesToItsKey) {
  Trial trial;
  trial.Press(0, stuck);
  trial.Press(1, keyA);
  trial.Release(1);
  const std::vector<TimeRow> rows = TimeRows(trial.Reports(), trial.Down());
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].code, 0x12U);
  EXPECT_EQ(rows[0].marks, Marks({TimeMark::GoesDown, TimeMark::Held, TimeMark::Held}));
  EXPECT_EQ(rows[1].marks, Marks({TimeMark::Idle, TimeMark::GoesDown, TimeMark::ComesUp}));
}

TEST(TimeLine, AKeyThatIsDownAllAlongLeads) {
  Trial trial;
  trial.Press(0, stuck);
  trial.Clear();
  ASSERT_EQ(TimeRows(trial.Reports(), trial.Down()).size(), 1U);
  EXPECT_EQ(TimeRows(trial.Reports(), trial.Down()).front().marks, Marks());
  trial.Press(1, keyA);
  trial.Press(2, layer2Key);
  const std::vector<TimeRow> rows = TimeRows(trial.Reports(), trial.Down());
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].marks, Marks({TimeMark::Held, TimeMark::Held}));
  EXPECT_EQ(rows[1].marks, Marks({TimeMark::GoesDown, TimeMark::Held}));
  EXPECT_EQ(rows[2].kind, KeyDeed::Panel);
  EXPECT_EQ(rows[2].marks, Marks({TimeMark::Idle, TimeMark::Command}));
}

TEST(TimeLine, AKeyWhoseFirstEventFindsItDownWasHeld) {
  const std::vector<KeyReport> reports = {{Direction::Press, KeyDeed::Panel, 0xF1, false},
                                          {Direction::Press, KeyDeed::Repeat, 0x1C, true}};
  const std::vector<TimeRow> rows = TimeRows(reports);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1].marks, Marks({TimeMark::Held, TimeMark::Repeats}));
}

TEST(TimeLine, BetweenTwoEventsOfItsOwnAKeyIsHeldOrIdle) {
  Trial trial;
  Stroke(trial, {0x12, 0x1C, 0xF0, 0x1C, 0x1B, 0xF0, 0x12, 0x1C});
  const std::vector<TimeRow> rows = TimeRows(trial.Reports(), trial.Down());
  using enum TimeMark;
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].marks, Marks({GoesDown, Held, Held, Held, ComesUp, Idle}));
  EXPECT_EQ(rows[1].marks, Marks({Idle, GoesDown, ComesUp, Idle, Idle, GoesDown}));
  EXPECT_EQ(rows[2].marks, Marks({Idle, Idle, Idle, GoesDown, Held, Held}));
}

TEST(TimeLine, WhatStandsBehindAMarkIsHeldOrIdle) {
  for (const TimeMark mark : {TimeMark::GoesDown, TimeMark::Repeats, TimeMark::Held}) {
    EXPECT_EQ(Behind(mark), TimeMark::Held);
  }
  for (const TimeMark mark : {TimeMark::Idle, TimeMark::ComesUp, TimeMark::Command, TimeMark::Unknown}) {
    EXPECT_EQ(Behind(mark), TimeMark::Idle);
  }
}

TEST(TrialPc, ADigitOfThePadIsTypedWithNumLockAndWithoutShift) {
  constexpr KeyCode numLock = 0x77, pad1 = 0x69, rightShift = 0x59;
  TrialPc pc;
  const auto hear = [&](KeyCode code, KeyDeed deed) { pc.Hear({Direction::Press, deed, code}); };
  const auto tap = [&](KeyCode code) {
    hear(code, KeyDeed::Down);
    hear(code, KeyDeed::Up);
  };
  tap(pad1);
  EXPECT_EQ(pc.Text(), "");
  tap(numLock);
  tap(pad1);
  EXPECT_EQ(pc.Text(), "1");
  hear(rightShift, KeyDeed::Down);
  tap(pad1);
  EXPECT_EQ(pc.Text(), "1");
}

TEST(TrialPc, EachKeyTypesWhatStandsOnIt) {
  constexpr KeyCode numLock = 0x77, leftShift = 0x12;
  constexpr KeyCode main[] = {0x0E, 0x16, 0x1E, 0x26, 0x25, 0x2E, 0x36, 0x3D, 0x3E, 0x46, 0x45, 0x4E, 0x55,
                              0x5D, 0x15, 0x1D, 0x24, 0x2D, 0x2C, 0x35, 0x3C, 0x43, 0x44, 0x4D, 0x54, 0x5B,
                              0x1C, 0x1B, 0x23, 0x2B, 0x34, 0x33, 0x3B, 0x42, 0x4B, 0x4C, 0x52, 0x61, 0x1A,
                              0x22, 0x21, 0x2A, 0x32, 0x31, 0x3A, 0x41, 0x49, 0x4A, 0x29, 0x0D, 0x5A};
  constexpr KeyCode pad[] = {0x6C, 0x75, 0x7D, 0x6B,   0x73, 0x74, 0x69, 0x72,
                             0x7A, 0x70, 0x71, 0xE04A, 0x7C, 0x7B, 0x79, 0xE05A};
  TrialPc pc;
  const auto tap = [&pc](KeyCode code) {
    pc.Hear({Direction::Press, KeyDeed::Down, code});
    pc.Hear({Direction::Press, KeyDeed::Up, code});
  };
  const auto typed = [&](std::span<const KeyCode> keys) {
    pc.ClearText();
    for (const KeyCode code : keys) tap(code);
    return pc.Text();
  };
  EXPECT_EQ(typed(main), "`1234567890-=\\qwertyuiop[]asdfghjkl;'<zxcvbnm,./ \t\n");
  EXPECT_EQ(typed(pad), "/*-+\n");
  tap(numLock);
  EXPECT_EQ(typed(pad), "7894561230./*-+\n");
  pc.Hear({Direction::Press, KeyDeed::Down, leftShift});
  EXPECT_EQ(typed(main), "~!@#$%^&*()_+|QWERTYUIOP{}ASDFGHJKL:\">ZXCVBNM<>? \t\n");
  EXPECT_EQ(typed(pad), "/*-+\n");
}

TEST(TrialPc, CapsLockTurnsLettersAlone) {
  constexpr KeyCode capsLock = 0x58, bracket = 0x54, one = 0x16, letterZ = 0x1A;
  TrialPc pc;
  for (const KeyCode code : {capsLock, bracket, one, letterZ}) {
    pc.Hear({Direction::Press, KeyDeed::Down, code});
    pc.Hear({Direction::Press, KeyDeed::Up, code});
  }
  EXPECT_EQ(pc.Text(), "[1Z");
}

}  // namespace
}  // namespace plexel
