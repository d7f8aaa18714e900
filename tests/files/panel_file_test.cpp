#include "files/panel_file.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "file_error_of.h"
#include "files/data_directory.h"
#include "files/file_capabilities.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

Panel Read(const std::string& text) {
  const TemporaryDirectory directory;
  return ReadPanel(directory.Put("f.panel", text));
}

std::optional<FileError> FaultOf(const std::string& text) {
  return FileErrorOf([&text] { Read(text); });
}

constexpr const char* Header = "[PANEL]\nTitle=T\nWidth=100\nHeight=50\n";

/// A panel with lines that begin in line 5.
std::string WithLines(const std::string& lines) { return Header + lines + "[END]\n"; }

Panel Shipped(const std::string& name) { return ReadPanel(PanelFile(DataDirectory() / "panels", name)); }

std::map<enumTactisBaseElementType, int> CountElements(const Panel& panel) {
  std::map<enumTactisBaseElementType, int> counts;
  for (const PanelPart& part : panel.parts) {
    if (part.element) ++counts[part.element->type];
  }
  return counts;
}

TEST(PanelFile, TheKeysOfThePanelAreRead) {
  const Panel panel = Read(
      "[PANEL]\nTitle=Gro\u00DF\nWidth=10000\nHeight=1\nTargetSystem=X\nDeviceType=-2\n"
      "VantaEnabled=yes\n[END]\n");
  EXPECT_EQ(panel.title, "Gro\u00DF");
  EXPECT_EQ(panel.width, 10000);
  EXPECT_EQ(panel.height, 1);
  EXPECT_EQ(panel.targetSystem, "X");
  EXPECT_EQ(panel.deviceType, -2);
  EXPECT_EQ(panel.vantaEnabled, True);
  EXPECT_THAT(panel.parts, IsEmpty());
}

TEST(PanelFile, APartHasItsPlaceColoursAndLegend) {
  const Panel panel =
      Read(WithLines("[LEGEND]\nPlace=1 2 30 40\nFill=#010203\nLine=#FFFFFE\nRadius=4\n"
                     "Legend=two\\nlines\nLegendColor=#00ff00\nLegendSize=9\nLegendAlign=right\n"));
  ASSERT_EQ(panel.parts.size(), 1U);
  const PanelPart& part = panel.parts[0];
  EXPECT_EQ(part.kind, PanelPartKind::Legend);
  EXPECT_EQ(part.box, (PanelBox{1, 2, 30, 40}));
  EXPECT_EQ(part.fillColor, 0x030201);
  EXPECT_EQ(part.lineColor, 0xFEFFFF);
  EXPECT_EQ(part.cornerRadius, 4);
  EXPECT_EQ(part.legend, "two\nlines");
  EXPECT_EQ(part.legendColor, 0x00FF00);
  EXPECT_EQ(part.legendSize, 9);
  EXPECT_EQ(part.legendAlignment, LegendAlignment::Right);
  EXPECT_FALSE(part.element);
}

TEST(PanelFile, LegendsStandLeftRightOrInTheMiddle) {
  for (const auto& [word, alignment] : {std::pair{"left", LegendAlignment::Left},
                                        {"center", LegendAlignment::Center},
                                        {"right", LegendAlignment::Right}}) {
    const Panel panel = Read(WithLines("[KEY]\nPlace=0 0 1 1\nLegendAlign=" + std::string(word) + "\n"));
    EXPECT_EQ(panel.parts.at(0).legendAlignment, alignment) << word;
  }
}

