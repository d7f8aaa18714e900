#include "project/problems.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <random>
#include <set>

#include "element/ctlPlexelBaseElement.h"
#include "world/world.h"

namespace plexel {
namespace {

using Rule = ProblemRule;
using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;
using Bytes = std::initializer_list<std::uint8_t>;

/// Elements that have no problem until a test makes one.
class ProblemsTest : public testing::Test {
 protected:
  ProblemsTest() { world.surroundings.Capabilities().Set("Panel", Capability::HasUserLed, 1); }

  ctlPlexelBaseElement& Add(enumTactisBaseElementType kind) {
    elements.push_back(world.component.Create("E" + std::to_string(elements.size() + 1), world.host));
    elements.back()->ElementType(kind);
    elements.back()->TargetSystem("Panel");
    return *elements.back();
  }
  std::vector<const ctlPlexelBaseElement*> Order() const {
    std::vector<const ctlPlexelBaseElement*> order;
    for (const auto& element : elements) order.push_back(element.get());
    return order;
  }
  static void Put(Buffer& buffer, Bytes bytes) {
    buffer = InitialCodes();
    for (const std::uint8_t byte : bytes) buffer.Value[static_cast<std::size_t>(++buffer.NextValue)] = byte;
  }
  /// Gives a layer bytes, and texts of as many groups.
  static void Define(ctlPlexelBaseElement& element, std::int32_t layer, Bytes press, Bytes release) {
    udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
    Put(*PressBuffer(record, layer), press);
    Put(*ReleaseBuffer(record, layer), release);
    element.TactisBaseElementScanCodeBuffer(record);
    element.PressKeyDefLayer(layer, Groups(CountGroups(*PressBuffer(record, layer))));
    element.ReleaseKeyDefLayer(layer, Groups(CountGroups(*ReleaseBuffer(record, layer))));
  }
  static std::string Groups(std::int32_t count) {
    std::string text;
    for (; count > 0; --count) text += "[x\u2039\u203A]";
    return text;
  }
  std::vector<Rule> Rules() const {
    std::vector<Rule> rules;
    for (const Problem& problem : Problems(Order()).All()) rules.push_back(problem.rule);
    return rules;
  }
  /// The only problem there is.
  Problem Only() const {
    const std::vector<Problem> all = Problems(Order()).All();
    EXPECT_EQ(all.size(), 1u);
    return all.empty() ? Problem() : all.front();
  }

