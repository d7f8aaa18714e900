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
  const auto shortCuts = WindowsShortCuts();
  for (std::size_t place = 0; place < shortCuts.size(); ++place) {
    const std::size_t index = place == 1 ? 2 : place == 2 ? 1 : place;
    if (GetText(shortCuts[index].textId) == text) return static_cast<std::int32_t>(index);
  }
  return std::nullopt;
}

void StoreShortCut(std::int32_t index, const std::string& text) {
  KeyCodes codes;
  GetWindowsShortCutCodes(codes, index);
  if (StoreScanCodes(codes, FromDialog, 1, TargetConfigurationDialog) == 0) {
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
    for (const ShortCut& shortCut : WindowsShortCuts()) list.AddItem(GetText(shortCut.textId));
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
