#include "component/component.h"

#include "configdialog/frmConfigurationDialog.h"
#include "scancodes/frmNonStandardScancodes.h"
#include "specialdialogs/frmASCIICharacterTable.h"
#include "specialdialogs/frmSpecialIPCKey.h"
#include "specialdialogs/frmSpecialWindowsKey.h"
#include "wizard/frmButtonWizardPage1.h"
#include "wizard/frmButtonWizardPage2.h"
#include "wizard/frmButtonWizardPage3.h"
#include "wizard/frmPropertiesButton.h"

namespace plexel {

namespace {

template <typename Dialog>
void Add(FormDirectory& directory, std::string name) {
  directory.Add(std::move(name), [] { return std::make_unique<Dialog>(); });
}

}  // namespace

void RegisterForms(FormDirectory& directory) {
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

}  // namespace plexel
