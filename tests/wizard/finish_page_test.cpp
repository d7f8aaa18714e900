#include <utility>

#include "services/dialogs.h"
#include "wizard/wizard_session.h"

namespace plexel {

TEST(WizardFinishPage, OkRaisesProjectModifiedOnceAndBeforeItsFormCloses) {
  WizardSession session(Rect);
  std::vector<std::string> closedAtEvent;
  session.host.onEvent = [&](const HostEvent& event) {
    if (event.name == "ProjectModified") closedAtEvent = {session.closed.empty() ? "open" : "closed"};
  };
  session.Click("optKeyType(3)").Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(closedAtEvent, std::vector<std::string>{"open"});
  EXPECT_EQ(session.host.EventNames(), (std::vector<std::string>{"ProjectModified", "SendKeyDefinition"}));
}

TEST(WizardFinishPage, OkClearsPageChangingThatAnEarlierWizardLeftTrue) {
  WizardSession session(Led);
  Module().bWizardPageChanging = True;
  session.Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(Module().bWizardPageChanging, False);
  EXPECT_EQ(session.closed.size(), 2U);
}

TEST(WizardFinishPage, CancelAndBackRaiseNoProjectModifiedThoughTheElementHasChanged) {
  WizardSession session(Rect);
  session.Click("optKeyType(3)").Click("cmdForward").Click("cmdBack").Click("cmdForward").Click("cmdCancel");
  session.Open();
  EXPECT_EQ(session.host.Count("ProjectModified"), 0);
  EXPECT_EQ(session.element->PressKeyDefLayer1(), "[text 2610‹]");
}

TEST(WizardFinishPage, OkAfterBackAndForwardRaisesProjectModifiedOnce) {
  WizardSession session(OvalLed);
  session.Click("cmdForward").Click("cmdForward").Click("cmdBack").Click("cmdForward").Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.host.Count("ProjectModified"), 1);
}

TEST(WizardFinishPage, BackOfARectReturnsToPage1Directly) {
  WizardSession session(Rect);
  session.Click("cmdForward").Click("cmdBack");
  session.Then([&] { EXPECT_EQ(session.Top().Name(), dialogs::frmButtonWizardPage1); }).Click("cmdCancel");
  session.Open();
}

TEST(WizardFinishPage, ReturnIsOkAndEscapeIsCancel) {
  for (const auto& [key, modified] : {std::pair{key::Return, 1}, {key::Escape, 0}}) {
    WizardSession session(Rect);
    session.Click("cmdForward").KeyDown(key);
    session.Open();
    EXPECT_EQ(session.host.Count("ProjectModified"), modified);
  }
}

TEST(WizardFinishPage, NothingOfTheElementChangesWhileItStands) {
  WizardSession session(OvalLed);
  session.Click("cmdForward").Click("cmdForward");
  udtTactisBaseElement_ScanCodeInfo before;
  session.Then([&] { before = session.Record(); }).Click("cmdOK");
  session.Open();
  EXPECT_EQ(session.Record(), before);
}

}  // namespace plexel
