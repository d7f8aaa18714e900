#include "scancodes/list_dialog.h"

#include "forms/list_keys.h"

namespace plexel {

namespace {

constexpr float margin = 240, pictureSize = 480, lineHeight = 300, fieldHeight = 375, contentWidth = 4200,
                buttonWidth = 1500, buttonGap = 120;

}  // namespace

ListDialog::ListDialog(const Design& design) : Form(design.form), title(*this, design.title), list(*this, design.list) {
  Caption(std::string(design.caption));
  HelpContextID(design.helpTopic);
  title.Caption(std::string(design.titleCaption));
  title.Names(list);
  cmdOK.Caption("@100");
  cmdOK.Default(true);
  cmdCancel.Caption("@101");
  cmdCancel.Cancel(true);
  cmdHelp.Caption("@103");
  PlaceControls(margin);
  int tabIndex = 0;
  for (Control* control : {static_cast<Control*>(&list), static_cast<Control*>(&cmdOK),
                           static_cast<Control*>(&cmdCancel), static_cast<Control*>(&cmdHelp)}) {
    control->TabIndex(tabIndex++);
  }

  list.OnKeyDown = [](std::int16_t& keyCode, std::int16_t) { KeepListKeys(keyCode); };
  list.OnKeyPress = [](std::int16_t& keyAscii) { keyAscii = 0; };
  cmdOK.OnClick = [this] { cmdOK_Click(); };
  cmdCancel.OnClick = [this] { cmdCancel_Click(); };
  cmdHelp.OnClick = [this] { cmdHelp_Click(); };
}

void ListDialog::PlaceControls(float contentLeft) {
  title.Place(contentLeft, margin, contentWidth, lineHeight);
  list.Place(contentLeft, margin + lineHeight + 60, contentWidth, fieldHeight);
  const float buttonLeft = contentLeft + contentWidth + margin;
  float top = margin;
  for (CommandButton* button : {&cmdOK, &cmdCancel, &cmdHelp}) {
    button->Place(buttonLeft, top, buttonWidth, fieldHeight);
    top += fieldHeight + buttonGap;
  }
  Width(buttonLeft + buttonWidth + margin + FrameWidth);
  Height(top - buttonGap + margin + FrameHeight);
}

void ListDialog::PlacePicture(PictureBox& box, std::string picture) {
  box.Place(margin, margin, pictureSize, pictureSize);
  box.Stretch(true);
  box.Picture(std::move(picture));
  PlaceControls(margin + pictureSize + margin);
}

}  // namespace plexel
