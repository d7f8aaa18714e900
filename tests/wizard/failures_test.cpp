#include "platform/failure.h"
#include "services/dialogs.h"
#include "wizard/frmButtonWizardPage1.h"
#include "wizard/wizard_session.h"

namespace plexel {

namespace {

using Names = std::vector<std::string>;

void Look(WizardSession& session, const WizardSession::Act& look) {
  session.Then(look).Click("cmdCancel");
  session.Open();
}

/// The container's notices fail from the n-th on, once.
void FailNotice(WizardSession& session, int number) {
  session.host.onEvent = [&session, number, count = 0](const HostEvent& event) mutable {
    if (event.name == "PropertyChanged" && ++count == number) {
      session.host.onEvent = nullptr;
      throw Failure(FailureKind::Handler, "the container failed");
    }
  };
}

}  // namespace

TEST(WizardFailures, APositionThatIsNoNumberLeavesPage1WhereTheDesignPutIt) {
  WizardSession session(Rect);
  session.surroundings.Settings().Position(0, "far up");
  session.surroundings.Settings().Position(1, "330");
  Look(session, [&] {
    EXPECT_EQ(session.Top().Top(), 0);
    EXPECT_EQ(session.Top().Left(), 330);
  });
}

TEST(WizardFailures, SettingsThatFailLeavePage1InPlaceAndTheHelpFileAlone) {
  WizardSession session(Rect);
  session.platform.faults.Turn(Fault::Settings, true);
  Module().HelpFile = "old";
  Look(session, [&] {
    EXPECT_EQ(session.Top().Left(), 0);
    EXPECT_EQ(session.Top().Top(), 0);
    EXPECT_EQ(Module().HelpFile, "old");
    EXPECT_EQ(session.Top().Caption(), Text(2900));
    EXPECT_EQ(session.platform.Events().Rounds(), 1);
  });
}

TEST(WizardFailures, ALanguageThatFailsDoesNotStopPage1FromOpening) {
  WizardSession session(Rect);
  session.Grant(Capability::HasSystemReset);
  session.element->WizardOptions(TipKey);
  session.GiveTexts("[a‹]", "[a›]");
  session.platform.faults.Turn(Fault::Language, true);
  Look(session, [&] {
    EXPECT_EQ(session.Top().Caption(), "@2900");
    EXPECT_EQ(session.Get<ComboBox>("cmdSpecialIPCFunction").ListCount(), 0);
    EXPECT_FALSE(session.Get<Control>("optKeyType(2)").Enabled());
    EXPECT_EQ(session.Get<ComboBox>("cmbWindowsShortCuts").ListCount(), 0);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "a");
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").SelStart(), 1);
  });
}

TEST(WizardFailures, AFillerEndsAtItsFirstFailureWithTheEntriesSoFarAndNoText) {
  WizardSession session(Rect);
  for (int query = 0; query < CapabilityCount; ++query) session.Grant(static_cast<Capability>(query));
  session.platform.faults.Arm(Fault::Capability, 3);
  Look(session, [&] {
    EXPECT_EQ(session.Get<ComboBox>("cmdSpecialIPCFunction").Items(), (Names{Text(2608), Text(2603)}));
    EXPECT_EQ(session.Get<ComboBox>("cmdSpecialIPCFunction").Text(), "");
    EXPECT_EQ(session.Get<ComboBox>("cmbWindowsShortCuts").ListCount(), 19);
  });
}

TEST(WizardFailures, AScreenThatFailsLeavesTheTitlePictureStretchedInItsDesignSize) {
  WizardSession session(OvalLed);
  session.platform.faults.Turn(Fault::Screen, true);
  const auto look = [&](std::int32_t description) {
    EXPECT_TRUE(session.Get<PictureBox>("imgTitlePic").Stretch());
    EXPECT_EQ(session.Get<PictureBox>("imgTitlePic").Width(), 1650);
    EXPECT_EQ(session.Get<PictureBox>("imgTitlePic").Height(), 4530);
    EXPECT_EQ(session.Get<Label>("labDescription").Caption(), Text(description));
  };
  session.Then([&] { look(2902); }).Click("cmdForward").Then([&] { look(2908); }).Click("cmdForward");
  Look(session, [&] { look(2909); });
}

