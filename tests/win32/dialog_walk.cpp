#include "win32/dialog_walk.h"

#include "element/ctlPlexelBaseElement.h"
#include "forms/form_directory.h"
#include "services/dialogs.h"
#include "win32/desk.h"

namespace plexel {

namespace {

using Look = std::function<void(const std::string& name)>;

void Act(Desk& desk, const std::function<void(Hand&, Form&)>& act) {
  Hand hand(desk.TopForm());
  act(hand, desk.TopForm());
  desk.platform.Modal().SyncAll();
}

void Click(Desk& desk, const std::string& name) {
  Act(desk, [&](Hand& hand, Form& form) { hand.Click(*form.Find(name)); });
}

/// The steps come when the window has drawn itself.
void LookAt(Desk& desk, const Look& look, FormName form, const std::string& name) {
  desk.Until("the dialog opens: " + name, [&desk, form] { return desk.IsOpen(form); });
  desk.Then("it draws itself", [] {});
  desk.Then("it draws itself", [] {});
  desk.Then("a look at " + name, [look, name] { look(name); });
}

void WalkConfiguration(Desk& desk, const Look& look) {
  const auto tab = [&desk](int page) {
    desk.Then("another page", [&desk, page] {
      Act(desk, [page](Hand& hand, Form& form) { hand.Tab(static_cast<TabStrip&>(*form.Find("sstScanCode")), page); });
    });
  };
  const auto form = dialogs::frmConfigurationDialog;
  const auto element = desk.Element(RectLed);
  LookAt(desk, look, form, "configuration-keys");
  desk.Then("capture", [&desk] {
    Act(desk, [](Hand& hand, Form& one) { hand.DblClick(static_cast<Grid&>(*one.Find("msgScanCodes")), 1, 2); });
  });
  LookAt(desk, look, form, "configuration-capture");
  for (const int page : {1, 2}) {
    tab(page);
    LookAt(desk, look, form, "configuration-page" + std::to_string(page));
  }
  tab(0);
  for (const FormName name : {dialogs::frmSpecialIPCKey, dialogs::frmSpecialWindowsKey, dialogs::frmASCIICharacterTable,
                              dialogs::frmNonStandardScancodes}) {
    desk.Then("a dialog over it", [&desk, name] { FormDirectory::Instance().ShowModal(name, &desk.TopForm()); });
    if (name == dialogs::frmASCIICharacterTable) {
      desk.Until("it opens", [&desk, name] { return desk.IsOpen(name); });
      desk.Then("a character", [&desk] {
        Act(desk, [](Hand& hand, Form& one) { hand.Click(static_cast<Grid&>(*one.Find("msgASCIICodes")), 4, 4); });
      });
    }
    LookAt(desk, look, name, std::string(name));
    desk.Then("it closes", [&desk] { Click(desk, "cmdCancel"); });
  }
  desk.Until("back", [&desk, form] { return desk.IsOpen(form); });
  desk.Then("cancel", [&desk] { Click(desk, "cmdCancel"); });
  element->OpenConfigurationDialog();
}

void WalkLed(Desk& desk, const Look& look) {
  const auto element = desk.Element(Led);
  LookAt(desk, look, dialogs::frmConfigurationDialog, "configuration-led");
  desk.Then("cancel", [&desk] { Click(desk, "cmdCancel"); });
  element->OpenConfigurationDialog();
}

void WalkWizard(Desk& desk, const Look& look) {
  const auto element = desk.Element(RectLed);
  element->WizardOn(True);
  LookAt(desk, look, dialogs::frmButtonWizardPage1, "wizard1");
  desk.Then("on", [&desk] { Click(desk, "cmdForward"); });
  LookAt(desk, look, dialogs::frmButtonWizardPage2, "wizard2");
  desk.Then("on", [&desk] { Click(desk, "cmdForward"); });
  LookAt(desk, look, dialogs::frmButtonWizardPage3, "wizard3");
  desk.Then("cancel", [&desk] { Click(desk, "cmdCancel"); });
  element->OpenConfigurationDialog();
}

void WalkProperties(Desk& desk, const Look& look) {
  for (const auto type : {RectLed, Key}) {
    const auto element = desk.Element(type);
    LookAt(desk, look, dialogs::frmPropertiesButton, type == Key ? "properties-keyswitch" : "properties-key");
    desk.Then("close", [&desk] { Act(desk, [](Hand& hand, Form&) { hand.Close(); }); });
    element->OpenPropertiesDialog();
  }
}

}  // namespace

void WalkDialogs(Desk& desk, const Look& look) {
  WalkConfiguration(desk, look);
  WalkLed(desk, look);
  WalkWizard(desk, look);
  WalkProperties(desk, look);
}

}  // namespace plexel
