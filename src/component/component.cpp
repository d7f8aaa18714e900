#include "component/component.h"

#include "configdialog/frmConfigurationDialog.h"
#include "forms/form_directory.h"
#include "platform/platform_in_force.h"
#include "scancodes/capture.h"
#include "scancodes/frmNonStandardScancodes.h"
#include "services/component_life.h"
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
void Add(FormDirectory& directory, std::string name) {
  directory.Add(std::move(name), [] { return std::make_unique<Dialog>(); });
}

void AddForms(FormDirectory& directory) {
  Add<frmConfigurationDialog>(directory, "frmConfigurationDialog");
  Add<frmButtonWizardPage1>(directory, "frmButtonWizardPage1");
  Add<frmButtonWizardPage2>(directory, "frmButtonWizardPage2");
  Add<frmButtonWizardPage3>(directory, "frmButtonWizardPage3");
  Add<frmPropertiesButton>(directory, "frmPropertiesButton");
  Add<frmSpecialIPCKey>(directory, "frmSpecialIPCKey");
  Add<frmSpecialWindowsKey>(directory, "frmSpecialWindowsKey");
  Add<frmASCIICharacterTable>(directory, "frmASCIICharacterTable");
  Add<frmNonStandardScancodes>(directory, "frmNonStandardScancodes");
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
