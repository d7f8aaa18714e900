#include "element/defined_marker.h"
#include "element/element_access.h"
#include "element_fixture.h"

namespace plexel {
namespace {

class ElementInteraction : public ElementTest {};

TEST_F(ElementInteraction, TakingTheFocusSendsTheDefinitionInLayersPressBeforeRelease) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    element->PressKeyDefLayer(layer, "p" + std::to_string(layer));
    element->ReleaseKeyDefLayer(layer, "r" + std::to_string(layer));
    element->LEDTypeLayer(layer, static_cast<enumLedType>(layer));
  }
  host.Forget();
  element->UserControl_GotFocus();
  const std::vector<HostEvent> expected = {
      {"A", "SendKeyDefinition", {"p1", "r1", "p2", "r2", "p3", "r3", "p4", "r4", 1, 2, 3, 4}}};
  EXPECT_EQ(host.Heard(), expected);
}

TEST(KeyDefinitionOfAHost, ShowsNoFunctionUntilItIsGivenOne) {
  const KeyDefinition none;
  EXPECT_EQ(none.LEDTypeLayer1, 0);
  EXPECT_EQ(none.LEDTypeLayer2, 0);
  EXPECT_EQ(none.LEDTypeLayer3, 0);
  EXPECT_EQ(none.LEDTypeLayer4, 0);
}

TEST_F(ElementInteraction, TheDefinitionIsSentBeforeTheFocusIsShown) {
  element->ElementType(Rect);
  element->FocusVisible(True);
  bool shownAtEvent = true;
  host.onEvent = [&](const HostEvent&) { shownAtEvent = Shown().shpRect.Visible; };
  element->UserControl_GotFocus();
  EXPECT_FALSE(shownAtEvent);
  EXPECT_TRUE(Shown().shpRect.Visible);
}

TEST_F(ElementInteraction, AFailingListenerOfTheFocusReachesTheCallerBeforeTheFocusIsShown) {
  element->ElementType(Rect);
  element->FocusVisible(True);
  platform.faults.Turn(Fault::HandlerSendKeyDefinition, true);
  EXPECT_EQ(KindOf([&] { element->UserControl_GotFocus(); }), FailureKind::Handler);
  EXPECT_FALSE(Shown().shpRect.Visible);
}

/// A host that writes to the arguments of its events.
class WritingHost : public RecordingHost {
 public:
  using RecordingHost::RecordingHost;
  void SendKeyDefinition(ctlPlexelBaseElement&, KeyDefinition& definition) override {
    definition.strLayer1Press = "changed";
    definition.LEDTypeLayer1 = 0;
  }
};

TEST_F(ElementInteraction, WhatAListenerWritesToTheDefinitionIsLost) {
  WritingHost writing(platform.faults);
  const auto other = component.Create("B", writing);
  other->UserControl_GotFocus();
  EXPECT_EQ(other->PressKeyDefLayer1(), "");
  EXPECT_EQ(other->LEDTypeLayer1(), LedNotEnabled);
}

TEST_F(ElementInteraction, AHostMayLetTheElementGoWhileItTakesTheFocus) {
  const std::weak_ptr<ctlPlexelBaseElement> watched = element;
  ctlPlexelBaseElement* const raw = element.get();
  host.onEvent = [&](const HostEvent&) { element.reset(); };
  raw->UserControl_GotFocus();
  EXPECT_TRUE(watched.expired());
}

TEST_F(ElementInteraction, AMouseUpIsPassedOnWithItsValues) {
  element->UserControl_MouseUp(2, 5, 12.5F, 7);
  const std::vector<HostEvent> expected = {{"A", "MouseClicked", {2, 5, 12.5, 7.0}}};
  EXPECT_EQ(host.Heard(), expected);
}

TEST_F(ElementInteraction, AFailingListenerOfTheMouseIsNotHeardOf) {
  platform.faults.Turn(Fault::HandlerMouseClicked, true);
  EXPECT_NO_THROW(element->UserControl_MouseUp(1, 0, 0, 0));
  EXPECT_EQ(host.Count("MouseClicked"), 1);
}

