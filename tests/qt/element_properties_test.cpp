#include <gmock/gmock.h>

#include <QMetaEnum>
#include <QMetaProperty>
#include <set>

#include "element/property_table.h"
#include "files/flat_bag.h"
#include "qt/units.h"
#include "widgets.h"

namespace plexel::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

QMetaProperty PropertyOf(std::string_view name) {
  const QMetaObject& meta = ElementWidget::staticMetaObject;
  return meta.property(meta.indexOfProperty(std::string(name).c_str()));
}

/// A value of a property, other than that of a new element, for the element and for the widget.
struct Sample {
  PropertyData data;
  QVariant value;
};

Sample SampleOf(const PropertyRow& row, const QMetaProperty& property) {
  switch (row.type) {
    case PropertyType::Double:
      return {1.5, 1.5};
    case PropertyType::String:
      return {std::string("[\u00E9\u2039\u203A]"), QString("[\u00E9\u2039\u203A]")};
    case PropertyType::Bool:
      return {std::int32_t{-1}, true};
    default:
      break;
  }
  if (property.metaType() == QMetaType::fromType<QColor>()) return {0x332211, QColor(0x11, 0x22, 0x33)};
  return {2, 2};
}

TEST_F(Widgets, EveryPropertyOfTheElementIsOneOfTheWidgetInTheSameOrder) {
  std::vector<std::string> elements, widgets;
  for (const PropertyRow& row : PropertyTable()) {
    if (row.set != nullptr) elements.emplace_back(row.name);
  }
  const QMetaObject& meta = ElementWidget::staticMetaObject;
  for (int place = meta.propertyOffset(); place < meta.propertyCount(); ++place) {
    widgets.emplace_back(meta.property(place).name());
  }
  ASSERT_GT(widgets.size(), 2U);
  EXPECT_THAT(std::vector(widgets.end() - 2, widgets.end()), ElementsAre("FaceVisible", "Legend"));
  widgets.resize(widgets.size() - 2);
  EXPECT_EQ(widgets, elements);
  EXPECT_EQ(elements.size(), 43U);
}

TEST_F(Widgets, EveryPropertyGoesIntoTheElementAndComesBack) {
  for (const PropertyRow& row : PropertyTable()) {
    if (row.set == nullptr) continue;
    SCOPED_TRACE(row.name);
    const QMetaProperty property = PropertyOf(row.name);
    const Sample sample = SampleOf(row, property);
    ASSERT_NE(Get(first.Element(), row), sample.data);
    ASSERT_TRUE(property.write(&first, sample.value));
    EXPECT_EQ(Get(first.Element(), row), sample.data);
    ASSERT_NE(property.read(&second), sample.value);
    Set(second.Element(), row, sample.data);
    const QVariant read = property.read(&second);
    EXPECT_EQ(property.isEnumType() ? QVariant(read.toInt()) : read, sample.value);
  }
  EXPECT_TRUE(failures.empty());
}

TEST_F(Widgets, ThePropertiesHaveTypesThatADesignerKnows) {
  std::set<std::string> enumerations, colours;
  for (const PropertyRow& row : PropertyTable()) {
    if (row.set == nullptr) continue;
    SCOPED_TRACE(row.name);
    const QMetaProperty property = PropertyOf(row.name);
    if (row.type == PropertyType::Bool) {
      EXPECT_EQ(property.metaType(), QMetaType::fromType<bool>());
    }
    if (row.type == PropertyType::Double) {
      EXPECT_EQ(property.metaType(), QMetaType::fromType<double>());
    }
    if (row.type == PropertyType::String) {
      EXPECT_EQ(property.metaType(), QMetaType::fromType<QString>());
    }
    if (property.isEnumType()) enumerations.insert(property.enumerator().enumName());
    if (property.metaType() == QMetaType::fromType<QColor>()) colours.insert(property.name());
  }
  EXPECT_THAT(enumerations, ElementsAre("ElementKind", "LedFunction", "MarkSize", "WizardOption"));
  EXPECT_THAT(colours, ElementsAre("FocusColor", "KeyDefinedColor"));
}

