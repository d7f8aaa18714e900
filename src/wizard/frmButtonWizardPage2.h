#pragma once

#include "wizard/wizard_page.h"

namespace plexel {

/// The LED page: the one function that the element's LED shows on all four layers. It offers what the target system has
/// and no other element shows yet; a notice stands in place of the list when nothing is left.
class frmButtonWizardPage2 : public WizardPage {
 public:
  frmButtonWizardPage2();

  /// Ends at the first step that fails.
  void OnLoad() override;
  void OnQueryUnload(UnloadMode mode) override;

  /// Ends quietly on a failure, with the entries added so far.
  void FillLedFunctionList();
  /// Stores the position and puts the element back as it was at opening. Ends quietly on a failure.
  void RestoreDefinition();

  /// The handlers of cmdDeleteLED_Click and cmdForward_Click have no guard.
  void cmdDeleteLED_Click();
  void cmdForward_Click();
  void cmdBack_Click();
  void cmdCancel_Click();

 private:
  void Design();
  void ConnectEvents();
  void ShowNotice(bool notice);
  void StoreFunction();
  void StoreNoFunction();

  Label labAllavailableLEDFunctions{*this, "labAllavailableLEDFunctions"};
  ComboBox cmbLEDTypes{*this, "cmbLEDTypes"};
  CommandButton cmdDeleteLED{*this, "cmdDeleteLED"};
  PictureBox imgAttention{*this, "imgAttention"};
  Label labAllLedsAlreadyDefined{*this, "labAllLedsAlreadyDefined"};
  CommandButton cmdBack{*this, "cmdBack"};
  CommandButton cmdForward{*this, "cmdForward"};
};

}  // namespace plexel
