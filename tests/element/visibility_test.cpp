#include "element_fixture.h"

namespace plexel {
namespace {

class ElementVisibility : public ElementTest {
 protected:
  void Focus(enumTactisBaseElementType kind) {
    element->ElementType(kind);
    element->FocusVisible(True);
    element->UserControl_GotFocus();
  }
  bool CrossShown() const {
    EXPECT_EQ(Shown().linX1.Visible, Shown().linX2.Visible);
    return Shown().linX1.Visible;
  }
  bool TickShown() const {
    EXPECT_EQ(Shown().linOK1.Visible, Shown().linOK2.Visible);
    return Shown().linOK1.Visible;
  }
};

TEST_F(ElementVisibility, KindsOneToThreeHaveTheOvalAsFocusMark) {
  for (const auto kind : {Led, Oval, OvalLed}) {
    Focus(kind);
    EXPECT_TRUE(Shown().shpOval.Visible) << kind;
    EXPECT_FALSE(Shown().shpRect.Visible) << kind;
  }
}

TEST_F(ElementVisibility, KindsFourToSixHaveTheRectangleAsFocusMark) {
  for (const auto kind : {Rect, RectLed, Key}) {
    Focus(kind);
    EXPECT_FALSE(Shown().shpOval.Visible) << kind;
    EXPECT_TRUE(Shown().shpRect.Visible) << kind;
  }
}

TEST_F(ElementVisibility, OtherKindsLeaveTheFocusShapes) {
  Focus(Oval);
  for (const std::int32_t kind : {0, 7, -1}) {
    Focus(static_cast<enumTactisBaseElementType>(kind));
    EXPECT_TRUE(Shown().shpOval.Visible) << kind;
    EXPECT_FALSE(Shown().shpRect.Visible) << kind;
  }
}

TEST_F(ElementVisibility, OtherKindsShowTheX) {
  element->ShowX(True);
  Focus(static_cast<enumTactisBaseElementType>(0));
  EXPECT_TRUE(CrossShown());
}

TEST_F(ElementVisibility, WithoutFocusVisibleUpdatingHidesBothShapes) {
  Focus(Rect);
  element->FocusVisible(Boolean::Raw(1));
  EXPECT_TRUE(Shown().shpRect.Visible);
  element->UpdateFocus();
  EXPECT_FALSE(Shown().shpRect.Visible);
  EXPECT_FALSE(Shown().shpOval.Visible);
}

TEST_F(ElementVisibility, ChangingTheKindWaitsForAnUpdate) {
  Focus(Rect);
  element->ElementType(Oval);
  EXPECT_TRUE(Shown().shpRect.Visible);
  element->UpdateFocus();
  EXPECT_TRUE(Shown().shpOval.Visible);
}

TEST_F(ElementVisibility, ShowXTakesEffectAtTheNextUpdate) {
  Focus(Rect);
  element->ShowX(True);
  EXPECT_FALSE(CrossShown());
  element->UpdateFocus();
  EXPECT_TRUE(CrossShown());
}

TEST_F(ElementVisibility, AFalseShowXDoesNotHideAnXThatIsShown) {
  element->ShowX(True);
  Focus(Rect);
  element->ShowX(False);
  element->UpdateFocus();
  EXPECT_TRUE(CrossShown());
}

TEST_F(ElementVisibility, LosingTheFocusHidesShapesAndX) {
  element->ShowX(True);
  Focus(Rect);
  EXPECT_TRUE(CrossShown());
  element->UserControl_LostFocus();
  EXPECT_FALSE(CrossShown());
  EXPECT_FALSE(Shown().shpRect.Visible);
}

TEST_F(ElementVisibility, APermanentXStaysWhenTheFocusGoes) {
  element->ShowX(True);
  element->ShowXPermanent(True);
  Focus(Rect);
  element->UserControl_LostFocus();
  EXPECT_TRUE(CrossShown());
  EXPECT_FALSE(Shown().shpRect.Visible);
}

TEST_F(ElementVisibility, APermanentXGoesWithTheFocusWhenFocusVisibleIsFalse) {
  element->ShowXPermanent(True);
  element->FocusVisible(False);
  EXPECT_TRUE(CrossShown());
  element->UserControl_LostFocus();
  EXPECT_FALSE(CrossShown());
}

TEST_F(ElementVisibility, LosingTheFocusTakesAnyNonZeroFlagsAsSet) {
  element->ShowXPermanent(True);
  element->FocusVisible(Boolean::Raw(1));
  element->UserControl_LostFocus();
  EXPECT_TRUE(CrossShown());
}

TEST_F(ElementVisibility, LosingTheFocusKeepsTheXWhenTheFlagsShareNoBit) {
  element->ElementType(Rect);
  element->ShowX(True);
  element->FocusVisible(True);
  element->ShowXPermanent(Boolean::Raw(1));
  element->UpdateFocus();
  element->FocusVisible(Boolean::Raw(2));
  element->UserControl_LostFocus();
  EXPECT_TRUE(CrossShown());
}

TEST_F(ElementVisibility, FocusVisibleFalseHidesShapesAndX) {
  element->ShowX(True);
  Focus(Oval);
  element->FocusVisible(False);
  EXPECT_FALSE(Shown().shpOval.Visible);
  EXPECT_FALSE(CrossShown());
}

TEST_F(ElementVisibility, FocusVisibleFalseKeepsAPermanentX) {
  element->ShowXPermanent(True);
  Focus(Oval);
  element->FocusVisible(False);
  EXPECT_TRUE(CrossShown());
}

TEST_F(ElementVisibility, FocusVisibleFalseKeepsAnXWhosePermanenceIsNonZero) {
  element->ElementType(Rect);
  element->FocusVisible(True);
  element->ShowX(True);
  element->ShowXPermanent(Boolean::Raw(1));
  element->UpdateFocus();
  element->FocusVisible(False);
  EXPECT_TRUE(CrossShown());
}

TEST_F(ElementVisibility, AnyOtherFocusVisibleChangesNothing) {
  element->ElementType(Rect);
  element->FocusVisible(True);
  element->FocusVisible(Boolean::Raw(1));
  EXPECT_FALSE(Shown().shpRect.Visible);
  Focus(Rect);
  element->FocusVisible(Boolean::Raw(1));
  EXPECT_TRUE(Shown().shpRect.Visible);
}

TEST_F(ElementVisibility, APermanentXIsShownAtOnceAndOnlyForTrue) {
  element->ShowXPermanent(True);
  EXPECT_TRUE(CrossShown());
  element->ShowXPermanent(Boolean::Raw(1));
  EXPECT_FALSE(CrossShown());
  element->ShowXPermanent(True);
  element->ShowXPermanent(False);
  EXPECT_FALSE(CrossShown());
}

TEST_F(ElementVisibility, TheTickIsShownOnlyWhenItIsWanted) {
  element->ShowDefinedObject(True);
  EXPECT_FALSE(TickShown());
  element->ShowDefined(True);
  element->ShowDefinedObject(True);
  EXPECT_TRUE(TickShown());
}

TEST_F(ElementVisibility, AnUnwantedTickThatIsShownStaysWhenItIsToBeShown) {
  element->ShowDefined(True);
  element->ShowDefinedObject(True);
  element->ElementType(Rect);
  element->PressKeyDefLayer1("[a]");
  element->ShowDefined(Boolean::Raw(1));
  EXPECT_FALSE(TickShown()) << "1 and true is not true";
  element->ShowDefined(True);
  EXPECT_TRUE(TickShown());
}

TEST_F(ElementVisibility, WhatIsNotTrueHidesTheTick) {
  element->ShowDefined(True);
  for (const Boolean value : {False, Boolean::Raw(1)}) {
    element->ShowDefinedObject(True);
    element->ShowDefinedObject(value);
    EXPECT_FALSE(TickShown()) << value.Value();
  }
}

TEST_F(ElementVisibility, ShowDefinedFalseHidesTheTick) {
  element->ElementType(Rect);
  element->PressKeyDefLayer1("[a]");
  element->ShowDefined(True);
  EXPECT_TRUE(TickShown());
  element->ShowDefined(False);
  EXPECT_FALSE(TickShown());
}

TEST_F(ElementVisibility, ShowDefinedOnAnElementWithoutADefinitionHidesTheTick) {
  element->ElementType(Rect);
  element->ShowDefined(True);
  EXPECT_FALSE(TickShown());
}

TEST_F(ElementVisibility, AFirstDefinitionTakenBackShowsTheTick) {
  element->ElementType(Rect);
  element->ShowDefined(True);
  auto info = element->TactisBaseElementScanCodeBuffer();
  info.strLayer2ReleaseString = "[a]";
  element->SetTactisBaseElementDefinition(info);
  EXPECT_TRUE(TickShown());
}

class DefinedMarker : public ElementVisibility {
 protected:
  bool Defined(enumTactisBaseElementType kind) {
    element->ElementType(kind);
    element->ShowDefined(True);
    return TickShown();
  }
};

TEST_F(DefinedMarker, AnLedIsDefinedByItsFunctionsOnly) {
  element->PressKeyDefLayer1("[a]");
  EXPECT_FALSE(Defined(Led));
  element->LEDTypeLayer4(RunLed);
  EXPECT_TRUE(Defined(Led));
}

TEST_F(DefinedMarker, AKeyWithoutLedIsDefinedByItsTextsOnly) {
  element->LEDTypeLayer1(RunLed);
  EXPECT_FALSE(Defined(Oval));
  EXPECT_FALSE(Defined(Rect));
  element->ReleaseKeyDefLayer4("[a]");
  EXPECT_TRUE(Defined(Oval));
  EXPECT_TRUE(Defined(Rect));
}

TEST_F(DefinedMarker, TheLedFunctionOfEachLayerDefinesAlone) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    element->LEDTypeLayer(layer, RunLed);
    EXPECT_TRUE(Defined(Led)) << layer;
    element->LEDTypeLayer(layer, LedNotEnabled);
    EXPECT_FALSE(Defined(Led)) << layer;
  }
}

