#include "component/component.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

#include "element/element_access.h"
#include "forms/form_directory.h"
#include "forms/hand.h"
#include "headless/memory_bag.h"
#include "scancodes/capture.h"
#include "services/component_life.h"
#include "services/dialogs.h"
#include "world/world.h"

namespace plexel {
namespace {

template <typename Element>
concept MakesItself =
    requires(ElementHost& host, const PropertyBag& bag) { Element::Create(std::string(), host); } ||
    requires(ElementHost& host, const PropertyBag& bag) { Element::Read(std::string(), host, bag); } ||
    std::is_constructible_v<Element, std::string, ElementHost&>;
template <typename Element>
concept ShowsItsInside = requires(Element& element) { element.RaiseProjectModified(); } || requires(Element& element) {
  element.RaiseDirectInputStatusChanged(True);
} || requires(Element& element) { element.IsDefinitionEmpty(); };

TEST(Component, WithoutItNoElementCanBeMade) { static_assert(!MakesItself<ctlPlexelBaseElement>); }

TEST(Component, TheFaceOfAnElementHasWhatAHostNeedsAndNoMore) { static_assert(!ShowsItsInside<ctlPlexelBaseElement>); }

/// What a failure tells that an object is missing; "" when the act succeeds.
template <typename Act>
std::string FailureOf(Act act) {
  try {
    act();
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind(), FailureKind::ObjectNotSet);
    return failure.what();
  }
  return "";
}

/// A host that answers the one question and hears nothing.
class DeafHost : public ElementHost {
  Boolean CheckIfLedIsAlreadyDefined(std::int32_t&, std::int32_t&) override { return true; }
};

class ComponentEnds : public testing::Test {
 protected:
  ComponentEnds() { component.emplace(platform, surroundings); }
  /// Opens the configuration dialog and acts in it.
  template <typename Act>
  void Open(ctlPlexelBaseElement& element, Act act) {
    platform.Modal().onRun = [act](Form& form) {
      act();
      if (form.IsShown()) form.Unload();
    };
    element.OpenConfigurationDialog();
  }

