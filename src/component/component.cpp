#include "component/component.h"

#include "configdialog/frmConfigurationDialog.h"
#include "forms/form_directory.h"
#include "platform/platform_in_force.h"
#include "scancodes/capture.h"
#include "scancodes/frmNonStandardScancodes.h"
#include "services/component_life.h"
#include "services/dialogs.h"
#include "services/surroundings_in_force.h"
#include "specialdialogs/frmASCIICharacterTable.h"
#include "specialdialogs/frmSpecialIPCKey.h"
#include "specialdialogs/frmSpecialWindowsKey.h"
#include "wizard/frmButtonWizardPage1.h"
#include "wizard/frmButtonWizardPage2.h"
#include "wizard/frmButtonWizardPage3.h"
#include "wizard/frmPropertiesButton.h"

namespace plexel {

namespace {

/// What the platform throws when everything ends has nobody to hear it.
template <typename Act>
void AndDropFailures(Act&& act) {
  try {
    act();
  } catch (...) {  // a destructor has no caller to pass it on to
  }
}

template <typename Dialog>
void Add(FormDirectory& directory, FormName name) {
  directory.Add(name, [] { return std::make_unique<Dialog>(); });
}

void AddForms(FormDirectory& directory) {
  Add<frmConfigurationDialog>(directory, dialogs::frmConfigurationDialog);
  Add<frmButtonWizardPage1>(directory, dialogs::frmButtonWizardPage1);
  Add<frmButtonWizardPage2>(directory, dialogs::frmButtonWizardPage2);
  Add<frmButtonWizardPage3>(directory, dialogs::frmButtonWizardPage3);
  Add<frmPropertiesButton>(directory, dialogs::frmPropertiesButton);
  Add<frmSpecialIPCKey>(directory, dialogs::frmSpecialIPCKey);
  Add<frmSpecialWindowsKey>(directory, dialogs::frmSpecialWindowsKey);
  Add<frmASCIICharacterTable>(directory, dialogs::frmASCIICharacterTable);
  Add<frmNonStandardScancodes>(directory, dialogs::frmNonStandardScancodes);
}

}  // namespace

struct Component::Parts {
  Parts(Platform& platform, Surroundings& surroundings)
      : platformInForce(platform), surroundingsInForce(surroundings) {}
  ComponentLife life;
  PlatformInForce platformInForce;
  SurroundingsInForce surroundingsInForce;
};

Component::Component(Platform& platform, Surroundings& surroundings)
    : parts_(std::make_unique<Parts>(platform, surroundings)) {
  AddForms(FormDirectory::Instance());
}

Component::~Component() {
  AndDropFailures(DropCapture);
  for (Form* const form : FormDirectory::Instance().Clear()) AndDropFailures([&] { form->End(); });
}

std::shared_ptr<ctlPlexelBaseElement> Component::Create(std::string name, ElementHost& host) {
  return ctlPlexelBaseElement::Create(std::move(name), host);
}

std::shared_ptr<ctlPlexelBaseElement> Component::Read(std::string name, ElementHost& host, const PropertyBag& bag) {
  return ctlPlexelBaseElement::Read(std::move(name), host, bag);
}

}  // namespace plexel
