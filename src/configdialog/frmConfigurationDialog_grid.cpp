#include "configdialog/frmConfigurationDialog.h"

#include <cstddef>
#include <string>

#include "element/ctlPlexelBaseElement.h"
#include "scancodes/definition_text.h"
#include "services/conversion.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/setting_table.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

enum GridColumn : int { NumberColumn = 0, PressColumn = 1, ReleaseColumn = 2 };

constexpr std::array<std::int32_t, 3> headerTexts = {2002, 2003, 2004};
constexpr std::int16_t rightButton = 2;

/// Whether a layer can take `length` pasted code bytes: the bytes of its other direction, the new ones, and `ends` end
/// marks of the cell that is replaced.
bool LayerTakes(const udtTactisBaseElement_TACTIS_SCANCODE* otherDirection, std::int32_t length, std::int32_t ends) {
  if (otherDirection == nullptr) return false;
  const std::int32_t total = RoundToInt32(static_cast<double>(otherDirection->NextValue) + length - ends);
  return total < Module().lngMaxScanCodes;
}

}  // namespace

void frmConfigurationDialog::InitScanCodeGrid() {
  EndQuietly([this] {
    for (int col = 0; col < msgScanCodes.Cols(); ++col) {
      msgScanCodes.ColWidth(col, TextToInt32(GetWindowPosition(SavedColumn0Width + col)));
    }
    for (int row = 1; row < msgScanCodes.Rows(); ++row) {
      msgScanCodes.Current(row, NumberColumn);
      msgScanCodes.Text(std::to_string(row));
    }
    for (int col = 0; col < msgScanCodes.Cols(); ++col) {
      msgScanCodes.Current(0, col);
      msgScanCodes.CellCentred(true);
      msgScanCodes.Text(GetText(headerTexts[static_cast<std::size_t>(col)]));
    }
  });
}

void frmConfigurationDialog::LoadGridFromElement() {
  EndQuietly([this] {
    for (int row = 1; row <= LayerCount; ++row) {
      msgScanCodes.Current(row, PressColumn);
      msgScanCodes.Text(CurrentElement().PressKeyDefLayer(row));
    }
    for (int row = 1; row <= LayerCount; ++row) {
      msgScanCodes.Current(row, ReleaseColumn);
      msgScanCodes.Text(CurrentElement().ReleaseKeyDefLayer(row));
    }
  });
}

void frmConfigurationDialog::CopyGridCell(std::int32_t& result) {
  EndQuietly([&] {
    udtClipboard& clipboard = Module().udtScanCodeClipboard;
    if (msgScanCodes.Text().empty()) {
      clipboard.Valid = False;
      result = 1;
      return;
    }
    clipboard.VisibleString = msgScanCodes.Text();
    udtTactisBaseElement_ScanCodeInfo record = CurrentElement().TactisBaseElementScanCodeBuffer();
    if (const auto* buffer = CellBuffer(record, msgScanCodes.Row(), msgScanCodes.Col())) clipboard.scanCode = *buffer;
    clipboard.Valid = True;
    MNU_POPUP_PASTE.Enabled(true);
    result = 0;
  });
}

void frmConfigurationDialog::PasteGridCell(std::int32_t& result) {
  EndQuietly([&] {
    const udtClipboard& clipboard = Module().udtScanCodeClipboard;
    if (clipboard.Valid == False) {
      result = 1;
      return;
    }
    const int row = msgScanCodes.Row();
    const int col = msgScanCodes.Col();
    udtTactisBaseElement_ScanCodeInfo record = CurrentElement().TactisBaseElementScanCodeBuffer();
    const std::int32_t length = clipboard.scanCode.NextValue - CountCodeGroupEnds(clipboard.scanCode);
    const bool fits = col == PressColumn     ? PressPasteFits(row, record, length)
                      : col == ReleaseColumn ? ReleasePasteFits(row, record, length)
                                             : false;
    if (fits) {
      msgScanCodes.Text(clipboard.VisibleString);
      if (auto* buffer = CellBuffer(record, row, col)) *buffer = clipboard.scanCode;
    }
    CurrentElement().TactisBaseElementScanCodeBuffer(record);
    UpdateGridRowMarks();
    result = 0;
  });
}

