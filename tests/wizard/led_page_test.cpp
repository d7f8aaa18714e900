#include "services/dialogs.h"
#include "wizard/wizard_session.h"

namespace plexel {

namespace {

using Names = std::vector<std::string>;

void Look(WizardSession& session, const WizardSession::Act& look) {
  session.Then(look).Click("cmdCancel");
  session.Open();
}

void Finish(WizardSession& session) {
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
}

Names Items(WizardSession& session) { return session.Get<ComboBox>("cmbLEDTypes").Items(); }
std::string FieldText(WizardSession& session) { return session.Get<ComboBox>("cmbLEDTypes").Text(); }
bool Shown(WizardSession& session, const char* control) { return session.Get<Control>(control).Visible(); }

std::vector<enumLedType> Leds(const WizardSession& session) {
  std::vector<enumLedType> leds;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) leds.push_back(session.element->LEDTypeLayer(layer));
  return leds;
}
std::vector<enumLedType> All(enumLedType type) { return std::vector<enumLedType>(4, type); }

void GrantAll(WizardSession& session) {
  for (int query = 0; query < CapabilityCount; ++query) session.Grant(static_cast<Capability>(query));
}

void ExpectList(WizardSession& session, bool list) {
  for (const char* control : {"labAllavailableLEDFunctions", "cmbLEDTypes", "cmdDeleteLED"}) {
    EXPECT_EQ(Shown(session, control), list) << control;
  }
  for (const char* control : {"imgAttention", "labAllLedsAlreadyDefined"}) {
    EXPECT_EQ(Shown(session, control), !list) << control;
  }
}

}  // namespace

TEST(WizardLedPage, WithoutVantaFourFunctionsAreOnOffer) {
  for (const Boolean vanta : {False, Boolean::Raw(1)}) {
    WizardSession session(Led);
    GrantAll(session);
    session.element->VantaEnabled(vanta);
    Look(session, [&] { EXPECT_EQ(Items(session), (Names{Text(10400), Text(10401), Text(10402), Text(10403)})); });
  }
}

TEST(WizardLedPage, WithVantaEightFunctionsAreOnOfferAndNoLayerLed) {
  WizardSession session(Led);
  GrantAll(session);
  session.element->VantaEnabled(True);
  Look(session, [&] {
    EXPECT_EQ(Items(session), (Names{Text(10401), Text(10403), Text(10404), Text(10405), Text(10410), Text(10411),
                                     Text(10412), Text(10961)}));
  });
}

TEST(WizardLedPage, EachFunctionNeedsItsOwnQueryToAnswerOne) {
  struct Row {
    Boolean vanta;
    Capability query;
    std::int32_t text;
  };
  for (const Row& row :
       {Row{False, Capability::HasUserLed, 10400}, Row{False, Capability::HasTemperatureLed, 10402},
        Row{False, Capability::HasHarddiskLed, 10401}, Row{False, Capability::HasPowerLed, 10403},
        Row{True, Capability::HasHarddiskLed, 10401}, Row{True, Capability::HasPowerLed, 10403},
        Row{True, Capability::HasCapsLockLed, 10404}, Row{True, Capability::HasNumLockLed, 10405},
        Row{True, Capability::HasPanelLockedLed, 10410}, Row{True, Capability::HasScrollLockLed, 10411},
        Row{True, Capability::HasAlarmLed, 10412}, Row{True, Capability::HasRunLed, 10961}}) {
    WizardSession session(Led);
    for (int query = 0; query < CapabilityCount; ++query) session.Grant(static_cast<Capability>(query), 2);
    session.element->TargetSystem("T");
    session.surroundings.Capabilities().Set("T", row.query, 1);
    session.element->VantaEnabled(row.vanta);
    Look(session, [&] { EXPECT_EQ(Items(session), Names{Text(row.text)}); });
  }
}

TEST(WizardLedPage, AFunctionOfAnotherElementOnLayer1IsGoneWhateverIsOnOtherLayers) {
  WizardSession session(Led);
  GrantAll(session);
  session.host.LedDefined(PowerLed, 1, True);
  session.host.LedDefined(UserLed, 2, True);
  Look(session, [&] { EXPECT_EQ(Items(session), (Names{Text(10400), Text(10401), Text(10402)})); });
}