TEST(WizardFailures, AnOsVersionAndWaitingEventsThatFailAreStepsLikeOthersOnPage1) {
  WizardSession session(Rect);
  session.platform.faults.Turn(Fault::Version, true);
  session.platform.faults.Turn(Fault::Events, true);
  Look(session, [&] { EXPECT_EQ(session.Top().Caption(), Text(2900)); });
}

TEST(WizardFailures, LoadingOfPage2EndsAtTheFirstFailure) {
  WizardSession session(Led);
  session.Grant(Capability::HasPowerLed);
  Module().lngDialogLeft = 90;
  session.platform.faults.Turn(Fault::Language, true);
  Look(session, [&] {
    EXPECT_EQ(session.Top().Left(), 90);
    EXPECT_TRUE(session.Get<PictureBox>("imgTitlePic").Stretch());
    EXPECT_EQ(session.Get<ComboBox>("cmbLEDTypes").ListCount(), 0);
    EXPECT_FALSE(session.Get<Control>("imgAttention").Visible());
    EXPECT_EQ(session.platform.Events().Rounds(), 0);
  });
}

TEST(WizardFailures, LoadingOfPage2EndsBeforeTheTextWhenWaitingEventsFail) {
  WizardSession session(Led);
  session.element->LEDTypeLayer1(PowerLed);
  session.platform.faults.Turn(Fault::Events, true);
  Look(session, [&] { EXPECT_EQ(session.Get<ComboBox>("cmbLEDTypes").Text(), ""); });
}

TEST(WizardFailures, AContainerWithoutTheQuestionEndsTheFillerAndLoadingGoesOn) {
  WizardSession session(Led);
  session.Grant(Capability::HasPowerLed);
  session.host.TakeMemberAway();
  Look(session, [&] {
    EXPECT_EQ(session.Get<ComboBox>("cmbLEDTypes").ListCount(), 0);
    EXPECT_TRUE(session.Get<Control>("imgAttention").Visible());
    EXPECT_EQ(session.Get<ComboBox>("cmbLEDTypes").Text(), Text(10413));
  });
}

TEST(WizardFailures, TheLedFillerDropsTheLaterCandidates) {
  WizardSession session(Led);
  for (int query = 0; query < CapabilityCount; ++query) session.Grant(static_cast<Capability>(query));
  session.platform.faults.Arm(Fault::Container, 3);
  Look(session, [&] { EXPECT_EQ(session.Get<ComboBox>("cmbLEDTypes").Items(), (Names{Text(10400), Text(10402)})); });
}

TEST(WizardFailures, Page3PassesOverWaitingEventsThatFailAndTranslatesItsCaptions) {
  WizardSession session(Rect);
  session.platform.faults.Turn(Fault::Events, true);
  session.Click("cmdForward");
  Look(session, [&] { EXPECT_EQ(session.Top().Caption(), Text(2900)); });
}

TEST(WizardFailures, Page3HandlesWaitingEventsBeforeItsCaptions) {
  WizardSession session(Rect);
  session.Click("cmdForward").Then([&] { EXPECT_EQ(session.platform.Events().Rounds(), 2); });
  session.Click("cmdBack").Then([&] { session.platform.faults.Turn(Fault::Language, true); }).Click("cmdForward");
  Look(session, [&] {
    EXPECT_EQ(session.Top().Caption(), "@2900");
    EXPECT_EQ(session.platform.Events().Rounds(), 3);
  });
}

TEST(WizardFailures, ANextPageThatCannotBeShownReachesTheCallerOfForwardOnPage1) {
  WizardSession session(OvalLed);
  session.Click("optKeyType(3)").Then([&] { session.platform.faults.Turn(Fault::Show, true); });
  session.ClickFails("cmdForward");
  Look(session, [&] {
    EXPECT_EQ(session.Top().Name(), dialogs::frmButtonWizardPage1);
    EXPECT_FALSE(session.Get<Control>("cmdForward").Enabled());
    EXPECT_EQ(session.element->PressKeyDefLayer1(), "[text 2610‹]");
  });
}

