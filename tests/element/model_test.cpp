#include <algorithm>
#include <cmath>

#include "element/element_access.h"
#include "element/property_table.h"
#include "element_fixture.h"

namespace plexel {
namespace {

class Element : public ElementTest {};

TEST_F(Element, ANewOneHasNoLedFunctionInAnyLayer) {
  EXPECT_EQ(element->LEDTypeLayer1(), LedNotEnabled);
  EXPECT_EQ(element->LEDTypeLayer2(), LedNotEnabled);
  EXPECT_EQ(element->LEDTypeLayer3(), LedNotEnabled);
  EXPECT_EQ(element->LEDTypeLayer4(), LedNotEnabled);
}

TEST_F(Element, ANewOneHasNoKeyInTheMatrix) {
  EXPECT_EQ(element->HardwareNumberKey(), -1);
  EXPECT_EQ(element->HardwareNumberKey1(), -1);
  EXPECT_EQ(element->HardwareNumberKey2(), -1);
  EXPECT_EQ(element->HardwareNumberKey3(), -1);
  EXPECT_EQ(element->HardwareNumberKey4(), -1);
  EXPECT_EQ(element->HardwareNumberKey5(), -1);
  EXPECT_EQ(element->HardwareNumberKey6(), -1);
  EXPECT_EQ(element->HardwareNumberKey7(), -1);
}

TEST_F(Element, ANewOneHasZeroOrEmptyEverywhereElse) {
  const Names set = {"LEDTypeLayer1",      "LEDTypeLayer2",      "LEDTypeLayer3",      "LEDTypeLayer4",
                     "HardwareNumberKey",  "HardwareNumberKey1", "HardwareNumberKey2", "HardwareNumberKey3",
                     "HardwareNumberKey4", "HardwareNumberKey5", "HardwareNumberKey6", "HardwareNumberKey7",
                     "DPIFontScaleFactor"};
  int rows = 0;
  for (const PropertyRow& row : PropertyTable()) {
    if (row.get == nullptr || std::find(set.begin(), set.end(), row.name) != set.end()) continue;
    const PropertyData expected = row.type == PropertyType::String ? PropertyData("") : PropertyData(0);
    EXPECT_EQ(Get(*element, row), expected) << row.name;
    ++rows;
  }
  EXPECT_EQ(rows, 30);
  EXPECT_EQ(element->ParentWindow(), nullptr);
}

TEST_F(Element, ANewOneHasAFontScaleOfOne) { EXPECT_EQ(element->DPIFontScaleFactor(), 1.0); }

TEST_F(Element, ANewOneHas45EndMarksInEachSequence) {
  auto info = element->TactisBaseElementScanCodeBuffer();
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    for (const auto* buffer : {PressBuffer(info, layer), ReleaseBuffer(info, layer)}) {
      EXPECT_EQ(std::count(buffer->Value.begin(), buffer->Value.begin() + 45, 0xFF), 45);
      EXPECT_EQ(std::count(buffer->Value.begin() + 45, buffer->Value.end(), 0), 44);
      EXPECT_EQ(buffer->NextValue, 0);
    }
  }
}

TEST_F(Element, ItsMakingAnnouncesKeyNumbersThenLedFunctions) {
  component.Create("New", host);
  const Values expected = {"HardwareNumberKey",
                           "HardwareNumberKey1",
                           "HardwareNumberKey2",
                           "HardwareNumberKey3",
                           "HardwareNumberKey4",
                           "HardwareNumberKey5",
                           "HardwareNumberKey6",
                           "HardwareNumberKey7",
                           13,
                           13,
                           13,
                           13};
  EXPECT_EQ(host.Notices(), expected);
}

TEST_F(Element, AScreenThatFailsEndsItsMakingQuietly) {
  platform.faults.Turn(Fault::Screen, true);
  const auto broken = component.Create("Broken", host);
  EXPECT_EQ(broken->DPIFontScaleFactor(), 0.0);
  EXPECT_EQ(broken->HardwareNumberKey(), 0);
  EXPECT_EQ(broken->LEDTypeLayer1(), LedNotEnabled);
  EXPECT_FALSE(broken->SurfaceObjects().Picture);
}

TEST_F(Element, AScreenWithoutAFiniteMeasureEndsItsMakingQuietly) {
  platform.TheScreen().TwipsPerPixel(HUGE_VALF, 15);
  const auto broken = component.Create("Broken", host);
  EXPECT_EQ(broken->DPIFontScaleFactor(), 0.0);
  EXPECT_EQ(broken->HardwareNumberKey7(), 0);
}

TEST_F(Element, TheScreenIsAskedAnewForEachMeasureOfBothShapes) {
  for (const std::int64_t call : {1, 8}) {
    platform.faults.Arm(Fault::Screen, call);
    EXPECT_EQ(component.Create("Broken", host)->HardwareNumberKey(), 0) << call;
  }
  platform.faults.Arm(Fault::Screen, 9);
  EXPECT_EQ(component.Create("Whole", host)->HardwareNumberKey(), -1);
}

TEST_F(Element, TerminatingLeavesTheKindAtZeroAndAnnouncesIt) {
  element->ElementType(RectLed);
  host.Forget();
  element->UserControl_Terminate();
  EXPECT_EQ(element->ElementType(), 0);
  EXPECT_EQ(host.Notices(), Values{"ElementType"});
}

TEST_F(Element, AfterTerminatingTheFocusShapesStayAsTheyAre) {
  element->ElementType(Rect);
  element->FocusVisible(True);
  element->UpdateFocus();
  element->UserControl_Terminate();
  element->UpdateFocus();
  EXPECT_TRUE(Shown().shpRect.Visible);
  EXPECT_FALSE(Shown().shpOval.Visible);
}

TEST_F(Element, AfterTerminatingItIsNotDefined) {
  element->ElementType(Rect);
  element->PressKeyDefLayer1("[a]");
  element->UserControl_Terminate();
  element->ShowDefined(True);
  EXPECT_FALSE(Shown().linOK1.Visible);
}

TEST_F(Element, ABooleanKeepsTheValueOne) {
  element->ShowX(Boolean::Raw(1));
  EXPECT_EQ(element->ShowX(), Boolean::Raw(1));
}

TEST_F(Element, ABooleanOfOneIsNotTrueButNotFalseEither) {
  element->ElementType(Rect);
  element->FocusVisible(True);
  element->ShowX(Boolean::Raw(1));
  element->UpdateFocus();
  EXPECT_FALSE(Shown().linX1.Visible);

  element->ShowXPermanent(True);
  element->ShowX(False);
  element->FocusVisible(Boolean::Raw(1));
  element->UserControl_LostFocus();
  EXPECT_TRUE(Shown().linX1.Visible);
}

TEST_F(Element, ASetterStoresBeforeItAnnounces) {
  std::int32_t seen = -1;
  host.onEvent = [&](const HostEvent&) { seen = element->SizeX(); };
  element->SizeX(42);
  EXPECT_EQ(seen, 42);
}

TEST_F(Element, ASetterAnnouncesBeforeItActs) {
  element->ZoomFactor(100);
  float seen = -1;
  host.onEvent = [&](const HostEvent&) { seen = Shown().Width; };
  element->SizeX(20);
  EXPECT_EQ(seen, 495);
  EXPECT_EQ(Shown().Width, 300);
}

TEST_F(Element, AFailingContainerReachesTheCallerOfASetterAndTheValueStays) {
  host.onEvent = [](const HostEvent&) { throw Failure(FailureKind::Handler, "container"); };
  EXPECT_EQ(KindOf([&] { element->SizeX(5); }), FailureKind::Handler);
  EXPECT_EQ(element->SizeX(), 5);
}

TEST_F(Element, TheParentWindowIsKeptWhenItIsAForm) {
  const auto form = std::make_shared<HostForm>();
  element->ParentWindow(form);
  EXPECT_EQ(element->ParentWindow(), form);
  EXPECT_TRUE(host.Heard().empty());
}

TEST_F(Element, AnObjectThatIsNoFormLeavesTheParentWindow) {
  const auto form = std::make_shared<HostForm>();
  element->ParentWindow(form);
  element->ParentWindow(std::make_shared<PlainHostObject>());
  EXPECT_EQ(element->ParentWindow(), form);
}

TEST_F(Element, NothingTakesTheParentWindowAway) {
  element->ParentWindow(std::make_shared<HostForm>());
  element->ParentWindow(nullptr);
  EXPECT_EQ(element->ParentWindow(), nullptr);
}

TEST_F(Element, LayersAreReachedByNumber) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    const std::string number = std::to_string(layer);
    element->LEDTypeLayer(layer, static_cast<enumLedType>(layer));
    element->PressKeyDefLayer(layer, "p" + number);
    element->ReleaseKeyDefLayer(layer, "r" + number);
  }
  EXPECT_EQ(element->LEDTypeLayer1(), 1);
  EXPECT_EQ(element->LEDTypeLayer4(), 4);
  EXPECT_EQ(element->PressKeyDefLayer2(), "p2");
  EXPECT_EQ(element->ReleaseKeyDefLayer3(), "r3");
  EXPECT_EQ(element->LEDTypeLayer(3), 3);
  EXPECT_EQ(element->PressKeyDefLayer(4), "p4");
  EXPECT_EQ(element->ReleaseKeyDefLayer(1), "r1");
}

