#include <array>
#include <string>

#include "element/ctlPlexelBaseElement.h"
#include "element/defined_marker.h"
#include "forms/form_directory.h"
#include "platform/platform.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

using Info = udtTactisBaseElement_ScanCodeInfo;

constexpr std::int32_t maxScanCodes = 43, maxScanCodesOfVanta = 22;

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

/// A text for the user; what cannot be fetched stays empty.
std::string TextOrNothing(std::int32_t number) {
  std::string text;
  PassOver([&] { text = GetText(number); });
  return text;
}

MessageAnswer AskBeforeWizard() {
  struct Paragraph {
    std::int32_t text;
    std::string_view breaks;  ///< behind the paragraph
  };
  constexpr std::array<Paragraph, 6> paragraphs = {{{2403, "\r\n\r\n\r\n"},
                                                    {2404, "\r\n\r\n"},
                                                    {2405, "\r\n\r\n"},
                                                    {2406, "\r\n\r\n"},
                                                    {2407, "\r\n\r\n\r\n"},
                                                    {2408, ""}}};
  constexpr std::int32_t titleText = 6002;
  std::string prompt;
  for (const Paragraph& paragraph : paragraphs) prompt.append(TextOrNothing(paragraph.text)).append(paragraph.breaks);
  const std::string title = TextOrNothing(titleText);

  MessageAnswer answer = MessageAnswer::None;
  PassOver([&] {
    constexpr std::int32_t style = MessageBoxes::StyleYesNoCancel + MessageBoxes::StyleCritical;
    answer = Platform::Current().Messages().Show(prompt, style, title);
  });
  return answer;
}

}  // namespace

void ctlPlexelBaseElement::ShowForm(std::string_view form) {
  const std::shared_ptr<HostObject> owner = ParentWindow();
  FormDirectory::Instance().ShowModal(form, owner != nullptr ? owner->AsForm() : nullptr);
}

void ctlPlexelBaseElement::ShowDialog(std::string_view form) {
  mbDialogOpen_ = True;
  PassOver([&] { ShowForm(form); });
  mbDialogOpen_ = False;
}

void ctlPlexelBaseElement::ShowWizard() {
  ShowDialog(ElementType() == Led ? "frmButtonWizardPage2" : "frmButtonWizardPage1");
}

void ctlPlexelBaseElement::ShowChosenDialog() {
  constexpr std::string_view configurationDialog = "frmConfigurationDialog";
  if (WizardOn() == False) {
    ShowDialog(configurationDialog);
  } else if (WizardOptions() != ManuallyDefined || IsDefinitionEmpty()) {
    ShowWizard();
  } else {
    const MessageAnswer answer = AskBeforeWizard();
    if (answer == MessageAnswer::Yes) ShowDialog(configurationDialog);
    if (answer == MessageAnswer::No) ShowWizard();
  }
}

void ctlPlexelBaseElement::OpenConfigurationDialog() {
  const auto self = shared_from_this();  // the host may let the element go while the dialog is open
  if (IsTrue(mbDialogOpen_)) return;
  Module().udtSavedScanCodeInfo = TactisBaseElementScanCodeBuffer();
  if (ElementType() == Key) return;
  Module().ctlCurrentElement = self;
  Module().lngMaxScanCodes = IsTrue(CurrentElement().VantaEnabled()) ? maxScanCodesOfVanta : maxScanCodes;
  ShowChosenDialog();
  PassOver([&] { SendKeyDefinition(); });
}

void ctlPlexelBaseElement::OpenPropertiesDialog() {
  EndQuietly([&] {
    const auto self = shared_from_this();
    Module().ctlCurrentElement = self;
    ShowForm("frmPropertiesButton");
  });
}

Info ctlPlexelBaseElement::TactisBaseElementScanCodeBuffer() {
  return EndQuietlyWith(Info{}, [&](Info& result) {
    info_.lngButtonHardwareNumber = HardwareNumberButton();
    info_.lngKeyHardwareNumber = HardwareNumberKey();
    ForEach(furtherKeyNumbers, [&](std::int32_t index, auto member) { info_.*member = HardwareNumberKeyAt(index); });
    info_.lngLedHardwareNumber = HardwareNumberLed();
    ForEach(ledTypes, [&](std::int32_t layer, auto member) { info_.*member = LEDTypeLayer(layer); });
    info_.enumWizardButtonType = WizardOptions();
    ForEach(pressStrings, [&](std::int32_t layer, auto member) { info_.*member = PressKeyDefLayer(layer); });
    ForEach(releaseStrings, [&](std::int32_t layer, auto member) { info_.*member = ReleaseKeyDefLayer(layer); });
    info_.strBaseElementNotes = ButtonNotes();
    info_.enumBaseElementType = ElementType();
    result = info_;
  });
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
  info_ = value;
  EndQuietly([&] {
    PassOnHead(value);
    ForEach(furtherKeyNumbers, [&](std::int32_t index, auto member) { HardwareNumberKeyAt(index, value.*member); });
    PassOnRest(value);
  });
}

void ctlPlexelBaseElement::SetTactisBaseElementDefinition(const Info& udtTactisBaseElementInfo) {
  info_ = udtTactisBaseElementInfo;
  EndQuietly([&] {
    PassOnHead(udtTactisBaseElementInfo);
    PassOnRest(udtTactisBaseElementInfo);
    ButtonNotes(udtTactisBaseElementInfo.strBaseElementNotes);
    Module().ctlCurrentElement = shared_from_this();
    UpdateDefinedMarker();
  });
}

}  // namespace plexel
