#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "element/element_host.h"
#include "element/property_bag.h"
#include "element/surface.h"
#include "platform/window.h"
#include "services/element_types.h"

namespace plexel {

/// One key, LED, or key with LED on the picture of a display unit.
///
/// A property is a pair of overloads. A setter stores, then notifies the container, then acts. Sizes are pixels at zoom
/// 100, ZoomFactor is percent, colours are 0x00BBGGRR, layers count from 1 to 4. Everything runs on the user-interface
/// thread. Elements are held by shared pointers, since the module state keeps the last one that a dialog worked for.
class ctlPlexelBaseElement : public std::enable_shared_from_this<ctlPlexelBaseElement> {
 public:
  /// A new element with UserControl_Initialize and UserControl_InitProperties done. `host` must outlive the element or be
  /// taken away with Detach.
  static std::shared_ptr<ctlPlexelBaseElement> Create(std::string name, ElementHost& host);
  /// An element read from a bag, with UserControl_Initialize and UserControl_ReadProperties done.
  static std::shared_ptr<ctlPlexelBaseElement> Read(std::string name, ElementHost& host, const PropertyBag& bag);

  ctlPlexelBaseElement(const ctlPlexelBaseElement&) = delete;
  ctlPlexelBaseElement& operator=(const ctlPlexelBaseElement&) = delete;

  /// The host's name of the element.
  const std::string& Name() const { return name_; }
  /// Takes the host away: notices and events go nowhere from then on, and questions to the container fail.
  void Detach() { host_ = nullptr; }

  // The interface, in its order.
  double DPIFontScaleFactor() const;
  void DPIFontScaleFactor(double value);
  std::shared_ptr<HostObject> ParentWindow() const;
  /// An object that is no form is ignored, and the old reference stays; null takes the reference away.
  void ParentWindow(std::shared_ptr<HostObject> value);
  enumWizardOptions WizardOptions() const;
  void WizardOptions(enumWizardOptions value);
  enumXSize XElementSize() const;
  void XElementSize(enumXSize value);
  Boolean FocusVisible() const;
  void FocusVisible(Boolean value);
  std::uint8_t FocusWidth() const;
  void FocusWidth(std::uint8_t value);
  std::int32_t FocusColor() const;
  void FocusColor(std::int32_t value);
  Boolean WizardOn() const;
  void WizardOn(Boolean value);
  std::int32_t DeviceType() const;
  void DeviceType(std::int32_t value);
  /// Failure (Overflow) when the layout leaves its arithmetic; the size is stored, objects not yet moved stay.
  std::int16_t SizeY() const;
  void SizeY(std::int16_t value);
  std::int16_t SizeX() const;
  void SizeX(std::int16_t value);
  enumTactisBaseElementType ElementType() const;
  void ElementType(enumTactisBaseElementType value);
  std::int16_t ZoomFactor() const;
  void ZoomFactor(std::int16_t value);
  enumLedType LEDTypeLayer1() const;
  void LEDTypeLayer1(enumLedType value);
  enumLedType LEDTypeLayer2() const;
  void LEDTypeLayer2(enumLedType value);
  enumLedType LEDTypeLayer3() const;
  void LEDTypeLayer3(enumLedType value);
  enumLedType LEDTypeLayer4() const;
  void LEDTypeLayer4(enumLedType value);
  const std::string& ReleaseKeyDefLayer1() const;
  void ReleaseKeyDefLayer1(const std::string& value);
  const std::string& ReleaseKeyDefLayer2() const;
  void ReleaseKeyDefLayer2(const std::string& value);
  const std::string& ReleaseKeyDefLayer3() const;
  void ReleaseKeyDefLayer3(const std::string& value);
  const std::string& ReleaseKeyDefLayer4() const;
  void ReleaseKeyDefLayer4(const std::string& value);
  const std::string& PressKeyDefLayer1() const;
  void PressKeyDefLayer1(const std::string& value);
  const std::string& PressKeyDefLayer2() const;
  void PressKeyDefLayer2(const std::string& value);
  const std::string& PressKeyDefLayer3() const;
  void PressKeyDefLayer3(const std::string& value);
  const std::string& PressKeyDefLayer4() const;
  void PressKeyDefLayer4(const std::string& value);
  std::int32_t OriginalPosX() const;
  void OriginalPosX(std::int32_t value);
  std::int32_t OriginalPosY() const;
  void OriginalPosY(std::int32_t value);
  std::int32_t HardwareNumberKey() const;
  void HardwareNumberKey(std::int32_t value);
  std::int32_t HardwareNumberKey1() const;
  void HardwareNumberKey1(std::int32_t value);
  std::int32_t HardwareNumberKey2() const;
  void HardwareNumberKey2(std::int32_t value);
  std::int32_t HardwareNumberKey3() const;
  void HardwareNumberKey3(std::int32_t value);
  std::int32_t HardwareNumberKey4() const;
  void HardwareNumberKey4(std::int32_t value);
  std::int32_t HardwareNumberKey5() const;
  void HardwareNumberKey5(std::int32_t value);
  std::int32_t HardwareNumberKey6() const;
  void HardwareNumberKey6(std::int32_t value);
  std::int32_t HardwareNumberKey7() const;
  void HardwareNumberKey7(std::int32_t value);
  std::int32_t HardwareNumberLed() const;
  void HardwareNumberLed(std::int32_t value);
  std::int32_t HardwareNumberButton() const;
  void HardwareNumberButton(std::int32_t value);
  Boolean ShowDefined() const;
  void ShowDefined(Boolean value);
  std::int32_t KeyDefinedColor() const;
  void KeyDefinedColor(std::int32_t value);
  /// Brings the record up to date from the properties and hands out a copy; after a failure an empty one.
  udtTactisBaseElement_ScanCodeInfo TactisBaseElementScanCodeBuffer();
  void TactisBaseElementScanCodeBuffer(const udtTactisBaseElement_ScanCodeInfo& value);
  Boolean ShowX() const;
  void ShowX(Boolean value);
  Boolean VantaEnabled() const;
  void VantaEnabled(Boolean value);
  const std::string& TargetSystem() const;
  void TargetSystem(const std::string& value);
  const std::string& ButtonNotes() const;
  void ButtonNotes(const std::string& value);
  Boolean ShowXPermanent() const;
  void ShowXPermanent(Boolean value);