TEST(PanelFile, APanelHas50000PartsAtMost) {
  std::string parts;
  for (int count = 0; count < 50'000; ++count) parts += "[KEY]\nPlace=0 0 1 1\n";
  EXPECT_EQ(Read(WithLines(parts)).parts.size(), 50'000U);
  EXPECT_THAT(FaultOf(WithLines(parts + "[KEY]\nPlace=0 0 1 1\n"))->what(),
              HasSubstr("f.panel:100005: the panel has too many parts"));
}

TEST(PanelFile, APanelIsOf8MegabytesAtMost) {
  std::string text = WithLines("");
  text.resize(std::size_t{8} << 20U, '\n');
  EXPECT_EQ(ParsePanel("p", text).title, "T");
  const auto error = FileErrorOf([&] { ParsePanel("p", text + '\n'); });
  ASSERT_TRUE(error);
  EXPECT_STREQ(error->what(), "p: the panel is too large");
}

TEST(PanelFile, AnElementHasItsNumbers) {
  const Panel panel =
      Read(WithLines("[KEYSWITCH]\nPlace=0 0 20 10\nElement=K-1\nElementType=6\n"
                     "HardwareNumberKeys=5 -1 7\nHardwareNumberLed=-8\nHardwareNumberButton=9\n"));
  const PanelPart* const part = panel.Find("K-1");
  ASSERT_NE(part, nullptr);
  EXPECT_EQ(part->element->type, Key);
  EXPECT_THAT(part->element->hardwareNumberKeys, ElementsAre(5, -1, 7, -1, -1, -1, -1, -1));
  EXPECT_EQ(part->element->hardwareNumberLed, -8);
  EXPECT_EQ(part->element->hardwareNumberButton, 9);
}

TEST(PanelFile, AnElementIsAsLargeAsItsPartUnlessItTells) {
  const Panel panel =
      Read(WithLines("[KEY]\nPlace=0 0 20 10\nElement=A\nElementType=4\n"
                     "[KEY]\nPlace=0 0 20 10\nElement=B\nElementType=5\nSizeX=7\nSizeY=8\n"));
  EXPECT_EQ(panel.Find("A")->element->sizeX, 20);
  EXPECT_EQ(panel.Find("A")->element->sizeY, 10);
  EXPECT_EQ(panel.Find("B")->element->sizeX, 7);
  EXPECT_EQ(panel.Find("B")->element->sizeY, 8);
}

TEST(PanelFile, APartThatTellsNothingIsWhiteWithABlackBorderAndABlackLegendOfTwelvePixelsInItsMiddle) {
  const Panel panel = Read(WithLines("[KEY]\nPlace=0 0 1 1\n"));
  const PanelPart& part = panel.parts.at(0);
  EXPECT_EQ(part.fillColor, 0xFFFFFF);
  EXPECT_EQ(part.lineColor, 0);
  EXPECT_EQ(part.cornerRadius, 0);
  EXPECT_EQ(part.legendColor, 0);
  EXPECT_EQ(part.legendSize, 12);
  EXPECT_EQ(part.legendAlignment, LegendAlignment::Center);
}

TEST(PanelFile, AStyleCountsForTheLaterPartsOfItsKind) {
  const Panel panel =
      Read(WithLines("[KEY]\nPlace=0 0 1 1\n[STYLE KEY]\nFill=#000001\n[KEY]\nPlace=0 0 1 1\n"
                     "[LED]\nPlace=0 0 1 1\n[KEY]\nPlace=0 0 1 1\nFill=#000002\n"));
  ASSERT_EQ(panel.parts.size(), 4U);
  EXPECT_EQ(panel.parts[0].fillColor, 0xFFFFFF);
  EXPECT_EQ(panel.parts[1].fillColor, 0x010000);
  EXPECT_EQ(panel.parts[2].fillColor, 0xFFFFFF);
  EXPECT_EQ(panel.parts[3].fillColor, 0x020000);
}

TEST(PanelFile, AnUnknownElementIsNotFound) { EXPECT_EQ(Read(WithLines("")).Find("A"), nullptr); }

TEST(PanelFile, APartMayTouchTheBordersOfThePanel) { EXPECT_FALSE(FaultOf(WithLines("[KEY]\nPlace=0 0 100 50\n"))); }

TEST(PanelFile, AFaultyLineIsNamed) {
  for (const std::string fault : {"Place=1 0 100 50",  "Place=0 1 100 50", "Place=-1 0 1 1", "Place=0 0 0 1",
                                  "Place=0 0 1",       "Place=0 0 1 1 1",  "Place=a b c d",  "Place=",
                                  "Place=0 0 10001 1", "Fill=red",         "Fill=#12345",    "Fill=#1234567",
                                  "Fill=#12345G",      "Fill=#-12345",     "Radius=-1",      "Radius=10001",
                                  "LegendSize=3",      "LegendSize=201",   "LegendAlign=up", "Legend=\\x",
                                  "Legend=\xFF",       "Element=",         "Element=a b",    "Element=a/b",
                                  "ElementType=4",     "Unknown=1",        "nothing",        "Width=1",
                                  "[UNKNOWN]",         "[STYLE UNKNOWN]",  "[PANEL]",        "[KEY"}) {
    const auto error = FaultOf(WithLines("[KEY]\n" + fault + "\nPlace=0 0 1 1\n"));
    ASSERT_TRUE(error) << fault;
    const bool wholeSection = fault.front() == '[' && fault.back() == ']';
    EXPECT_EQ(error->Line(), wholeSection ? 5U : 6U) << fault << error->what();
  }
}

TEST(PanelFile, AFaultyLineOfAnElementIsNamed) {
  for (const std::string fault :
       {"ElementType=0", "ElementType=7", "SizeX=0", "SizeX=10001", "SizeY=x",
        "HardwareNumberKeys=", "HardwareNumberKeys=1 2 3 4 5 6 7 8 9", "HardwareNumberKeys=-2",
        "HardwareNumberLed=2147483648", "HardwareNumberButton=", "Element=B", "Place=0 0 1 1"}) {
    const auto error = FaultOf(WithLines("[KEY]\nElement=A\nPlace=0 0 1 1\n" + fault + "\n"));
    ASSERT_TRUE(error) << fault;
    EXPECT_EQ(error->Line(), 8U) << fault;
  }
}

TEST(PanelFile, AFaultyLineOfThePanelIsNamed) {
  for (const std::string fault :
       {"Width=0", "Width=10001", "Height=", "VantaEnabled=-1", "DeviceType=x", "Fill=#000000", "Title=\\"}) {
    const auto error = FaultOf("[PANEL]\n" + fault + "\n[END]\n");
    ASSERT_TRUE(error) << fault;
    EXPECT_EQ(error->Line(), 2U) << fault;
  }
}

TEST(PanelFile, APartWithoutAPlaceIsRefused) {
  EXPECT_THAT(FaultOf(WithLines("[KEY]\nLegend=a\n"))->what(), HasSubstr("f.panel:5: the part has no Place"));
}

TEST(PanelFile, APanelWithoutASizeIsRefused) { EXPECT_EQ(FaultOf("[PANEL]\nWidth=5\n[END]\n")->Line(), 1U); }

TEST(PanelFile, ElementsMustFitTheirPart) {
  const std::vector<std::pair<std::string, std::vector<int>>> fitting = {
      {"KEY", {4, 5}}, {"ROUNDKEY", {2, 3}}, {"KEYSWITCH", {6}}, {"LED", {1}},
      {"HOUSING", {}}, {"SCREEN", {}},       {"LEGEND", {}}};
  for (const auto& [section, types] : fitting) {
    for (int type = 1; type <= 6; ++type) {
      const auto error =
          FaultOf(WithLines("[" + section + "]\nPlace=0 0 1 1\nElement=A\nElementType=" + std::to_string(type) + "\n"));
      const bool fits = std::find(types.begin(), types.end(), type) != types.end();
      EXPECT_EQ(!error, fits) << section << type;
    }
  }
}

TEST(PanelFile, AnElementWithoutAKindIsRefused) {
  EXPECT_EQ(FaultOf(WithLines("[KEY]\nPlace=0 0 1 1\nElement=A\n"))->Line(), 5U);
}

TEST(PanelFile, AnElementThatStandsTwiceIsRefused) {
  EXPECT_THAT(FaultOf(WithLines("[LED]\nPlace=0 0 1 1\nElement=A\nElementType=1\n[KEY]\nElement=A\n"))->what(),
              HasSubstr("f.panel:10: the element A stands twice"));
}

TEST(PanelFile, ALineBehindTheEndIsRefused) { EXPECT_EQ(FaultOf(WithLines("") + "\n[KEY]\n")->Line(), 7U); }

TEST(PanelFile, EveryTruncationIsRefusedWithALine) {
  const std::string whole = WithLines(
      "[STYLE KEY]\nFill=#000001\n[KEY]\nPlace=0 0 20 10\nElement=A\nElementType=5\n"
      "HardwareNumberKeys=1 2\nLegend=\u00E4\\n\n");
  ASSERT_FALSE(FaultOf(whole));
  for (std::size_t length = 0; length + 1 < whole.size(); ++length) {
    const auto error = FaultOf(whole.substr(0, length));
    ASSERT_TRUE(error) << length;
    EXPECT_GT(error->Line(), 0U) << length;
  }
}

TEST(PanelFile, AFileThatIsNoPanelIsToldSo) {
  for (const char* text : {"", "[PROJECT]\n", "PANEL=1\n"}) {
    EXPECT_THAT(FaultOf(text)->what(), HasSubstr("f.panel:1: this is no panel")) << text;
  }
}

TEST(PanelFile, APanelNameIsNoPath) {
  EXPECT_EQ(PanelFile("d", "Large"), "d/Large.panel");
  for (const std::string name : {"", ".", "..", "../x", "a/b", "a\\b", ".hidden"}) {
    EXPECT_THROW(PanelFile("d", name), FileError) << name;
  }
}

TEST(ShippedPanels, ThereIsALargeAndASmallOne) {
  EXPECT_THAT(PanelNames(DataDirectory() / "panels"), ElementsAre("Large", "Small"));
}

TEST(ShippedPanels, TheLargeOneHasEveryKindOfElement) {
  const auto counts = CountElements(Shipped("Large"));
  EXPECT_EQ(counts, (std::map<enumTactisBaseElementType, int>{
                        {Led, 6}, {Oval, 2}, {OvalLed, 2}, {Rect, 10}, {RectLed, 24}, {Key, 2}}));
}

TEST(ShippedPanels, TheSmallOneHasEveryKindOfElement) {
  const auto counts = CountElements(Shipped("Small"));
  EXPECT_EQ(counts, (std::map<enumTactisBaseElementType, int>{
                        {Led, 2}, {Oval, 1}, {OvalLed, 1}, {Rect, 4}, {RectLed, 4}, {Key, 1}}));
}

TEST(ShippedPanels, TheirTargetSystemsAreKnown) {
  const FileCapabilities capabilities(DataDirectory() / "capabilities");
  const std::vector<std::string> targets = capabilities.Targets();
  for (const char* name : {"Large", "Small"}) {
    EXPECT_NE(std::find(targets.begin(), targets.end(), Shipped(name).targetSystem), targets.end()) << name;
  }
}

TEST(ShippedPanels, NoTwoElementsLieOnEachOther) {
  for (const char* name : {"Large", "Small"}) {
    const Panel panel = Shipped(name);
    for (const PanelPart& a : panel.parts) {
      for (const PanelPart& b : panel.parts) {
        if (!a.element || !b.element || &a == &b) continue;
        const bool apart = a.box.left + a.box.width <= b.box.left || b.box.left + b.box.width <= a.box.left ||
                           a.box.top + a.box.height <= b.box.top || b.box.top + b.box.height <= a.box.top;
        EXPECT_TRUE(apart) << a.element->id << b.element->id;
      }
    }
  }
}

}  // namespace
}  // namespace plexel
