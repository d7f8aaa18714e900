#include "specialdialogs/frmSpecialIPCKey.h"

#include <iterator>
#include <string>

#include "scancodes/code_type.h"
#include "scancodes/definition_text.h"
#include "scancodes/dialog_access.h"
#include "scancodes/element_codes.h"
#include "scancodes/key_translation.h"
#include "scancodes/special_functions.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr enumSpecialKeyFunctions listOrder[] = {
    SystemReset,          WarmStart, Layer2, Layer3, Layer4, ContrastHigher, ContrastLower, BackgroundLightLigther,
    BackgroundLightDarker};
static_assert(std::size(listOrder) == NoSpecialFunction);

void AppendToCell(Grid& grid, std::string_view body) { grid.Text(grid.Text() + DefinitionGroup(body, MakeAndBreak)); }

void StoreFunction(const std::string& text) {
  KeyCodes codes;
  GetSpecialFunctionCode(codes, SpecialFunctionOfText(text));
  if (StoreScanCodes(codes, MakeAndBreak, 1, TargetConfigurationDialog) == 0) {
    AppendToCell(OpenConfigurationDialogAccess().ScanCodeGrid(), text);
  }
}

}  // namespace

void frmSpecialIPCKey::OnLoad() {
  EndQuietly([this] {
    TranslateForm(*this, "@");
    FillSpecialFunctionList();
  });
}

void frmSpecialIPCKey::FillSpecialFunctionList() {
  EndQuietly([this] {
    for (const enumSpecialKeyFunctions name : listOrder) {
      const SpecialFunction& function = SpecialFunctions()[name];
      if (IsOffered(function, CurrentElement())) list.AddItem(GetText(function.textId));
    }
    ShowFirstEntry();
  });
}

void frmSpecialIPCKey::cmdOK_Click() {
  EndQuietly([this] {
    if (!list.Text().empty()) StoreFunction(list.Text());
    Unload();
  });
}

void frmSpecialIPCKey::AddToAllLayers(std::string_view strText) {
  Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
  grid.Enabled(false);
  const int currentRow = grid.Row();
  for (int row = 1; row <= LayerCount; ++row) {
    grid.Row(row);
    AppendToCell(grid, strText);
  }
  grid.Row(currentRow);
  grid.Enabled(true);
}

std::int32_t frmSpecialIPCKey::StoreInAllLayers(const KeyCodes& codes) {
  Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
  grid.Enabled(false);
  const int currentRow = grid.Row();
  int rowsToUndo = 1;
  bool refused = false;
  for (int row = 1; row <= LayerCount; ++row) {
    grid.Row(row);
    if (StoreScanCodes(codes, FromDialog, 1, TargetConfigurationDialog) == 0) {
      ++rowsToUndo;
    } else {
      refused = true;
    }
  }
  for (int row = 1; refused && row <= rowsToUndo; ++row) {
    grid.Row(row);
    DeleteLastCodeGroup();
  }
  grid.Row(currentRow);
  grid.Enabled(true);
  return refused ? 1 : 0;
}

}  // namespace plexel