TEST(WizardFailures, ANextPageThatCannotBeShownReachesTheCallerOfForwardOnPage2) {
  WizardSession session(Led);
  session.Grant(Capability::HasPowerLed);
  session.Select("cmbLEDTypes", Text(10403)).Then([&] { session.platform.faults.Turn(Fault::Show, true); });
  session.ClickFails("cmdForward");
  Look(session, [&] {
    EXPECT_FALSE(session.Get<Control>("cmdForward").Enabled());
    EXPECT_EQ(session.element->LEDTypeLayer4(), PowerLed);
  });
}

TEST(WizardFailures, ALanguageThatFailsInForwardOfPage1LeavesEmptyTextsAndTheNewOption) {
  WizardSession session(Rect);
  session.Click("optKeyType(3)").Then([&] {
    session.element->PressKeyDefLayer1("[kept?]");
    session.platform.faults.Turn(Fault::Language, true);
  });
  session.ClickFails("cmdForward");
  Look(session, [&] {
    EXPECT_EQ(session.Texts(), Names(8, ""));
    EXPECT_EQ(session.element->WizardOptions(), WindowsShortCut);
    EXPECT_FALSE(session.Get<Control>("cmdForward").Enabled());
  });
}

TEST(WizardFailures, ALanguageThatFailsInForwardOfPage2StoresNothing) {
  WizardSession session(Led);
  session.element->LEDTypeLayer1(PowerLed);
  session.Then([&] { session.platform.faults.Turn(Fault::Language, true); }).ClickFails("cmdForward");
  Look(session, [&] {
    EXPECT_EQ(session.element->LEDTypeLayer2(), LedNotEnabled);
    EXPECT_FALSE(session.Get<Control>("cmdForward").Enabled());
  });
}

TEST(WizardFailures, ALanguageThatFailsInDeleteOfPage2ReachesTheCaller) {
  WizardSession session(Led);
  session.element->LEDTypeLayer1(PowerLed);
  session.Then([&] { session.platform.faults.Turn(Fault::Language, true); }).ClickFails("cmdDeleteLED");
  Look(session, [&] { EXPECT_EQ(session.Get<ComboBox>("cmbLEDTypes").Text(), Text(10403)); });
}

TEST(WizardFailures, AFailingHandlerOfProjectModifiedReachesTheCallerOfOkAndThePageStays) {
  WizardSession session(Rect);
  session.platform.faults.Turn(Fault::HandlerProjectModified, true);
  session.Click("cmdForward").ClickFails("cmdOK");
  session.Then([&] {
    EXPECT_EQ(session.Top().Name(), dialogs::frmButtonWizardPage3);
    EXPECT_FALSE(session.Get<Control>("cmdOK").Enabled());
    EXPECT_EQ(session.Stored("ConfigDialogTop"), "none");
  });
  session.Click("cmdCancel");
  session.Open();
}

TEST(WizardFailures, AFailingNoticeInAnOptionClickReachesTheCallerAndKeepsWhatWasDone) {
  WizardSession session(Rect);
  session.GiveTexts("[a‹›]", "[b›]");
  session.Then([&] { FailNotice(session, 3); }).ClickFails("optKeyType(3)");
  Look(session, [&] {
    EXPECT_EQ(session.Texts(), (Names{"", "", "", "[a‹›]", "[b›]", "[b›]", "[b›]", "[b›]"}));
    EXPECT_EQ(session.element->WizardOptions(), NormalKey);
    EXPECT_FALSE(session.Get<Control>("cmbWindowsShortCuts").Enabled());
    EXPECT_FALSE(session.Get<Control>("txtScanCodes").Enabled());
  });
}

TEST(WizardFailures, ACaptureColourThatIsNoNumberReachesTheCallerOfTheDoubleClick) {
  WizardSession session(Rect);
  session.GiveTexts("[a‹›]", "");
  session.surroundings.Settings().Parameter(3, "yellow");
  session.Then([&] {
    EXPECT_THROW(Hand(session.Top()).DblClick(session.Get<Control>("txtScanCodes")), Failure);
    EXPECT_EQ(Module().bDirectInputActive, True);
    EXPECT_NE(Module().lngKeyboardHook, 0);
    EXPECT_FALSE(session.Top().KeyPreview());
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").BackColor(), 0xFFFFFF);
    EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), "a");
    EXPECT_EQ(session.element->WizardOptions(), NormalKey);
  });
  Look(session, [] {});
  EXPECT_EQ(Module().lngKeyboardHook, 0);
}

