#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "element/element_host.h"
#include "element/property_bag.h"
#include "element/surface.h"
#include "platform/window.h"
#include "services/element_types.h"

namespace plexel {

class FormName;

/// One key, LED, or key with LED on the picture of a display unit.
///
/// A property is a pair of overloads. A setter stores, then notifies the container, then acts. Sizes are pixels at zoom
/// 100, ZoomFactor is percent, colours are 0x00BBGGRR, layers count from 1 to 4. Everything runs on the user-interface
/// thread. A Component makes the elements. They are held by shared pointers, since the module state keeps the last one
/// that a dialog worked for.
class ctlPlexelBaseElement : public std::enable_shared_from_this<ctlPlexelBaseElement> {
 public:
  ctlPlexelBaseElement(const ctlPlexelBaseElement&) = delete;
  ctlPlexelBaseElement& operator=(const ctlPlexelBaseElement&) = delete;

  /// The host's name of the element.
  const std::string& Name() const { return name_; }
  /// Takes the host away: notices and events go nowhere from then on, and questions to the container fail.
  void Detach() { host_ = nullptr; }

  // The interface, in its order.
  /// The scale of letters on the screen; it is kept and nothing else.
  double DPIFontScaleFactor() const;
  void DPIFontScaleFactor(double value);
  /// The window over which dialogs open, null for none. An object that is no form is ignored, and the old reference
  /// stays; null takes the reference away.
  std::shared_ptr<HostObject> ParentWindow() const;
  /// An object that is no form is ignored, and the old reference stays; null takes the reference away.
  void ParentWindow(std::shared_ptr<HostObject> value);
  /// How the element was defined: the road that the wizard took, or ManuallyDefined.
  enumWizardOptions WizardOptions() const;
  void WizardOptions(enumWizardOptions value);
  /// The size of the cross.
  enumXSize XElementSize() const;
  void XElementSize(enumXSize value);
  /// Whether the element has the focus as its host sees it: only then does it show its mark and take Return.
  Boolean FocusVisible() const;
  void FocusVisible(Boolean value);
  /// The width of the focus mark's line, pixels.
  std::uint8_t FocusWidth() const;
  void FocusWidth(std::uint8_t value);
  /// The colour of focus mark and cross.
  std::int32_t FocusColor() const;
  void FocusColor(std::int32_t value);
  /// Whether OpenConfigurationDialog shows the wizard.
  Boolean WizardOn() const;
  void WizardOn(Boolean value);
  /// A number that the host keeps here.
  std::int32_t DeviceType() const;
  void DeviceType(std::int32_t value);
  /// The height. Failure (Overflow) when the layout leaves its arithmetic; the size is stored, objects not yet moved
  /// stay.
  std::int16_t SizeY() const;
  void SizeY(std::int16_t value);
  /// The width, likewise.
  std::int16_t SizeX() const;
  void SizeX(std::int16_t value);
  /// The kind, 0 for none.
  enumTactisBaseElementType ElementType() const;
  void ElementType(enumTactisBaseElementType value);
  /// The zoom; a new one lays the element out. Failure (Overflow) as with the sizes.
  std::int16_t ZoomFactor() const;
  void ZoomFactor(std::int16_t value);
  /// The LED function of layer 1.
  enumLedType LEDTypeLayer1() const;
  void LEDTypeLayer1(enumLedType value);
  /// The LED function of layer 2.
  enumLedType LEDTypeLayer2() const;
  void LEDTypeLayer2(enumLedType value);
  /// The LED function of layer 3.
  enumLedType LEDTypeLayer3() const;
  void LEDTypeLayer3(enumLedType value);
  /// The LED function of layer 4.
  enumLedType LEDTypeLayer4() const;
  void LEDTypeLayer4(enumLedType value);
  /// What layer 1 sends on release, as text in UTF-8; empty for nothing.
  const std::string& ReleaseKeyDefLayer1() const;
  void ReleaseKeyDefLayer1(const std::string& value);
  /// What layer 2 sends on release.
  const std::string& ReleaseKeyDefLayer2() const;
  void ReleaseKeyDefLayer2(const std::string& value);
  /// What layer 3 sends on release.
  const std::string& ReleaseKeyDefLayer3() const;
  void ReleaseKeyDefLayer3(const std::string& value);
  /// What layer 4 sends on release.
  const std::string& ReleaseKeyDefLayer4() const;
  void ReleaseKeyDefLayer4(const std::string& value);
  /// What layer 1 sends on press.
  const std::string& PressKeyDefLayer1() const;
  void PressKeyDefLayer1(const std::string& value);
  /// What layer 2 sends on press.
  const std::string& PressKeyDefLayer2() const;
  void PressKeyDefLayer2(const std::string& value);
  /// What layer 3 sends on press.
  const std::string& PressKeyDefLayer3() const;
  void PressKeyDefLayer3(const std::string& value);
  /// What layer 4 sends on press.
  const std::string& PressKeyDefLayer4() const;
  void PressKeyDefLayer4(const std::string& value);
  /// The place on the panel from the left, which the host keeps here.
  std::int32_t OriginalPosX() const;
  void OriginalPosX(std::int32_t value);
  /// The place from the top. It is read from bags and never written.
  std::int32_t OriginalPosY() const;
  void OriginalPosY(std::int32_t value);
  /// The number of the key in the hardware, -1 for none.
  std::int32_t HardwareNumberKey() const;
  void HardwareNumberKey(std::int32_t value);
  /// The numbers of further keys, -1 for none.
  std::int32_t HardwareNumberKey1() const;
  void HardwareNumberKey1(std::int32_t value);
  /// As HardwareNumberKey1.
  std::int32_t HardwareNumberKey2() const;
  void HardwareNumberKey2(std::int32_t value);
  /// As HardwareNumberKey1.
  std::int32_t HardwareNumberKey3() const;
  void HardwareNumberKey3(std::int32_t value);
  /// As HardwareNumberKey1.
  std::int32_t HardwareNumberKey4() const;
  void HardwareNumberKey4(std::int32_t value);
  /// As HardwareNumberKey1.
  std::int32_t HardwareNumberKey5() const;
  void HardwareNumberKey5(std::int32_t value);
  /// As HardwareNumberKey1.
  std::int32_t HardwareNumberKey6() const;
  void HardwareNumberKey6(std::int32_t value);
  /// As HardwareNumberKey1.
  std::int32_t HardwareNumberKey7() const;
  void HardwareNumberKey7(std::int32_t value);
  /// The number of the LED in the hardware.
  std::int32_t HardwareNumberLed() const;
  void HardwareNumberLed(std::int32_t value);
  /// The number of the button in the hardware.
  std::int32_t HardwareNumberButton() const;
  void HardwareNumberButton(std::int32_t value);
  /// Whether ShowDefinedObject may show the tick of a defined element.
  Boolean ShowDefined() const;
  void ShowDefined(Boolean value);
  /// The colour of the tick.
  std::int32_t KeyDefinedColor() const;
  void KeyDefinedColor(std::int32_t value);
  /// A copy of the record, with the properties as they are now and the code bytes of the last record that was set.
  udtTactisBaseElement_ScanCodeInfo TactisBaseElementScanCodeBuffer() const;
  void TactisBaseElementScanCodeBuffer(const udtTactisBaseElement_ScanCodeInfo& value);
  /// Whether the cross is shown with the focus.
  Boolean ShowX() const;
  void ShowX(Boolean value);
  /// Whether codes have half the room: 22 to a layer, not 43.
  Boolean VantaEnabled() const;
  void VantaEnabled(Boolean value);
  /// The name of the target system, whose capabilities the dialogs ask for.
  const std::string& TargetSystem() const;
  void TargetSystem(const std::string& value);
  /// Notes of the user.
  const std::string& ButtonNotes() const;
  void ButtonNotes(const std::string& value);
  /// Whether the cross stays when the focus goes.
  Boolean ShowXPermanent() const;
  void ShowXPermanent(Boolean value);

