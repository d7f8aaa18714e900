#include "dialogs/dialog_visits.h"

#include "forms/form_directory.h"
#include "services/dialogs.h"

namespace plexel::dialogs {

namespace {

using Act = std::function<void(Hand&, Form&)>;

Act Click(const char* control) {
  return [control](Hand& hand, Form& form) { hand.Click(*form.Find(control)); };
}

Act Tab(int page) {
  return [page](Hand& hand, Form& form) { hand.Tab(static_cast<TabStrip&>(*form.Find("sstScanCode")), page); };
}

Act OpenOver(FormName name) {
  return [name](Hand&, Form& form) { FormDirectory::Instance().ShowModal(name, &form); };
}

Visit Configuration() {
  const FormName form = frmConfigurationDialog;
  Visit visit{RectLed};
  visit.steps = {
      {form, "configuration-keys",
       [](Hand& hand, Form& shown) { hand.DblClick(static_cast<Grid&>(*shown.Find("msgScanCodes")), 1, 2); }},
      {form, "configuration-capture", Tab(1)},
      {form, "configuration-page1", Tab(2)},
      {form, "configuration-page2", Tab(0)},
  };
  for (const FormName over :
       {frmSpecialIPCKey, frmSpecialWindowsKey, frmASCIICharacterTable, frmNonStandardScancodes}) {
    visit.steps.push_back({form, "", OpenOver(over)});
    if (over == frmASCIICharacterTable) {
      visit.steps.push_back({over, "", [](Hand& hand, Form& shown) {
                               hand.Click(static_cast<Grid&>(*shown.Find("msgASCIICodes")), 4, 4);
                             }});
    }
    visit.steps.push_back({over, std::string(over), Click("cmdCancel")});
  }
  visit.steps.push_back({form, "", Click("cmdCancel")});
  return visit;
}

Visit WithWizard() {
  Visit visit{RectLed};
  visit.wizard = true;
  visit.steps = {{frmButtonWizardPage1, "wizard1", Click("cmdForward")},
                 {frmButtonWizardPage2, "wizard2", Click("cmdForward")},
                 {frmButtonWizardPage3, "wizard3", Click("cmdCancel")}};
  return visit;
}

Visit Properties(enumTactisBaseElementType type, const char* look) {
  Visit visit{type};
  visit.properties = true;
  visit.steps = {{frmPropertiesButton, look, [](Hand& hand, Form&) { hand.Close(); }}};
  return visit;
}

}  // namespace

void Visit::SetUp(ctlPlexelBaseElement& element) const {
  element.ElementType(type);
  element.TargetSystem("Standard");
  element.PressKeyDefLayer1("[Ctrl Left+a\u2039\u203A]");
  element.PressKeyDefLayer2("[F1\u2039\u203A][Enter\u2039\u203A]");
  element.ReleaseKeyDefLayer2("[Shift Left\u203A]");
  element.HardwareNumberButton(12);
  element.HardwareNumberLed(14);
  element.HardwareNumberKey(3);
  element.HardwareNumberKey2(5);
  element.LEDTypeLayer1(UserLed);
  if (wizard) element.WizardOn(True);
}

void Visit::Open(ctlPlexelBaseElement& element) const {
  if (properties) return element.OpenPropertiesDialog();
  element.OpenConfigurationDialog();
}

std::vector<Visit> Visits() {
  Visit led{Led};
  led.steps = {{frmConfigurationDialog, "configuration-led", Click("cmdCancel")}};
  return {Configuration(), led, WithWizard(), Properties(RectLed, "properties-key"),
          Properties(Key, "properties-keyswitch")};
}

}  // namespace plexel::dialogs
