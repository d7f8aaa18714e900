#include "configdialog/frmConfigurationDialog.h"

#include <cstddef>
#include <string>

#include "element/element_access.h"
#include "scancodes/capture.h"
#include "scancodes/definition_text.h"
#include "scancodes/dialog_access.h"
#include "scancodes/dialog_result.h"
#include "services/conversion.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr float loadingHeight = 3810;

template <typename Array>
auto& Member(Array& controls, int index) {
  if (index < 0 || index >= static_cast<int>(controls.size())) {
    throw Failure(FailureKind::Index, "a control array has no member " + std::to_string(index));
  }
  return controls[static_cast<std::size_t>(index)];
}

}  // namespace

void frmConfigurationDialog::OnLoad() {
  EndQuietly([this] {
    ModuleState& module = Module();
    module.HelpFile = HelpFileName();
    DetermineOsFamily();
    stbStatusBar.SimpleText(GetText(module.lngOsFamily != 0 ? 2017 : 2018));
    LoadDialogPosition();
    InitScanCodeGrid();
    PlaceFocusCatcher();
    FillLedLists();
    module.udtScanCodeClipboard.Valid = False;
    MNU_POPUP_PASTE.Enabled(false);
    TranslateForm(*this, "@");
    msgScanCodes.ToolTipText(GetText(10956));
    txtButtonNotes.Text(CurrentElement().ButtonNotes());
    LoadByElementType();
    Height(DialogHeight);
    cmdCancel.Cancel(true);
    msgScanCodes.Current(1, 1);
    strNotesCounterPrefix = GetText(2109);
    ShowCharactersLeft();
    UpdateGridRowMarks();
  });
}

void frmConfigurationDialog::LoadByElementType() {
  switch (CurrentElement().ElementType()) {
    case Led:
      Caption(GetText(2006));
      sstScanCode.TabEnabled(0, false);
      LoadLedSelections();
      sstScanCode.Tab(1);
      break;
    case Oval:
    case Rect:
      Caption(GetText(2005));
      sstScanCode.TabEnabled(1, false);
      LoadGridFromElement();
      sstScanCode.Tab(0);
      break;
    case OvalLed:
    case RectLed:
      Caption(GetText(2005));
      LoadGridFromElement();
      LoadLedSelections();
      sstScanCode.Tab(0);
      break;
    default:
      break;
  }
}

void frmConfigurationDialog::OnQueryUnload(UnloadMode mode) {
  EndQuietly([this, mode] {
    EndKeyCapture();
    if (mode == UnloadMode::CloseBox) RestoreDefinition();
  });
}

void frmConfigurationDialog::OnUnload() { SaveDialogPosition(); }

void frmConfigurationDialog::OnAbandoned() { AbandonCapture(); }

void frmConfigurationDialog::RestoreDefinition() {
  EndQuietly([this] {
    EndKeyCapture();
    CurrentElement().SetTactisBaseElementDefinition(Module().udtSavedScanCodeInfo);
  });
}

void frmConfigurationDialog::LoadDialogPosition() {
  EndQuietly([this] {
    Width(DialogWidth);
    Height(loadingHeight);
    Top(TextToSingle(GetWindowPosition(SavedTop)));
    Left(TextToSingle(GetWindowPosition(SavedLeft)));
  });
}

void frmConfigurationDialog::SaveDialogPosition() {
  EndQuietly([this] {
    StorePositions({{SavedColumn0Width, std::to_string(msgScanCodes.ColWidth(0))},
                    {SavedColumn1Width, std::to_string(msgScanCodes.ColWidth(1))},
                    {SavedColumn2Width, std::to_string(msgScanCodes.ColWidth(2))},
                    {SavedTop, SingleToText(Top())},
                    {SavedLeft, SingleToText(Left())}});
  });
}

void frmConfigurationDialog::cmdOK_Click() {
  EndQuietly([this] {
    EndKeyCapture();
    ApplyDialogResult(TargetConfigurationDialog);
    CurrentElement().WizardOptions(ManuallyDefined);
    ElementAccess::RaiseProjectModified(CurrentElement());
    Unload();
  });
}

void frmConfigurationDialog::cmdCancel_Click() {
  EndQuietly([this] {
    RestoreDefinition();
    Unload();
  });
}

void frmConfigurationDialog::cmdHelp_Click() {
  EndQuietly([this] { ShowHelpTopic(reinterpret_cast<std::intptr_t>(static_cast<Window*>(this)), HelpTopic); });
}

void frmConfigurationDialog::txtButtonNotes_Change() {
  EndQuietly([this] {
    if (!strNotesCounterPrefix.empty()) ShowCharactersLeft();
  });
}

void frmConfigurationDialog::ShowCharactersLeft() {
  StatusBar1.SimpleText(strNotesCounterPrefix +
                        std::to_string(txtButtonNotes.MaxLength() - txtButtonNotes.TextLength()));
}

OptionButton& frmConfigurationDialog::CodeTypeOption(int index) { return Member(optCodeType, index); }

ComboBox& frmConfigurationDialog::LedTypeBox(int index) { return Member(cmbLEDTypes, index); }

}  // namespace plexel