  /// Shows what the element is, and returns when the dialog has closed. Ends quietly.
  void OpenPropertiesDialog();
  /// Shows the configuration dialog, or the wizard, and returns when it has closed; SendKeyDefinition follows. Nothing
  /// happens while one is open for this element; a key switch has none. A dialog that cannot be shown is passed over.
  /// Failure (ObjectNotSet) when the component has ended.
  void OpenConfigurationDialog();
  /// Shows or hides the focus marks as FocusVisible and the kind say.
  void UpdateFocus();
  /// Takes the user's settings over into the properties. Ends quietly.
  void Refresh();
  /// Shows the tick, if ShowDefined is true, or hides it. Ends quietly.
  void ShowDefinedObject(Boolean bVisible);
  /// Takes over what a dialog has made of a record: its fields go through the setters, and the bytes with them.
  void SetTactisBaseElementDefinition(const udtTactisBaseElement_ScanCodeInfo& udtTactisBaseElementInfo);
  /// Asks the container; its failure reaches the caller.
  Boolean CheckIfLedIsAlreadyDefined(enumLedType LEDType, std::int32_t Layer);

  // The same by layer, 1 to 4; Failure (Index) for any other.
  /// The LED function of a layer, 1 to 4; Failure (Index) for any other.
  enumLedType LEDTypeLayer(std::int32_t layer) const;
  void LEDTypeLayer(std::int32_t layer, enumLedType value);
  /// What a layer sends on release. Failure (Index) outside 1 to 4.
  const std::string& ReleaseKeyDefLayer(std::int32_t layer) const;
  void ReleaseKeyDefLayer(std::int32_t layer, const std::string& value);
  /// What a layer sends on press. Failure (Index) outside 1 to 4.
  const std::string& PressKeyDefLayer(std::int32_t layer) const;
  void PressKeyDefLayer(std::int32_t layer, const std::string& value);
  /// HardwareNumberKey (0) to HardwareNumberKey7 (7); Failure (Index) for any other.
  std::int32_t HardwareNumberKeyAt(std::int32_t index) const;
  void HardwareNumberKeyAt(std::int32_t index, std::int32_t value);

