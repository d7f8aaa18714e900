#include "element/ctlPlexelBaseElement.h"

#include "element/defined_marker.h"
#include "services/conversion.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/setting_table.h"
#include "services/surroundings.h"

namespace plexel {

bool ctlPlexelBaseElement::BecomeCurrent() {
  if (!ComponentLives()) return false;
  Module().ctlCurrentElement = shared_from_this();
  return true;
}

void ctlPlexelBaseElement::ShowFocusShapes(bool oval, bool rectangle) {
  surface_.shpOval.Visible = oval;
  surface_.shpRect.Visible = rectangle;
}

void ctlPlexelBaseElement::ShowCross(bool visible) { surface_.linX1.Visible = surface_.linX2.Visible = visible; }

void ctlPlexelBaseElement::UpdateFocus() {
  if (!IsTrue(FocusVisible())) {
    ShowFocusShapes(false, false);
    return;
  }
  switch (ElementType()) {
    case Led:
    case Oval:
    case OvalLed:
      ShowFocusShapes(true, false);
      break;
    case Rect:
    case RectLed:
    case Key:
      ShowFocusShapes(false, true);
      break;
    default:
      break;
  }
  if (IsTrue(ShowX())) ShowCross(true);
}

void ctlPlexelBaseElement::Refresh() {
  EndQuietly([&] {
    SettingsService& settings = Surroundings::Current().Settings();
    const auto parameter = [&](std::int32_t number) {
      std::string text;
      settings.GetParameter(number, text);
      return text;
    };
    const auto option = [&](std::int32_t number) {
      Boolean value = False;
      settings.GetOption(number, value);
      return value;
    };
    FocusColor(TextToInt32(parameter(ParameterFocusColor)));
    FocusWidth(TextToUInt8(parameter(ParameterFocusWidth)));
    ShowX(option(OptionShowX));
    ShowXPermanent(option(OptionShowXPermanent));
    WizardOn(option(OptionUseWizard));
    KeyDefinedColor(TextToInt32(parameter(ParameterDefinedColor)));
    ShowDefined(option(OptionShowDefined));
    XElementSize(static_cast<enumXSize>(TextToInt32(parameter(ParameterXSize))));
  });
}

void ctlPlexelBaseElement::ShowDefinedObject(Boolean bVisible) {
  EndQuietly([&] {
    const bool visible = IsTrue(bVisible);
    if (visible && !IsTrue(ShowDefined())) return;
    surface_.linOK1.Visible = surface_.linOK2.Visible = visible;
  });
}

Boolean ctlPlexelBaseElement::CheckIfLedIsAlreadyDefined(enumLedType LEDType, std::int32_t Layer) {
  ElementHost* const host = Host();
  if (host == nullptr) throw Failure(FailureKind::ObjectNotSet, "the element has no container");
  std::int32_t type = LEDType;
  return host->CheckIfLedIsAlreadyDefined(type, Layer) != False;
}

bool ctlPlexelBaseElement::IsDefinitionEmpty() const {
  for (const auto* const definitions : {&pressKeyDefs_, &releaseKeyDefs_}) {
    for (const std::string& definition : *definitions) {
      if (!definition.empty()) return false;
    }
  }
  return true;
}

void ctlPlexelBaseElement::RaiseProjectModified() {
  if (ElementHost* const host = Host()) host->ProjectModified(*this);
}

void ctlPlexelBaseElement::RaiseDirectInputStatusChanged(Boolean bDirectInputStatus) {
  if (ElementHost* const host = Host()) host->DirectInputStatusChanged(*this, bDirectInputStatus);
}

void ctlPlexelBaseElement::SendKeyDefinition() {
  ElementHost* const host = Host();
  if (host == nullptr) return;
  KeyDefinition definition{PressKeyDefLayer1(), ReleaseKeyDefLayer1(), PressKeyDefLayer2(), ReleaseKeyDefLayer2(),
                           PressKeyDefLayer3(), ReleaseKeyDefLayer3(), PressKeyDefLayer4(), ReleaseKeyDefLayer4(),
                           LEDTypeLayer1(),     LEDTypeLayer2(),       LEDTypeLayer3(),     LEDTypeLayer4()};
  host->SendKeyDefinition(*this, definition);
}

// No guard in the focus and key events: what fails inside them reaches the caller.

void ctlPlexelBaseElement::UserControl_GotFocus() {
  const auto self = shared_from_this();  // a handler may let the element go
  SendKeyDefinition();
  UpdateFocus();
}

void ctlPlexelBaseElement::UserControl_LostFocus() {
  if (ShowXPermanent() == False || FocusVisible() == False) ShowCross(false);
  ShowFocusShapes(false, false);
}

void ctlPlexelBaseElement::UserControl_KeyPress(std::int16_t KeyAscii) {
  constexpr std::int16_t carriageReturn = 13;
  if (IsTrue(FocusVisible()) && KeyAscii == carriageReturn) OpenConfigurationDialog();
}

void ctlPlexelBaseElement::UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float x, float Y) {
  EndQuietly([&] {
    if (ElementHost* const host = Host()) host->MouseClicked(*this, Button, Shift, x, Y);
  });
}

void ctlPlexelBaseElement::UserControl_DblClick() {
  EndQuietly([&] {
    if (ElementHost* const host = Host()) host->MouseDblClicked(*this);
  });
}

}  // namespace plexel
