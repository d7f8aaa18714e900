#include <gmock/gmock.h>

#include "element/property_table.h"
#include "element_fixture.h"

namespace plexel {
namespace {

using std::string;

class ElementStorage : public ElementTest {
 protected:
  static Names Keys(const MemoryBag& bag) {
    Names keys;
    for (const auto& entry : bag.All()) keys.push_back(entry.first);
    return keys;
  }
  MemoryBag Written() const {
    MemoryBag bag;
    element->UserControl_WriteProperties(bag);
    return bag;
  }
};

/// A bag that keeps the keys asked for.
class AskedBag : public PropertyBag {
 public:
  const BagValue* Find(std::string_view key) const override {
    asked.emplace_back(key);
    return nullptr;
  }
  void Store(std::string_view, BagValue) override {}
  void Remove(std::string_view) override {}
  mutable std::vector<std::string> asked;
};

const std::vector<std::string> readOrder = {"HardwareNumberKey",
                                            "HardwareNumberKey1",
                                            "HardwareNumberKey2",
                                            "HardwareNumberKey3",
                                            "HardwareNumberKey4",
                                            "HardwareNumberKey5",
                                            "HardwareNumberKey6",
                                            "HardwareNumberKey7",
                                            "WizardOptions",
                                            "SizeX",
                                            "ElementType",
                                            "ZoomFactor",
                                            "FocusColor",
                                            "FocusVisible",
                                            "FocusWidth",
                                            "WizardOn",
                                            "LedType1",
                                            "LedType2",
                                            "LedType3",
                                            "LedType4",
                                            "ReleaseKeyDefLayer1",
                                            "ReleaseKeyDefLayer2",
                                            "ReleaseKeyDefLayer3",
                                            "ReleaseKeyDefLayer4",
                                            "PressKeyDefLayer1",
                                            "PressKeyDefLayer2",
                                            "PressKeyDefLayer3",
                                            "PressKeyDefLayer4",
                                            "OriginalPosX",
                                            "OriginalPosY",
                                            "HardwareNumberLed",
                                            "ShowX",
                                            "ShowXPermanent",
                                            "ButtonNotes",
                                            "KeyDefinedColor",
                                            "ShowDefined",
                                            "XElementSize",
                                            "TargetSystem",
                                            "HardwareNumberButton"};

const std::vector<std::string> writeOrder = {"HardwareNumberKey",
                                             "HardwareNumberKey1",
                                             "HardwareNumberKey2",
                                             "HardwareNumberKey3",
                                             "HardwareNumberKey4",
                                             "HardwareNumberKey5",
                                             "HardwareNumberKey6",
                                             "HardwareNumberKey7",
                                             "SizeX",
                                             "ElementType",
                                             "ZoomFactor",
                                             "FocusColor",
                                             "FocusWidth",
                                             "WizardOn",
                                             "LedType1",
                                             "LedType2",
                                             "LedType3",
                                             "LedType4",
                                             "FocusVisible",
                                             "ReleaseKeyDefLayer1",
                                             "ReleaseKeyDefLayer2",
                                             "ReleaseKeyDefLayer3",
                                             "ReleaseKeyDefLayer4",
                                             "PressKeyDefLayer1",
                                             "PressKeyDefLayer2",
                                             "PressKeyDefLayer3",
                                             "PressKeyDefLayer4",
                                             "OriginalPosX",
                                             "HardwareNumberButton",
                                             "HardwareNumberLed",
                                             "ShowX",
                                             "ShowXPermanent",
                                             "ButtonNotes",
                                             "KeyDefinedColor",
                                             "ShowDefined",
                                             "XElementSize",
                                             "WizardOptions",
                                             "TargetSystem"};

/// What an element reads from an empty bag, by property.
const std::vector<std::pair<std::string, PropertyData>> readDefaults = {
    {"HardwareNumberKey", -1},   {"HardwareNumberKey1", -1},
    {"HardwareNumberKey2", -1},  {"HardwareNumberKey3", -1},
    {"HardwareNumberKey4", -1},  {"HardwareNumberKey5", -1},
    {"HardwareNumberKey6", -1},  {"HardwareNumberKey7", -1},
    {"WizardOptions", 0},        {"SizeX", 20},
    {"ElementType", 0},          {"ZoomFactor", 100},
    {"FocusColor", 255},         {"FocusVisible", -1},
    {"FocusWidth", 1},           {"WizardOn", 0},
    {"LEDTypeLayer1", 13},       {"LEDTypeLayer2", 13},
    {"LEDTypeLayer3", 13},       {"LEDTypeLayer4", 13},
    {"ReleaseKeyDefLayer1", ""}, {"ReleaseKeyDefLayer2", ""},
    {"ReleaseKeyDefLayer3", ""}, {"ReleaseKeyDefLayer4", ""},
    {"PressKeyDefLayer1", ""},   {"PressKeyDefLayer2", ""},
    {"PressKeyDefLayer3", ""},   {"PressKeyDefLayer4", ""},
    {"OriginalPosX", 0},         {"OriginalPosY", 0},
    {"HardwareNumberLed", 0},    {"ShowX", 0},
    {"ShowXPermanent", 0},       {"ButtonNotes", ""},
    {"KeyDefinedColor", 0},      {"ShowDefined", 0},
    {"XElementSize", 1},         {"TargetSystem", ""},
    {"HardwareNumberButton", 0}};

TEST_F(ElementStorage, AnEmptyBagGivesTheReadDefaults) {
  const auto loaded = Load({});
  ASSERT_EQ(readDefaults.size(), 39U);
  for (const auto& [name, value] : readDefaults) EXPECT_EQ(Get(*loaded, *FindProperty(name)), value) << name;
}

TEST_F(ElementStorage, KeysAreReadInTheirOrder) {
  const AskedBag bag;
  component.Read("B", host, bag);
  EXPECT_EQ(bag.asked, readOrder);
}

TEST_F(ElementStorage, KeysAreWrittenInTheirOrder) {
  std::int32_t number = 100;
  for (const PropertyRow& row : PropertyTable()) {
    if (row.set != nullptr && row.type != PropertyType::Double) Set(*element, row, ++number);
  }
  EXPECT_EQ(Keys(Written()), writeOrder);
}

TEST_F(ElementStorage, ANewElementStoresWhatDiffersFromTheWriteDefaults) {
  EXPECT_THAT(Keys(Written()), testing::ElementsAre("SizeX", "ElementType", "ZoomFactor", "FocusColor", "FocusWidth",
                                                    "WizardOn", "FocusVisible", "XElementSize"));
}

TEST_F(ElementStorage, AnElementAtTheWriteDefaultsStoresOnlyTheTwoBooleans) {
  element->SizeX(1);
  element->ElementType(Led);
  element->ZoomFactor(1);
  element->FocusColor(255);
  element->FocusWidth(1);
  element->XElementSize(XSizeMedium);
  const MemoryBag::Entries expected = {{"WizardOn", False}, {"FocusVisible", False}};
  EXPECT_EQ(Written().All(), expected);
}

TEST_F(ElementStorage, WhatIsLeftOutDoesNotStandInABagThatIsWrittenAgain) {
  element->PressKeyDefLayer1("[a]");
  element->ShowX(True);
  element->HardwareNumberKey(3);
  MemoryBag bag = Written();
  bag.Store("Foreign", std::int32_t{1});
  element->PressKeyDefLayer1("");
  element->ShowX(False);
  element->HardwareNumberKey(-1);
  element->SizeX(7);
  element->UserControl_WriteProperties(bag);
  EXPECT_EQ(bag.Find("PressKeyDefLayer1"), nullptr);
  EXPECT_EQ(bag.Find("ShowX"), nullptr);
  EXPECT_EQ(bag.Find("HardwareNumberKey"), nullptr);
  EXPECT_EQ(*bag.Find("Foreign"), BagValue(std::int32_t{1}));
  const MemoryBag fresh = Written();
  for (const auto& [key, value] : fresh.All()) EXPECT_EQ(*bag.Find(key), value) << key;
  EXPECT_EQ(bag.All().size(), fresh.All().size() + 1);
}

TEST_F(ElementStorage, ValuesAreWrittenInTheirTypes) {
  element->HardwareNumberKey(3);
  element->SizeX(20);
  element->ZoomFactor(100);
  element->FocusColor(7);
  element->FocusWidth(2);
  element->ElementType(Rect);
  element->LEDTypeLayer1(RunLed);
  element->WizardOn(True);
  element->PressKeyDefLayer1("[a]");
  const MemoryBag bag = Written();
  EXPECT_EQ(*bag.Find("HardwareNumberKey"), BagValue(std::int32_t{3}));
  EXPECT_EQ(*bag.Find("SizeX"), BagValue(std::int16_t{20}));
  EXPECT_EQ(*bag.Find("ZoomFactor"), BagValue(std::int16_t{100}));
  EXPECT_EQ(*bag.Find("FocusColor"), BagValue(std::int32_t{7}));
  EXPECT_EQ(*bag.Find("FocusWidth"), BagValue(std::uint8_t{2}));
  EXPECT_EQ(*bag.Find("ElementType"), BagValue(std::int32_t{4}));
  EXPECT_EQ(*bag.Find("LedType1"), BagValue(std::int32_t{14}));
  EXPECT_EQ(*bag.Find("WizardOn"), BagValue(True));
  EXPECT_EQ(*bag.Find("PressKeyDefLayer1"), BagValue(string("[a]")));
}

TEST_F(ElementStorage, WizardOnAndFocusVisibleAreAlwaysWritten) {
  for (const Boolean value : {False, True, Boolean::Raw(1)}) {
    element->WizardOn(value);
    element->FocusVisible(value);
    const MemoryBag bag = Written();
    ASSERT_NE(bag.Find("WizardOn"), nullptr) << value.Value();
    EXPECT_EQ(*bag.Find("WizardOn"), BagValue(value));
    ASSERT_NE(bag.Find("FocusVisible"), nullptr) << value.Value();
    EXPECT_EQ(*bag.Find("FocusVisible"), BagValue(value));
  }
}

TEST_F(ElementStorage, OtherBooleansAreLeftOutWhenFalse) {
  EXPECT_EQ(Written().Find("ShowX"), nullptr);
  element->ShowX(Boolean::Raw(1));
  EXPECT_NE(Written().Find("ShowX"), nullptr);
}

TEST_F(ElementStorage, WhatIsNeverStoredIsInNoBag) {
  element->SizeY(5);
  element->DeviceType(2);
  element->VantaEnabled(True);
  element->OriginalPosY(9);
  const MemoryBag bag = Written();
  for (const char* key : {"SizeY", "DeviceType", "VantaEnabled", "ParentWindow", "DPIFontScaleFactor", "OriginalPosY",
                          "TactisBaseElementScanCodeBuffer", "LEDTypeLayer1"}) {
    EXPECT_EQ(bag.Find(key), nullptr) << key;
  }
}

TEST_F(ElementStorage, WritingAndReadingKeepsWhatIsSaved) {
  std::int32_t number = 20;
  for (const PropertyRow& row : PropertyTable()) {
    if (row.set != nullptr && row.type != PropertyType::Double) Set(*element, row, ++number);
  }
  const auto loaded = component.Read("B", host, Written());
  int kept = 0;
  for (const PropertyRow& row : PropertyTable()) {
    if (row.storage.writeOrder == 0) continue;
    EXPECT_EQ(Get(*loaded, row), Get(*element, row)) << row.name;
    ++kept;
  }
  EXPECT_EQ(kept, 38);
}

TEST_F(ElementStorage, TheVerticalPositionAndHeightComeBackAsZero) {
  element->OriginalPosX(11);
  element->OriginalPosY(12);
  element->SizeY(13);
  const auto loaded = component.Read("B", host, Written());
  EXPECT_EQ(loaded->OriginalPosX(), 11);
  EXPECT_EQ(loaded->OriginalPosY(), 0);
  EXPECT_EQ(loaded->SizeY(), 0);
}

TEST_F(ElementStorage, AStoredVerticalPositionIsRead) {
  EXPECT_EQ(Load({{"OriginalPosY", std::int32_t{12}}})->OriginalPosY(), 12);
}

TEST_F(ElementStorage, AnLedComesBackWithoutAKind) {
  element->ElementType(Led);
  EXPECT_EQ(component.Read("B", host, Written())->ElementType(), 0);
}

TEST_F(ElementStorage, AWidthOfOneComesBackAsTwenty) {
  element->SizeX(1);
  EXPECT_EQ(component.Read("B", host, Written())->SizeX(), 20);
}

TEST_F(ElementStorage, AZoomOfOneComesBackAsAHundred) {
  element->ZoomFactor(1);
  EXPECT_EQ(component.Read("B", host, Written())->ZoomFactor(), 100);
}

TEST_F(ElementStorage, ThePublicNamesOfTheLedFunctionsAreNoKeys) {
  EXPECT_EQ(Load({{"LEDTypeLayer1", std::int32_t{3}}})->LEDTypeLayer1(), LedNotEnabled);
  EXPECT_EQ(Load({{"LedType1", std::int32_t{3}}})->LEDTypeLayer1(), PowerLed);
}

TEST_F(ElementStorage, AStoredFocusWidthOfZeroLeavesTheLineWidths) {
  const auto loaded = Load({{"FocusWidth", std::uint8_t{0}}});
  EXPECT_EQ(loaded->FocusWidth(), 0);
  EXPECT_EQ(loaded->SurfaceObjects().shpOval.BorderWidth, 1);
  EXPECT_EQ(loaded->SurfaceObjects().linX1.BorderWidth, 2);
}

TEST_F(ElementStorage, ALoadedElementHasItsWidthAndTheHeightOfItsContainer) {
  const auto loaded = Load({{"SizeX", std::int16_t{40}}});
  EXPECT_EQ(loaded->SurfaceObjects().Width, 600);
  EXPECT_EQ(loaded->SurfaceObjects().Height, 495);
}

TEST_F(ElementStorage, LoadingAppliesTheFinalFocusWidthAndXSizeToTheWidth) {
  const auto loaded = Load({{"FocusWidth", std::uint8_t{2}}, {"XElementSize", std::int32_t{2}}});
  const Surface& shown = loaded->SurfaceObjects();
  EXPECT_EQ(shown.shpRect.Left, 30);
  EXPECT_EQ(shown.shpRect.Width, 270);
  EXPECT_EQ(shown.linX1.X1, 230);
  EXPECT_EQ(shown.linX1.X2, 100);
}

TEST_F(ElementStorage, LoadingMakesTheElementCurrent) {
  const auto loaded = Load({});
  EXPECT_EQ(Module().ctlCurrentElement, loaded);
}

TEST_F(ElementStorage, LoadingShowsTheTickOfADefinedElement) {
  const MemoryBag::Entries defined = {
      {"ElementType", std::int32_t{4}}, {"PressKeyDefLayer4", string("[a]")}, {"ShowDefined", True}};
  EXPECT_TRUE(Load(defined)->SurfaceObjects().linOK1.Visible);
}

TEST_F(ElementStorage, LoadingShowsAPermanentXBeforeAnyFocus) {
  const auto loaded = Load({{"ShowXPermanent", True}});
  EXPECT_TRUE(loaded->SurfaceObjects().linX1.Visible);
  EXPECT_TRUE(loaded->SurfaceObjects().linX2.Visible);
}

TEST_F(ElementStorage, LoadingAnnouncesEverySetter) {
  Load({{"SizeX", std::int16_t{9}}});
  // Key numbers of the start and of the bag, then the rest; zoom and X size bring both sizes with them.
  EXPECT_EQ(host.Notices().size(), 8U + 39U + 4U);
}

TEST_F(ElementStorage, TheCodeSequencesAreNotStored) {
  auto info = element->TactisBaseElementScanCodeBuffer();
  info.strLayer1PressScanCode.Value[0] = 0x1C;
  element->TactisBaseElementScanCodeBuffer(info);
  auto loaded = component.Read("B", host, Written())->TactisBaseElementScanCodeBuffer();
  EXPECT_EQ(loaded.strLayer1PressScanCode.Value[0], 0xFF);
}

TEST_F(ElementStorage, StoredNumbersConvertToTheTypeOfTheKey) {
  const auto loaded = Load({{"SizeX", string("30")},
                            {"ElementType", 3.5},
                            {"FocusWidth", std::int32_t{4}},
                            {"FocusVisible", std::int32_t{0}},
                            {"WizardOn", std::int16_t{5}},
                            {"PressKeyDefLayer1", std::int32_t{12}},
                            {"ShowX", string("1")}});
  EXPECT_EQ(loaded->SizeX(), 30);
  EXPECT_EQ(loaded->ElementType(), 4);
  EXPECT_EQ(loaded->FocusWidth(), 4);
  EXPECT_EQ(loaded->FocusVisible(), False);
  EXPECT_EQ(loaded->WizardOn(), True);
  EXPECT_EQ(loaded->PressKeyDefLayer1(), "12");
  EXPECT_EQ(loaded->ShowX(), True);
}

TEST_F(ElementStorage, AStoredBooleanKeepsItsValue) {
  EXPECT_EQ(Load({{"WizardOn", Boolean::Raw(1)}})->WizardOn(), Boolean::Raw(1));
}

TEST_F(ElementStorage, TheFirstValueThatDoesNotConvertEndsReadingQuietly) {
  const auto loaded = Load({{"SizeX", std::int16_t{9}},
                            {"ElementType", std::int32_t{4}},
                            {"ZoomFactor", string("large")},
                            {"FocusColor", std::int32_t{1}}});
  EXPECT_EQ(loaded->SizeX(), 9);
  EXPECT_EQ(loaded->ElementType(), Rect);
  EXPECT_EQ(loaded->ZoomFactor(), 0);
  EXPECT_EQ(loaded->FocusColor(), 0);
  EXPECT_EQ(loaded->XElementSize(), XSizeBig);
  EXPECT_EQ(loaded->LEDTypeLayer1(), HarddiskLed);
}

TEST_F(ElementStorage, AValueOutsideItsTypeEndsReadingQuietly) {
  const auto loaded = Load({{"FocusWidth", std::int32_t{256}}, {"WizardOn", True}});
  EXPECT_EQ(loaded->FocusWidth(), 0);
  EXPECT_EQ(loaded->WizardOn(), False);
}

TEST_F(ElementStorage, ALayoutWithoutAResultEndsReadingQuietly) {
  platform.TheScreen().TwipsPerPixel(1e9F, 15);
  const auto loaded = Load({{"SizeX", std::int16_t{32767}}, {"FocusColor", std::int32_t{1}}});
  EXPECT_EQ(loaded->ZoomFactor(), 100);
  EXPECT_EQ(loaded->FocusColor(), 0);
}

/// A bag whose third storing fails.
class FullBag : public MemoryBag {
 public:
  void Store(std::string_view key, BagValue value) override {
    if (All().size() == 2) throw Failure(FailureKind::Platform, "the bag is full");
    MemoryBag::Store(key, std::move(value));
  }
};

TEST_F(ElementStorage, ABagThatFailsEndsWritingQuietly) {
  FullBag bag;
  EXPECT_NO_THROW(element->UserControl_WriteProperties(bag));
  EXPECT_EQ(Keys(bag), (Names{"SizeX", "ElementType"}));
}

TEST(BagValues, BooleansKeepTheir16BitValueAsNumbers) {
  EXPECT_EQ(BagToInt32(True), -1);
  EXPECT_EQ(BagToInt16(Boolean::Raw(1)), 1);
  EXPECT_EQ(KindOf([] { BagToUInt8(True); }), FailureKind::Overflow);
}

TEST(BagValues, AnyNumberButZeroIsTrue) {
  EXPECT_EQ(BagToBoolean(std::int32_t{2}), True);
  EXPECT_EQ(BagToBoolean(std::uint8_t{1}), True);
  EXPECT_EQ(BagToBoolean(0.25), True);
  EXPECT_EQ(BagToBoolean(string("0")), False);
  EXPECT_EQ(BagToBoolean(string("True")), True);
  EXPECT_EQ(BagToBoolean(string("FALSE")), False);
  EXPECT_EQ(KindOf([] { BagToBoolean(string("Truely")); }), FailureKind::Conversion);
  EXPECT_EQ(BagToBoolean(Boolean::Raw(2)), Boolean::Raw(2));
}

TEST(BagValues, NumbersOutsideTheTypeAreOverflows) {
  EXPECT_EQ(KindOf([] { BagToInt16(std::int32_t{32768}); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { BagToInt32(1e10); }), FailureKind::Overflow);
  EXPECT_EQ(KindOf([] { BagToUInt8(std::int16_t{-1}); }), FailureKind::Overflow);
}

TEST(BagValues, NumbersBecomeDecimalText) {
  EXPECT_EQ(BagToString(std::int32_t{-5}), "-5");
  EXPECT_EQ(BagToString(std::uint8_t{200}), "200");
  EXPECT_EQ(BagToString(0.5), "0.5");
  EXPECT_EQ(BagToString(std::int32_t{INT32_MIN}), "-2147483648");
}

}  // namespace
}  // namespace plexel
