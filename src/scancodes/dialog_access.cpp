#include "scancodes/dialog_access.h"

#include <string>

#include "forms/form_directory.h"
#include "platform/failure.h"
#include "services/dialogs.h"

namespace plexel {

namespace {

template <typename Access>
Access& OpenFormAs(FormName name) {
  auto* access = dynamic_cast<Access*>(FormDirectory::Instance().Open(name));
  if (access == nullptr) throw Failure(FailureKind::ObjectNotSet, std::string(name) + " is not open");
  return *access;
}

}  // namespace

ConfigurationDialogAccess& OpenConfigurationDialogAccess() {
  return OpenFormAs<ConfigurationDialogAccess>(dialogs::frmConfigurationDialog);
}

WizardPageAccess& OpenWizardPageAccess() { return OpenFormAs<WizardPageAccess>(dialogs::frmButtonWizardPage1); }

}  // namespace plexel
