#include "wizard/frmButtonWizardPage1.h"

#include <array>

#include "element/ctlPlexelBaseElement.h"
#include "platform/platform.h"
#include "scancodes/capture.h"
#include "scancodes/definition_text.h"
#include "scancodes/dialog_access.h"
#include "scancodes/special_functions.h"
#include "scancodes/windows_shortcuts.h"
#include "services/conversion.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/setting_table.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::int32_t scanCodesToolTip = 10955;
/// In the order of the list. Warm start and the layer keys stay with the configuration dialog.
constexpr auto offeredFunctions = std::to_array<enumSpecialKeyFunctions>(
    {SystemReset, ContrastHigher, ContrastLower, BackgroundLightLigther, BackgroundLightDarker});
constexpr std::int16_t shiftAndControl = key::ShiftBit | key::ControlBit;

bool EndsCapture(std::int16_t keyCode, std::int16_t shift) {
  return keyCode == key::Control && shift == shiftAndControl;
}

void DropArrows(std::int16_t& keyCode) {
  if (keyCode >= key::Left && keyCode <= key::Down) keyCode = 0;
}

void EmptyScanCodes(udtTactisBaseElement_ScanCodeInfo& info) {
  ZeroAllBuffers(info);
  info.enumWizardButtonType = ManuallyDefined;
}

}  // namespace

void frmButtonWizardPage1::OnLoad() {
  ScaleTitlePicture();
  PassOver([this] { Top(TextToSingle(GetWindowPosition(SavedTop))); });
  PassOver([this] { Left(TextToSingle(GetWindowPosition(SavedLeft))); });
  PassOver([] { DetermineOsFamily(); });
  PlaceFocusCatcher();
  PassOver([this] { TranslateForm(*this, "@"); });
  PassOver([this] { txtScanCodes.ToolTipText(GetText(scanCodesToolTip)); });
  FillIPCFunctionList();
  if (cmdSpecialIPCFunction.ListCount() == 0) {
    cmdSpecialIPCFunction.Enabled(false);
    optKeyType[IPCFunction].Enabled(false);
  }
  FillWindowsShortCutList();
  std::string visibleText;
  PassOver([&] { visibleText = StripDefinitionMarks(CurrentElement().PressKeyDefLayer1()); });
  bFormLoading = True;
  PassOver([&] { ShowWizardOptions(visibleText); });
  bFormLoading = False;
  PassOver([] { Module().HelpFile = HelpFileName(); });
  Module().bWizardPageChanging = False;
  txtScanCodes.SelStart(txtScanCodes.TextLength());
  bKeyChanged = False;
  PassOver([] { Platform::Current().Events().DoEvents(); });
}

void frmButtonWizardPage1::ShowWizardOptions(const std::string& visibleText) {
  switch (CurrentElement().WizardOptions()) {
    case NormalKey:
      optKeyType[NormalKey].Value(true);
      txtScanCodes.Text(visibleText);
      txtScanCodes.Enabled(true);
      break;
    case IPCFunction:
      optKeyType[IPCFunction].Value(true);
      cmdSpecialIPCFunction.Text(visibleText);
      cmdSpecialIPCFunction.Enabled(true);
      break;
    case WindowsShortCut:
      optKeyType[WindowsShortCut].Value(true);
      cmbWindowsShortCuts.Text(visibleText);
      cmbWindowsShortCuts.Enabled(true);
      break;
    case TipKey:
      optKeyType[TipKey].Value(true);
      txtScanCodes.Text(visibleText);
      txtScanCodes.Enabled(true);
      break;
    default:
      optKeyType[TipKey].Value(true);
      txtScanCodes.Enabled(true);
  }
}

void frmButtonWizardPage1::OnQueryUnload(UnloadMode mode) {
  EndQuietly([&] {
    EndDirectInput();
    if (mode == UnloadMode::CloseBox) RestoreDefinition();
  });
}

void frmButtonWizardPage1::OnAbandoned() {
  WizardPage::OnAbandoned();
  AbandonCapture();
}

void frmButtonWizardPage1::OnKeyPress(std::int16_t& keyAscii) {
  if (keyAscii == key::Escape) cmdCancel_Click();
}

void frmButtonWizardPage1::PlaceFocusCatcher() {
  cmdFocusCatcher.Place(cmdCancel.Left(), cmdCancel.Top(), 5, 5);
  cmdFocusCatcher.TabStop(false);
}

void frmButtonWizardPage1::FillIPCFunctionList() {
  EndQuietly([this] {
    for (const enumSpecialKeyFunctions offered : offeredFunctions) {
      const SpecialFunction& function = SpecialFunctions()[static_cast<std::size_t>(offered)];
      if (IsOffered(function, CurrentElement())) cmdSpecialIPCFunction.AddItem(GetText(function.textId));
    }
    cmdSpecialIPCFunction.Text(cmdSpecialIPCFunction.ListCount() == 0 ? "" : cmdSpecialIPCFunction.List(0));
  });
}