TEST(WizardLedPage, TheElementsOwnFunctionStaysOnOfferThoughTheCheckFindsIt) {
  WizardSession session(Led);
  GrantAll(session);
  session.element->LEDTypeLayer1(PowerLed);
  session.host.LedDefined(PowerLed, 1, True);
  Look(session, [&] {
    EXPECT_EQ(Items(session), (Names{Text(10400), Text(10401), Text(10402), Text(10403)}));
    EXPECT_EQ(FieldText(session), Text(10403));
  });
}

TEST(WizardLedPage, OnlyTheFunctionOfLayer1CountsAsTheElementsOwn) {
  WizardSession session(Led);
  session.Grant(Capability::HasPowerLed);
  session.element->LEDTypeLayer2(PowerLed);
  session.host.LedDefined(PowerLed, 1, True);
  Look(session, [&] { EXPECT_EQ(Items(session), Names{}); });
}

TEST(WizardLedPage, EntriesAppearInTheOrderOfTheirTexts) {
  WizardSession session(Led);
  GrantAll(session);
  session.surroundings.Language().Set(10400, "zeta");
  session.surroundings.Language().Set(10402, "Beta");
  session.surroundings.Language().Set(10401, "älpha");
  session.surroundings.Language().Set(10403, "gamma");
  Look(session, [&] { EXPECT_EQ(Items(session), (Names{"älpha", "Beta", "gamma", "zeta"})); });
}

TEST(WizardLedPage, AnEmptyListWithoutAFunctionShowsTheNoticeAndForwardStoresNoLed) {
  WizardSession session(Led);
  session.element->LEDTypeLayer2(PowerLed);
  session.Then([&] {
    ExpectList(session, false);
    EXPECT_EQ(FieldText(session), Text(10413));
  });
  Finish(session);
  EXPECT_EQ(Leds(session), All(LedNotEnabled));
}

TEST(WizardLedPage, AFilledListWithoutAFunctionShowsTheListAndTheTextOfNoLed) {
  WizardSession session(Led);
  session.Grant(Capability::HasPowerLed);
  Look(session, [&] {
    ExpectList(session, true);
    EXPECT_EQ(FieldText(session), Text(10413));
    EXPECT_EQ(session.Get<ComboBox>("cmbLEDTypes").ListIndex(), -1);
  });
}

TEST(WizardLedPage, AFunctionThatTheTargetSystemHasLostIsShownAboveAnEmptyListAndStoredAgain) {
  WizardSession session(Led);
  session.element->LEDTypeLayer1(Layer2Led);
  session.Then([&] {
    ExpectList(session, true);
    EXPECT_EQ(Items(session), Names{});
    EXPECT_EQ(FieldText(session), Text(10407));
  });
  Finish(session);
  EXPECT_EQ(Leds(session), All(Layer2Led));
}

TEST(WizardLedPage, ForwardGivesAllLayersTheChosenFunctionAndShowsTheMark) {
  WizardSession session(Led);
  GrantAll(session);
  session.element->ShowDefined(True);
  session.Select("cmbLEDTypes", Text(10402));
  Finish(session);
  EXPECT_EQ(Leds(session), All(TemperatureLed));
  EXPECT_TRUE(session.element->SurfaceObjects().linOK1.Visible);
}

TEST(WizardLedPage, ForwardMakesADefinitionThatDiffersByLayerUniform) {
  WizardSession session(Led);
  session.element->LEDTypeLayer1(PowerLed);
  session.element->LEDTypeLayer3(AlarmLed);
  Finish(session);
  EXPECT_EQ(Leds(session), All(PowerLed));
}

TEST(WizardLedPage, ATextThatIsNoFunctionStoresNoLedAndStillShowsTheMark) {
  WizardSession session(Led);
  session.element->ShowDefined(True);
  session.element->LEDTypeLayer1(PowerLed);
  session.Then([&] { session.Get<ComboBox>("cmbLEDTypes").Text("gone"); });
  Finish(session);
  EXPECT_EQ(Leds(session), All(LedNotEnabled));
  EXPECT_TRUE(session.element->SurfaceObjects().linOK1.Visible);
}

