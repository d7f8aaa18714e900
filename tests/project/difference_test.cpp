#include "project/difference.h"

#include <gmock/gmock.h>

#include <cmath>

#include "files/sample_project.h"
#include "project/value_text.h"

namespace plexel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

std::string ToText(const std::optional<BagValue>& value) {
  if (!value) return "none";
  const TypedJson typed = JsonOf(*value);
  return std::string(typed.type) + ' ' + typed.json;
}

/// The differences as short lines.
std::vector<std::string> Between(const Project& first, const Project& second) {
  std::vector<std::string> lines;
  for (const ProjectDifference& one : DifferencesOf(first, second)) {
    constexpr const char* kinds[] = {"panel", "panel text", "property", "codes", "only first", "only second"};
    std::string line = kinds[static_cast<std::size_t>(one.kind)];
    for (const std::string& part : {one.element, one.name}) line += part.empty() ? "" : " " + part;
    if (one.from || one.to) line += ": " + ToText(one.from) + " -> " + ToText(one.to);
    if (!one.fromBehind.empty() || !one.toBehind.empty()) line += " behind " + one.fromBehind + " -> " + one.toBehind;
    lines.push_back(line);
  }
  return lines;
}

Project With(const std::string& key, std::optional<BagValue> value) {
  Project project;
  project.elements.emplace_back().place = "A";
  if (value) project.elements[0].bag.Store(key, *value);
  return project;
}

Project WithCodes(std::initializer_list<std::uint8_t> bytes, std::int32_t next) {
  Project project = With("", std::nullopt);
  SavedCodes saved{1, InitialCodes()};
  std::copy(bytes.begin(), bytes.end(), saved.codes.Value.begin());
  saved.codes.NextValue = next;
  project.elements[0].codes.push_back(saved);
  return project;
}

Project WithPlaces(std::initializer_list<const char*> places) {
  Project project;
  for (const char* place : places) project.elements.emplace_back().place = place;
  return project;
}

TEST(Difference, AProjectDoesNotDifferFromItself) { EXPECT_THAT(Between(SampleProject(), SampleProject()), IsEmpty()); }

TEST(Difference, CarriedPanelsThatDifferAreOneDifference) {
  Project first, second;
  second.panelText = "[PANEL]\n";
  EXPECT_THAT(Between(first, second), ElementsAre("panel text: string \"\" -> string \"[PANEL]\\n\""));
}

TEST(Difference, ThePanelComesFirst) {
  Project first = With("SizeX", std::int16_t{1}), second = With("SizeX", std::int16_t{2});
  first.panel = "Small";
  second.panel = "Large";
  EXPECT_THAT(Between(first, second),
              ElementsAre("panel: string \"Small\" -> string \"Large\"", "property A SizeX: int16 1 -> int16 2"));
}

TEST(Difference, ElementsComeInTheOrderOfTheFirstThenThoseOfTheSecondAlone) {
  EXPECT_THAT(Between(WithPlaces({"C", "A", "B"}), WithPlaces({"E", "A", "D"})),
              ElementsAre("only first C", "only first B", "only second E", "only second D"));
  EXPECT_THAT(Between(WithPlaces({"A", "B"}), WithPlaces({"B", "A"})), IsEmpty());
}

TEST(Difference, WhatIsNotStoredHasTheDefaultThatItIsReadAs) {
  EXPECT_THAT(Between(With("PressKeyDefLayer1", std::string("[a]")), With("", {})),
              ElementsAre("property A PressKeyDefLayer1: string \"[a]\" -> string \"\""));
  EXPECT_THAT(Between(With("", {}), With("SizeX", std::int16_t{21})),
              ElementsAre("property A SizeX: int16 20 -> int16 21"));
  EXPECT_THAT(Between(With("FocusVisible", False), With("", {})),
              ElementsAre("property A FocusVisible: boolean 0 -> boolean -1"));
}

TEST(Difference, AStoredDefaultIsNoDifference) {
  EXPECT_THAT(Between(With("SizeX", std::int16_t{20}), With("", {})), IsEmpty());
  EXPECT_THAT(Between(With("ButtonNotes", std::string()), With("", {})), IsEmpty());
  EXPECT_THAT(Between(With("HardwareNumberKey", -1), With("", {})), IsEmpty());
  EXPECT_THAT(Between(With("LedType1", 13), With("", {})), IsEmpty());
}

TEST(Difference, AnotherTypeThatIsReadTheSameIsNoDifference) {
  EXPECT_THAT(Between(With("SizeX", 21), With("SizeX", std::int16_t{21})), IsEmpty());
  EXPECT_THAT(Between(With("SizeX", std::string("21")), With("SizeX", 21.0)), IsEmpty());
  EXPECT_THAT(Between(With("WizardOn", 1), With("WizardOn", True)), IsEmpty());
  EXPECT_THAT(Between(With("WizardOn", Boolean::Raw(1)), With("WizardOn", True)),
              ElementsAre("property A WizardOn: boolean 1 -> boolean -1"));
}