TEST_F(DefinedMarker, AKeyWithLedIsDefinedByEither) {
  EXPECT_FALSE(Defined(OvalLed));
  EXPECT_FALSE(Defined(RectLed));
  element->LEDTypeLayer2(HarddiskLed);
  EXPECT_TRUE(Defined(OvalLed));
  element->LEDTypeLayer2(LedNotEnabled);
  element->PressKeyDefLayer3("[a]");
  EXPECT_TRUE(Defined(RectLed));
}

TEST_F(DefinedMarker, EveryTextCounts) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    element->PressKeyDefLayer(layer, "[a]");
    EXPECT_TRUE(Defined(Rect)) << layer;
    element->PressKeyDefLayer(layer, "");
    EXPECT_FALSE(Defined(Rect)) << layer;
    element->ReleaseKeyDefLayer(layer, "[a]");
    EXPECT_TRUE(Defined(Rect)) << layer;
    element->ReleaseKeyDefLayer(layer, "");
  }
}

TEST_F(DefinedMarker, AKeySwitchAndAnUnknownKindAreNeverDefined) {
  element->PressKeyDefLayer1("[a]");
  element->LEDTypeLayer1(RunLed);
  EXPECT_FALSE(Defined(Key));
  EXPECT_FALSE(Defined(static_cast<enumTactisBaseElementType>(0)));
  EXPECT_FALSE(Defined(static_cast<enumTactisBaseElementType>(7)));
}

}  // namespace
}  // namespace plexel