  // Events of the surface and of the container.
  /// The focus came: SendKeyDefinition, then UpdateFocus. What fails reaches the caller.
  void UserControl_GotFocus();
  /// The focus went: the marks go.
  void UserControl_LostFocus();
  /// A character was typed; Return, 13, with FocusVisible opens the configuration dialog.
  void UserControl_KeyPress(std::int16_t KeyAscii);
  /// A button of the mouse came up: MouseClicked. Ends quietly.
  void UserControl_MouseUp(std::int16_t Button, std::int16_t Shift, float x, float Y);
  /// A double click: MouseDblClicked, which opens nothing by itself. Ends quietly.
  void UserControl_DblClick();
  /// Takes the stored properties over; a missing key is read as its default. The first value that does not convert ends
  /// the reading.
  void UserControl_ReadProperties(const PropertyBag& bag);
  /// Stores the properties that are not at their default, and removes the keys of the others. The bytes of the codes
  /// are in no bag.
  void UserControl_WriteProperties(PropertyBag& bag) const;
  /// The end of the element in its container, which calls it.
  void UserControl_Terminate();

  /// What the element shows.
  const Surface& SurfaceObjects() const { return surface_; }

 private:
  friend class Component;
  friend class ElementAccess;

  ctlPlexelBaseElement(std::string name, ElementHost& host);
  /// A new element with UserControl_Initialize and UserControl_InitProperties done.
  static std::shared_ptr<ctlPlexelBaseElement> Create(std::string name, ElementHost& host);
  /// An element read from a bag, with UserControl_Initialize and UserControl_ReadProperties done.
  static std::shared_ptr<ctlPlexelBaseElement> Read(std::string name, ElementHost& host, const PropertyBag& bag);
  static std::shared_ptr<ctlPlexelBaseElement> Make(std::string name, ElementHost& host);
  void UserControl_Initialize();
  void UserControl_InitProperties();

  bool ComponentLives() const;
  /// The host; null when it was taken away, and when the element's component has ended.
  ElementHost* Host() const;
  /// Makes this the element that dialogs and procedures work for. False, and nothing else, when its component has
  /// ended.
  bool BecomeCurrent();
  void RaiseProjectModified();
  void RaiseDirectInputStatusChanged(Boolean bDirectInputStatus);
  /// Whether all eight definition texts are empty.
  bool IsDefinitionEmpty() const;

  void Notify(const Notice& notice);
  /// Stores a value and announces it as the row of the property table says.
  template <std::size_t row, typename Field>
  void Store(Field& field, const Field& value);

  /// Steps that lay out one direction behind a change of size; nothing happens while the size or the zoom is 0.
  void LayOutHorizontally();
  void LayOutVertically();
  struct Axis;
  double LayOutShapes(const Axis& axis, std::int16_t size);
  std::int32_t CrossMargin() const;
  /// Gives both size setters their own values.
  void ReapplySizes();

  void ShowFocusShapes(bool oval, bool rectangle);
  void ShowCross(bool visible);
  void SendKeyDefinition();
  /// Shows a form modal over ParentWindow.
  void ShowForm(FormName form);
  /// The same with mbDialogOpen set meanwhile; a form that cannot be shown is passed over.
  void ShowDialog(FormName form);
  void ShowWizard();
  void ShowChosenDialog();

  void PassOnHead(const udtTactisBaseElement_ScanCodeInfo& info);
  void PassOnRest(const udtTactisBaseElement_ScanCodeInfo& info);

  std::string name_;
  ElementHost* host_ = nullptr;
  Surface surface_;
  std::uint32_t life_ = 0;           ///< of the component that made the element
  std::vector<std::uint8_t> codes_;  ///< the eight code buffers, packed
  std::array<std::string, LayerCount> pressKeyDefs_, releaseKeyDefs_;
  std::array<enumLedType, LayerCount> ledTypes_{};
  std::array<std::int32_t, 8> hardwareNumberKeys_{};
  std::string buttonNotes_, targetSystem_;
  std::shared_ptr<HostObject> parentWindow_;
  double dpiFontScaleFactor_ = 0;
  enumWizardOptions wizardOptions_{};
  enumXSize xElementSize_{};
  enumTactisBaseElementType elementType_{};
  std::int32_t focusColor_ = 0, keyDefinedColor_ = 0, deviceType_ = 0;
  std::int32_t originalPosX_ = 0, originalPosY_ = 0;
  std::int32_t hardwareNumberLed_ = 0, hardwareNumberButton_ = 0;
  std::int16_t sizeX_ = 0, sizeY_ = 0, zoomFactor_ = 0;
  Boolean focusVisible_ = False, wizardOn_ = False, showDefined_ = False;
  Boolean showX_ = False, showXPermanent_ = False, vantaEnabled_ = False;
  Boolean mbDialogOpen_ = False;
  std::uint8_t focusWidth_ = 0;
};

}  // namespace plexel
