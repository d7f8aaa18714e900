#include "element/ctlPlexelBaseElement.h"

#include "element/defined_marker.h"
#include "element/property_rows.h"
#include "platform/failure.h"
#include "services/component_life.h"

namespace plexel {

using E = ctlPlexelBaseElement;

bool E::ComponentLives() const { return life_ == ComponentLife::Current(); }

ElementHost* E::Host() const { return ComponentLives() ? host_ : nullptr; }

void E::Notify(const Notice& notice) {
  if (ElementHost* const host = Host()) host->PropertyChanged(*this, notice);
}

template <std::size_t row, typename Field>
void E::Store(Field& field, const Field& value) {
  constexpr const PropertyRow& facts = propertyRows[row];
  field = value;
  if constexpr (facts.notice == NoticeStyle::Name) {
    static constexpr Notice notice = Notice::Of(facts.name);
    Notify(notice);
  }
  if constexpr (facts.notice == NoticeStyle::Value) Notify(Notice::Of(field));
}

double E::DPIFontScaleFactor() const { return dpiFontScaleFactor_; }
void E::DPIFontScaleFactor(double value) { dpiFontScaleFactor_ = value; }

std::shared_ptr<HostObject> E::ParentWindow() const { return parentWindow_; }
void E::ParentWindow(std::shared_ptr<HostObject> value) {
  if (value == nullptr || value->AsForm() != nullptr) parentWindow_ = std::move(value);
}

enumWizardOptions E::WizardOptions() const { return wizardOptions_; }
void E::WizardOptions(enumWizardOptions value) { Store<RowOf("WizardOptions")>(wizardOptions_, value); }
enumXSize E::XElementSize() const { return xElementSize_; }
void E::XElementSize(enumXSize value) {
  Store<RowOf("XElementSize")>(xElementSize_, value);
  ReapplySizes();
}
Boolean E::FocusVisible() const { return focusVisible_; }
void E::FocusVisible(Boolean value) {
  Store<RowOf("FocusVisible")>(focusVisible_, value);
  if (focusVisible_ != False) return;
  ShowFocusShapes(false, false);
  if (showXPermanent_ == False) ShowCross(false);
}
std::uint8_t E::FocusWidth() const { return focusWidth_; }
void E::FocusWidth(std::uint8_t value) {
  Store<RowOf("FocusWidth")>(focusWidth_, value);
  if (focusWidth_ == 0) return;
  surface_.shpOval.BorderWidth = surface_.shpRect.BorderWidth = focusWidth_;
  surface_.linX1.BorderWidth = surface_.linX2.BorderWidth = focusWidth_;
}
std::int32_t E::FocusColor() const { return focusColor_; }
void E::FocusColor(std::int32_t value) {
  Store<RowOf("FocusColor")>(focusColor_, value);
  surface_.shpOval.BorderColor = surface_.shpRect.BorderColor = focusColor_;
  surface_.linX1.BorderColor = surface_.linX2.BorderColor = focusColor_;
}
Boolean E::WizardOn() const { return wizardOn_; }
void E::WizardOn(Boolean value) { Store<RowOf("WizardOn")>(wizardOn_, value); }
std::int32_t E::DeviceType() const { return deviceType_; }
void E::DeviceType(std::int32_t value) { Store<RowOf("DeviceType")>(deviceType_, value); }
std::int16_t E::SizeY() const { return sizeY_; }
void E::SizeY(std::int16_t value) {
  Store<RowOf("SizeY")>(sizeY_, value);
  LayOutVertically();
}
std::int16_t E::SizeX() const { return sizeX_; }
void E::SizeX(std::int16_t value) {
  Store<RowOf("SizeX")>(sizeX_, value);
  LayOutHorizontally();
}
enumTactisBaseElementType E::ElementType() const { return elementType_; }
void E::ElementType(enumTactisBaseElementType value) { Store<RowOf("ElementType")>(elementType_, value); }
std::int16_t E::ZoomFactor() const { return zoomFactor_; }
void E::ZoomFactor(std::int16_t value) {
  Store<RowOf("ZoomFactor")>(zoomFactor_, value);
  ReapplySizes();
}
enumLedType E::LEDTypeLayer1() const { return ledTypes_[0]; }
void E::LEDTypeLayer1(enumLedType value) { Store<RowOf("LEDTypeLayer1")>(ledTypes_[0], value); }
enumLedType E::LEDTypeLayer2() const { return ledTypes_[1]; }
void E::LEDTypeLayer2(enumLedType value) { Store<RowOf("LEDTypeLayer2")>(ledTypes_[1], value); }
enumLedType E::LEDTypeLayer3() const { return ledTypes_[2]; }
void E::LEDTypeLayer3(enumLedType value) { Store<RowOf("LEDTypeLayer3")>(ledTypes_[2], value); }
enumLedType E::LEDTypeLayer4() const { return ledTypes_[3]; }
void E::LEDTypeLayer4(enumLedType value) { Store<RowOf("LEDTypeLayer4")>(ledTypes_[3], value); }
const std::string& E::ReleaseKeyDefLayer1() const { return releaseKeyDefs_[0]; }
void E::ReleaseKeyDefLayer1(const std::string& value) {
  Store<RowOf("ReleaseKeyDefLayer1")>(releaseKeyDefs_[0], value);
}
const std::string& E::ReleaseKeyDefLayer2() const { return releaseKeyDefs_[1]; }
void E::ReleaseKeyDefLayer2(const std::string& value) {
  Store<RowOf("ReleaseKeyDefLayer2")>(releaseKeyDefs_[1], value);
}
const std::string& E::ReleaseKeyDefLayer3() const { return releaseKeyDefs_[2]; }
void E::ReleaseKeyDefLayer3(const std::string& value) {
  Store<RowOf("ReleaseKeyDefLayer3")>(releaseKeyDefs_[2], value);
}
const std::string& E::ReleaseKeyDefLayer4() const { return releaseKeyDefs_[3]; }
void E::ReleaseKeyDefLayer4(const std::string& value) {
  Store<RowOf("ReleaseKeyDefLayer4")>(releaseKeyDefs_[3], value);
}
const std::string& E::PressKeyDefLayer1() const { return pressKeyDefs_[0]; }
void E::PressKeyDefLayer1(const std::string& value) { Store<RowOf("PressKeyDefLayer1")>(pressKeyDefs_[0], value); }
const std::string& E::PressKeyDefLayer2() const { return pressKeyDefs_[1]; }
void E::PressKeyDefLayer2(const std::string& value) { Store<RowOf("PressKeyDefLayer2")>(pressKeyDefs_[1], value); }
const std::string& E::PressKeyDefLayer3() const { return pressKeyDefs_[2]; }
void E::PressKeyDefLayer3(const std::string& value) { Store<RowOf("PressKeyDefLayer3")>(pressKeyDefs_[2], value); }
const std::string& E::PressKeyDefLayer4() const { return pressKeyDefs_[3]; }
void E::PressKeyDefLayer4(const std::string& value) { Store<RowOf("PressKeyDefLayer4")>(pressKeyDefs_[3], value); }
std::int32_t E::OriginalPosX() const { return originalPosX_; }
void E::OriginalPosX(std::int32_t value) { Store<RowOf("OriginalPosX")>(originalPosX_, value); }
std::int32_t E::OriginalPosY() const { return originalPosY_; }
void E::OriginalPosY(std::int32_t value) { Store<RowOf("OriginalPosY")>(originalPosY_, value); }
std::int32_t E::HardwareNumberKey() const { return hardwareNumberKeys_[0]; }
void E::HardwareNumberKey(std::int32_t value) { Store<RowOf("HardwareNumberKey")>(hardwareNumberKeys_[0], value); }
std::int32_t E::HardwareNumberKey1() const { return hardwareNumberKeys_[1]; }
void E::HardwareNumberKey1(std::int32_t value) { Store<RowOf("HardwareNumberKey1")>(hardwareNumberKeys_[1], value); }
std::int32_t E::HardwareNumberKey2() const { return hardwareNumberKeys_[2]; }
void E::HardwareNumberKey2(std::int32_t value) { Store<RowOf("HardwareNumberKey2")>(hardwareNumberKeys_[2], value); }
std::int32_t E::HardwareNumberKey3() const { return hardwareNumberKeys_[3]; }
void E::HardwareNumberKey3(std::int32_t value) { Store<RowOf("HardwareNumberKey3")>(hardwareNumberKeys_[3], value); }
std::int32_t E::HardwareNumberKey4() const { return hardwareNumberKeys_[4]; }
void E::HardwareNumberKey4(std::int32_t value) { Store<RowOf("HardwareNumberKey4")>(hardwareNumberKeys_[4], value); }
std::int32_t E::HardwareNumberKey5() const { return hardwareNumberKeys_[5]; }
void E::HardwareNumberKey5(std::int32_t value) { Store<RowOf("HardwareNumberKey5")>(hardwareNumberKeys_[5], value); }
std::int32_t E::HardwareNumberKey6() const { return hardwareNumberKeys_[6]; }
void E::HardwareNumberKey6(std::int32_t value) { Store<RowOf("HardwareNumberKey6")>(hardwareNumberKeys_[6], value); }
std::int32_t E::HardwareNumberKey7() const { return hardwareNumberKeys_[7]; }
void E::HardwareNumberKey7(std::int32_t value) { Store<RowOf("HardwareNumberKey7")>(hardwareNumberKeys_[7], value); }
std::int32_t E::HardwareNumberLed() const { return hardwareNumberLed_; }
void E::HardwareNumberLed(std::int32_t value) { Store<RowOf("HardwareNumberLed")>(hardwareNumberLed_, value); }
std::int32_t E::HardwareNumberButton() const { return hardwareNumberButton_; }
void E::HardwareNumberButton(std::int32_t value) { Store<RowOf("HardwareNumberButton")>(hardwareNumberButton_, value); }
Boolean E::ShowDefined() const { return showDefined_; }
void E::ShowDefined(Boolean value) {
  Store<RowOf("ShowDefined")>(showDefined_, value);
  if (BecomeCurrent()) UpdateDefinedMarker();
}
std::int32_t E::KeyDefinedColor() const { return keyDefinedColor_; }
void E::KeyDefinedColor(std::int32_t value) {
  Store<RowOf("KeyDefinedColor")>(keyDefinedColor_, value);
  surface_.linOK1.BorderColor = surface_.linOK2.BorderColor = keyDefinedColor_;
}
Boolean E::ShowX() const { return showX_; }
void E::ShowX(Boolean value) { Store<RowOf("ShowX")>(showX_, value); }
Boolean E::VantaEnabled() const { return vantaEnabled_; }
void E::VantaEnabled(Boolean value) { Store<RowOf("VantaEnabled")>(vantaEnabled_, value); }
const std::string& E::TargetSystem() const { return targetSystem_; }
void E::TargetSystem(const std::string& value) { Store<RowOf("TargetSystem")>(targetSystem_, value); }
const std::string& E::ButtonNotes() const { return buttonNotes_; }
void E::ButtonNotes(const std::string& value) { Store<RowOf("ButtonNotes")>(buttonNotes_, value); }
Boolean E::ShowXPermanent() const { return showXPermanent_; }
void E::ShowXPermanent(Boolean value) {
  Store<RowOf("ShowXPermanent")>(showXPermanent_, value);
  ShowCross(IsTrue(showXPermanent_));
}

}  // namespace plexel