TEST(WizardFailures, TheSameFailureEndsAKeyDownOfTheBoxQuietly) {
  WizardSession session(Rect);
  session.surroundings.Settings().Parameter(3, "yellow");
  Look(session, [&] {
    Hand hand(session.Top());
    hand.Focus(session.Get<Control>("txtScanCodes"));
    EXPECT_NO_THROW(hand.KeyDown(key::Return, 0));
    EXPECT_EQ(Module().bDirectInputActive, True);
  });
}

TEST(WizardFailures, AnElementThatIsGoneEndsAKeyDownOfTheFocusCatcherQuietly) {
  WizardSession session(Rect);
  session.DblClick("txtScanCodes");
  session.Then([&] {
    Module().ctlCurrentElement.reset();
    EXPECT_NO_THROW(Hand(session.Top()).KeyDown(key::Control, key::ShiftBit | key::ControlBit));
    EXPECT_EQ(Module().bDirectInputActive, False);
    EXPECT_FALSE(session.Top().KeyPreview());
    Module().ctlCurrentElement = session.element;
  });
  Look(session, [] {});
}

TEST(WizardFailures, DeleteEndsQuietlyWhenTheElementIsGone) {
  WizardSession session(Rect);
  session.GiveTexts("[a‹›]", "");
  session.Then([&] { Module().ctlCurrentElement.reset(); }).Click("cmdDeleteKEY");
  Look(session, [&] { EXPECT_EQ(session.Get<TextBox>("txtScanCodes").Text(), ""); });
}

TEST(WizardFailures, CancelWithoutAnElementStoresThePositionOnPage2ButNotOnPage1) {
  for (const enumTactisBaseElementType type : {Rect, Led}) {
    WizardSession session(type);
    session.Then([&] {
      Module().ctlCurrentElement.reset();
      Module().bWizardPageChanging = True;
    });
    session.Click("cmdCancel");
    session.Open();
    EXPECT_EQ(session.Stored("ConfigDialogTop") == "none", type == Rect);
    EXPECT_EQ(Module().bWizardPageChanging, True);
  }
}

TEST(WizardFailures, ARegistryThatFailsIsNotReported) {
  for (const enumTactisBaseElementType type : {Rect, Led}) {
    WizardSession session(type);
    session.platform.faults.Turn(Fault::Registry, true);
    session.Click("cmdForward").Click("cmdOK");
    session.Open();
    EXPECT_TRUE(session.platform.UserRegistry().Stored().empty());
    EXPECT_EQ(session.host.Count("ProjectModified"), 1);
  }
}

TEST(WizardFailures, AHelpViewerThatFailsIsNotReported) {
  WizardSession session(Rect);
  session.platform.faults.Turn(Fault::Help, true);
  session.Click("labLimitations").Click("cmdCancel");
  session.Open();
  EXPECT_EQ(session.closed, Names{dialogs::frmButtonWizardPage1});
}

TEST(WizardFailures, APage1ThatAnExceptionEndsLeavesNoPageChangingBehind) {
  WizardSession session(Rect);
  session.Then([] {
    Module().bWizardPageChanging = True;
    throw 5;
  });
  EXPECT_THROW(session.element->OpenConfigurationDialog(), int);
  EXPECT_EQ(Module().bWizardPageChanging, False);
}

TEST(WizardFailures, AHookThatCannotBeRemovedDoesNotKeepPage1Open) {
  WizardSession session(Rect);
  session.DblClick("txtScanCodes").Then([&] { session.platform.faults.Turn(Fault::Unhook, true); }).Close();
  session.Open();
  EXPECT_EQ(session.closed, Names{dialogs::frmButtonWizardPage1});
  EXPECT_EQ(Module().bDirectInputActive, False);
}

}  // namespace plexel
