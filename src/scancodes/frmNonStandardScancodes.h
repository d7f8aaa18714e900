#pragma once

#include <cstdint>

#include "scancodes/list_dialog.h"

namespace plexel {

/// Named code sequences out of a file, for functions that no key of a PC keyboard has.
class frmNonStandardScancodes : public ListDialog {
 public:
  static constexpr std::int32_t HelpTopic = 2604;

  frmNonStandardScancodes();
  void OnLoad() override;
  /// Stores the chosen sequence in the current cell with the selected code type. Without room neither codes nor text
  /// change; the dialog closes all the same.
  void cmdOK_Click() override;

  Label& labTitle = title;
  ComboBox& cmbNonStandardScancodes = list;
};

}  // namespace plexel
