#include <algorithm>

#include "forms/form_directory.h"
#include "services/dialogs.h"
#include "wizard/wizard_session.h"

namespace plexel {

namespace {

using Names = std::vector<std::string>;

/// Goes forward with every page's own button.
void GoThrough(WizardSession& session, int forwards) {
  for (int i = 0; i < forwards; ++i) session.Click("cmdForward");
  session.Click("cmdOK");
  session.Open();
}

std::string NameOf(const std::string& shown) { return shown.substr(0, shown.find(' ')); }

Names NamesOf(const Names& shown) {
  Names names;
  for (const std::string& form : shown) names.push_back(NameOf(form));
  return names;
}

}  // namespace

TEST(WizardFlow, ALedGoesThroughPages2And3) {
  WizardSession session(Led);
  GoThrough(session, 1);
  EXPECT_EQ(NamesOf(session.shown), (Names{dialogs::frmButtonWizardPage2, dialogs::frmButtonWizardPage3}));
}

TEST(WizardFlow, KeysWithoutLedGoThroughPages1And3) {
  for (const enumTactisBaseElementType type : {Oval, Rect}) {
    WizardSession session(type);
    GoThrough(session, 1);
    EXPECT_EQ(NamesOf(session.shown), (Names{dialogs::frmButtonWizardPage1, dialogs::frmButtonWizardPage3})) << type;
  }
}

TEST(WizardFlow, KeysWithLedGoThroughAllPages) {
  for (const enumTactisBaseElementType type : {OvalLed, RectLed}) {
    WizardSession session(type);
    GoThrough(session, 2);
    EXPECT_EQ(NamesOf(session.shown),
              (Names{dialogs::frmButtonWizardPage1, dialogs::frmButtonWizardPage2, dialogs::frmButtonWizardPage3}))
        << type;
  }
}

TEST(WizardFlow, EachPageIsOwnedByThePageBelow) {
  WizardSession session(OvalLed);
  GoThrough(session, 2);
  EXPECT_EQ(session.shown, (Names{"frmButtonWizardPage1 over HostForm at 1800,1500",
                                  "frmButtonWizardPage2 over frmButtonWizardPage1 at 1800,1500",
                                  "frmButtonWizardPage3 over frmButtonWizardPage2 at 1800,1500"}));
}

TEST(WizardFlow, CancelOnPage3OfAnOvalLedKeepsTheNewKeyAndTheNewLedAndRaisesNoProjectModified) {
  WizardSession session(OvalLed);
  session.Grant(Capability::HasPowerLed);
  session.Click("optKeyType(3)").Click("cmdForward");
  session.Select("cmbLEDTypes", Text(10403)).Click("cmdForward").Click("cmdCancel");
  session.Open();
  EXPECT_EQ(session.element->PressKeyDefLayer1(), "[text 2610‹]");
  EXPECT_EQ(session.element->LEDTypeLayer4(), PowerLed);
  EXPECT_EQ(session.host.EventNames(), Names{"SendKeyDefinition"});
}

TEST(WizardFlow, CancelOnPage2PutsTheOldKeyBackAndPage1ClosesWithoutRestoringAgain) {
  WizardSession session(OvalLed);
  session.element->WizardOptions(TipKey);
  session.GiveTexts("[old‹]", "[old›]");
  const auto before = session.Record();
  session.Click("optKeyType(3)").Click("cmdForward");
  session.Then([&] {
    EXPECT_NE(session.Record(), before);
    session.host.Forget();
    Hand(session.Top()).Click(session.Get<Control>("cmdCancel"));
  });
  session.Open();
  EXPECT_EQ(session.Record(), before);
  const auto notices = session.host.Notices();
  EXPECT_EQ(std::count(notices.begin(), notices.end(), HostEvent::Value("WizardOptions")), 1);
}

TEST(WizardFlow, BackFromPage2AndForwardWithoutTouchingAnythingDoesNotRewriteTheDefinition) {
  WizardSession session(OvalLed);
  session.Click("optKeyType(3)").Click("cmdForward").Click("cmdBack");
  session.Then([&] { session.element->PressKeyDefLayer2("[kept]"); });
  session.Click("cmdForward").Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.element->PressKeyDefLayer2(), "[kept]");
}

TEST(WizardFlow, LedFunctionsOfPage2StayInTheElementWhilePage1IsShowingAgain) {
  WizardSession session(OvalLed);
  session.Grant(Capability::HasPowerLed);
  session.Click("cmdForward").Select("cmbLEDTypes", Text(10403)).Click("cmdForward");
  session.Click("cmdBack").Click("cmdBack");
  session.Then([&] {
    EXPECT_EQ(session.Top().Name(), dialogs::frmButtonWizardPage1);
    EXPECT_EQ(session.element->LEDTypeLayer1(), PowerLed);
    Hand(session.Top()).Click(session.Get<Control>("cmdCancel"));
  });
  session.Open();
  EXPECT_EQ(session.element->LEDTypeLayer1(), LedNotEnabled);
}

TEST(WizardFlow, BackOnPage2OfALedElementLeavesTheElementUntouched) {
  WizardSession session(Led);
  session.element->LEDTypeLayer1(PowerLed);
  const auto before = session.Record();
  session.Click("cmdBack");
  session.Open();
  EXPECT_EQ(session.Record(), before);
}