TEST(WizardLedPage, DeleteShowsTheTextOfNoLedAndTouchesTheElementOnlyOnForward) {
  WizardSession session(Led);
  session.Grant(Capability::HasPowerLed);
  session.element->LEDTypeLayer1(PowerLed);
  session.Click("cmdDeleteLED").Then([&] {
    EXPECT_EQ(FieldText(session), Text(10413));
    EXPECT_EQ(session.element->LEDTypeLayer1(), PowerLed);
  });
  Finish(session);
  EXPECT_EQ(Leds(session), All(LedNotEnabled));
}

TEST(WizardLedPage, DeleteAndForwardWithAPressTextLeaveTheDefinedMarkAsItIs) {
  WizardSession session(RectLed);
  session.element->ShowDefined(True);
  session.element->LEDTypeLayer1(PowerLed);
  session.element->PressKeyDefLayer1("[a‹›]");
  session.element->ShowDefinedObject(True);
  session.Click("cmdForward").Click("cmdDeleteLED");
  Finish(session);
  EXPECT_EQ(Leds(session), All(LedNotEnabled));
  EXPECT_TRUE(session.element->SurfaceObjects().linOK1.Visible);
}

TEST(WizardLedPage, DeleteAndForwardOnALedElementHideTheDefinedMark) {
  WizardSession session(Led);
  session.element->ShowDefined(True);
  session.element->LEDTypeLayer1(PowerLed);
  session.element->ShowDefinedObject(True);
  session.Click("cmdDeleteLED");
  Finish(session);
  EXPECT_FALSE(session.element->SurfaceObjects().linOK1.Visible);
}

TEST(WizardLedPage, AFunctionLeftByBackKeepsItsPlaceInTheElement) {
  WizardSession session(OvalLed);
  session.Grant(Capability::HasPowerLed);
  session.Click("cmdForward").Select("cmbLEDTypes", Text(10403)).Click("cmdForward");
  session.Click("cmdBack").Click("cmdBack");
  session.Then([&] { EXPECT_EQ(Leds(session), All(PowerLed)); }).Click("cmdCancel");
  session.Open();
}

TEST(WizardLedPage, AfterBackFromPage3ThePageIsNotFilledAnew) {
  WizardSession session(Led);
  session.Grant(Capability::HasPowerLed);
  session.Click("cmdDeleteLED").Click("cmdForward");
  session.Then([&] { session.Grant(Capability::HasUserLed); }).Click("cmdBack");
  Look(session, [&] { EXPECT_EQ(Items(session), Names{Text(10403)}); });
}

TEST(WizardLedPage, TheListMovesWithUpAndDownAndNobodyTypesIntoIt) {
  WizardSession session(Led);
  GrantAll(session);
  session.element->LEDTypeLayer1(UserLed);
  Look(session, [&] {
    Hand hand(session.Top());
    hand.Focus(session.Get<Control>("cmbLEDTypes"));
    EXPECT_EQ(hand.KeyDown(key::Down, 0), key::Down);
    EXPECT_EQ(FieldText(session), Text(10401));
    EXPECT_EQ(hand.KeyDown(key::Up, 0), key::Up);
    EXPECT_EQ(FieldText(session), Text(10400));
    for (const std::int16_t dropped : {key::End, key::Space, std::int16_t{'A'}}) EXPECT_EQ(hand.KeyDown(dropped, 0), 0);
    EXPECT_EQ(hand.KeyPress('a'), 0);
    EXPECT_EQ(FieldText(session), Text(10400));
  });
}

TEST(WizardLedPage, ReturnInTheListPressesForward) {
  WizardSession session(Led);
  session.Grant(Capability::HasPowerLed);
  session.Then([&] { Hand(session.Top()).Focus(session.Get<Control>("cmbLEDTypes")); }).KeyDown(key::Return);
  session.Then([&] { EXPECT_EQ(session.Top().Name(), dialogs::frmButtonWizardPage3); }).Click("cmdCancel");
  session.Open();
}

TEST(WizardLedPage, WaitingEventsAreHandledOnce) {
  WizardSession session(Led);
  Look(session, [&] { EXPECT_EQ(session.platform.Events().Rounds(), 1); });
}

}  // namespace plexel
