#pragma once

#include "wizard/wizard_page.h"

namespace plexel {

/// The finish page. It asks and stores nothing; its OK tells the host that the project has changed.
class frmButtonWizardPage3 : public WizardPage {
 public:
  frmButtonWizardPage3();

  /// Passes over each step of loading that fails.
  void OnLoad() override;
  void OnQueryUnload(UnloadMode mode) override;

  /// Ends the wizard without putting the element back: Cancel on the last page is no undo. Ends quietly on a failure.
  void LeaveWizard();

  /// No guard.
  void cmdOK_Click();
  void cmdBack_Click();
  void cmdCancel_Click();

 private:
  CommandButton cmdBack{*this, "cmdBack"};
  CommandButton cmdOK{*this, "cmdOK"};
};

}  // namespace plexel