TEST(Difference, WhatAnElementCannotReadIsComparedAsItStands) {
  EXPECT_THAT(Between(With("SizeX", std::string("wide")), With("SizeX", 70000)),
              ElementsAre("property A SizeX: string \"wide\" -> int32 70000"));
  EXPECT_THAT(Between(With("SizeX", std::string("wide")), With("SizeX", std::string("wide"))), IsEmpty());
}

TEST(Difference, AForeignKeyHasNoDefaultAndKeepsItsType) {
  EXPECT_THAT(Between(With("x", 0), With("", {})), ElementsAre("property A x: int32 0 -> none"));
  EXPECT_THAT(Between(With("", {}), With("x", std::string())), ElementsAre("property A x: none -> string \"\""));
  EXPECT_THAT(Between(With("x", 5), With("x", std::int16_t{5})), ElementsAre("property A x: int32 5 -> int16 5"));
  EXPECT_THAT(Between(With("x", std::nan("")), With("x", std::nan(""))), IsEmpty());
  EXPECT_THAT(Between(With("x", 0.0), With("x", -0.0)), ElementsAre("property A x: double 0 -> double -0.0"));
}

TEST(Difference, ABufferShowsItsBytesInUse) {
  EXPECT_THAT(Between(WithCodes({0xFF, 0x1C, 0xFF}, 2), With("", {})),
              ElementsAre("codes A strLayer1ReleaseScanCode: string \"FF 1C FF\" -> string \"FF\""));
  EXPECT_THAT(Between(WithCodes({}, 0), With("", {})), IsEmpty());
}

TEST(Difference, TheFirstByteAloneIsNothingBehindTheEnd) {
  EXPECT_THAT(Between(WithCodes({0xFE}, 0), With("", {})),
              ElementsAre("codes A strLayer1ReleaseScanCode: string \"FE\" -> string \"FF\""));
}

TEST(Difference, BytesBehindTheEndAreToldWhenTheyDiffer) {
  EXPECT_THAT(Between(WithCodes({0xFF, 0x1C, 0xFF, 0x2A}, 2), WithCodes({0xFF, 0x1C, 0xFF, 0x2B, 0x2C}, 2)),
              ElementsAre("codes A strLayer1ReleaseScanCode: string \"FF 1C FF\" -> string \"FF 1C FF\" "
                          "behind 2A FF -> 2B 2C"));
  EXPECT_THAT(Between(WithCodes({0xFF, 0x1C, 0xFF}, 2), WithCodes({0xFF, 0x1C, 0xFF}, 1)),
              ElementsAre("codes A strLayer1ReleaseScanCode: string \"FF 1C FF\" -> string \"FF 1C\""));
  EXPECT_THAT(Between(WithCodes({0xFF, 0x1C, 0x2A}, 1), WithCodes({0xFF, 0x1C, 0xFF}, 2)),
              ElementsAre("codes A strLayer1ReleaseScanCode: string \"FF 1C\" -> string \"FF 1C FF\""));
}

TEST(Difference, EveryByteOfABufferCounts) {
  for (std::size_t place = 0; place < InitialCodes().Value.size(); ++place) {
    Project changed = WithCodes({}, 0);
    changed.elements[0].codes[0].codes.Value[place] ^= 1;
    const std::vector<std::string> told = Between(WithCodes({}, 0), changed);
    ASSERT_EQ(told.size(), 1U) << place;
    EXPECT_EQ(told.front().find(" behind ") != std::string::npos, place > 0) << told.front();
  }
}

TEST(Difference, FloatsAreTheSameByValueAndSignAndOnesThatAreNoNumberAreAlike) {
  const double none = std::nan("");
  EXPECT_THAT(Between(With("x", 1.5), With("x", 1.5)), IsEmpty());
  EXPECT_THAT(Between(With("x", none), With("x", -none)), IsEmpty());
  EXPECT_THAT(Between(With("x", 1.5), With("x", 2.5)), SizeIs(1));
  EXPECT_THAT(Between(With("x", none), With("x", 1.5)), SizeIs(1));
  EXPECT_THAT(Between(With("x", 1.5), With("x", none)), SizeIs(1));
  EXPECT_THAT(Between(With("x", 1.0), With("x", std::int32_t{1})), SizeIs(1));
  EXPECT_THAT(Between(With("x", std::int32_t{1}), With("x", 1.0)), SizeIs(1));
}

}  // namespace
}  // namespace plexel
