#include "wizard/frmButtonWizardPage1.h"

#include <optional>
#include <string_view>

#include "element/ctlPlexelBaseElement.h"
#include "forms/form_directory.h"
#include "scancodes/code_type.h"
#include "scancodes/dialog_access.h"
#include "scancodes/dialog_result.h"
#include "scancodes/element_codes.h"
#include "scancodes/key_translation.h"
#include "scancodes/special_functions.h"
#include "scancodes/windows_shortcuts.h"
#include "services/conversion.h"
#include "services/dialogs.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// The index of the chosen text. The last two are compared the other way round from the list, and the first equal text
/// wins; none for a text that the current language lacks.
std::optional<std::int32_t> ShortCutOfText(std::string_view text) {
  const auto shortCuts = WindowsShortCuts();
  const auto last = static_cast<std::int32_t>(shortCuts.size()) - 1;
  for (std::int32_t place = 0; place <= last; ++place) {
    const std::int32_t index = place == last - 1 ? last : place == last ? last - 1 : place;
    if (GetText(shortCuts[static_cast<std::size_t>(index)].textId) == text) return index;
  }
  return std::nullopt;
}

void Store(const KeyCodes& codes) { StoreScanCodes(codes, FromDialog, 1, TargetWizard); }

}  // namespace

void frmButtonWizardPage1::cmdForward_Click() {
  cmdForward.Enabled(false);
  EndDirectInput();
  txtScanCodes.BackColor(White);
  if (IsTrue(bKeyChanged)) StoreChoice();
  Module().lngDialogLeft = RoundToInt32(Left());
  Module().lngDialogTop = RoundToInt32(Top());
  const enumTactisBaseElementType type = CurrentElement().ElementType();
  if (type == Rect || type == Oval) {
    FormDirectory::Instance().ShowModal(dialogs::frmButtonWizardPage3, this);
    if (CurrentElement().PressKeyDefLayer1().empty()) CurrentElement().ShowDefinedObject(False);
  } else {
    FormDirectory::Instance().ShowModal(dialogs::frmButtonWizardPage2, this);
  }
  cmdForward.Enabled(true);
  if (IsTrue(Module().bWizardPageChanging)) {
    Module().bWizardPageChanging = False;
    bKeyChanged = False;
  } else {
    Unload();
  }
}

void frmButtonWizardPage1::StoreChoice() {
  EmptyDefinitionTexts();
  if (optKeyType[NormalKey].Value()) {
    CurrentElement().WizardOptions(NormalKey);
  } else if (optKeyType[TipKey].Value()) {
    CurrentElement().WizardOptions(TipKey);
  } else if (optKeyType[IPCFunction].Value()) {
    StorePanelFunction();
  } else if (optKeyType[WindowsShortCut].Value()) {
    StoreShortCut();
  }
  ApplyDialogResult(TargetWizard);
}

void frmButtonWizardPage1::StorePanelFunction() {
  CurrentElement().WizardOptions(IPCFunction);
  KeyCodes codes;
  const enumSpecialKeyFunctions function = SpecialFunctionOfText(cmdSpecialIPCFunction.Text());
  if (function != NoSpecialFunction) GetSpecialFunctionCode(codes, function);
  Store(codes);
}

void frmButtonWizardPage1::StoreShortCut() {
  CurrentElement().WizardOptions(WindowsShortCut);
  KeyCodes codes;
  if (const auto index = ShortCutOfText(cmbWindowsShortCuts.Text())) GetWindowsShortCutCodes(codes, *index);
  Store(codes);
}

}  // namespace plexel
