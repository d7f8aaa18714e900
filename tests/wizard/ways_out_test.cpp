#include "services/dialogs.h"
#include "wizard/frmButtonWizardPage1.h"
#include "wizard/wizard_session.h"

namespace plexel {

namespace {

constexpr FormName page1 = dialogs::frmButtonWizardPage1, page2 = dialogs::frmButtonWizardPage2,
                   page3 = dialogs::frmButtonWizardPage3;

/// What one way out of a page did.
struct Outcome {
  bool restored = false;            ///< the definition is as it was at opening
  std::string left;                 ///< the stored left, "none" when nothing was stored
  Boolean pageChanging = False;     ///< as the page closed
  std::vector<std::string> closed;  ///< the forms, in the order in which they closed
  std::int32_t projectModified = 0;
};

/// Goes forward to a page, moves it to left 77, leaves it with `leave`, and closes what is still open by code.
class WayOut {
 public:
  explicit WayOut(enumTactisBaseElementType type) : session_(type) {
    session_.Grant(Capability::HasUserLed);
    session_.GiveTexts("[old]", "");
    session_.element->LEDTypeLayer1(UserLed);
  }
  WizardSession& Session() { return session_; }

  Outcome Leave(std::string_view page, const std::function<void()>& leave, bool pageBelowStays = false) {
    session_.platform.Modal().onClosed = [this, page](Form& form) {
      session_.closed.push_back(form.Name());
      if (form.Name() == page) changing_ = Module().bWizardPageChanging;
    };
    Outcome outcome;
    session_.Then([&, page] {
      EXPECT_EQ(session_.Top().Name(), page);
      Hand(session_.Top()).Move(77, 66);
      leave();
      outcome.restored =
          session_.element->PressKeyDefLayer1() == "[old]" && session_.element->LEDTypeLayer1() == UserLed;
      outcome.left = session_.Stored("ConfigDialogLeft");
    });
    if (pageBelowStays) {
      session_.Then([&] {
        stayed_ = session_.Top().Name();
        EXPECT_EQ(Module().bWizardPageChanging, False);
        session_.Top().Unload();
      });
    }
    session_.Open();
    outcome.pageChanging = changing_;
    outcome.closed = session_.closed;
    outcome.projectModified = session_.host.Count("ProjectModified");
    return outcome;
  }
  const std::string& Stayed() const { return stayed_; }

  /// Plans a change of the key on page 1 and the way to the next page.
  void ChangeKey() { session_.Click("optKeyType(3)").Click("cmdForward"); }
  /// Plans a change of the LED on page 2 and the way to page 3.
  void ChangeLed() { session_.Click("cmdDeleteLED").Click("cmdForward"); }

  void Click(const char* button) { Hand(session_.Top()).Click(session_.Get<Control>(button)); }
  void Escape() {
    Hand hand(session_.Top());
    hand.KeyDown(key::Escape, 0);
    if (session_.platform.Modal().Topmost() != nullptr) hand.KeyPress(key::Escape);
  }
  void Close() { Hand(session_.Top()).Close(); }