  void OpenPropertiesDialog();
  void OpenConfigurationDialog();
  void UpdateFocus();
  void Refresh();
  void ShowDefinedObject(Boolean bVisible);
  void SetTactisBaseElementDefinition(const udtTactisBaseElement_ScanCodeInfo& udtTactisBaseElementInfo);
  /// Asks the container; its failure reaches the caller.
  Boolean CheckIfLedIsAlreadyDefined(enumLedType LEDType, std::int32_t Layer);

  // The same by layer, 1 to 4; Failure (Index) for any other.
  enumLedType LEDTypeLayer(std::int32_t layer) const;
  void LEDTypeLayer(std::int32_t layer, enumLedType value);
  const std::string& ReleaseKeyDefLayer(std::int32_t layer) const;
  void ReleaseKeyDefLayer(std::int32_t layer, const std::string& value);
  const std::string& PressKeyDefLayer(std::int32_t layer) const;
  void PressKeyDefLayer(std::int32_t layer, const std::string& value);
  /// HardwareNumberKey (0) to HardwareNumberKey7 (7); Failure (Index) for any other.
  std::int32_t HardwareNumberKeyAt(std::int32_t index) const;
  void HardwareNumberKeyAt(std::int32_t index, std::int32_t value);

  // For the component's own forms and procedures.
  void RaiseProjectModified();
  void RaiseDirectInputStatusChanged(Boolean bDirectInputStatus);
  /// Whether all eight definition texts are empty.
  bool IsDefinitionEmpty() const;

  // Events of the surface and of the container.
  void UserControl_GotFocus();
  void UserControl_LostFocus();
  void UserControl_KeyPress(std::int16_t KeyAscii);
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float x, float Y);
  void UserControl_DblClick();
  void UserControl_ReadProperties(const PropertyBag& bag);
  void UserControl_WriteProperties(PropertyBag& bag) const;
  void UserControl_Terminate();

  /// What the element shows.
  const Surface& SurfaceObjects() const { return surface_; }

 private:
  // filled by the element's builder
  std::string name_;
  ElementHost* host_ = nullptr;
  Surface surface_;
};

}  // namespace plexel