TEST_F(ElementInteraction, ADoubleClickIsPassedOn) {
  element->UserControl_DblClick();
  EXPECT_EQ(host.EventNames(), Names{"MouseDblClicked"});
}

TEST_F(ElementInteraction, AFailingListenerOfTheDoubleClickIsNotHeardOf) {
  platform.faults.Turn(Fault::HandlerMouseDblClicked, true);
  EXPECT_NO_THROW(element->UserControl_DblClick());
  EXPECT_EQ(host.Count("MouseDblClicked"), 1);
}

TEST_F(ElementInteraction, RefreshTakesTheSettingsOver) {
  HeadlessSettings& settings = surroundings.Settings();
  settings.Parameter(2, "4711");
  settings.Parameter(1, "3");
  settings.Option(3, True);
  settings.Option(4, True);
  settings.Option(2, True);
  settings.Parameter(5, "32768");
  settings.Option(5, True);
  settings.Parameter(0, "2");
  element->Refresh();
  EXPECT_EQ(element->FocusColor(), 4711);
  EXPECT_EQ(element->FocusWidth(), 3);
  EXPECT_EQ(element->ShowX(), True);
  EXPECT_EQ(element->ShowXPermanent(), True);
  EXPECT_EQ(element->WizardOn(), True);
  EXPECT_EQ(element->KeyDefinedColor(), 32768);
  EXPECT_EQ(element->ShowDefined(), True);
  EXPECT_EQ(element->XElementSize(), XSizeSmall);
}

TEST_F(ElementInteraction, RefreshTakesEachOptionFromItsOwnNumber) {
  HeadlessSettings& settings = surroundings.Settings();
  for (const std::int32_t number : {2, 3, 4, 5}) {
    settings.Option(number, True);
    element->Refresh();
    EXPECT_EQ(element->WizardOn(), number == 2 ? True : False) << number;
    EXPECT_EQ(element->ShowX(), number == 3 ? True : False) << number;
    EXPECT_EQ(element->ShowXPermanent(), number == 4 ? True : False) << number;
    EXPECT_EQ(element->ShowDefined(), number == 5 ? True : False) << number;
    settings.Option(number, False);
  }
}

TEST_F(ElementInteraction, RefreshAnnouncesItsStepsInTheirOrder) {
  element->Refresh();
  const Values expected = {255, 1, "ShowX", "ShowXPermanent", 0, "KeyDefinedColor", "ShowDefined", "XElementSize",
                           0,   0};
  EXPECT_EQ(host.Notices(), expected);
}

TEST_F(ElementInteraction, RefreshShowsAPermanentXAndTheTick) {
  element->ElementType(Rect);
  element->PressKeyDefLayer1("[a]");
  surroundings.Settings().Option(4, True);
  surroundings.Settings().Option(5, True);
  element->Refresh();
  EXPECT_TRUE(Shown().linX1.Visible);
  EXPECT_TRUE(Shown().linOK1.Visible);
}

TEST_F(ElementInteraction, RefreshLaysOutWithTheNewFocusWidth) {
  element->ZoomFactor(100);
  element->SizeX(20);
  surroundings.Settings().Parameter(1, "2");
  element->Refresh();
  EXPECT_EQ(Shown().shpRect.Left, 30);
}

TEST_F(ElementInteraction, RefreshOfSeveralLeavesTheLastAsCurrent) {
  const auto other = component.Create("B", host);
  element->Refresh();
  other->Refresh();
  EXPECT_EQ(Module().ctlCurrentElement, other);
}