TEST_F(Element, LayersOutsideOneToFourAreIndexFailures) {
  for (const std::int32_t layer : {0, 5, -1, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(KindOf([&] { element->LEDTypeLayer(layer); }), FailureKind::Index) << layer;
    EXPECT_EQ(KindOf([&] { element->LEDTypeLayer(layer, RunLed); }), FailureKind::Index) << layer;
    EXPECT_EQ(KindOf([&] { element->PressKeyDefLayer(layer, ""); }), FailureKind::Index) << layer;
    EXPECT_EQ(KindOf([&] { element->ReleaseKeyDefLayer(layer); }), FailureKind::Index) << layer;
  }
}

TEST_F(Element, AnIndexFailureTellsTheNumber) {
  try {
    element->LEDTypeLayer(5);
    ADD_FAILURE() << "no failure";
  } catch (const Failure& failure) {
    EXPECT_STREQ(failure.what(), "number 5 is out of range");
  }
}

TEST_F(Element, KeyNumbersAreReachedByIndexWithTheirOwnNotices) {
  for (std::int32_t index = 0; index < 8; ++index) element->HardwareNumberKeyAt(index, 100 + index);
  EXPECT_EQ(element->HardwareNumberKey(), 100);
  EXPECT_EQ(element->HardwareNumberKey7(), 107);
  EXPECT_EQ(element->HardwareNumberKeyAt(3), 103);
  EXPECT_EQ(host.Notices().front(), HostEvent::Value("HardwareNumberKey"));
  EXPECT_EQ(host.Notices().back(), HostEvent::Value("HardwareNumberKey7"));
  EXPECT_EQ(KindOf([&] { element->HardwareNumberKeyAt(8); }), FailureKind::Index);
  EXPECT_EQ(KindOf([&] { element->HardwareNumberKeyAt(-1, 0); }), FailureKind::Index);
}

TEST_F(Element, EnumerationsHoldAnyValue) {
  element->LEDTypeLayer1(static_cast<enumLedType>(INT32_MIN));
  element->ElementType(static_cast<enumTactisBaseElementType>(4711));
  EXPECT_EQ(element->LEDTypeLayer1(), INT32_MIN);
  EXPECT_EQ(element->ElementType(), 4711);
}

TEST_F(Element, WithoutAHostNoticesAndEventsGoNowhere) {
  element->Detach();
  element->SizeX(5);
  element->UserControl_GotFocus();
  element->UserControl_MouseUp(1, 0, 1, 1);
  element->UserControl_DblClick();
  ElementAccess::RaiseProjectModified(*element);
  ElementAccess::RaiseDirectInputStatusChanged(*element, True);
  EXPECT_TRUE(host.Heard().empty());
  EXPECT_EQ(element->SizeX(), 5);
}

TEST_F(Element, ItRaisesTheEventsOfItsDialogs) {
  ElementAccess::RaiseDirectInputStatusChanged(*element, True);
  ElementAccess::RaiseProjectModified(*element);
  const std::vector<HostEvent> expected = {{"A", "DirectInputStatusChanged", {-1}}, {"A", "ProjectModified", {}}};
  EXPECT_EQ(host.Events(), expected);
}

TEST_F(Element, ShowDefinedMakesItTheCurrentElement) {
  element->ShowDefined(False);
  EXPECT_EQ(Module().ctlCurrentElement, element);
}

TEST_F(Element, ItTakesAtMost4KiB) { EXPECT_LE(sizeof(ctlPlexelBaseElement), 4096U); }

}  // namespace
}  // namespace plexel