 private:
  WizardSession session_;
  Boolean changing_ = False;
  std::string stayed_;
};

using Names = std::vector<std::string>;

void ExpectFirstPageCancelled(const Outcome& outcome) {
  EXPECT_TRUE(outcome.restored);
  EXPECT_EQ(outcome.left, "77");
  EXPECT_EQ(outcome.pageChanging, False);
  EXPECT_EQ(outcome.closed, Names{std::string(page1)});
  EXPECT_EQ(outcome.projectModified, 0);
}

/// Page 1 with a changed key and capture on.
void CaptureOnPage1(WayOut& way) {
  way.Session().Click("optKeyType(1)").DblClick("txtScanCodes").Then([] { ASSERT_NE(Module().lngKeyboardHook, 0); });
}

}  // namespace

TEST(WizardWaysOut, CancelOnPage1EndsCaptureRestoresAndStoresThePosition) {
  WayOut way(OvalLed);
  CaptureOnPage1(way);
  ExpectFirstPageCancelled(way.Leave(page1, [&] { way.Click("cmdCancel"); }));
  EXPECT_EQ(Module().lngKeyboardHook, 0);
}

TEST(WizardWaysOut, RestoringOnPage1EndsCaptureAheadOfTheElement) {
  WayOut way(OvalLed);
  CaptureOnPage1(way);
  way.Leave(page1, [&] {
    std::string text = "not ended";
    way.Session().host.onEvent = [&](const HostEvent& event) {
      if (event.name == "DirectInputStatusChanged") text = way.Session().element->PressKeyDefLayer1();
    };
    Module().bWizardPageChanging = True;
    dynamic_cast<frmButtonWizardPage1&>(way.Session().Top()).RestoreDefinition();
    way.Session().host.onEvent = nullptr;
    EXPECT_EQ(text, "");
    EXPECT_EQ(Module().bWizardPageChanging, False);
    way.Close();
  });
}

TEST(WizardWaysOut, EscapeOnPage1WithKeyPreviewIsCancel) {
  WayOut way(OvalLed);
  way.Session().Click("optKeyType(3)");
  ExpectFirstPageCancelled(way.Leave(page1, [&] { way.Escape(); }));
}

TEST(WizardWaysOut, EscapeOnPage1WithoutKeyPreviewDoesNothing) {
  WayOut way(OvalLed);
  CaptureOnPage1(way);
  way.Session().Then([&] {
    way.Escape();
    EXPECT_TRUE(way.Session().Top().IsShown());
  });
  way.Leave(page1, [&] { way.Click("cmdCancel"); });
  EXPECT_EQ(way.Session().closed, Names{std::string(page1)});
}

TEST(WizardWaysOut, TheCloseBoxOfPage1EndsCaptureRestoresAndStoresThePosition) {
  WayOut way(OvalLed);
  CaptureOnPage1(way);
  ExpectFirstPageCancelled(way.Leave(page1, [&] { way.Close(); }));
  EXPECT_EQ(Module().lngKeyboardHook, 0);
}

TEST(WizardWaysOut, UnloadingPage1ByCodeEndsCaptureAndRestoresNothing) {
  WayOut way(OvalLed);
  CaptureOnPage1(way);
  const Outcome outcome = way.Leave(page1, [&] { way.Session().Top().Unload(); });
  EXPECT_FALSE(outcome.restored);
  EXPECT_EQ(outcome.left, "none");
  EXPECT_EQ(Module().bDirectInputActive, False);
  EXPECT_EQ(Module().lngKeyboardHook, 0);
}

TEST(WizardWaysOut, CancelEscapeAndTheCloseBoxOfPage2RestoreStoreThePositionAndCloseAllPages) {
  for (const int manner : {0, 1, 2}) {
    WayOut way(OvalLed);
    way.ChangeKey();
    const Outcome outcome = way.Leave(page2, [&] {
      if (manner == 0) way.Click("cmdCancel");
      if (manner == 1) way.Escape();
      if (manner == 2) way.Close();
    });
    EXPECT_TRUE(outcome.restored) << manner;
    EXPECT_EQ(outcome.left, "77") << manner;
    EXPECT_EQ(outcome.pageChanging, False) << manner;
    EXPECT_EQ(outcome.closed, (Names{std::string(page2), std::string(page1)})) << manner;
    EXPECT_EQ(outcome.projectModified, 0) << manner;
  }
}

TEST(WizardWaysOut, BackOnPage2RestoresAndStoresNothingAndPage1Stays) {
  WayOut way(OvalLed);
  way.ChangeKey();
  const Outcome outcome = way.Leave(page2, [&] { way.Click("cmdBack"); }, true);
  EXPECT_FALSE(outcome.restored);
  EXPECT_EQ(outcome.left, "none");
  EXPECT_EQ(outcome.pageChanging, True);
  EXPECT_EQ(way.Stayed(), page1);
}

TEST(WizardWaysOut, BackOnPage2OfALedElementEndsTheWizard) {
  WayOut way(Led);
  const Outcome outcome = way.Leave(page2, [&] { way.Click("cmdBack"); });
  EXPECT_TRUE(outcome.restored);
  EXPECT_EQ(outcome.left, "none");
  EXPECT_EQ(outcome.closed, Names{std::string(page2)});
  EXPECT_EQ(Module().bWizardPageChanging, True);
}

TEST(WizardWaysOut, CancelEscapeAndTheCloseBoxOfPage3RestoreNothingStoreThePositionAndCloseAllPages) {
  for (const int manner : {0, 1, 2}) {
    WayOut way(OvalLed);
    way.ChangeKey();
    way.ChangeLed();
    const Outcome outcome = way.Leave(page3, [&] {
      if (manner == 0) way.Click("cmdCancel");
      if (manner == 1) way.Escape();
      if (manner == 2) way.Close();
    });
    EXPECT_FALSE(outcome.restored) << manner;
    EXPECT_EQ(outcome.left, "77") << manner;
    EXPECT_EQ(outcome.pageChanging, False) << manner;
    EXPECT_EQ(outcome.closed, (Names{std::string(page3), std::string(page2), std::string(page1)})) << manner;
    EXPECT_EQ(outcome.projectModified, 0) << manner;
  }
}

TEST(WizardWaysOut, BackOnPage3RestoresAndStoresNothingAndPage2Stays) {
  WayOut way(OvalLed);
  way.ChangeKey();
  way.ChangeLed();
  const Outcome outcome = way.Leave(page3, [&] { way.Click("cmdBack"); }, true);
  EXPECT_FALSE(outcome.restored);
  EXPECT_EQ(outcome.left, "none");
  EXPECT_EQ(outcome.pageChanging, True);
  EXPECT_EQ(way.Stayed(), page2);
}

TEST(WizardWaysOut, BackOnPage3OfARectReturnsToPage1) {
  WayOut way(Rect);
  way.ChangeKey();
  const Outcome outcome = way.Leave(page3, [&] { way.Click("cmdBack"); }, true);
  EXPECT_EQ(outcome.pageChanging, True);
  EXPECT_EQ(way.Stayed(), page1);
}

TEST(WizardWaysOut, OkOnPage3KeepsTheChangeStoresThePositionAndClosesAllPages) {
  WayOut way(OvalLed);
  way.ChangeKey();
  way.ChangeLed();
  const Outcome outcome = way.Leave(page3, [&] { way.Click("cmdOK"); });
  EXPECT_FALSE(outcome.restored);
  EXPECT_EQ(outcome.left, "77");
  EXPECT_EQ(outcome.pageChanging, False);
  EXPECT_EQ(outcome.closed, (Names{std::string(page3), std::string(page2), std::string(page1)}));
  EXPECT_EQ(outcome.projectModified, 1);
}

TEST(WizardWaysOut, UnloadingPage2ByCodeRestoresAndStoresNothing) {
  WayOut way(OvalLed);
  way.ChangeKey();
  const Outcome outcome = way.Leave(page2, [&] { way.Session().Top().Unload(); });
  EXPECT_FALSE(outcome.restored);
  EXPECT_EQ(outcome.left, "none");
}

TEST(WizardWaysOut, UnloadingPage3ByCodeStoresNothing) {
  WayOut way(Rect);
  way.ChangeKey();
  EXPECT_EQ(way.Leave(page3, [&] { way.Session().Top().Unload(); }).left, "none");
}

}  // namespace plexel