TEST_F(ElementInteraction, RefreshEndsQuietlyAtASettingThatIsNoNumber) {
  surroundings.Settings().Parameter(5, "green");
  surroundings.Settings().Option(2, True);
  surroundings.Settings().Option(5, True);
  EXPECT_NO_THROW(element->Refresh());
  EXPECT_EQ(element->FocusColor(), 255);
  EXPECT_EQ(element->WizardOn(), True);
  EXPECT_EQ(element->ShowDefined(), False);
}

TEST_F(ElementInteraction, RefreshEndsQuietlyAtAFocusWidthPast255) {
  surroundings.Settings().Parameter(1, "256");
  surroundings.Settings().Option(3, True);
  EXPECT_NO_THROW(element->Refresh());
  EXPECT_EQ(element->FocusColor(), 255);
  EXPECT_EQ(element->ShowX(), False);
}

TEST_F(ElementInteraction, RefreshKeepsTheStepsBeforeAFailingService) {
  surroundings.Settings().Option(3, True);
  for (std::int64_t call = 1; call <= 8; ++call) {
    const auto other = component.Create("B", host);
    platform.faults.Arm(Fault::Settings, call);
    EXPECT_NO_THROW(other->Refresh());
    EXPECT_EQ(other->FocusColor() == 255, call > 1);
    EXPECT_EQ(other->FocusWidth() == 1, call > 2);
    EXPECT_EQ(other->ShowX() == True, call > 3);
    EXPECT_EQ(other->KeyDefinedColor() == 32768, call > 6);
    EXPECT_EQ(other->XElementSize(), XSizeBig);
  }
}

TEST_F(ElementInteraction, TheContainerIsAskedForAnLedFunction) {
  host.LedDefined(RunLed, 3, True);
  EXPECT_EQ(element->CheckIfLedIsAlreadyDefined(RunLed, 3), True);
  EXPECT_EQ(element->CheckIfLedIsAlreadyDefined(RunLed, 2), False);
}

TEST_F(ElementInteraction, AnyAnswerOfTheContainerButZeroBecomesTrue) {
  host.LedDefined(RunLed, 1, Boolean::Raw(1));
  EXPECT_EQ(element->CheckIfLedIsAlreadyDefined(RunLed, 1), True);
}

TEST_F(ElementInteraction, AContainerWithoutTheMemberFailsTheQuestion) {
  host.TakeMemberAway();
  EXPECT_EQ(KindOf([&] { element->CheckIfLedIsAlreadyDefined(RunLed, 1); }), FailureKind::NoSuchMember);
}

TEST_F(ElementInteraction, WithoutAContainerTheQuestionFails) {
  element->Detach();
  EXPECT_EQ(KindOf([&] { element->CheckIfLedIsAlreadyDefined(RunLed, 1); }), FailureKind::ObjectNotSet);
}

TEST_F(ElementInteraction, ADefinitionOfLedFunctionsAloneIsEmpty) {
  element->LEDTypeLayer1(RunLed);
  EXPECT_TRUE(ElementAccess::IsDefinitionEmpty(*element));
}

TEST_F(ElementInteraction, AnyTextMakesTheDefinitionNotEmpty) {
  element->ReleaseKeyDefLayer4("[a]");
  EXPECT_FALSE(ElementAccess::IsDefinitionEmpty(*element));
}

TEST_F(ElementInteraction, UpdatingTheMarkerWithoutACurrentElementEndsQuietly) {
  Module().ctlCurrentElement = nullptr;
  EXPECT_NO_THROW(UpdateDefinedMarker());
}

TEST_F(ElementInteraction, UpdatingTheMarkerWorksOnTheCurrentElement) {
  const auto other = component.Create("B", host);
  element->ElementType(Rect);
  element->ShowDefined(True);
  element->PressKeyDefLayer1("[a]");
  Module().ctlCurrentElement = other;
  UpdateDefinedMarker();
  EXPECT_FALSE(Shown().linOK1.Visible);
  Module().ctlCurrentElement = element;
  UpdateDefinedMarker();
  EXPECT_TRUE(Shown().linOK1.Visible);
}

}  // namespace
}  // namespace plexel
