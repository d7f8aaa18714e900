#include "configdialog/frmConfigurationDialog.h"

#include "platform/platform.h"
#include "scancodes/capture.h"
#include "scancodes/definition_text.h"
#include "scancodes/dialog_access.h"
#include "scancodes/element_codes.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::int16_t letterC = 67, letterV = 86;

void ReportCaptureFailure(std::int32_t textNumber) {
  const std::string prompt = GetText(textNumber);
  const std::string title = GetText(6001);
  Platform::Current().Messages().Show(prompt, MessageBoxes::StyleCritical + MessageBoxes::StyleOkOnly, title);
}

}  // namespace

void frmConfigurationDialog::ToggleKeyCapture() {
  EndQuietly([this] {
    ModuleState& module = Module();
    if (module.bDirectInputActive == False) {
      if (SetDirectInput(True, TargetConfigurationDialog) == 0) {
        ReportCaptureFailure(5822);
        return;
      }
      module.bDirectInputActive = True;
      cmdFocusCatcher.SetFocus();
      PaintCaptureCell();
      cmdCancel.Cancel(false);
    } else if (IsTrue(module.bDirectInputActive)) {
      if (SetDirectInput(False, TargetConfigurationDialog) == 0) {
        ReportCaptureFailure(5823);
        return;
      }
      module.bDirectInputActive = False;
      msgScanCodes.ShowsEnd(false);
      ResetGridCellColours();
      cmdCancel.Cancel(true);
    }
  });
}

void frmConfigurationDialog::EndKeyCapture() {
  EndQuietly([this] {
    Module().bDirectInputActive = False;
    msgScanCodes.ShowsEnd(false);
    SetDirectInput(False, TargetConfigurationDialog);
    Platform::Current().Events().DoEvents();
    ResetGridCellColours();
  });
}

void frmConfigurationDialog::PlaceFocusCatcher() {
  EndQuietly([this] {
    cmdFocusCatcher.Left(msgScanCodes.Left());
    cmdFocusCatcher.Top(msgScanCodes.Top());
    cmdFocusCatcher.TabStop(false);
  });
}

void frmConfigurationDialog::OnKeyDown(std::int16_t& keyCode, std::int16_t shift) { Form_KeyDown(keyCode, shift); }

void frmConfigurationDialog::Form_KeyDown(std::int16_t KeyCode, std::int16_t Shift) {
  EndQuietly([this, KeyCode, Shift] {
    const Boolean capture = Module().bDirectInputActive;
    const bool withControl = (Shift & key::ControlBit) != 0;
    if (IsTrue(capture) && withControl && (Shift & key::ShiftBit) != 0) ToggleKeyCapture();
    if (capture != False) return;

    std::int32_t result = 0;
    switch (KeyCode) {
      case letterV:
        if (withControl) PasteGridCell(result);
        break;
      case letterC:
        if (withControl) CopyGridCell(result);
        break;
      case key::Delete:
        DeleteGroup([](std::string_view text) { return RemoveFirstDefinitionText(text); }, DeleteFirstCodeGroup);
        break;
      case key::Back:
        DeleteGroup([](std::string_view text) { return RemoveLastDefinitionText(text); }, DeleteLastCodeGroup);
        break;
      case key::Return:
        if (Focus() == &msgScanCodes) ToggleKeyCapture();
        break;
      case key::F10:
        if (Shift == key::ShiftBit) {
          PopupMenu(MNU_POPUP, msgScanCodes.Left() + msgScanCodes.CellLeft(),
                    msgScanCodes.Top() + msgScanCodes.CellTop());
        }
        break;
      default:
        break;
    }
  });
}

void frmConfigurationDialog::DeleteGroup(std::string (*remainingText)(std::string_view), void (*deleteCodes)()) {
  msgScanCodes.Text(remainingText(msgScanCodes.Text()));
  deleteCodes();
  UpdateGridRowMarks();
}

}  // namespace plexel
