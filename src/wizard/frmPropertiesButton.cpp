#include "wizard/frmPropertiesButton.h"

#include <array>

#include "element/ctlPlexelBaseElement.h"
#include "services/conversion.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::int32_t rows = 8;
constexpr std::int32_t noKey = -1;  ///< the number of a key that is not in the matrix

constexpr std::int32_t soleNumber = 10863, buttonNumber = 2503, ledNumber = 2504;
/// Descriptions of HardwareNumberKey and HardwareNumberKey1 to HardwareNumberKey7.
constexpr std::array<std::int32_t, rows> keyNumbers = {10864, 10865, 10866, 10867, 10868, 10869, 10870, 10871};

std::int32_t Halved(std::int32_t number) { return RoundToInt32(number / 2.0); }

Label& At(std::deque<Label>& labels, std::int32_t row) {
  if (row < 0 || row >= rows) throw Failure(FailureKind::Index, "there is no such row");
  return labels[static_cast<std::size_t>(row)];
}

}  // namespace

frmPropertiesButton::frmPropertiesButton() : Form("frmPropertiesButton") {
  for (std::int32_t row = 0; row < rows; ++row) {
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
  for (std::int32_t row = 0; row < rows; ++row) {
    const float top = firstRow + rowPitch * static_cast<float>(row);
    Label& description = At(labNumberDescription, row);
    description.Caption("@2503");
    description.Place(inset, top, descriptionWidth, rowHeight);
    Label& number = At(labHardwareNumber, row);
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

void frmPropertiesButton::OnLoad() {
  EndQuietly([this] {
    TranslateForm(*this, "@");
    Caption(Caption() + " " + GetText(2501));
    for (std::int32_t row = 0; row < rows; ++row) {
      At(labHardwareNumber, row).Visible(false);
      At(labNumberDescription, row).Visible(false);
    }
    ShowElement();
  });
}

void frmPropertiesButton::ShowElement() {
  switch (CurrentElement().ElementType()) {
    case Led:
      ShowKind("LED", 10861);
      ShowPropertyRow(0, GetText(soleNumber), Halved(CurrentElement().HardwareNumberLed()));
      break;
    case Oval:
    case Rect:
      ShowKind("BUTTON", 10859);
      ShowPropertyRow(0, GetText(soleNumber), CurrentElement().HardwareNumberButton());
      break;
    case OvalLed:
    case RectLed:
      ShowKind("BUTTON", 10860);
      ShowPropertyRow(0, GetText(buttonNumber), CurrentElement().HardwareNumberButton());
      ShowPropertyRow(1, GetText(ledNumber), Halved(CurrentElement().HardwareNumberLed()));
      break;
    case Key:
      ShowKind("KEYSWITCH", 10862);
      ShowKeyNumbers();
      break;
  }
}

void frmPropertiesButton::ShowKind(const std::string& picture, std::int32_t title) {
  imgProperty.Picture(ilsImageList.Picture(picture));
  labTitel.Caption(GetText(title));
}

void frmPropertiesButton::ShowKeyNumbers() {
  std::int32_t row = 0;
  for (std::int32_t candidate = 0; candidate < rows; ++candidate) {
    const std::int32_t number = CurrentElement().HardwareNumberKeyAt(candidate);
    if (number == noKey) continue;
    ShowPropertyRow(row++, GetText(keyNumbers.at(static_cast<std::size_t>(candidate))), number);
  }
}

void frmPropertiesButton::ShowPropertyRow(std::int32_t lngRow, const std::string& strDescription,
                                          std::int32_t lngNumber) {
  EndQuietly([&] {
    At(labHardwareNumber, lngRow).Visible(true);
    At(labNumberDescription, lngRow).Visible(true);
    At(labNumberDescription, lngRow).Caption(strDescription);
    At(labHardwareNumber, lngRow).Caption(std::to_string(lngNumber));
  });
}

}  // namespace plexel
