#include "wizard/frmButtonWizardPage3.h"

#include "element/element_access.h"
#include "platform/platform.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

void frmButtonWizardPage3::OnLoad() {
  TakeHandedOverLeft();
  TakeHandedOverTop();
  ScaleTitlePicture();
  PassOver([] { Platform::Current().Events().DoEvents(); });
  PassOver([this] { TranslateForm(*this, "@"); });
}

void frmButtonWizardPage3::OnQueryUnload(UnloadMode mode) {
  if (mode == UnloadMode::CloseBox) LeaveWizard();
}

void frmButtonWizardPage3::LeaveWizard() {
  EndQuietly([this] {
    SaveDialogPosition();
    Module().bWizardPageChanging = False;
  });
}

void frmButtonWizardPage3::cmdOK_Click() {
  cmdOK.Enabled(false);
  ElementAccess::RaiseProjectModified(CurrentElement());
  Module().bWizardPageChanging = False;
  SaveDialogPosition();
  Unload();
}

void frmButtonWizardPage3::cmdBack_Click() {
  EndQuietly([this] {
    Module().bWizardPageChanging = True;
    Unload();
  });
}

void frmButtonWizardPage3::cmdCancel_Click() {
  EndQuietly([this] {
    LeaveWizard();
    Unload();
  });
}

}  // namespace plexel
