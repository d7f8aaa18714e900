#pragma once

#include <cstdint>

#include "forms/form.h"

namespace plexel {

/// All characters of the code page from code 1 to 255, one of which the user picks. Its code goes to intAsciiResult of
/// the module state, which opening does not reset. Events end quietly on a failure.
class frmASCIICharacterTable : public Form {
 public:
  static constexpr std::int32_t HelpTopic = 2602;
  static constexpr std::uint16_t NoChoice = 65535;

  frmASCIICharacterTable();
  void OnLoad() override;
  void OnQueryUnload(UnloadMode mode) override;

  void cmdOK_Click();
  void cmdCancel_Click();
  void cmdHelp_Click();
  /// Chooses the current cell and shows its character enlarged over it.
  void ShowBigCharacter();

  Label labASCIITableTitle{*this, "labASCIITableTitle"};
  Grid msgASCIICodes{*this, "msgASCIICodes", 17, 15, 0, 0};
  TextBox txtBigCharacter{*this, "txtBigCharacter"};
  StatusBar stbStatus{*this, "stbStatus"};
  CommandButton cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"}, cmdHelp{*this, "cmdHelp"};

 private:
  static constexpr int ColumnWidth = 300;  ///< twips

  void PlaceControls();
  void ConnectEvents();
  void FillCaptions();
  void FillGrid();
  void HideBigCharacter();
};

}  // namespace plexel