  World world;
  std::vector<std::shared_ptr<ctlPlexelBaseElement>> elements;
  const std::vector<Rule> none;
};

using Layers = std::vector<std::int32_t>;
using Values = std::vector<std::uint32_t>;

TEST_F(ProblemsTest, ANewElementOfAnyKindHasNone) {
  for (const auto kind : {Led, Oval, OvalLed, Rect, RectLed, Key}) Add(kind);
  EXPECT_EQ(Rules(), none);
}

TEST_F(ProblemsTest, AKeyThatIsStillDownBehindReleaseIsHeld) {
  Define(Add(Rect), 2, {0x14, 0x1C, 0xFF}, {0xF0, 0x1C, 0xFF});
  const Problem problem = Only();
  EXPECT_EQ(problem.rule, Rule::Held);
  EXPECT_EQ(problem.layers, Layers{2});
  EXPECT_EQ(problem.values, Values{0x14});
  EXPECT_EQ(problem.direction, std::nullopt);
}

TEST_F(ProblemsTest, AKeyThatReleaseLetsGoIsNotHeld) {
  Define(Add(Rect), 1, {0x14, 0xFF}, {0xF0, 0x14, 0xFF});
  Define(*elements.front(), 4, {0x14, 0xF0, 0x14, 0xFF}, {});
  EXPECT_EQ(Rules(), none);
}

TEST_F(ProblemsTest, ASingleByteIsLookedAtToo) {
  Define(Add(Rect), 1, {0x14}, {});
  EXPECT_EQ(Only().rule, Rule::Held);
  Define(*elements.back(), 1, {}, {0x14});
  EXPECT_EQ(Only().rule, Rule::Held);
}

TEST_F(ProblemsTest, PauseIsNotHeld) {
  Define(Add(Rect), 1, {0xE1, 0x14, 0x77, 0xE1, 0xF0, 0x14, 0xF0, 0x77, 0xFF}, {});
  EXPECT_EQ(Rules(), none);
}

TEST_F(ProblemsTest, AKeyThatComesUpAheadOfGoingDownIsReleasedFirst) {
  Define(Add(Rect), 1, {0xF0, 0x1C, 0xFF}, {0xF0, 0x14, 0xFF});
  const std::vector<Problem> all = Problems(Order()).All();
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(all[0].rule, Rule::ReleasedFirst);
  EXPECT_EQ(all[0].direction, Direction::Press);
  EXPECT_EQ(all[0].values, Values{0x1C});
  EXPECT_EQ(all[1].direction, Direction::Release);
  EXPECT_EQ(all[1].values, Values{0x14});
}

TEST_F(ProblemsTest, AReleaseOfWhatPressLeftDownIsNotFirst) {
  Define(Add(Rect), 1, {0xE0, 0x14, 0xFF}, {0xE0, 0xF0, 0x14, 0xFF});
  EXPECT_EQ(Rules(), none);
}

TEST_F(ProblemsTest, BytesThatAreNothingAreUnknown) {
  Define(Add(Rect), 1, {}, {0x00, 0xE0, 0xFF});
  const Problem problem = Only();
  EXPECT_EQ(problem.rule, Rule::UnknownBytes);
  EXPECT_EQ(problem.direction, Direction::Release);
  EXPECT_EQ(problem.values, (Values{0x00, 0xE0}));
}

TEST_F(ProblemsTest, PanelCommandsAreNotUnknown) {
  Define(Add(Rect), 1, {0xF1, 0xFF}, {});
  EXPECT_EQ(Rules(), none);
}

TEST_F(ProblemsTest, ATextWithoutAGroupHasNoBytes) {
  Add(Rect).ReleaseKeyDefLayer3("[a\u203A]");
  const Problem problem = Only();
  EXPECT_EQ(problem.rule, Rule::NoBytes);
  EXPECT_EQ(problem.layers, Layers{3});
  EXPECT_EQ(problem.direction, Direction::Release);
}

TEST_F(ProblemsTest, GroupsWithoutATextHaveNoText) {
  ctlPlexelBaseElement& element = Add(Rect);
  Define(element, 1, {0x1C, 0xF0, 0x1C, 0xFF}, {});
  element.PressKeyDefLayer1("");
  const Problem problem = Only();
  EXPECT_EQ(problem.rule, Rule::NoText);
  EXPECT_EQ(problem.direction, Direction::Press);
}

TEST_F(ProblemsTest, TextAndBytesMayDifferInTheirGroups) {
  ctlPlexelBaseElement& element = Add(Rect);
  Define(element, 1, {0x1C, 0xF0, 0x1C, 0xFF, 0x1C, 0xF0, 0x1C, 0xFF}, {});
  EXPECT_EQ(Rules(), none);
  element.PressKeyDefLayer1("[a\u2039\u203A]");
  const Problem problem = Only();
  EXPECT_EQ(problem.rule, Rule::GroupsDiffer);
  EXPECT_EQ(problem.values, (Values{1, 2}));
}

/// Goes down and comes up 'count' bytes long, in groups of one byte's key.
void Fill(Buffer& buffer, std::int32_t count) {
  buffer = InitialCodes();
  for (std::int32_t index = 1; index <= count; ++index) buffer.Value[static_cast<std::size_t>(index)] = 0xF1;
  buffer.Value[static_cast<std::size_t>(count) + 1] = Buffer::EndMark;
  buffer.NextValue = count + 1;
}

TEST_F(ProblemsTest, TheRoomOfALayerIsThatOfTheVantaEnabledOfTheElement) {
  struct Case {
    Boolean vantaEnabled;
    std::int32_t bytes;
    bool over;
  };
  for (const Case& one : {Case{False, 44, false}, {False, 45, true}, {True, 23, false}, {True, 24, true}}) {
    elements.clear();
    ctlPlexelBaseElement& element = Add(Rect);
    element.VantaEnabled(one.vantaEnabled);
    udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
    Fill(record.strLayer1PressScanCode, one.bytes);
    element.TactisBaseElementScanCodeBuffer(record);
    element.PressKeyDefLayer1("[x\u2039]");
    Module().lngMaxScanCodes = 7;
    EXPECT_EQ(Rules(), one.over ? std::vector<Rule>{Rule::OverLimit} : none) << one.bytes;
    if (one.over) EXPECT_EQ(Only().values, std::vector<std::uint32_t>{static_cast<std::uint32_t>(one.bytes)});
    EXPECT_EQ(Module().lngMaxScanCodes, 7);
  }
}

TEST_F(ProblemsTest, ANextValueBehindTheBufferIsOverTheLimitAndNothingWorse) {
  ctlPlexelBaseElement& element = Add(Rect);
  udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
  record.strLayer1PressScanCode.Value.fill(0xFF);
  record.strLayer1PressScanCode.NextValue = 1'000'000;
  record.strLayer2PressScanCode.NextValue = -1'000'000;
  element.TactisBaseElementScanCodeBuffer(record);
  element.PressKeyDefLayer1(Groups(88));
  EXPECT_EQ(Rules(), std::vector<Rule>{Rule::OverLimit});
}

TEST_F(ProblemsTest, ALedFunctionNeedsALed) {
  for (const auto kind : {Oval, Rect, Key}) {
    elements.clear();
    Add(kind).LEDTypeLayer3(UserLed);
    const Problem problem = Only();
    EXPECT_EQ(problem.rule, Rule::LedWithoutLamp) << kind;
    EXPECT_EQ(problem.layers, Layers{3});
  }
  for (const auto kind : {Led, OvalLed, RectLed}) {
    elements.clear();
    Add(kind).LEDTypeLayer3(UserLed);
    EXPECT_EQ(Rules(), none) << kind;
  }
}

TEST_F(ProblemsTest, AnLedShowsWhatItsTargetSystemOffers) {
  ctlPlexelBaseElement& element = Add(Led);
  element.LEDTypeLayer1(PowerLed);
  EXPECT_EQ(Rules(), std::vector<Rule>{Rule::LedNotOffered});
  world.surroundings.Capabilities().Set("Panel", Capability::HasPowerLed, 1);
  EXPECT_EQ(Rules(), none);
  element.TargetSystem("Other");
  EXPECT_EQ(Rules(), std::vector<Rule>{Rule::LedNotOffered});
}

TEST_F(ProblemsTest, VantaEnabledDecidesWhichFunctionsAnLedIsOffered) {
  for (const Capability query : {Capability::HasUserLed, Capability::HasRunLed, Capability::HasPowerLed}) {
    world.surroundings.Capabilities().Set("Panel", query, 1);
  }
  struct Case {
    enumLedType type;
    bool withVanta, without;
  };
  for (const Case& one : {Case{UserLed, false, true}, {RunLed, true, false}, {PowerLed, true, true}}) {
    for (const Boolean vantaEnabled : {True, False}) {
      elements.clear();
      ctlPlexelBaseElement& element = Add(Led);
      element.VantaEnabled(vantaEnabled);
      element.LEDTypeLayer1(one.type);
      const bool offered = IsTrue(vantaEnabled) ? one.withVanta : one.without;
      EXPECT_EQ(Rules(), offered ? none : std::vector<Rule>{Rule::LedNotOffered}) << one.type;
    }
  }
}

TEST_F(ProblemsTest, AFunctionThatThereIsNotIsNotOffered) {
  Add(Led).LEDTypeLayer1(static_cast<enumLedType>(99));
  EXPECT_EQ(Rules(), std::vector<Rule>{Rule::LedNotOffered});
}

TEST_F(ProblemsTest, TwoLedsWithOneFunctionAreToldOnceAtTheLater) {
  for (int count = 0; count < 2; ++count) {
    ctlPlexelBaseElement& element = Add(RectLed);
    element.LEDTypeLayer1(UserLed);
    element.LEDTypeLayer3(UserLed);
  }
  const Problem problem = Only();
  EXPECT_EQ(problem.rule, Rule::LedTwice);
  EXPECT_EQ(problem.element, 1u);
  EXPECT_EQ(problem.with, 0u);
  EXPECT_EQ(problem.layers, (Layers{1, 3}));
}

TEST_F(ProblemsTest, OnEachLayerTwoLedsWithOneFunctionAreTold) {
  ctlPlexelBaseElement &first = Add(Led), &second = Add(Led);
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    for (ctlPlexelBaseElement* const element : {&first, &second}) element->LEDTypeLayer(layer, UserLed);
    const Problem problem = Only();
    EXPECT_EQ(problem.rule, Rule::LedTwice) << layer;
    EXPECT_EQ(problem.layers, Layers{layer});
    for (ctlPlexelBaseElement* const element : {&first, &second}) element->LEDTypeLayer(layer, LedNotEnabled);
  }
}

TEST_F(ProblemsTest, OneFunctionOnTwoLayersOrOnAKeyWithoutLedIsNotTwice) {
  Add(Led).LEDTypeLayer1(UserLed);
  Add(Led).LEDTypeLayer2(UserLed);
  Add(Rect).LEDTypeLayer1(UserLed);
  EXPECT_EQ(Rules(), std::vector<Rule>{Rule::LedWithoutLamp});
}

TEST_F(ProblemsTest, OfThreeLedsEachPairIsTold) {
  for (int count = 0; count < 3; ++count) Add(Led).LEDTypeLayer1(UserLed);
  const Problems problems(Order());
  EXPECT_EQ(problems.Of(0).size(), 0u);
  EXPECT_EQ(problems.Of(1).size(), 1u);
  EXPECT_EQ(problems.Of(2).size(), 2u);
  EXPECT_EQ(problems.Of(2)[0].with, 0u);
  EXPECT_EQ(problems.Of(2)[1].with, 1u);
}

TEST_F(ProblemsTest, OfManyLedsTheFirstPartnersAreTold) {
  for (int count = 0; count < 40; ++count) Add(Led).LEDTypeLayer1(UserLed);
  EXPECT_EQ(Problems(Order()).Of(39).size(), 16U);
}

TEST_F(ProblemsTest, KeysShareNoButtonNumberButZero) {
  Add(Oval).HardwareNumberButton(7);
  Add(Led).HardwareNumberButton(7);
  Add(Key).HardwareNumberButton(7);
  Add(Oval);
  Add(Rect);
  EXPECT_EQ(Rules(), none);
  Add(RectLed).HardwareNumberButton(7);
  const Problem problem = Only();
  EXPECT_EQ(problem.rule, Rule::NumberTwice);
  EXPECT_EQ(problem.number, SharedNumber::Button);
  EXPECT_EQ(problem.with, 0u);
  EXPECT_EQ(problem.element, 5u);
  EXPECT_TRUE(problem.layers.empty());
}

TEST_F(ProblemsTest, LedsShareNoLedNumberButZero) {
  Add(Led).HardwareNumberLed(7);
  Add(Rect).HardwareNumberLed(7);
  Add(Led);
  EXPECT_EQ(Rules(), none);
  Add(OvalLed).HardwareNumberLed(7);
  EXPECT_EQ(Only().number, SharedNumber::Led);
}

TEST_F(ProblemsTest, KeySwitchesShareNoKeyNumberButMinusOne) {
  ctlPlexelBaseElement& first = Add(Key);
  first.HardwareNumberKey(0);
  first.HardwareNumberKey1(0);
  Add(Key).HardwareNumberKey7(1);
  Add(Rect).HardwareNumberKey(0);
  EXPECT_EQ(Rules(), none);
  Add(Key).HardwareNumberKey7(0);
  const Problem problem = Only();
  EXPECT_EQ(problem.number, SharedNumber::KeySwitch);
  EXPECT_EQ(problem.with, 0u);
  EXPECT_EQ(problem.values, Values{0});
}

TEST_F(ProblemsTest, EachNumberOfAKeySwitchCounts) {
  ctlPlexelBaseElement &first = Add(Key), &second = Add(Key);
  for (std::int32_t index = 0; index < 8; ++index) {
    first.HardwareNumberKeyAt(index, 9);
    second.HardwareNumberKeyAt(index, 9);
    EXPECT_EQ(Only().values, Values{9}) << index;
    first.HardwareNumberKeyAt(index, -1);
    second.HardwareNumberKeyAt(index, -1);
  }
}

TEST_F(ProblemsTest, ComeByElementThenLayerThenRule) {
  ctlPlexelBaseElement& first = Add(RectLed);
  first.HardwareNumberButton(3);
  first.LEDTypeLayer1(UserLed);
  Define(first, 4, {0x14, 0xFF}, {});
  ctlPlexelBaseElement& second = Add(RectLed);
  second.HardwareNumberButton(3);
  second.LEDTypeLayer1(UserLed);
  second.LEDTypeLayer2(PowerLed);
  Define(second, 1, {0x14, 0x00, 0xFF}, {0xF0, 0x23, 0xFF});
  EXPECT_EQ(Rules(), (std::vector<Rule>{Rule::Held, Rule::NumberTwice, Rule::Held, Rule::ReleasedFirst,
                                        Rule::UnknownBytes, Rule::LedTwice, Rule::LedNotOffered}));
}

TEST_F(ProblemsTest, WhatIsSharedIsCountedByItsLevel) {
  for (int count = 0; count < 2; ++count) Add(Led).LEDTypeLayer1(UserLed);
  for (int count = 0; count < 2; ++count) Add(Rect).HardwareNumberButton(7);
  const Problems problems(Order());
  EXPECT_EQ(problems.CountsOf(1), (ProblemCounts{.errors = 0, .warnings = 1}));
  EXPECT_EQ(problems.CountsOf(3), (ProblemCounts{.errors = 1, .warnings = 0}));
}

TEST_F(ProblemsTest, AreCountedByTheirLevels) {
  ctlPlexelBaseElement& element = Add(Rect);
  Define(element, 1, {0x14, 0x00, 0xFF}, {});
  element.LEDTypeLayer1(UserLed);
  Problems problems(Order());
  EXPECT_EQ(problems.Errors(), 1u);
  EXPECT_EQ(problems.Warnings(), 2u);
  element.LEDTypeLayer1(LedNotEnabled);
  problems.Recheck(element);
  EXPECT_EQ(problems.Errors(), 1u);
  EXPECT_EQ(problems.Warnings(), 1u);
  Define(element, 1, {}, {});
  problems.Recheck(element);
  EXPECT_EQ(problems.Errors(), 0u);
  EXPECT_EQ(problems.Warnings(), 0u);
}

/// The words say what happens, and every rule has its own.
TEST_F(ProblemsTest, TextsTellWhatTheMachineGets) {
  ctlPlexelBaseElement& first = Add(RectLed);
  Define(first, 1, {0x14, 0xFF}, {0xF0, 0x23, 0xFF});
  first.HardwareNumberButton(3);
  Add(RectLed).HardwareNumberButton(3);
  const Problems problems(Order());
  const std::vector<Problem> all = problems.All();
  ASSERT_EQ(all.size(), 3u);
  EXPECT_EQ(problems.Text(all[0]),
            "Ctrl Left is still down after release: every further key reaches the machine together with it");
  EXPECT_EQ(problems.Text(all[1]), "on release d comes up that is not down: the machine passes over it");
  EXPECT_EQ(problems.Text(all[2]), "button number 3 is that of E1 too: the panel takes both for one key");
}

TEST_F(ProblemsTest, EveryRuleHasANameALevelAndWords) {
  const ProblemWords& words = EnglishProblemWords();
  std::set<std::string_view> patterns(words.numbers.begin(), words.numbers.end());
  std::vector<std::string> names;
  for (const ProblemRuleRow& row : ProblemRules()) {
    names.push_back((row.level == ProblemLevel::Error ? "error " : "warning ") + std::string(row.name));
    if (row.rule != Rule::NumberTwice) patterns.insert(words.patterns[static_cast<std::size_t>(row.rule)]);
  }
  EXPECT_EQ(NameOf(ProblemLevel::Error), "error");
  EXPECT_EQ(NameOf(ProblemLevel::Warning), "warning");
  EXPECT_EQ(NameOf(Direction::Press), "press");
  EXPECT_EQ(NameOf(Direction::Release), "release");
  EXPECT_EQ(names, (std::vector<std::string>{"error held", "warning released-first", "warning unknown-bytes",
                                             "error no-bytes", "error no-text", "warning groups-differ",
                                             "error over-limit", "warning led-without-lamp", "warning led-not-offered",
                                             "warning led-twice", "error number-twice"}));
  EXPECT_EQ(patterns.size(), 13u);
  EXPECT_FALSE(patterns.contains(""));
}

TEST_F(ProblemsTest, AnotherLanguageBringsItsOwnWords) {
  Define(Add(Rect), 1, {}, {0x00, 0xFF});
  ProblemWords words = EnglishProblemWords();
  words.patterns[static_cast<std::size_t>(Rule::UnknownBytes)] = "%d: %1, 100%";
  words.directions = {"Drücken", "Loslassen"};
  const Problems problems(Order());
  EXPECT_EQ(problems.Text(problems.All().front(), words), "Loslassen: 00, 100%");
}

TEST_F(ProblemsTest, AllKeysOfAProblemAreTold) {
  Define(Add(Rect), 1, {0x14, 0x1C, 0xFF}, {});
  const Problems problems(Order());
  EXPECT_TRUE(problems.Text(Only()).starts_with("Ctrl Left, a is still down")) << problems.Text(Only());
}

TEST_F(ProblemsTest, WordsThatAskForTheDirectionOfAProblemWithoutOneTellNone) {
  Define(Add(Rect), 1, {0x14, 0xFF}, {});
  ProblemWords words = EnglishProblemWords();
  words.patterns[static_cast<std::size_t>(Rule::Held)] = "%1(%d)";
  EXPECT_EQ(Problems(Order()).Text(Only(), words), "Ctrl Left()");
}

TEST_F(ProblemsTest, ARecheckOfAStrangerFindsNothing) {
  Add(Rect);
  Problems problems(Order());
  EXPECT_TRUE(problems.Recheck(Add(Rect)).empty());
}

TEST_F(ProblemsTest, ARecheckTellsWhoWasTouched) {
  Add(Led).LEDTypeLayer1(UserLed);
  ctlPlexelBaseElement& second = Add(Led);
  Add(Led).LEDTypeLayer1(UserLed);
  Problems problems(Order());
  EXPECT_EQ(problems.Recheck(second), std::vector<std::size_t>{1});
  second.LEDTypeLayer1(UserLed);
  EXPECT_EQ(problems.Recheck(second), (std::vector<std::size_t>{1, 2}));
  EXPECT_EQ(problems.Of(2).size(), 2u);
}

TEST_F(ProblemsTest, ARecheckLeavesThoseAloneWithWhomAValueIsSharedAsBefore) {
  Add(Led);
  ctlPlexelBaseElement& second = Add(Led);
  second.LEDTypeLayer1(UserLed);
  Add(Led).LEDTypeLayer1(UserLed);
  Problems problems(Order());
  second.LEDTypeLayer2(AlarmLed);
  EXPECT_EQ(problems.Recheck(second), std::vector<std::size_t>{1});
}

TEST_F(ProblemsTest, ARecheckOfManyTellsWhoWasTouched) {
  for (int count = 0; count < 40; ++count) Add(Led).LEDTypeLayer1(UserLed);
  for (int count = 0; count < 3; ++count) Add(Led);
  Problems problems(Order());
  elements[40]->LEDTypeLayer1(UserLed);
  elements[41]->LEDTypeLayer2(AlarmLed);
  elements[42]->LEDTypeLayer2(AlarmLed);
  EXPECT_EQ(problems.Recheck(std::array<std::size_t, 3>{42, 40, 41}), (std::vector<std::size_t>{40, 41, 42}));
  elements[5]->LEDTypeLayer1(LedNotEnabled);
  elements[20]->LEDTypeLayer1(LedNotEnabled);
  EXPECT_EQ(problems.Recheck(std::array<std::size_t, 2>{20, 5}).size(), 36u) << "all from the sixth to the last";
  EXPECT_EQ(problems.All(), Problems(Order()).All());
}

TEST_F(ProblemsTest, WhoLeavesBehindTheFirstPartnersTouchesNobodyElse) {
  for (int count = 0; count < 40; ++count) Add(Led).LEDTypeLayer1(UserLed);
  Problems problems(Order());
  elements[16]->LEDTypeLayer1(LedNotEnabled);
  EXPECT_EQ(problems.Recheck(*elements[16]), std::vector<std::size_t>{16});
  elements[15]->LEDTypeLayer1(LedNotEnabled);
  EXPECT_EQ(problems.Recheck(*elements[15]).size(), 24U) << "those behind it have another sixteenth partner";
  EXPECT_EQ(problems.All(), Problems(Order()).All());
}

TEST_F(ProblemsTest, AnElementHasAsManyAsAreCountedOfIt) {
  for (int count = 0; count < 3; ++count) {
    Add(RectLed).LEDTypeLayer1(UserLed);
    elements.back()->LEDTypeLayer2(UserLed);
    elements.back()->HardwareNumberButton(1);
    elements.back()->HardwareNumberLed(2);
    elements.back()->PressKeyDefLayer(1, "[a\u2039]");
  }
  const Problems problems(Order());
  EXPECT_EQ(problems.Of(2).size(), 7u);
  ProblemCounts sum;
  for (std::size_t element = 0; element < 3; ++element) {
    ProblemCounts found;
    for (const Problem& problem : problems.Of(element)) {
      ++(RowOf(problem.rule).level == ProblemLevel::Error ? found.errors : found.warnings);
    }
    EXPECT_EQ(problems.CountsOf(element), found);
    sum.errors += found.errors;
    sum.warnings += found.warnings;
  }
  EXPECT_EQ(sum, (ProblemCounts{problems.Errors(), problems.Warnings()}));
}

/// Change by change the list stays the one that a check of all finds.
TEST_F(ProblemsTest, StayThoseOfAWholeCheckThroughRandomChanges) {
  const auto seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  const auto pick = [&random](std::int32_t most) {
    return static_cast<std::int32_t>(std::uniform_int_distribution<std::int32_t>(0, most)(random));
  };
  for (int count = 0; count < 60; ++count) Add(static_cast<enumTactisBaseElementType>(1 + pick(5)));
  Problems problems(Order());
  const auto change = [&](ctlPlexelBaseElement& element) {
    switch (pick(5)) {
      case 0:
        element.LEDTypeLayer(1 + pick(3), static_cast<enumLedType>(12 + pick(2)));
        break;
      case 1:
        element.HardwareNumberButton(pick(3));
        break;
      case 2:
        element.HardwareNumberLed(pick(3));
        break;
      case 3:
        element.HardwareNumberKeyAt(pick(7), pick(3) - 1);
        break;
      case 4:
        element.ElementType(static_cast<enumTactisBaseElementType>(1 + pick(5)));
        break;
      default:
        element.PressKeyDefLayer(1 + pick(3), pick(1) == 0 ? "" : "[a\u2039]");
    }
  };
  for (int round = 0; round < 400; ++round) {
    std::vector<std::size_t> changed;
    for (int count = pick(3); count >= 0; --count) {
      changed.push_back(static_cast<std::size_t>(pick(59)));
      change(*elements[changed.back()]);
    }
    if (changed.size() == 1) {
      problems.Recheck(*elements[changed.front()]);
    } else {
      problems.Recheck(changed);
    }
    const Problems whole(Order());
    ASSERT_EQ(problems.All(), whole.All()) << "round " << round;
    ASSERT_EQ(problems.Errors(), whole.Errors());
    ASSERT_EQ(problems.Warnings(), whole.Warnings());
  }
}

}  // namespace
}  // namespace plexel
