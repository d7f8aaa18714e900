#pragma once

#include <array>

#include "scancodes/capture.h"
#include "scancodes/dialog_access.h"
#include "services/boolean.h"
#include "wizard/wizard_page.h"

namespace plexel {

/// The key type page: what the element's key is to do. It has neither a default nor a cancel button: Return starts key
/// entry, and Escape must be able to count as a key.
class frmButtonWizardPage1 : public WizardPage, public WizardPageAccess {
 public:
  frmButtonWizardPage1();

  /// Passes over each step of loading that fails.
  void OnLoad() override;
  void OnQueryUnload(UnloadMode mode) override;
  void OnAbandoned() override;
  void OnKeyPress(std::int16_t& keyAscii) override;

  TextBox& ScanCodeBox() override { return txtScanCodes; }
  OptionButton& KeyTypeOption(int index) override { return optKeyType.at(static_cast<std::size_t>(index)); }
  ComboBox& IPCFunctionBox() override { return cmdSpecialIPCFunction; }
  ComboBox& WindowsShortCutBox() override { return cmbWindowsShortCuts; }
  CommandButton& FocusCatcher() override { return cmdFocusCatcher; }
  Form& Page() override { return *this; }

  void PlaceFocusCatcher();
  void FillIPCFunctionList();
  void FillWindowsShortCutList();
  /// Starts or ends key entry. No guard.
  void ToggleDirectInput();
  /// Ends capture, puts the element back as it was at opening and stores the position. Ends quietly on a failure.
  void RestoreDefinition();

  /// The handlers of txtScanCodes_DblClick, optKeyType_Click and cmdForward_Click have no guard.
  void optKeyType_Click(int index);
  void txtScanCodes_DblClick();
  void txtScanCodes_KeyDown(std::int16_t& keyCode, std::int16_t shift);
  void cmdFocusCatcher_KeyDown(std::int16_t& keyCode, std::int16_t shift);
  void cmdDeleteKEY_Click();
  void cmdForward_Click();
  void cmdCancel_Click();

 private:
  static constexpr std::int32_t White = 0xFFFFFF;

  void DesignKeyChoices();
  void DesignButtons();
  void DesignTabOrder();
  void ConnectEvents();
  void ShowWizardOptions(const std::string& visibleText);
  void EndDirectInput();
  /// The element's eight definition texts, press layers first.
  static void EmptyDefinitionTexts();
  void StoreChoice();
  void StorePanelFunction();
  void StoreShortCut();

  const LeftHooks leftHooks_;
  std::array<OptionButton, 4> optKeyType{OptionButton{*this, "optKeyType", 0}, OptionButton{*this, "optKeyType", 1},
                                         OptionButton{*this, "optKeyType", 2}, OptionButton{*this, "optKeyType", 3}};
  TextBox txtScanCodes{*this, "txtScanCodes"};
  ComboBox cmdSpecialIPCFunction{*this, "cmdSpecialIPCFunction"};
  ComboBox cmbWindowsShortCuts{*this, "cmbWindowsShortCuts"};
  CommandButton cmdDeleteKEY{*this, "cmdDeleteKEY"};
  CommandButton cmdFocusCatcher{*this, "cmdFocusCatcher"};
  CommandButton cmdForward{*this, "cmdForward"};

  Boolean bKeyChanged = False;   ///< the user has touched the choice of the key
  Boolean bFormLoading = False;  ///< loading sets the option buttons, whose clicks count for nothing
};

}  // namespace plexel