TEST_F(Widgets, AnEnumerationIsSetByTheNameOfItsValue) {
  EXPECT_TRUE(first.setProperty("ElementType", "OvalLed"));
  EXPECT_EQ(first.Element().ElementType(), plexel::OvalLed);
  EXPECT_TRUE(first.setProperty("LEDTypeLayer3", "RunLed"));
  EXPECT_EQ(first.Element().LEDTypeLayer3(), plexel::RunLed);
  EXPECT_TRUE(first.setProperty("WizardOptions", "ManuallyDefined"));
  EXPECT_EQ(first.Element().WizardOptions(), plexel::ManuallyDefined);
  EXPECT_TRUE(first.setProperty("XElementSize", "XSizeSmall"));
  EXPECT_EQ(first.Element().XElementSize(), plexel::XSizeSmall);
}

TEST_F(Widgets, EveryValueOfAnEnumerationHasItsName) {
  const QMetaEnum functions = QMetaEnum::fromType<ElementWidget::LedFunction>();
  ASSERT_EQ(functions.keyCount(), 15);
  for (int place = 0; place < functions.keyCount(); ++place) EXPECT_EQ(functions.value(place), place);
  EXPECT_EQ(QMetaEnum::fromType<ElementWidget::ElementKind>().keyCount(), 7);
  EXPECT_EQ(QMetaEnum::fromType<ElementWidget::WizardOption>().keyCount(), 5);
  EXPECT_EQ(QMetaEnum::fromType<ElementWidget::MarkSize>().keyCount(), 3);
}

TEST_F(Widgets, ANumberOutsideItsRangeIsReportedAndChangesNothing) {
  first.SizeX(40000);
  first.FocusWidth(256);
  EXPECT_EQ(first.SizeX(), 56);
  EXPECT_EQ(first.FocusWidth(), 0);
  EXPECT_THAT(failures, ElementsAre(HasSubstr("SizeX"), HasSubstr("FocusWidth")));
}

TEST_F(Widgets, ABagKeepsWhatAnElementStores) {
  first.PressKeyDefLayer2("[F1\u2039\u203A]");
  first.ButtonNotes("left of the door");
  first.FocusColor(Qt::blue);
  FlatBag bag;
  first.WriteProperties(bag);
  second.ReadProperties(bag);
  EXPECT_EQ(second.PressKeyDefLayer2(), "[F1\u2039\u203A]");
  EXPECT_EQ(second.ButtonNotes(), "left of the door");
  EXPECT_EQ(second.FocusColor(), QColor(Qt::blue));
  EXPECT_EQ(second.SizeX(), 56);
}

TEST_F(Widgets, AfterReadingABagTheCodesAreThoseOfANewElement) {
  udtTactisBaseElement_ScanCodeInfo record = first.Element().TactisBaseElementScanCodeBuffer();
  record.strLayer1PressScanCode.Value[0] = 0x05;
  record.strLayer4ReleaseScanCode.NextValue = 3;
  first.Element().TactisBaseElementScanCodeBuffer(record);
  first.ReadProperties(FlatBag());
  record = first.Element().TactisBaseElementScanCodeBuffer();
  EXPECT_EQ(record.strLayer1PressScanCode, InitialCodes());
  EXPECT_EQ(record.strLayer4ReleaseScanCode, InitialCodes());
}

TEST_F(Widgets, AfterReadingABagTheFocusIsWhereItWas) {
  second.setFocus();
  FlatBag bag;
  second.WriteProperties(bag);
  first.ReadProperties(bag);
  second.ReadProperties(FlatBag());
  EXPECT_FALSE(first.FocusVisible());
  EXPECT_TRUE(second.FocusVisible());
}

}  // namespace
}  // namespace plexel::testing