TEST(WizardFlow, Page1ClearsPageChangingWhileLoading) {
  WizardSession session(Rect);
  Module().bWizardPageChanging = True;
  session.Then([&] { EXPECT_EQ(Module().bWizardPageChanging, False); }).Click("cmdCancel");
  session.Open();
}

TEST(WizardFlow, PageChangingLeftTrueByALedElementIsClearedByTheNextWayOutOfPage3) {
  WizardSession session(Led);
  Module().bWizardPageChanging = True;
  session.Click("cmdForward").Click("cmdCancel");
  session.Open();
  EXPECT_EQ(Module().bWizardPageChanging, False);
  EXPECT_EQ(session.closed, (Names{dialogs::frmButtonWizardPage3, dialogs::frmButtonWizardPage2}));
}

TEST(WizardFlow, ALedElementOfAFreshProcessOpensAtTheOrigin) {
  WizardSession session(Led);
  session.Click("cmdCancel");
  session.Open();
  EXPECT_EQ(session.shown, Names{"frmButtonWizardPage2 over HostForm at 0,0"});
}

TEST(WizardFlow, ALedElementOpensWherePage1HasGoneForwardBefore) {
  WizardSession session(Led);
  Module().lngDialogLeft = 300;
  Module().lngDialogTop = 600;
  session.Click("cmdCancel");
  session.Open();
  EXPECT_EQ(session.shown, Names{"frmButtonWizardPage2 over HostForm at 300,600"});
}

TEST(WizardFlow, Page3OpensAtThePlaceOfPage1WhereverPage2WasMoved) {
  WizardSession session(OvalLed);
  session.Then([&] { Hand(session.Top()).Move(1000, 2000); }).Click("cmdForward");
  session.Then([&] { Hand(session.Top()).Move(3000, 4000); }).Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.shown.back(), "frmButtonWizardPage3 over frmButtonWizardPage2 at 1000,2000");
}

TEST(WizardFlow, CancelAndOkOnPage3StoreThePlaceOfPage3) {
  for (const char* button : {"cmdCancel", "cmdOK"}) {
    WizardSession session(OvalLed);
    session.Click("cmdForward").Then([&] { Hand(session.Top()).Move(3000, 4000); }).Click("cmdForward");
    session.Then([&] { Hand(session.Top()).Move(500, 600.5F); }).Click(button);
    session.Open();
    EXPECT_EQ(session.Stored("ConfigDialogLeft"), "500") << button;
    EXPECT_EQ(session.Stored("ConfigDialogTop"), "600.5") << button;
  }
}

TEST(WizardFlow, ThePlaceHandedOnIsRoundedToTheEvenNeighbour) {
  WizardSession session(Rect);
  session.Then([&] { Hand(session.Top()).Move(100.5F, 101.5F); }).Click("cmdForward").Click("cmdCancel");
  session.Open();
  EXPECT_EQ(Module().lngDialogLeft, 100);
  EXPECT_EQ(Module().lngDialogTop, 102);
}

TEST(WizardFlow, OnlyTopAndLeftAreStoredTopFirst) {
  WizardSession session(Rect);
  session.Then([&] { Hand(session.Top()).Move(15, 30); }).Click("cmdCancel");
  session.Open();
  EXPECT_EQ(session.platform.UserRegistry().Stored(),
            (MemoryRegistry::Values{{"ConfigDialogTop", "30"}, {"ConfigDialogLeft", "15"}}));
  EXPECT_EQ(session.platform.UserRegistry().OpenKeys(), 0);
}

TEST(WizardFlow, ForwardIsDisabledWhileTheNextPageIsShown) {
  WizardSession session(OvalLed);
  Form* first = nullptr;
  session.Then([&] { first = &session.Top(); }).Click("cmdForward");
  session.Then([&] { EXPECT_FALSE(first->Find("cmdForward")->Enabled()); }).Click("cmdForward");
  session.Then([&] {
    EXPECT_FALSE(FormDirectory::Instance().Open(dialogs::frmButtonWizardPage2)->Find("cmdForward")->Enabled());
  });
  session.Click("cmdBack").Then([&] { EXPECT_TRUE(session.Get<Control>("cmdForward").Enabled()); });
  session.Click("cmdBack").Then([&] { EXPECT_TRUE(session.Get<Control>("cmdForward").Enabled()); });
  session.Click("cmdCancel");
  session.Open();
}

TEST(WizardFlow, SendKeyDefinitionFollowsWhateverTheOutcome) {
  for (const char* button : {"cmdCancel", "cmdOK"}) {
    WizardSession session(Rect);
    session.Click("cmdForward").Click(button);
    session.Open();
    EXPECT_EQ(session.host.EventNames().back(), "SendKeyDefinition") << button;
  }
}

TEST(WizardFlow, CancelAfterCaptureGivesBackCodesTextsAndWizardOptions) {
  WizardSession session(OvalLed);
  session.element->WizardOptions(NormalKey);
  session.element->ButtonNotes("note");
  const auto before = session.Record();
  session.Click("optKeyType(1)").DblClick("txtScanCodes").Stroke(0x41, 0x1E).Click("cmdForward");
  session.Click("cmdBack").Click("cmdCancel");
  session.Open();
  EXPECT_EQ(session.Record(), before);
}

}  // namespace plexel