void frmButtonWizardPage1::FillWindowsShortCutList() {
  EndQuietly([this] {
    for (const auto& shortCut : WindowsShortCuts()) cmbWindowsShortCuts.AddItem(GetText(shortCut.textId));
    cmbWindowsShortCuts.Text(cmbWindowsShortCuts.List(0));
  });
}

void frmButtonWizardPage1::EmptyDefinitionTexts() {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) CurrentElement().PressKeyDefLayer(layer, "");
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) CurrentElement().ReleaseKeyDefLayer(layer, "");
}

void frmButtonWizardPage1::EndDirectInput() {
  Module().bDirectInputActive = False;
  SetDirectInput(Module().bDirectInputActive, TargetWizard);
}

void frmButtonWizardPage1::ToggleDirectInput() {
  Module().bDirectInputActive = Boolean::Raw(static_cast<std::int16_t>(~Module().bDirectInputActive.Value()));
  SetDirectInput(Module().bDirectInputActive, TargetWizard);
  udtTactisBaseElement_ScanCodeInfo info = CurrentElement().TactisBaseElementScanCodeBuffer();
  if (IsTrue(Module().bDirectInputActive)) {
    KeyPreview(false);
    txtScanCodes.BackColor(TextToInt32(GetParameter(ParameterCaptureColor)));
    txtScanCodes.Text("");
    EmptyDefinitionTexts();
    EmptyScanCodes(info);
    // The record still holds the texts of before, so that this brings them back until the page goes forward.
    CurrentElement().TactisBaseElementScanCodeBuffer(info);
  } else {
    KeyPreview(true);
    txtScanCodes.BackColor(White);
  }
}

void frmButtonWizardPage1::RestoreDefinition() {
  EndQuietly([this] {
    EndDirectInput();
    CurrentElement().SetTactisBaseElementDefinition(Module().udtSavedScanCodeInfo);
    SaveDialogPosition();
    Module().bWizardPageChanging = False;
  });
}

void frmButtonWizardPage1::optKeyType_Click(int index) {
  if (IsTrue(bFormLoading)) return;
  EndDirectInput();
  txtScanCodes.Text("");
  txtScanCodes.Enabled(false);
  cmbWindowsShortCuts.Enabled(false);
  cmdSpecialIPCFunction.Enabled(false);
  txtScanCodes.BackColor(White);
  EmptyDefinitionTexts();
  udtTactisBaseElement_ScanCodeInfo info = CurrentElement().TactisBaseElementScanCodeBuffer();
  EmptyScanCodes(info);
  CurrentElement().TactisBaseElementScanCodeBuffer(info);
  bKeyChanged = True;
  if (index == NormalKey || index == TipKey) txtScanCodes.Enabled(true);
  if (index == IPCFunction) cmdSpecialIPCFunction.Enabled(true);
  if (index == WindowsShortCut) cmbWindowsShortCuts.Enabled(true);
}

void frmButtonWizardPage1::txtScanCodes_DblClick() {
  bKeyChanged = True;
  ToggleDirectInput();
}

void frmButtonWizardPage1::txtScanCodes_KeyDown(std::int16_t& keyCode, std::int16_t shift) {
  EndQuietly([&] {
    bKeyChanged = True;
    if (IsTrue(Module().bDirectInputActive)) {
      if (EndsCapture(keyCode, shift)) ToggleDirectInput();
      DropArrows(keyCode);
    } else if (keyCode == key::Return) {
      ToggleDirectInput();
    }
  });
}

void frmButtonWizardPage1::cmdFocusCatcher_KeyDown(std::int16_t& keyCode, std::int16_t shift) {
  EndQuietly([&] {
    if (!IsTrue(Module().bDirectInputActive)) return;
    if (EndsCapture(keyCode, shift)) {
      bKeyChanged = True;
      ToggleDirectInput();
    }
    DropArrows(keyCode);
  });
}

void frmButtonWizardPage1::cmdDeleteKEY_Click() {
  EndQuietly([this] {
    txtScanCodes.BackColor(White);
    txtScanCodes.Text("");
    udtTactisBaseElement_ScanCodeInfo info = CurrentElement().TactisBaseElementScanCodeBuffer();
    for (std::string* text : {&info.strLayer1PressString, &info.strLayer2PressString, &info.strLayer3PressString,
                              &info.strLayer4PressString, &info.strLayer1ReleaseString, &info.strLayer2ReleaseString,
                              &info.strLayer3ReleaseString, &info.strLayer4ReleaseString}) {
      text->clear();
    }
    EmptyScanCodes(info);
    CurrentElement().TactisBaseElementScanCodeBuffer(info);
  });
}

void frmButtonWizardPage1::cmdCancel_Click() {
  EndQuietly([this] {
    RestoreDefinition();
    Unload();
  });
}

}  // namespace plexel
