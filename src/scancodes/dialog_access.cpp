#include "scancodes/dialog_access.h"

#include <string>
#include <string_view>

#include "forms/form_directory.h"
#include "platform/failure.h"

namespace plexel {

namespace {

template <typename Access>
Access& OpenFormAs(std::string_view name) {
  auto* access = dynamic_cast<Access*>(FormDirectory::Instance().Open(name));
  if (access == nullptr) throw Failure(FailureKind::ObjectNotSet, std::string(name) + " is not open");
  return *access;
}

}  // namespace

ConfigurationDialogAccess& OpenConfigurationDialogAccess() {
  return OpenFormAs<ConfigurationDialogAccess>("frmConfigurationDialog");
}

WizardPageAccess& OpenWizardPageAccess() { return OpenFormAs<WizardPageAccess>("frmButtonWizardPage1"); }

}  // namespace plexel
