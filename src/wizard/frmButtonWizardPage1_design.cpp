#include "wizard/frmButtonWizardPage1.h"

#include <initializer_list>

#include "forms/list_keys.h"
#include "services/dialogs.h"

namespace plexel {

namespace {

constexpr std::int32_t helpContext = 2001;
constexpr std::int32_t helpContextOfDelete = 2002;
constexpr float indent = 300, optionHeight = 285, fieldHeight = 375;

}  // namespace

frmButtonWizardPage1::frmButtonWizardPage1() : WizardPage(dialogs::frmButtonWizardPage1, "@2902", 900) {
  KeyPreview(true);
  DesignKeyChoices();
  DesignButtons();
  DesignTabOrder();
  UseHelpContext(helpContext);
  cmdDeleteKEY.HelpContextID(helpContextOfDelete);
  ConnectEvents();
}

void frmButtonWizardPage1::DesignKeyChoices() {
  optKeyType[1].Caption("@2904");
  optKeyType[1].Place(ContentLeft, 1530, ContentWidth, optionHeight);
  optKeyType[0].Caption("@2903");
  optKeyType[0].Place(ContentLeft, 1830, ContentWidth, optionHeight);
  txtScanCodes.Place(ContentLeft + indent, 2145, ContentWidth - indent, fieldHeight);
  txtScanCodes.Locked(true);
  txtScanCodes.Alignment(TextAlignment::Centre);
  txtScanCodes.Enabled(false);
  optKeyType[2].Caption("@2905");
  optKeyType[2].Place(ContentLeft, 2580, ContentWidth, optionHeight);
  cmdSpecialIPCFunction.Place(ContentLeft + indent, 2895, ContentWidth - indent, fieldHeight);
  cmdSpecialIPCFunction.Enabled(false);
  optKeyType[3].Caption("@2907");
  optKeyType[3].Place(ContentLeft, 3330, ContentWidth, optionHeight);
  cmbWindowsShortCuts.Place(ContentLeft + indent, 3645, ContentWidth - indent, fieldHeight);
  cmbWindowsShortCuts.Enabled(false);
}

void frmButtonWizardPage1::DesignButtons() {
  cmdForward.Caption("@111");
  PlaceInButtonRow(cmdForward, 1);
  cmdDeleteKEY.Picture("delete");
  cmdDeleteKEY.Place(ContentLeft + ContentWidth - fieldHeight, 4065, fieldHeight, fieldHeight);
  cmdFocusCatcher.Caption("FocusCatcher");
  cmdFocusCatcher.ParksFocus(true);
  cmdFocusCatcher.Place(cmdCancel.Left(), cmdCancel.Top(), 5, 5);
  cmdFocusCatcher.TabStop(false);
}

void frmButtonWizardPage1::DesignTabOrder() {
  int place = 0;
  for (Control* control : std::initializer_list<Control*>{&optKeyType[1], &optKeyType[0], &txtScanCodes, &optKeyType[2],
                                                          &cmdSpecialIPCFunction, &optKeyType[3], &cmbWindowsShortCuts,
                                                          &cmdDeleteKEY, &cmdFocusCatcher, &cmdForward, &cmdCancel}) {
    control->TabIndex(place++);
  }
}

void frmButtonWizardPage1::ConnectEvents() {
  for (int index = 0; index < static_cast<int>(optKeyType.size()); ++index) {
    KeyTypeOption(index).OnClick = [this, index] { optKeyType_Click(index); };
  }
  txtScanCodes.OnDblClick = [this] { txtScanCodes_DblClick(); };
  txtScanCodes.OnKeyDown = [this](std::int16_t& keyCode, std::int16_t shift) { txtScanCodes_KeyDown(keyCode, shift); };
  cmdFocusCatcher.OnKeyDown = [this](std::int16_t& keyCode, std::int16_t shift) {
    cmdFocusCatcher_KeyDown(keyCode, shift);
  };
  for (ComboBox* box : {&cmdSpecialIPCFunction, &cmbWindowsShortCuts}) {
    box->OnClick = [this] { bKeyChanged = True; };
    box->OnKeyDown = [this](std::int16_t& keyCode, std::int16_t) {
      KeepListKeys(keyCode);
      bKeyChanged = True;
    };
    box->OnKeyPress = [this](std::int16_t& keyAscii) {
      keyAscii = 0;
      bKeyChanged = True;
    };
  }
  cmdDeleteKEY.OnClick = [this] { cmdDeleteKEY_Click(); };
  cmdForward.OnClick = [this] { cmdForward_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
}

}  // namespace plexel
