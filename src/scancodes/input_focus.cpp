#include "scancodes/input_focus.h"

#include "scancodes/dialog_access.h"
#include "services/failure_styles.h"
#include "services/module_state.h"

namespace plexel {

namespace {

void TakeFocus(CommandButton& focusCatcher) {
  focusCatcher.TabStop(true);
  focusCatcher.SetFocus();
}

}  // namespace

void CatchFocus(std::int32_t target) {
  if (target == TargetConfigurationDialog) {
    TakeFocus(OpenConfigurationDialogAccess().FocusCatcher());
  } else if (target == TargetWizard) {
    TakeFocus(OpenWizardPageAccess().FocusCatcher());
  }
}

void ReturnFocus(std::int32_t target) {
  if (target == TargetConfigurationDialog) {
    ConfigurationDialogAccess& dialog = OpenConfigurationDialogAccess();
    dialog.FocusCatcher().TabStop(false);
    dialog.ScanCodeGrid().SetFocus();
  } else if (target == TargetWizard) {
    WizardPageAccess& page = OpenWizardPageAccess();
    page.FocusCatcher().TabStop(false);
    page.Page().Focus(nullptr);
  }
}

void ParkInputFocus() {
  EndQuietly([] { CatchFocus(Module().lngInputTarget); });
}

}  // namespace plexel
