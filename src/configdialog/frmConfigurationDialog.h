#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "forms/form.h"
#include "scancodes/capture.h"
#include "scancodes/dialog_access.h"
#include "services/element_types.h"

namespace plexel {

/// The direct way of configuring one element: a grid of press and release definitions for the four layers, the LED
/// functions, and a note. It works on the current element itself; the record saved at opening is the way back.
///
/// Unless told otherwise, a procedure ends quietly at its first failure and keeps what it did up to then.
class frmConfigurationDialog : public Form, public ConfigurationDialogAccess {
 public:
  static constexpr std::int32_t HelpTopic = 2000;
  static constexpr float DialogWidth = 9345, DialogHeight = 3750;  ///< twips of the whole window

  frmConfigurationDialog();

  // The frame: loading, storing, closing.
  /// Restores the element's record as it was at opening. Ends capture first.
  void RestoreDefinition();
  void LoadDialogPosition();
  void SaveDialogPosition();
  void cmdOK_Click();
  void cmdCancel_Click();
  void cmdHelp_Click();
  void txtButtonNotes_Change();

  // The grid. A cell is one direction of one layer: its text here, its code buffer in the element's record.
  /// Column widths, row numbers and headers.
  void InitScanCodeGrid();
  /// The texts of the eight data cells from the element.
  void LoadGridFromElement();
  /// Copies the current cell into the clipboard record: 0 copied, 1 the cell is empty and the clipboard now invalid.
  void CopyGridCell(std::int32_t& result);
  /// Replaces the current cell by the clipboard record: 0 when the record held something, fitting or not, else 1.
  void PasteGridCell(std::int32_t& result);
  /// End marks at the indices 0 to NextValue of the layer's buffer; 0 for a layer outside 1 to 4.
  std::int32_t CountPressGroupEnds(std::int32_t layer, const udtTactisBaseElement_ScanCodeInfo& record);
  std::int32_t CountReleaseGroupEnds(std::int32_t layer, const udtTactisBaseElement_ScanCodeInfo& record);
  /// The same of one buffer; marks counted up to a NextValue outside the buffer.
  std::int32_t CountCodeGroupEnds(const udtTactisBaseElement_TACTIS_SCANCODE& buffer);
  /// Whether a paste of `length` code bytes into the layer's press or release cell is let through. Both look at the
  /// release buffer of layer 1 first, whatever the layer. False after a failure.
  bool PressPasteFits(std::int32_t layer, const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t length);
  bool ReleasePasteFits(std::int32_t layer, const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t length);
  /// Whether any data cell holds text. Leaves the current cell on the last one.
  bool AnyScanCodeDefined();
  void msgScanCodes_Click();
  void msgScanCodes_DblClick();
  void msgScanCodes_MouseDown(std::int16_t Button, std::int16_t Shift, float x, float y);

  // Keyboard entry.
  /// Capture on when off, off when on; a message tells when the hooks refuse.
  void ToggleKeyCapture();
  /// Capture off, silently, whatever the state. Does not give cmdCancel its role back.
  void EndKeyCapture();
  /// Puts cmdFocusCatcher on the grid's corner and out of the tab order.
  void PlaceFocusCatcher();
  /// Sees every key of the form ahead of the control with the focus and changes none.
  void Form_KeyDown(std::int16_t KeyCode, std::int16_t Shift);

  // The LED page.
  void FillLedLists();
  /// Offers one function in the lists of those layers where no other element shows it.
  void AddLedToLists(enumLedType enumType);
  /// The text of a list entry: empty for LedNotEnabled and for a value above 14.
  void LedTypeToListText(enumLedType enumType, std::string& strText);
  void LoadLedSelections();
  /// Whether any of the four combo boxes shows a function.
  bool AnyLEDDefined();
  void cmdDeleteLED_Click(std::int16_t Index);
  /// Leaves only Down, Up and Return.
  void cmbLEDTypes_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t Shift);
  /// No character is ever typed.
  void cmbLEDTypes_KeyPress(std::int16_t Index, std::int16_t& KeyAscii);

  // The popup menu of the grid.
  void MNU_POPUP_ASCII_Click();
  void MNU_SPECIALKEY_Click();
  void MNU_POPUP_WINDOWSKEY_Click();
  void MNU_POPUP_NONSTANDARDCODE_Click();
  void MNU_POPUP_COPY_Click();
  void MNU_POPUP_PASTE_Click();

