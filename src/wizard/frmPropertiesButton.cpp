#include "wizard/frmPropertiesButton.h"

#include <array>

#include "element/ctlPlexelBaseElement.h"
#include "services/conversion.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::int32_t noKey = -1;  ///< the number of a key that is not in the matrix

constexpr std::int32_t soleNumber = 10863, buttonNumber = 2503, ledNumber = 2504;
/// Descriptions of HardwareNumberKey and HardwareNumberKey1 to HardwareNumberKey7.
constexpr std::array<std::int32_t, frmPropertiesButton::Rows> keyNumbers = {10864, 10865, 10866, 10867,
                                                                            10868, 10869, 10870, 10871};

std::int32_t Halved(std::int32_t number) { return RoundToInt32(number / 2.0); }

Label& At(std::deque<Label>& labels, std::int32_t row) {
  if (row < 0 || row >= frmPropertiesButton::Rows) throw Failure(FailureKind::Index, "there is no such row");
  return labels[static_cast<std::size_t>(row)];
}

}  // namespace

void frmPropertiesButton::OnLoad() {
  EndQuietly([this] {
    TranslateForm(*this, "@");
    Caption(Caption() + " " + GetText(2501));
    for (std::int32_t row = 0; row < Rows; ++row) {
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
  for (std::int32_t candidate = 0; candidate < Rows; ++candidate) {
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
