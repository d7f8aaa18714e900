#pragma once

#include <cstdint>

#include "forms/form.h"

namespace plexel {

/// The dialogs that codes and capture go to.
inline constexpr std::int32_t TargetConfigurationDialog = 0;
inline constexpr std::int32_t TargetWizard = 2;

/// What the scan code procedures touch of the open configuration dialog. The dialog implements it.
class ConfigurationDialogAccess {
 public:
  virtual ~ConfigurationDialogAccess() = default;
  virtual Grid& ScanCodeGrid() = 0;                     ///< msgScanCodes
  virtual OptionButton& CodeTypeOption(int index) = 0;  ///< optCodeType, 0 to 2
  virtual CommandButton& FocusCatcher() = 0;            ///< cmdFocusCatcher
  virtual TextBox& NotesBox() = 0;                      ///< txtButtonNotes
  virtual ComboBox& LedTypeBox(int index) = 0;          ///< cmbLEDTypes, 0 to 3
};

/// What they touch of the open first wizard page.
class WizardPageAccess {
 public:
  virtual ~WizardPageAccess() = default;
  virtual TextBox& ScanCodeBox() = 0;                  ///< txtScanCodes
  virtual OptionButton& KeyTypeOption(int index) = 0;  ///< optKeyType, 0 to 3
  virtual ComboBox& IPCFunctionBox() = 0;              ///< cmdSpecialIPCFunction
  virtual ComboBox& WindowsShortCutBox() = 0;          ///< cmbWindowsShortCuts
  virtual CommandButton& FocusCatcher() = 0;           ///< cmdFocusCatcher
  virtual Form& Page() = 0;
};

/// The open dialog behind its name in the directory of forms; Failure (ObjectNotSet) when it is not open.
ConfigurationDialogAccess& OpenConfigurationDialogAccess();
WizardPageAccess& OpenWizardPageAccess();

}  // namespace plexel