  void OnLoad() override;
  void OnQueryUnload(UnloadMode mode) override;
  void OnUnload() override;
  void OnAbandoned() override;
  void OnKeyDown(std::int16_t& keyCode, std::int16_t shift) override;

  Grid& ScanCodeGrid() override { return msgScanCodes; }
  OptionButton& CodeTypeOption(int index) override;
  CommandButton& FocusCatcher() override { return cmdFocusCatcher; }
  TextBox& NotesBox() override { return txtButtonNotes; }
  ComboBox& LedTypeBox(int index) override;

  /// Text in front of the number of characters left; empty until the dialog has loaded.
  std::string strNotesCounterPrefix;

  TabStrip sstScanCode{*this, "sstScanCode", 3};
  // page 0
  Frame fraButton{*this, "fraButton"};
  PictureBox imgButton{*this, "imgButton"};
  Label labButtonTitel{*this, "labButtonTitel"};
  CommandButton cmdFocusCatcher{*this, "cmdFocusCatcher"};  ///< lies under the grid
  Grid msgScanCodes{*this, "msgScanCodes", 5, 3, 1, 1};
  Frame fraCodeType{*this, "fraCodeType"};
  std::array<OptionButton, 3> optCodeType{OptionButton{*this, "optCodeType", 0}, OptionButton{*this, "optCodeType", 1},
                                          OptionButton{*this, "optCodeType", 2}};
  // page 1
  Frame fraLed{*this, "fraLed"};
  PictureBox imgLed{*this, "imgLed"};
  Label labLedTitel{*this, "labLedTitel"};
  Label Label2{*this, "Label2"}, Label3{*this, "Label3"}, Label4{*this, "Label4"}, Label5{*this, "Label5"};
  std::array<ComboBox, LayerCount> cmbLEDTypes{ComboBox{*this, "cmbLEDTypes", 0}, ComboBox{*this, "cmbLEDTypes", 1},
                                               ComboBox{*this, "cmbLEDTypes", 2}, ComboBox{*this, "cmbLEDTypes", 3}};
  std::array<CommandButton, LayerCount> cmdDeleteLED{
      CommandButton{*this, "cmdDeleteLED", 0}, CommandButton{*this, "cmdDeleteLED", 1},
      CommandButton{*this, "cmdDeleteLED", 2}, CommandButton{*this, "cmdDeleteLED", 3}};
  // page 2
  PictureBox imgButtonNotesIcon{*this, "imgButtonNotesIcon"};
  Label Label1{*this, "Label1"};
  TextBox txtButtonNotes{*this, "txtButtonNotes"};
  StatusBar StatusBar1{*this, "StatusBar1"};

  CommandButton cmdOK{*this, "cmdOK"}, cmdCancel{*this, "cmdCancel"}, cmdHelp{*this, "cmdHelp"};
  StatusBar stbStatusBar{*this, "stbStatusBar"};

  MenuItem MNU_POPUP{*this, "MNU_POPUP"};
  MenuItem MNU_POPUP_ASCII{*this, "MNU_POPUP_ASCII"};
  MenuItem MNU_SPECIALKEY{*this, "MNU_SPECIALKEY"};
  MenuItem MNU_POPUP_WINDOWSKEY{*this, "MNU_POPUP_WINDOWSKEY"};
  MenuItem MNU_POPUP_NONSTANDARDCODE{*this, "MNU_POPUP_NONSTANDARDCODE"};
  MenuItem MNU_DUMMY{*this, "MNU_DUMMY"};
  MenuItem MNU_POPUP_COPY{*this, "MNU_POPUP_COPY"};
  MenuItem MNU_POPUP_PASTE{*this, "MNU_POPUP_PASTE"};

 private:
  void DesignButtonPage();
  void DesignLedPage();
  void DesignNotesPage();
  void DesignFrame();
  void DesignMenu();
  void DesignTabOrder();
  void ConnectEvents();

  void LoadByElementType();
  void ShowCharactersLeft();
  void PaintCaptureCell();
  void DeleteGroup(std::string (*remainingText)(std::string_view), void (*deleteCodes)());

  const LeftHooks leftHooks_;
};

}  // namespace plexel
