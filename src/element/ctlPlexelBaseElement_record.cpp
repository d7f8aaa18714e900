#include "element/ctlPlexelBaseElement.h"

#include <array>
#include <string>

#include "element/defined_marker.h"
#include "element/packed_codes.h"
#include "services/failure_styles.h"

namespace plexel {

namespace {

using Info = udtTactisBaseElement_ScanCodeInfo;

constexpr std::array<enumLedType Info::*, LayerCount> ledTypes = {&Info::lngLEDTypeLayer1, &Info::lngLEDTypeLayer2,
                                                                  &Info::lngLEDTypeLayer3, &Info::lngLEDTypeLayer4};
constexpr std::array<std::string Info::*, LayerCount> pressStrings = {
    &Info::strLayer1PressString, &Info::strLayer2PressString, &Info::strLayer3PressString, &Info::strLayer4PressString};
constexpr std::array<std::string Info::*, LayerCount> releaseStrings = {
    &Info::strLayer1ReleaseString, &Info::strLayer2ReleaseString, &Info::strLayer3ReleaseString,
    &Info::strLayer4ReleaseString};
/// HardwareNumberKey1 to HardwareNumberKey7.
constexpr std::array<std::int32_t Info::*, 7> furtherKeyNumbers = {
    &Info::lngKeyHardwareNumber1, &Info::lngKeyHardwareNumber2, &Info::lngKeyHardwareNumber3,
    &Info::lngKeyHardwareNumber4, &Info::lngKeyHardwareNumber5, &Info::lngKeyHardwareNumber6,
    &Info::lngKeyHardwareNumber7};

template <typename Array, typename Action>
void ForEach(const Array& members, Action&& action) {
  std::int32_t number = 1;
  for (const auto member : members) action(number++, member);
}

}  // namespace

Info ctlPlexelBaseElement::TactisBaseElementScanCodeBuffer() const {
  Info info;
  info.lngButtonHardwareNumber = HardwareNumberButton();
  info.lngKeyHardwareNumber = HardwareNumberKey();
  ForEach(furtherKeyNumbers, [&](std::int32_t index, auto member) { info.*member = HardwareNumberKeyAt(index); });
  info.lngLedHardwareNumber = HardwareNumberLed();
  ForEach(ledTypes, [&](std::int32_t layer, auto member) { info.*member = LEDTypeLayer(layer); });
  info.enumWizardButtonType = WizardOptions();
  ForEach(pressStrings, [&](std::int32_t layer, auto member) { info.*member = PressKeyDefLayer(layer); });
  ForEach(releaseStrings, [&](std::int32_t layer, auto member) { info.*member = ReleaseKeyDefLayer(layer); });
  info.strBaseElementNotes = ButtonNotes();
  info.enumBaseElementType = ElementType();
  UnpackCodes(codes_, info);
  return info;
}

void ctlPlexelBaseElement::PassOnHead(const Info& info) {
  WizardOptions(info.enumWizardButtonType);
  HardwareNumberButton(info.lngButtonHardwareNumber);
  HardwareNumberKey(info.lngKeyHardwareNumber);
}

void ctlPlexelBaseElement::PassOnRest(const Info& info) {
  HardwareNumberLed(info.lngLedHardwareNumber);
  ForEach(ledTypes, [&](std::int32_t layer, auto member) { LEDTypeLayer(layer, info.*member); });
  ForEach(pressStrings, [&](std::int32_t layer, auto member) { PressKeyDefLayer(layer, info.*member); });
  ForEach(releaseStrings, [&](std::int32_t layer, auto member) { ReleaseKeyDefLayer(layer, info.*member); });
}

void ctlPlexelBaseElement::TactisBaseElementScanCodeBuffer(const Info& value) {
  PackCodes(value, codes_);
  EndQuietly([&] {
    PassOnHead(value);
    ForEach(furtherKeyNumbers, [&](std::int32_t index, auto member) { HardwareNumberKeyAt(index, value.*member); });
    PassOnRest(value);
  });
}

void ctlPlexelBaseElement::SetTactisBaseElementDefinition(const Info& udtTactisBaseElementInfo) {
  PackCodes(udtTactisBaseElementInfo, codes_);
  EndQuietly([&] {
    PassOnHead(udtTactisBaseElementInfo);
    PassOnRest(udtTactisBaseElementInfo);
    ButtonNotes(udtTactisBaseElementInfo.strBaseElementNotes);
    if (BecomeCurrent()) UpdateDefinedMarker();
  });
}

}  // namespace plexel
