#include "wizard/frmPropertiesButton.h"

#include "services/dialogs.h"

namespace plexel {

frmPropertiesButton::frmPropertiesButton() : Form(dialogs::frmPropertiesButton) {
  for (std::int32_t row = 0; row < Rows; ++row) {
    labNumberDescription.emplace_back(*this, "labNumberDescription", row);
    labHardwareNumber.emplace_back(*this, "labHardwareNumber", row);
  }
  Design();
}

void frmPropertiesButton::Design() {
  constexpr float clientWidth = 5265, clientHeight = 5805, margin = 90, inset = 180;
  constexpr float stripWidth = clientWidth - 2 * margin, contentWidth = stripWidth - 2 * inset;
  constexpr float picture = 480, firstRow = 885, rowPitch = 525, rowHeight = 435, descriptionWidth = 3300;
  Caption("@2500");
  Width(clientWidth + FrameWidth);
  Height(clientHeight + FrameHeight);

  SSTab1.Place(margin, margin, stripWidth, clientHeight - 2 * margin);
  SSTab1.TabCaption(0, "@2505");
  imgProperty.Place(inset, 120, picture, picture);
  imgProperty.Stretch(true);
  labTitel.Place(inset + picture + inset, 180, contentWidth - picture - inset, 420);
  labTitel.Look(LabelLook::Title);
  fraDummy.Place(inset, 720, contentWidth, 30);
  for (std::int32_t row = 0; row < Rows; ++row) {
    const float top = firstRow + rowPitch * static_cast<float>(row);
    Label& description = labNumberDescription.at(static_cast<std::size_t>(row));
    description.Caption("@2503");
    description.Place(inset, top, descriptionWidth, rowHeight);
    Label& number = labHardwareNumber.at(static_cast<std::size_t>(row));
    number.Place(inset + descriptionWidth, top, contentWidth - descriptionWidth, rowHeight);
    number.Alignment(TextAlignment::Right);
  }
  for (Control* control : Controls()) {
    if (control != &SSTab1 && control != &ilsImageList) control->OnPage(SSTab1, 0);
  }
  ilsImageList.Add("BUTTON", "button");
  ilsImageList.Add("KEYSWITCH", "keyswitch");
  ilsImageList.Add("LED", "led");
}

}  // namespace plexel