std::int32_t frmConfigurationDialog::CountPressGroupEnds(std::int32_t layer,
                                                         const udtTactisBaseElement_ScanCodeInfo& record) {
  const auto* buffer = PressBuffer(record, layer);
  return buffer == nullptr ? 0 : CountCodeGroupEnds(*buffer);
}

std::int32_t frmConfigurationDialog::CountReleaseGroupEnds(std::int32_t layer,
                                                           const udtTactisBaseElement_ScanCodeInfo& record) {
  const auto* buffer = ReleaseBuffer(record, layer);
  return buffer == nullptr ? 0 : CountCodeGroupEnds(*buffer);
}

std::int32_t frmConfigurationDialog::CountCodeGroupEnds(const udtTactisBaseElement_TACTIS_SCANCODE& buffer) {
  using Code = udtTactisBaseElement_TACTIS_SCANCODE;
  return EndQuietlyWith(std::int32_t{0}, [&buffer](std::int32_t& count) {
    for (std::int32_t i = 0; i <= buffer.NextValue; ++i) {
      if (i >= Code::Size) throw Failure(FailureKind::Index, "a code buffer ends at index 88");
      if (buffer.Value[static_cast<std::size_t>(i)] == Code::EndMark) ++count;
    }
  });
}

bool frmConfigurationDialog::PressPasteFits(std::int32_t layer, const udtTactisBaseElement_ScanCodeInfo& record,
                                            std::int32_t length) {
  return EndQuietlyWith(false, [&](bool& fits) {
    fits = record.strLayer1ReleaseScanCode.NextValue >= length ||
           LayerTakes(ReleaseBuffer(record, layer), length, CountPressGroupEnds(layer, record));
  });
}

bool frmConfigurationDialog::ReleasePasteFits(std::int32_t layer, const udtTactisBaseElement_ScanCodeInfo& record,
                                              std::int32_t length) {
  return EndQuietlyWith(false, [&](bool& fits) {
    fits = record.strLayer1ReleaseScanCode.NextValue >= length ||
           LayerTakes(PressBuffer(record, layer), length, CountReleaseGroupEnds(layer, record));
  });
}

bool frmConfigurationDialog::AnyScanCodeDefined() {
  return EndQuietlyWith(false, [this](bool& defined) {
    std::string texts;
    for (int col = 1; col < msgScanCodes.Cols(); ++col) {
      for (int row = 1; row < msgScanCodes.Rows(); ++row) {
        msgScanCodes.Current(row, col);
        texts += msgScanCodes.Text();
      }
    }
    defined = !texts.empty();
  });
}

void frmConfigurationDialog::PaintCaptureCell() {
  msgScanCodes.ShowsEnd(true);
  msgScanCodes.CellBackColor(TextToInt32(GetParameter(ParameterCaptureColor)));
}

void frmConfigurationDialog::msgScanCodes_Click() {
  EndQuietly([this] {
    if (!IsTrue(Module().bDirectInputActive)) return;
    ResetGridCellColours();
    PaintCaptureCell();
  });
}

void frmConfigurationDialog::msgScanCodes_DblClick() { ToggleKeyCapture(); }

void frmConfigurationDialog::msgScanCodes_MouseDown(std::int16_t Button, std::int16_t, float, float) {
  EndQuietly([this, Button] {
    if (Button != rightButton || msgScanCodes.Row() < 1 || msgScanCodes.Col() < 1) return;
    EndKeyCapture();
    PopupMenu(MNU_POPUP);
  });
}

}  // namespace plexel
