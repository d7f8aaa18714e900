#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "services/boolean.h"

namespace plexel {

/// The shared vocabulary of elements and dialogs: enumerations and records. All enumerations are 32-bit integers that
/// may hold any value, not only those named.

/// The panel functions.
enum enumSpecialKeyFunctions : std::int32_t {
  SystemReset = 0,
  BackgroundLightLigther = 1,
  BackgroundLightDarker = 2,
  ContrastHigher = 3,
  ContrastLower = 4,
  Layer2 = 5,
  Layer3 = 6,
  Layer4 = 7,
  WarmStart = 8,
  NoSpecialFunction = 9
};

/// The kinds of elements; Key is a key switch, which has no configuration.
enum enumTactisBaseElementType : std::int32_t { Led = 1, Oval = 2, OvalLed = 3, Rect = 4, RectLed = 5, Key = 6 };

/// What the wizard is asked for, and ManuallyDefined for what the configuration dialog has stored.
enum enumWizardOptions : std::int32_t {
  NormalKey = 0,
  TipKey = 1,
  IPCFunction = 2,
  WindowsShortCut = 3,
  ManuallyDefined = 4
};

/// The LED functions.
enum enumLedType : std::int32_t {
  HarddiskLed = 0,
  UserLed = 1,
  TemperatureLed = 2,
  PowerLed = 3,
  CapsLockLed = 4,
  NumLockLed = 5,
  Layer1Led = 6,
  Layer2Led = 7,
  Layer3Led = 8,
  Layer4Led = 9,
  PanelLockedLed = 10,
  ScrollLockLed = 11,
  AlarmLed = 12,
  LedNotEnabled = 13,
  RunLed = 14
};

/// The size of the cross.
enum enumXSize : std::int32_t { XSizeBig = 0, XSizeMedium = 1, XSizeSmall = 2 };

/// The number of layers.
inline constexpr std::int32_t LayerCount = 4;

/// One sequence of scan code bytes, in groups closed by the end mark.
struct udtTactisBaseElement_TACTIS_SCANCODE {
  /// Bytes of a buffer, and the mark behind each of its groups.
  static constexpr std::int32_t Size = 89;
  static constexpr std::uint8_t EndMark = 0xFF;
  /// The bytes.
  std::array<std::uint8_t, Size> Value{};
  std::int32_t NextValue = 0;  ///< index of the last end mark, 0 in an empty sequence
  bool operator==(const udtTactisBaseElement_TACTIS_SCANCODE&) const = default;
};

/// The state of every code buffer of a new element: end marks in its first 45 bytes.
constexpr udtTactisBaseElement_TACTIS_SCANCODE InitialCodes() {
  constexpr std::size_t endMarks = 45;
  udtTactisBaseElement_TACTIS_SCANCODE codes;
  for (std::size_t index = 0; index < endMarks; ++index)
    codes.Value[index] = udtTactisBaseElement_TACTIS_SCANCODE::EndMark;
  return codes;
}

/// All that a dialog needs of an element. The scan codes lie press before release, layer by layer; of the strings all
/// press strings come first.
struct udtTactisBaseElement_ScanCodeInfo {
  /// How the element was defined, and what it is.
  enumWizardOptions enumWizardButtonType{};
  enumTactisBaseElementType enumBaseElementType{};
  /// The LED function in each layer.
  enumLedType lngLEDTypeLayer1{}, lngLEDTypeLayer2{}, lngLEDTypeLayer3{}, lngLEDTypeLayer4{};
  /// Hardware numbers of LED, button and up to eight keys; -1 for no key.
  std::int32_t lngLedHardwareNumber = 0;
  std::int32_t lngButtonHardwareNumber = 0;
  std::int32_t lngKeyHardwareNumber = 0;
  std::int32_t lngKeyHardwareNumber1 = 0, lngKeyHardwareNumber2 = 0, lngKeyHardwareNumber3 = 0,
               lngKeyHardwareNumber4 = 0, lngKeyHardwareNumber5 = 0, lngKeyHardwareNumber6 = 0,
               lngKeyHardwareNumber7 = 0;
  /// The codes that are sent.
  udtTactisBaseElement_TACTIS_SCANCODE strLayer1PressScanCode, strLayer1ReleaseScanCode;
  udtTactisBaseElement_TACTIS_SCANCODE strLayer2PressScanCode, strLayer2ReleaseScanCode;
  udtTactisBaseElement_TACTIS_SCANCODE strLayer3PressScanCode, strLayer3ReleaseScanCode;
  udtTactisBaseElement_TACTIS_SCANCODE strLayer4PressScanCode, strLayer4ReleaseScanCode;
  /// The same as texts, UTF-8.
  std::string strLayer1PressString, strLayer2PressString, strLayer3PressString, strLayer4PressString;
  std::string strLayer1ReleaseString, strLayer2ReleaseString, strLayer3ReleaseString, strLayer4ReleaseString;
  /// Notes of the user.
  std::string strBaseElementNotes;
  bool operator==(const udtTactisBaseElement_ScanCodeInfo&) const = default;
};

/// Selects a press or release buffer of a layer from 1 to 4; null for any other layer.
udtTactisBaseElement_TACTIS_SCANCODE* PressBuffer(udtTactisBaseElement_ScanCodeInfo& info, std::int32_t layer);
udtTactisBaseElement_TACTIS_SCANCODE* ReleaseBuffer(udtTactisBaseElement_ScanCodeInfo& info, std::int32_t layer);
const udtTactisBaseElement_TACTIS_SCANCODE* PressBuffer(const udtTactisBaseElement_ScanCodeInfo& info,
                                                        std::int32_t layer);
const udtTactisBaseElement_TACTIS_SCANCODE* ReleaseBuffer(const udtTactisBaseElement_ScanCodeInfo& info,
                                                          std::int32_t layer);
/// The buffer behind a cell of the grid: column 1 press, column 2 release, row 1 to 4 the layer; null for any other.
udtTactisBaseElement_TACTIS_SCANCODE* CellBuffer(udtTactisBaseElement_ScanCodeInfo& info, std::int32_t row,
                                                 std::int32_t col);
/// Sets all eight buffers to zero bytes, NextValue 0.
void ZeroAllBuffers(udtTactisBaseElement_ScanCodeInfo& info);

/// The copy of one grid cell.
struct udtClipboard {
  /// Whether something was copied.
  Boolean Valid = False;
  /// Its codes.
  udtTactisBaseElement_TACTIS_SCANCODE scanCode;
  /// Its text.
  std::string VisibleString;
};

}  // namespace plexel
