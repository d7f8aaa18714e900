#include "specialdialogs/frmSpecialWindowsKey.h"

#include <optional>
#include <string>
#include <utility>

#include "scancodes/code_type.h"
#include "scancodes/definition_text.h"
#include "scancodes/dialog_access.h"
#include "scancodes/element_codes.h"
#include "scancodes/key_translation.h"
#include "scancodes/windows_shortcuts.h"
#include "services/failure_styles.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// Texts are compared in the order of the list but for its second and third entry; the first equal one wins.
std::optional<std::int32_t> IndexOfText(const std::string& text) {
  for (std::int32_t place = 0; place < WindowsShortCutCount; ++place) {
    std::int32_t index = place;
    if (place == 1) index = 2;
    if (place == 2) index = 1;
    if (GetText(WindowsShortCutTextId(index)) == text) return index;
  }
  return std::nullopt;
}

void StoreShortCut(std::int32_t index, const std::string& text) {
  CodeArray make{}, breaking{};
  std::int32_t makeLength = 0, breakLength = 0;
  GetWindowsShortCutCodes(make, makeLength, breaking, breakLength, index);
  if (StoreScanCodes(make, makeLength, breaking, breakLength, FromDialog, 1, TargetConfigurationDialog) == 0) {
    AppendSpecialDefinition(text);
  }
}

}  // namespace

void frmSpecialWindowsKey::OnLoad() {
  EndQuietly([this] {
    TranslateForm(*this, "@");
    FillShortCutList();
    ShowFirstEntry();
  });
}

void frmSpecialWindowsKey::FillShortCutList() {
  EndQuietly([this] {
    for (std::int32_t index = 0; index < WindowsShortCutCount; ++index) {
      list.AddItem(GetText(WindowsShortCutTextId(index)));
    }
  });
}

void frmSpecialWindowsKey::cmdOK_Click() {
  EndQuietly([this] {
    const std::string strText = list.Text();
    if (const auto index = IndexOfText(strText)) StoreShortCut(*index, strText);
    UpdateGridRowMarks();
    Unload();
  });
}

}  // namespace plexel
