#pragma once

#include <cstdint>

#include "scancodes/list_dialog.h"

namespace plexel {

/// The fixed list of operating-system shortcuts, one of which goes into the current cell of the grid.
class frmSpecialWindowsKey : public ListDialog {
 public:
  static constexpr std::int32_t HelpTopic = 2600;

  frmSpecialWindowsKey();
  void OnLoad() override;
  /// Stores the chosen shortcut with the selected code type. Without room neither codes nor text change; the dialog
  /// closes all the same.
  void cmdOK_Click() override;

  void FillShortCutList();

  Label& labTitel = title;
  PictureBox imgSpecialFunction{*this, "imgSpecialFunction"};
  ComboBox& cmbSpecialFunction = list;
};

}  // namespace plexel
