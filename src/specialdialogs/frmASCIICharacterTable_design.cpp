#include "specialdialogs/frmASCIICharacterTable.h"

#include "services/dialogs.h"

namespace plexel {

namespace {

constexpr int rowHeight = 270;
constexpr float margin = 240, lineHeight = 300, gridBorder = 60, buttonWidth = 1500, buttonHeight = 375,
                buttonGap = 120, statusHeight = 330;

}  // namespace

frmASCIICharacterTable::frmASCIICharacterTable() : Form(dialogs::frmASCIICharacterTable) {
  HelpContextID(HelpTopic);
  PlaceControls();
  msgASCIICodes.RowHeight(rowHeight);
  labASCIITableTitle.Names(msgASCIICodes);
  txtBigCharacter.Visible(false);
  txtBigCharacter.Locked(true);
  txtBigCharacter.TabStop(false);
  txtBigCharacter.Alignment(TextAlignment::Centre);
  txtBigCharacter.FontSize(16);
  cmdOK.Default(true);
  cmdCancel.Cancel(true);
  ConnectEvents();
}

void frmASCIICharacterTable::PlaceControls() {
  const float gridWidth = static_cast<float>(ColumnWidth * msgASCIICodes.Cols()) + gridBorder;
  const float gridHeight = static_cast<float>(rowHeight * msgASCIICodes.Rows()) + gridBorder;
  const float gridTop = margin + lineHeight;
  labASCIITableTitle.Place(margin, margin, gridWidth, lineHeight);
  msgASCIICodes.Place(margin, gridTop, gridWidth, gridHeight);
  const float buttonLeft = margin + gridWidth + margin;
  float top = gridTop;
  int tabIndex = 0;
  msgASCIICodes.TabIndex(tabIndex++);
  for (CommandButton* button : {&cmdOK, &cmdCancel, &cmdHelp}) {
    button->Place(buttonLeft, top, buttonWidth, buttonHeight);
    button->TabIndex(tabIndex++);
    top += buttonHeight + buttonGap;
  }
  txtBigCharacter.TabIndex(tabIndex);
  const float clientWidth = buttonLeft + buttonWidth + margin;
  const float statusTop = gridTop + gridHeight + margin;
  stbStatus.Place(0, statusTop, clientWidth, statusHeight);
  Width(clientWidth + FrameWidth);
  Height(statusTop + statusHeight + FrameHeight);
}

void frmASCIICharacterTable::ConnectEvents() {
  msgASCIICodes.OnClick = [this] { ShowBigCharacter(); };
  msgASCIICodes.OnKeyPress = [this](std::int16_t& keyAscii) {
    if (keyAscii == key::Return) {
      ShowBigCharacter();
    } else {
      HideBigCharacter();
    }
  };
  msgASCIICodes.OnEnterCell = [this] { HideBigCharacter(); };
  msgASCIICodes.OnScroll = [this] { HideBigCharacter(); };
  txtBigCharacter.OnGotFocus = [this] { Focus(nullptr); };
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
  cmdHelp.OnClick = [this] { cmdHelp_Click(); };
}

}  // namespace plexel
