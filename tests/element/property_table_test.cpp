#include "element/property_table.h"

#include <gmock/gmock.h>

#include <set>
#include <stdexcept>

#include "element/name_index.h"
#include "element_fixture.h"

namespace plexel {
namespace {

class PropertyTableOfElement : public ElementTest {
 protected:
  void SetByName(std::string_view name, PropertyData value) { Set(*element, *FindProperty(name), value); }
  PropertyData GetByName(std::string_view name) { return Get(*element, *FindProperty(name)); }
};

TEST_F(PropertyTableOfElement, RowsStandInTheOrderOfTheInterface) {
  Names names;
  for (const PropertyRow& row : PropertyTable()) names.emplace_back(row.name);
  EXPECT_THAT(
      names,
      testing::ElementsAre(
          "DPIFontScaleFactor", "ParentWindow", "WizardOptions", "XElementSize", "FocusVisible", "FocusWidth",
          "FocusColor", "WizardOn", "DeviceType", "SizeY", "SizeX", "ElementType", "ZoomFactor", "LEDTypeLayer1",
          "LEDTypeLayer2", "LEDTypeLayer3", "LEDTypeLayer4", "ReleaseKeyDefLayer1", "ReleaseKeyDefLayer2",
          "ReleaseKeyDefLayer3", "ReleaseKeyDefLayer4", "PressKeyDefLayer1", "PressKeyDefLayer2", "PressKeyDefLayer3",
          "PressKeyDefLayer4", "OriginalPosX", "OriginalPosY", "HardwareNumberKey", "HardwareNumberKey1",
          "HardwareNumberKey2", "HardwareNumberKey3", "HardwareNumberKey4", "HardwareNumberKey5", "HardwareNumberKey6",
          "HardwareNumberKey7", "HardwareNumberLed", "HardwareNumberButton", "ShowDefined", "KeyDefinedColor",
          "TactisBaseElementScanCodeBuffer", "ShowX", "VantaEnabled", "TargetSystem", "ButtonNotes", "ShowXPermanent"));
}

TEST_F(PropertyTableOfElement, EveryStoredKeyHasItsPlaceInTheOrderOfReadingForItsNumber) {
  std::size_t stored = 0;
  for (const PropertyRow& row : PropertyTable()) {
    if (row.storage.readOrder == 0) continue;
    ++stored;
    EXPECT_EQ(StoredKeyNumber(row.storage.key), static_cast<std::size_t>(row.storage.readOrder - 1)) << row.name;
    EXPECT_EQ(StoredKey(StoredKeyNumber(row.storage.key)), row.storage.key);
  }
  EXPECT_EQ(stored, StoredKeyCount);
  EXPECT_THROW(StoredKey(StoredKeyCount), std::out_of_range);
}

TEST_F(PropertyTableOfElement, AnyOtherKeyHasNoNumber) {
  for (const char* key : {"", "SizeY", "LEDTypeLayer1", "sizeX", "SizeX ", "LedType5"}) {
    EXPECT_EQ(StoredKeyNumber(key), StoredKeyCount) << key;
  }
}

TEST(NameIndex, TheStartOfANameIsAnotherTextThoughItLiesWhereTheNameDoes) {
  static constexpr std::string_view name = "fooa", start = name.substr(0, 1);
  static constexpr NameIndex index{std::array{name}};
  constexpr std::size_t slots = 128;
  static_assert(FirstSlotOfName(name.size(), name.front(), name.back(), slots) ==
                FirstSlotOfName(start.size(), start.front(), start.back(), slots));
  EXPECT_EQ(index.Find(name), 0U);
  EXPECT_EQ(index.Find(std::string(name)), 0U);
  EXPECT_EQ(index.Find(start), 1U);
  EXPECT_EQ(index.Find(""), 1U);
}

TEST_F(PropertyTableOfElement, WholeNumbersAndBooleansAreSetWithoutAWayAround) {
  int whole = 0;
  for (const PropertyRow& row : PropertyTable()) {
    EXPECT_EQ(row.setWhole != nullptr, row.type <= PropertyType::Bool) << row.name;
    if (row.setWhole == nullptr) continue;
    ++whole;
    ASSERT_NE(Get(*element, row), PropertyData(2)) << row.name;
    row.setWhole(*element, 2);
    EXPECT_EQ(Get(*element, row), PropertyData(2)) << row.name;
  }
  EXPECT_EQ(whole, 32);
}

TEST_F(PropertyTableOfElement, EveryRowIsFoundByItsName) {
  for (const PropertyRow& row : PropertyTable()) EXPECT_EQ(FindProperty(row.name), &row) << row.name;
}

TEST_F(PropertyTableOfElement, UnknownNamesAreNotFound) {
  for (const char* name :
       {"", "S", "sizex", "SizeX ", "SizeZ", "LedType1", "mbDialogOpen", "HardwareNumberKey0", "HardwareNumberKey8"}) {
    EXPECT_EQ(FindProperty(name), nullptr) << name;
  }
}

TEST_F(PropertyTableOfElement, EveryValueThatIsSetIsGot) {
  int rows = 0;
  for (const PropertyRow& row : PropertyTable()) {
    if (row.set == nullptr) continue;
    PropertyData value = 7;
    if (row.type == PropertyType::String) value = "text";
    if (row.type == PropertyType::Double) value = 1.25;
    Set(*element, row, value);
    EXPECT_EQ(Get(*element, row), value) << row.name;
    ++rows;
  }
  EXPECT_EQ(rows, 43);
}

TEST_F(PropertyTableOfElement, PropertiesWithAValueNoticeAreTheseAndNoOthers) {
  std::set<std::string_view> byValue, silent;
  for (const PropertyRow& row : PropertyTable()) {
    if (row.notice == NoticeStyle::Value) byValue.insert(row.name);
    if (row.notice == NoticeStyle::None) silent.insert(row.name);
  }
  EXPECT_THAT(byValue, testing::UnorderedElementsAre(
                           "FocusVisible", "FocusWidth", "FocusColor", "WizardOn", "DeviceType", "SizeY", "SizeX",
                           "LEDTypeLayer1", "LEDTypeLayer2", "LEDTypeLayer3", "LEDTypeLayer4", "ReleaseKeyDefLayer1",
                           "ReleaseKeyDefLayer2", "ReleaseKeyDefLayer3", "ReleaseKeyDefLayer4", "PressKeyDefLayer1",
                           "PressKeyDefLayer2", "PressKeyDefLayer3", "PressKeyDefLayer4", "OriginalPosX",
                           "OriginalPosY", "HardwareNumberLed", "HardwareNumberButton"));
  EXPECT_THAT(silent, testing::UnorderedElementsAre("DPIFontScaleFactor", "ParentWindow",
                                                    "TactisBaseElementScanCodeBuffer", "VantaEnabled"));
}

TEST_F(PropertyTableOfElement, EverySetterAnnouncesAsItsRowSays) {
  for (const PropertyRow& row : PropertyTable()) {
    if (row.set == nullptr) continue;
    PropertyData value = 7;
    if (row.type == PropertyType::String) value = "text";
    if (row.type == PropertyType::Double) value = 1.25;
    host.Forget();
    Set(*element, row, value);
    const Values notices = host.Notices();
    if (row.notice == NoticeStyle::None) {
      EXPECT_TRUE(notices.empty()) << row.name;
    } else {
      ASSERT_FALSE(notices.empty()) << row.name;
      EXPECT_EQ(notices.front(), row.notice == NoticeStyle::Name ? PropertyData(std::string(row.name)) : value)
          << row.name;
    }
  }
}

TEST_F(PropertyTableOfElement, ZoomAndXSizeAnnounceBothSizesBehindTheirNames) {
  element->SizeX(3);
  element->SizeY(4);
  host.Forget();
  element->ZoomFactor(50);
  element->XElementSize(XSizeSmall);
  const Values expected = {"ZoomFactor", 3, 4, "XElementSize", 3, 4};
  EXPECT_EQ(host.Notices(), expected);
}

TEST_F(PropertyTableOfElement, TextIsReadAsANumber) {
  SetByName("SizeX", " 25 ");
  EXPECT_EQ(GetByName("SizeX"), PropertyData(25));
}

TEST_F(PropertyTableOfElement, FractionsAreRoundedToTheEvenNumber) {
  SetByName("SizeX", 2.5);
  EXPECT_EQ(GetByName("SizeX"), PropertyData(2));
  SetByName("SizeX", 3.5);
  EXPECT_EQ(GetByName("SizeX"), PropertyData(4));
}

TEST_F(PropertyTableOfElement, NumbersBecomeText) {
  SetByName("ButtonNotes", -12);
  EXPECT_EQ(GetByName("ButtonNotes"), PropertyData("-12"));
  SetByName("ButtonNotes", 0.5);
  EXPECT_EQ(GetByName("ButtonNotes"), PropertyData("0.5"));
}

TEST_F(PropertyTableOfElement, AFactorTakesIntegersAndText) {
  SetByName("DPIFontScaleFactor", 2);
  EXPECT_EQ(GetByName("DPIFontScaleFactor"), PropertyData(2.0));
  SetByName("DPIFontScaleFactor", "1.5");
  EXPECT_EQ(GetByName("DPIFontScaleFactor"), PropertyData(1.5));
}

TEST_F(PropertyTableOfElement, ValuesAtTheLimitsOfTheirTypesFit) {
  SetByName("SizeX", 32767);
  SetByName("SizeX", -32768);
  SetByName("FocusWidth", 0);
  SetByName("FocusWidth", 255);
  SetByName("ShowX", 32767);
  SetByName("FocusColor", INT32_MIN);
  EXPECT_EQ(GetByName("SizeX"), PropertyData(-32768));
  EXPECT_EQ(GetByName("FocusWidth"), PropertyData(255));
  EXPECT_EQ(GetByName("ShowX"), PropertyData(32767));
  EXPECT_EQ(GetByName("FocusColor"), PropertyData(INT32_MIN));
}

TEST_F(PropertyTableOfElement, ValuesOutsideTheirTypesAreOverflowsAndChangeNothing) {
  const std::vector<std::pair<std::string, PropertyData>> attempts = {
      {"SizeX", 32768}, {"SizeX", -32769},     {"FocusWidth", 256},          {"FocusWidth", -1},
      {"ShowX", 32768}, {"FocusColor", 3.0e9}, {"FocusColor", "2147483648"}, {"DPIFontScaleFactor", "1e999"}};
  for (const auto& [name, value] : attempts) {
    const PropertyData before = GetByName(name);
    EXPECT_EQ(KindOf([&, n = name, v = value] { SetByName(n, v); }), FailureKind::Overflow) << name;
    EXPECT_EQ(GetByName(name), before) << name;
  }
  EXPECT_TRUE(host.Heard().empty());
}

TEST_F(PropertyTableOfElement, TextThatIsNoNumberIsAConversionFailure) {
  EXPECT_EQ(KindOf([&] { SetByName("SizeX", "wide"); }), FailureKind::Conversion);
  EXPECT_EQ(KindOf([&] { SetByName("DPIFontScaleFactor", ""); }), FailureKind::Conversion);
}

TEST_F(PropertyTableOfElement, FailuresNameTheProperty) {
  for (const PropertyData& value : {PropertyData("wide"), PropertyData(70000), PropertyData(1e99)}) {
    try {
      SetByName("SizeX", value);
      ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
      EXPECT_THAT(failure.what(), testing::StartsWith("SizeX: "));
    }
  }
}

TEST_F(PropertyTableOfElement, ObjectsAndRecordsAreNoValues) {
  for (const char* name : {"ParentWindow", "TactisBaseElementScanCodeBuffer"}) {
    EXPECT_EQ(KindOf([&] { SetByName(name, 1); }), FailureKind::InvalidCall) << name;
    try {
      GetByName(name);
      ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Kind(), FailureKind::InvalidCall) << name;
      EXPECT_EQ(failure.what(), std::string(name) + " is not a value");
    }
  }
}

TEST_F(PropertyTableOfElement, AFailureOfTheSetterComesThroughUnchanged) {
  element->ZoomFactor(100);
  platform.faults.Turn(Fault::Screen, true);
  EXPECT_EQ(KindOf([&] { SetByName("SizeX", 5); }), FailureKind::Platform);
}

}  // namespace
}  // namespace plexel