  HeadlessPlatform platform;
  HeadlessSurroundings surroundings{platform};
  RecordingHost host{platform.faults};
  std::optional<Component> component;
};

TEST_F(ComponentEnds, AHostMayHearNothing) {
  DeafHost deaf;
  const auto element = component->Create("A", deaf);
  element->ElementType(RectLed);
  element->FocusVisible(true);
  EXPECT_TRUE(IsTrue(element->FocusVisible()));
  element->UserControl_GotFocus();
  element->UserControl_DblClick();
  element->UserControl_MouseUp(1, 0, 0, 0);
  EXPECT_TRUE(IsTrue(element->CheckIfLedIsAlreadyDefined(RunLed, 1)));
  bool captured = false;
  Open(*element, [&] { captured = SetDirectInput(true, 0) != 0; });
  EXPECT_TRUE(captured);
  platform.Modal().onRun = [](Form& form) { Hand(form).Click(*form.Find("cmdOK")); };
  element->OpenConfigurationDialog();
  EXPECT_EQ(element->WizardOptions(), ManuallyDefined);
}

TEST_F(ComponentEnds, ANewOneFindsNothingOfWhatWasBefore) {
  component.reset();
  Module().HelpFile = "before";
  component.emplace(platform, surroundings);
  EXPECT_EQ(Module().HelpFile, "");
}

TEST_F(ComponentEnds, ASecondOneAtTheSameTimeIsRefusedAndTheFirstGoesOn) {
  HeadlessPlatform other;
  HeadlessSurroundings services{other};
  try {
    const Component second(other, services);
    ADD_FAILURE() << "a second one was made";
  } catch (const std::logic_error& error) {
    EXPECT_STREQ(error.what(), "there is a component already, and a process has one at a time");
  }
  EXPECT_EQ(&Platform::Current(), &platform);
  EXPECT_EQ(&Surroundings::Current(), &surroundings);
  const auto element = component->Create("A", host);
  element->ElementType(Rect);
  bool shown = false;
  Open(*element, [&] { shown = true; });
  EXPECT_TRUE(shown);
}

TEST_F(ComponentEnds, AnotherOneMayFollow) {
  component.reset();
  component.emplace(platform, surroundings);
  const auto element = component->Create("A", host);
  element->ElementType(Rect);
  bool shown = false;
  Open(*element, [&] { shown = true; });
  EXPECT_TRUE(shown);
}

TEST_F(ComponentEnds, WithItEndsWhatWasInForceAndWhatWasRemembered) {
  const auto element = component->Create("A", host);
  element->ElementType(Rect);
  element->PressKeyDefLayer1("[a]");
  Open(*element, [] { Module().udtScanCodeClipboard.Valid = true; });
  ASSERT_EQ(Module().ctlCurrentElement, element);
  component.reset();
  EXPECT_EQ(Module().ctlCurrentElement, nullptr);
  EXPECT_EQ(Module().udtScanCodeClipboard.Valid, False);
  EXPECT_EQ(Module().udtSavedScanCodeInfo, udtTactisBaseElement_ScanCodeInfo());
  EXPECT_THROW(Platform::Current(), Failure);
  EXPECT_THROW(Surroundings::Current(), Failure);
  EXPECT_THROW(FormDirectory::Instance().ShowModal(dialogs::frmConfigurationDialog, nullptr), Failure);
  EXPECT_EQ(element.use_count(), 1);
}

TEST_F(ComponentEnds, InsideADialogItTakesTheHooksAwayAndTheDialogCloses) {
  const auto element = component->Create("A", host);
  element->ElementType(Rect);
  surroundings.Settings().Option(9, true);
  Open(*element, [&] {
    Module().bDirectInputActive = true;
    ASSERT_NE(SetDirectInput(true, 0), 0);
    ASSERT_TRUE(platform.Hooks().Installed(HookKind::LowLevelKeyboard));
    host.Forget();
    component.reset();
    EXPECT_FALSE(platform.Hooks().Installed(HookKind::Keyboard));
    EXPECT_FALSE(platform.Hooks().Installed(HookKind::LowLevelKeyboard));
    EXPECT_EQ(platform.Modal().Topmost(), nullptr);
  });
  EXPECT_EQ(FormDirectory::Instance().Open(dialogs::frmConfigurationDialog), nullptr);
  EXPECT_TRUE(host.Heard().empty());
}

TEST_F(ComponentEnds, APlatformThatFailsMeanwhileIsPassedOver) {
  const auto element = component->Create("A", host);
  element->ElementType(Rect);
  Open(*element, [&] {
    ASSERT_NE(SetDirectInput(true, 0), 0);
    platform.Hooks().onChange = [](HookKind, bool) { throw 7; };
    platform.Modal().onClosed = [](Form&) { throw std::runtime_error("closed"); };
    EXPECT_NO_THROW(component.reset());
  });
  EXPECT_EQ(ComponentLife::Current(), 0U);
}

TEST_F(ComponentEnds, AnElementThatOutlivesItKeepsItsValuesAndTellsNobody) {
  const auto element = component->Create("A", host);
  element->ElementType(RectLed);
  component.reset();
  host.Forget();
  element->PressKeyDefLayer1("[a]");
  element->ShowDefined(true);
  element->SetTactisBaseElementDefinition(element->TactisBaseElementScanCodeBuffer());
  element->UserControl_GotFocus();
  element->UserControl_DblClick();
  element->UserControl_MouseUp(1, 0, 0, 0);
  element->OpenPropertiesDialog();
  ElementAccess::RaiseProjectModified(*element);
  element->UserControl_Terminate();
  EXPECT_EQ(element->PressKeyDefLayer1(), "[a]");
  EXPECT_EQ(Module().ctlCurrentElement, nullptr);
  EXPECT_TRUE(host.Heard().empty());
  MemoryBag bag;
  element->UserControl_WriteProperties(bag);
  EXPECT_NE(bag.Find("PressKeyDefLayer1"), nullptr);
}

TEST_F(ComponentEnds, AnElementThatOutlivesItFailsWhereItNeedsMoreThanItself) {
  const auto element = component->Create("A", host);
  element->ElementType(RectLed);
  element->ZoomFactor(100);
  component.reset();
  EXPECT_THROW(element->SizeX(20), Failure);
  EXPECT_EQ(element->SizeX(), 20);
  EXPECT_EQ(FailureOf([&] { element->OpenConfigurationDialog(); }), "the element's component has ended");
  EXPECT_EQ(FailureOf([&] { element->CheckIfLedIsAlreadyDefined(RunLed, 1); }), "the element has no container");
}

TEST_F(ComponentEnds, AnElementThatOutlivesItIsNoneOfTheNextOnes) {
  const auto element = component->Create("A", host);
  element->ElementType(RectLed);
  component.reset();
  component.emplace(platform, surroundings);
  host.Forget();
  element->ShowDefined(true);
  element->OpenPropertiesDialog();
  EXPECT_THROW(element->OpenConfigurationDialog(), Failure);
  EXPECT_EQ(Module().ctlCurrentElement, nullptr);
  EXPECT_TRUE(host.Heard().empty());
}

}  // namespace
}  // namespace plexel
