#pragma once

#include <cstdint>
#include <string_view>

#include "scancodes/code_sequence.h"
#include "scancodes/list_dialog.h"

namespace plexel {

/// The functions of the panel itself that the target system has, one of which goes into the current cell of the grid.
class frmSpecialIPCKey : public ListDialog {
 public:
  static constexpr std::int32_t HelpTopic = 2601;

  frmSpecialIPCKey();
  void OnLoad() override;
  /// Stores the chosen function as one group with both marks, whatever code type is selected. Without room neither
  /// codes nor text change; the dialog closes all the same.
  void cmdOK_Click() override;

  void FillSpecialFunctionList();
  /// Adds a group of this text to the cells of all layers in the grid's current column. No guard.
  void AddToAllLayers(std::string_view strText);
  /// Stores codes in the cells of all layers in the grid's current column: 0, or 1 when a layer refused, and then as
  /// many rows from the first on have lost their last group as had taken the codes, and one more. No guard.
  std::int32_t StoreInAllLayers(const KeyCodes& codes);

  Label& labTitel = title;
  PictureBox imgSpecialFunction{*this, "imgSpecialFunction"};
  ComboBox& cmbSpecialFunction = list;
};

}  // namespace plexel
