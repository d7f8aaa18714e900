#include "qt/element_widget.h"

#include "element/ctlPlexelBaseElement.h"
#include "element/property_table.h"
#include "files/panel_file.h"
#include "qt/units.h"

namespace plexel {

void ElementWidget::Assign(const char* name, int value) {
  Run([=](ctlPlexelBaseElement& element) { Set(element, *FindProperty(name), value); });
}

double ElementWidget::DPIFontScaleFactor() const { return element_->DPIFontScaleFactor(); }
void ElementWidget::DPIFontScaleFactor(double value) {
  Run([value](ctlPlexelBaseElement& element) { element.DPIFontScaleFactor(value); });
}
ElementWidget::WizardOption ElementWidget::WizardOptions() const {
  return static_cast<WizardOption>(element_->WizardOptions());
}
void ElementWidget::WizardOptions(WizardOption value) {
  Run([value](ctlPlexelBaseElement& element) { element.WizardOptions(static_cast<enumWizardOptions>(value)); });
}
ElementWidget::MarkSize ElementWidget::XElementSize() const { return static_cast<MarkSize>(element_->XElementSize()); }
void ElementWidget::XElementSize(MarkSize value) {
  Run([value](ctlPlexelBaseElement& element) { element.XElementSize(static_cast<enumXSize>(value)); });
}
bool ElementWidget::FocusVisible() const { return IsTrue(element_->FocusVisible()); }
void ElementWidget::FocusVisible(bool value) {
  Run([value](ctlPlexelBaseElement& element) { element.FocusVisible(value ? True : False); });
}
int ElementWidget::FocusWidth() const { return element_->FocusWidth(); }
void ElementWidget::FocusWidth(int value) { Assign("FocusWidth", value); }
QColor ElementWidget::FocusColor() const { return ColourOf(element_->FocusColor()); }
void ElementWidget::FocusColor(const QColor& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.FocusColor(NumberOf(value)); });
}
bool ElementWidget::WizardOn() const { return IsTrue(element_->WizardOn()); }
void ElementWidget::WizardOn(bool value) {
  Run([value](ctlPlexelBaseElement& element) { element.WizardOn(value ? True : False); });
}
int ElementWidget::DeviceType() const { return element_->DeviceType(); }
void ElementWidget::DeviceType(int value) { Assign("DeviceType", value); }
int ElementWidget::SizeY() const { return element_->SizeY(); }
void ElementWidget::SizeY(int value) { Assign("SizeY", value); }
int ElementWidget::SizeX() const { return element_->SizeX(); }
void ElementWidget::SizeX(int value) { Assign("SizeX", value); }
ElementWidget::ElementKind ElementWidget::ElementType() const {
  return static_cast<ElementKind>(element_->ElementType());
}
void ElementWidget::ElementType(ElementKind value) {
  Run([value](ctlPlexelBaseElement& element) { element.ElementType(static_cast<enumTactisBaseElementType>(value)); });
}
int ElementWidget::ZoomFactor() const { return element_->ZoomFactor(); }
void ElementWidget::ZoomFactor(int value) { Assign("ZoomFactor", value); }
ElementWidget::LedFunction ElementWidget::LEDTypeLayer1() const {
  return static_cast<LedFunction>(element_->LEDTypeLayer1());
}
void ElementWidget::LEDTypeLayer1(LedFunction value) {
  Run([value](ctlPlexelBaseElement& element) { element.LEDTypeLayer1(static_cast<enumLedType>(value)); });
}
ElementWidget::LedFunction ElementWidget::LEDTypeLayer2() const {
  return static_cast<LedFunction>(element_->LEDTypeLayer2());
}
void ElementWidget::LEDTypeLayer2(LedFunction value) {
  Run([value](ctlPlexelBaseElement& element) { element.LEDTypeLayer2(static_cast<enumLedType>(value)); });
}
ElementWidget::LedFunction ElementWidget::LEDTypeLayer3() const {
  return static_cast<LedFunction>(element_->LEDTypeLayer3());
}
void ElementWidget::LEDTypeLayer3(LedFunction value) {
  Run([value](ctlPlexelBaseElement& element) { element.LEDTypeLayer3(static_cast<enumLedType>(value)); });
}
ElementWidget::LedFunction ElementWidget::LEDTypeLayer4() const {
  return static_cast<LedFunction>(element_->LEDTypeLayer4());
}
void ElementWidget::LEDTypeLayer4(LedFunction value) {
  Run([value](ctlPlexelBaseElement& element) { element.LEDTypeLayer4(static_cast<enumLedType>(value)); });
}
QString ElementWidget::ReleaseKeyDefLayer1() const { return ToQt(element_->ReleaseKeyDefLayer1()); }
void ElementWidget::ReleaseKeyDefLayer1(const QString& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.ReleaseKeyDefLayer1(value.toStdString()); });
}
QString ElementWidget::ReleaseKeyDefLayer2() const { return ToQt(element_->ReleaseKeyDefLayer2()); }
void ElementWidget::ReleaseKeyDefLayer2(const QString& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.ReleaseKeyDefLayer2(value.toStdString()); });
}
QString ElementWidget::ReleaseKeyDefLayer3() const { return ToQt(element_->ReleaseKeyDefLayer3()); }
void ElementWidget::ReleaseKeyDefLayer3(const QString& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.ReleaseKeyDefLayer3(value.toStdString()); });
}
QString ElementWidget::ReleaseKeyDefLayer4() const { return ToQt(element_->ReleaseKeyDefLayer4()); }
void ElementWidget::ReleaseKeyDefLayer4(const QString& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.ReleaseKeyDefLayer4(value.toStdString()); });
}
QString ElementWidget::PressKeyDefLayer1() const { return ToQt(element_->PressKeyDefLayer1()); }
void ElementWidget::PressKeyDefLayer1(const QString& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.PressKeyDefLayer1(value.toStdString()); });
}
QString ElementWidget::PressKeyDefLayer2() const { return ToQt(element_->PressKeyDefLayer2()); }
void ElementWidget::PressKeyDefLayer2(const QString& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.PressKeyDefLayer2(value.toStdString()); });
}
QString ElementWidget::PressKeyDefLayer3() const { return ToQt(element_->PressKeyDefLayer3()); }
void ElementWidget::PressKeyDefLayer3(const QString& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.PressKeyDefLayer3(value.toStdString()); });
}
QString ElementWidget::PressKeyDefLayer4() const { return ToQt(element_->PressKeyDefLayer4()); }
void ElementWidget::PressKeyDefLayer4(const QString& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.PressKeyDefLayer4(value.toStdString()); });
}
int ElementWidget::OriginalPosX() const { return element_->OriginalPosX(); }
void ElementWidget::OriginalPosX(int value) { Assign("OriginalPosX", value); }
int ElementWidget::OriginalPosY() const { return element_->OriginalPosY(); }
void ElementWidget::OriginalPosY(int value) { Assign("OriginalPosY", value); }
int ElementWidget::HardwareNumberKey() const { return element_->HardwareNumberKey(); }
void ElementWidget::HardwareNumberKey(int value) { Assign("HardwareNumberKey", value); }
int ElementWidget::HardwareNumberKey1() const { return element_->HardwareNumberKey1(); }
void ElementWidget::HardwareNumberKey1(int value) { Assign("HardwareNumberKey1", value); }
int ElementWidget::HardwareNumberKey2() const { return element_->HardwareNumberKey2(); }
void ElementWidget::HardwareNumberKey2(int value) { Assign("HardwareNumberKey2", value); }
int ElementWidget::HardwareNumberKey3() const { return element_->HardwareNumberKey3(); }
void ElementWidget::HardwareNumberKey3(int value) { Assign("HardwareNumberKey3", value); }
int ElementWidget::HardwareNumberKey4() const { return element_->HardwareNumberKey4(); }
void ElementWidget::HardwareNumberKey4(int value) { Assign("HardwareNumberKey4", value); }
int ElementWidget::HardwareNumberKey5() const { return element_->HardwareNumberKey5(); }
void ElementWidget::HardwareNumberKey5(int value) { Assign("HardwareNumberKey5", value); }
int ElementWidget::HardwareNumberKey6() const { return element_->HardwareNumberKey6(); }
void ElementWidget::HardwareNumberKey6(int value) { Assign("HardwareNumberKey6", value); }
int ElementWidget::HardwareNumberKey7() const { return element_->HardwareNumberKey7(); }
void ElementWidget::HardwareNumberKey7(int value) { Assign("HardwareNumberKey7", value); }
int ElementWidget::HardwareNumberLed() const { return element_->HardwareNumberLed(); }
void ElementWidget::HardwareNumberLed(int value) { Assign("HardwareNumberLed", value); }
int ElementWidget::HardwareNumberButton() const { return element_->HardwareNumberButton(); }
void ElementWidget::HardwareNumberButton(int value) { Assign("HardwareNumberButton", value); }
bool ElementWidget::ShowDefined() const { return IsTrue(element_->ShowDefined()); }
void ElementWidget::ShowDefined(bool value) {
  Run([value](ctlPlexelBaseElement& element) { element.ShowDefined(value ? True : False); });
}
QColor ElementWidget::KeyDefinedColor() const { return ColourOf(element_->KeyDefinedColor()); }
void ElementWidget::KeyDefinedColor(const QColor& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.KeyDefinedColor(NumberOf(value)); });
}
bool ElementWidget::ShowX() const { return IsTrue(element_->ShowX()); }
void ElementWidget::ShowX(bool value) {
  Run([value](ctlPlexelBaseElement& element) { element.ShowX(value ? True : False); });
}
bool ElementWidget::VantaEnabled() const { return IsTrue(element_->VantaEnabled()); }
void ElementWidget::VantaEnabled(bool value) {
  Run([value](ctlPlexelBaseElement& element) { element.VantaEnabled(value ? True : False); });
}
QString ElementWidget::TargetSystem() const { return ToQt(element_->TargetSystem()); }
void ElementWidget::TargetSystem(const QString& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.TargetSystem(value.toStdString()); });
}
QString ElementWidget::ButtonNotes() const { return ToQt(element_->ButtonNotes()); }
void ElementWidget::ButtonNotes(const QString& value) {
  Run([&value](ctlPlexelBaseElement& element) { element.ButtonNotes(value.toStdString()); });
}
bool ElementWidget::ShowXPermanent() const { return IsTrue(element_->ShowXPermanent()); }
void ElementWidget::ShowXPermanent(bool value) {
  Run([value](ctlPlexelBaseElement& element) { element.ShowXPermanent(value ? True : False); });
}

}  // namespace plexel
