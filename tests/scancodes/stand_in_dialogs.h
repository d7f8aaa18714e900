#pragma once

#include <array>
#include <functional>

#include "forms/form.h"
#include "scancodes/dialog_access.h"
#include "services/dialogs.h"

namespace plexel {

/// A configuration dialog with nothing but the controls that the scan code procedures touch.
class StandInConfigurationDialog : public Form, public ConfigurationDialogAccess {
 public:
  StandInConfigurationDialog() : Form(dialogs::frmConfigurationDialog) {
    optCodeType[0].Value(true);
    cmdFocusCatcher.TabStop(false);
  }
  Grid& ScanCodeGrid() override { return msgScanCodes; }
  OptionButton& CodeTypeOption(int index) override {
    if (onCodeTypeAsked) onCodeTypeAsked();
    return optCodeType.at(static_cast<std::size_t>(index));
  }
  CommandButton& FocusCatcher() override { return cmdFocusCatcher; }
  TextBox& NotesBox() override { return txtButtonNotes; }
  ComboBox& LedTypeBox(int index) override { return cmbLEDTypes.at(static_cast<std::size_t>(index)); }

  std::string CellText(int row, int col) const { return msgScanCodes.CellAt(row, col).text; }

  Grid msgScanCodes{*this, "msgScanCodes", 5, 3, 1, 1};
  std::array<OptionButton, 3> optCodeType{OptionButton{*this, "optCodeType", 0}, OptionButton{*this, "optCodeType", 1},
                                          OptionButton{*this, "optCodeType", 2}};
  CommandButton cmdFocusCatcher{*this, "cmdFocusCatcher"};
  TextBox txtButtonNotes{*this, "txtButtonNotes"};
  std::array<ComboBox, 4> cmbLEDTypes{ComboBox{*this, "cmbLEDTypes", 0}, ComboBox{*this, "cmbLEDTypes", 1},
                                      ComboBox{*this, "cmbLEDTypes", 2}, ComboBox{*this, "cmbLEDTypes", 3}};
  /// Runs when the chosen code type is looked at.
  std::function<void()> onCodeTypeAsked;
};

/// The same of the first wizard page.
class StandInWizardPage : public Form, public WizardPageAccess {
 public:
  StandInWizardPage() : Form(dialogs::frmButtonWizardPage1) { cmdFocusCatcher.TabStop(false); }
  TextBox& ScanCodeBox() override { return txtScanCodes; }
  OptionButton& KeyTypeOption(int index) override { return optKeyType.at(static_cast<std::size_t>(index)); }
  ComboBox& IPCFunctionBox() override { return cmdSpecialIPCFunction; }
  ComboBox& WindowsShortCutBox() override { return cmbWindowsShortCuts; }
  CommandButton& FocusCatcher() override { return cmdFocusCatcher; }
  Form& Page() override { return *this; }

  TextBox txtScanCodes{*this, "txtScanCodes"};
  std::array<OptionButton, 4> optKeyType{OptionButton{*this, "optKeyType", 0}, OptionButton{*this, "optKeyType", 1},
                                         OptionButton{*this, "optKeyType", 2}, OptionButton{*this, "optKeyType", 3}};
  ComboBox cmdSpecialIPCFunction{*this, "cmdSpecialIPCFunction"};
  ComboBox cmbWindowsShortCuts{*this, "cmbWindowsShortCuts"};
  CommandButton cmdFocusCatcher{*this, "cmdFocusCatcher"};
};

}  // namespace plexel
