#pragma once

#include <array>

#include "element/property_access.h"

namespace plexel {

/// The property table itself, for the element's own sources: in the order of the interface. Storage gives the key, the
/// places in reading and in writing, and the defaults of reading and of writing, which differ for some keys.
consteval auto MakePropertyRows() {
  using namespace property_access;
  using enum PropertyType;
  using enum NoticeStyle;
  using E = ctlPlexelBaseElement;
  return std::array{
      Unstored<Double, &E::DPIFontScaleFactor, &E::DPIFontScaleFactor>("DPIFontScaleFactor", None),
      Closed("ParentWindow", Object),
      Choice<enumWizardOptions, &E::WizardOptions, &E::WizardOptions>("WizardOptions", Name,
                                                                      {"WizardOptions", 9, 37, 0, 0}),
      Choice<enumXSize, &E::XElementSize, &E::XElementSize>("XElementSize", Name, {"XElementSize", 37, 36, 1, 1}),
      Row<Bool, &E::FocusVisible, &E::FocusVisible>("FocusVisible", Value, {"FocusVisible", 14, 19, 1, 1}),
      Row<UInt8, &E::FocusWidth, &E::FocusWidth>("FocusWidth", Value, {"FocusWidth", 15, 13, 1, 1}),
      Row<Int32, &E::FocusColor, &E::FocusColor>("FocusColor", Value, {"FocusColor", 13, 12, 255, 255}),
      Row<Bool, &E::WizardOn, &E::WizardOn>("WizardOn", Value, {"WizardOn", 16, 14, 0, 1}),
      Unstored<Int32, &E::DeviceType, &E::DeviceType>("DeviceType", Value),
      Unstored<Int16, &E::SizeY, &E::SizeY>("SizeY", Value),
      Row<Int16, &E::SizeX, &E::SizeX>("SizeX", Value, {"SizeX", 10, 9, 20, 1}),
      Choice<enumTactisBaseElementType, &E::ElementType, &E::ElementType>("ElementType", Name,
                                                                          {"ElementType", 11, 10, 0, 1}),
      Row<Int16, &E::ZoomFactor, &E::ZoomFactor>("ZoomFactor", Name, {"ZoomFactor", 12, 11, 100, 1}),
      Choice<enumLedType, &E::LEDTypeLayer1, &E::LEDTypeLayer1>("LEDTypeLayer1", Value, {"LedType1", 17, 15, 13, 13}),
      Choice<enumLedType, &E::LEDTypeLayer2, &E::LEDTypeLayer2>("LEDTypeLayer2", Value, {"LedType2", 18, 16, 13, 13}),
      Choice<enumLedType, &E::LEDTypeLayer3, &E::LEDTypeLayer3>("LEDTypeLayer3", Value, {"LedType3", 19, 17, 13, 13}),
      Choice<enumLedType, &E::LEDTypeLayer4, &E::LEDTypeLayer4>("LEDTypeLayer4", Value, {"LedType4", 20, 18, 13, 13}),
      Row<String, &E::ReleaseKeyDefLayer1, &E::ReleaseKeyDefLayer1>("ReleaseKeyDefLayer1", Value,
                                                                    {"ReleaseKeyDefLayer1", 21, 20}),
      Row<String, &E::ReleaseKeyDefLayer2, &E::ReleaseKeyDefLayer2>("ReleaseKeyDefLayer2", Value,
                                                                    {"ReleaseKeyDefLayer2", 22, 21}),
      Row<String, &E::ReleaseKeyDefLayer3, &E::ReleaseKeyDefLayer3>("ReleaseKeyDefLayer3", Value,
                                                                    {"ReleaseKeyDefLayer3", 23, 22}),
      Row<String, &E::ReleaseKeyDefLayer4, &E::ReleaseKeyDefLayer4>("ReleaseKeyDefLayer4", Value,
                                                                    {"ReleaseKeyDefLayer4", 24, 23}),
      Row<String, &E::PressKeyDefLayer1, &E::PressKeyDefLayer1>("PressKeyDefLayer1", Value,
                                                                {"PressKeyDefLayer1", 25, 24}),
      Row<String, &E::PressKeyDefLayer2, &E::PressKeyDefLayer2>("PressKeyDefLayer2", Value,
                                                                {"PressKeyDefLayer2", 26, 25}),
      Row<String, &E::PressKeyDefLayer3, &E::PressKeyDefLayer3>("PressKeyDefLayer3", Value,
                                                                {"PressKeyDefLayer3", 27, 26}),
      Row<String, &E::PressKeyDefLayer4, &E::PressKeyDefLayer4>("PressKeyDefLayer4", Value,
                                                                {"PressKeyDefLayer4", 28, 27}),
      Row<Int32, &E::OriginalPosX, &E::OriginalPosX>("OriginalPosX", Value, {"OriginalPosX", 29, 28, 0, 0}),
      Row<Int32, &E::OriginalPosY, &E::OriginalPosY>("OriginalPosY", Value, {"OriginalPosY", 30, 0, 0, 0}),
      Row<Int32, &E::HardwareNumberKey, &E::HardwareNumberKey>("HardwareNumberKey", Name,
                                                               {"HardwareNumberKey", 1, 1, -1, -1}),
      Row<Int32, &E::HardwareNumberKey1, &E::HardwareNumberKey1>("HardwareNumberKey1", Name,
                                                                 {"HardwareNumberKey1", 2, 2, -1, -1}),
      Row<Int32, &E::HardwareNumberKey2, &E::HardwareNumberKey2>("HardwareNumberKey2", Name,
                                                                 {"HardwareNumberKey2", 3, 3, -1, -1}),
      Row<Int32, &E::HardwareNumberKey3, &E::HardwareNumberKey3>("HardwareNumberKey3", Name,
                                                                 {"HardwareNumberKey3", 4, 4, -1, -1}),
      Row<Int32, &E::HardwareNumberKey4, &E::HardwareNumberKey4>("HardwareNumberKey4", Name,
                                                                 {"HardwareNumberKey4", 5, 5, -1, -1}),
      Row<Int32, &E::HardwareNumberKey5, &E::HardwareNumberKey5>("HardwareNumberKey5", Name,
                                                                 {"HardwareNumberKey5", 6, 6, -1, -1}),
      Row<Int32, &E::HardwareNumberKey6, &E::HardwareNumberKey6>("HardwareNumberKey6", Name,
                                                                 {"HardwareNumberKey6", 7, 7, -1, -1}),
      Row<Int32, &E::HardwareNumberKey7, &E::HardwareNumberKey7>("HardwareNumberKey7", Name,
                                                                 {"HardwareNumberKey7", 8, 8, -1, -1}),
      Row<Int32, &E::HardwareNumberLed, &E::HardwareNumberLed>("HardwareNumberLed", Value,
                                                               {"HardwareNumberLed", 31, 30, 0, 0}),
      Row<Int32, &E::HardwareNumberButton, &E::HardwareNumberButton>("HardwareNumberButton", Value,
                                                                     {"HardwareNumberButton", 39, 29, 0, 0}),
      Row<Bool, &E::ShowDefined, &E::ShowDefined>("ShowDefined", Name, {"ShowDefined", 36, 35, 0, 0}),
      Row<Int32, &E::KeyDefinedColor, &E::KeyDefinedColor>("KeyDefinedColor", Name, {"KeyDefinedColor", 35, 34, 0, 0}),
      Closed("TactisBaseElementScanCodeBuffer", Record),
      Row<Bool, &E::ShowX, &E::ShowX>("ShowX", Name, {"ShowX", 32, 31, 0, 0}),
      Unstored<Bool, &E::VantaEnabled, &E::VantaEnabled>("VantaEnabled", None),
      Row<String, &E::TargetSystem, &E::TargetSystem>("TargetSystem", Name, {"TargetSystem", 38, 38}),
      Row<String, &E::ButtonNotes, &E::ButtonNotes>("ButtonNotes", Name, {"ButtonNotes", 34, 33}),
      Row<Bool, &E::ShowXPermanent, &E::ShowXPermanent>("ShowXPermanent", Name, {"ShowXPermanent", 33, 32, 0, 0})};
}

inline constexpr auto propertyRows = MakePropertyRows();

/// The place of a property in the table; does not compile for an unknown name.
consteval std::size_t RowOf(std::string_view name) {
  std::size_t row = 0;
  while (propertyRows.at(row).name != name) ++row;
  return row;
}

}  // namespace plexel
