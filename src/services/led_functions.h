#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "services/element_types.h"
#include "services/surroundings.h"
#include "services/value_rows.h"

namespace plexel {

/// A function that an LED can show.
struct LedFunction {
  enumLedType type;
  std::int32_t textId;              ///< number of the language text that names it
  std::optional<Capability> query;  ///< asks whether a target system has it; none for LedNotEnabled
};

/// In the order of the enumeration. 10400 and 10401 stand crosswise to their types.
inline constexpr auto LedFunctions = std::to_array<LedFunction>({
    {HarddiskLed, 10401, Capability::HasHarddiskLed},
    {UserLed, 10400, Capability::HasUserLed},
    {TemperatureLed, 10402, Capability::HasTemperatureLed},
    {PowerLed, 10403, Capability::HasPowerLed},
    {CapsLockLed, 10404, Capability::HasCapsLockLed},
    {NumLockLed, 10405, Capability::HasNumLockLed},
    {Layer1Led, 10406, Capability::HasLayer1Led},
    {Layer2Led, 10407, Capability::HasLayer2Led},
    {Layer3Led, 10408, Capability::HasLayer3Led},
    {Layer4Led, 10409, Capability::HasLayer4Led},
    {PanelLockedLed, 10410, Capability::HasPanelLockedLed},
    {ScrollLockLed, 10411, Capability::HasScrollLockLed},
    {AlarmLed, 10412, Capability::HasAlarmLed},
    {LedNotEnabled, 10413, std::nullopt},
    {RunLed, 10961, Capability::HasRunLed},
});
static_assert(InOrderOfValues(LedFunctions, &LedFunction::type));

/// What is offered where the target system has it, in the order of the questions: with an LED of one function for all
/// layers, and with one of its own for each.
inline constexpr auto LedsOfOneLayer = std::to_array<enumLedType>({UserLed, TemperatureLed, HarddiskLed, PowerLed});
inline constexpr auto LedsOfFourLayers =
    std::to_array<enumLedType>({HarddiskLed, PowerLed, CapsLockLed, NumLockLed, Layer1Led, Layer2Led, Layer3Led,
                                Layer4Led, PanelLockedLed, ScrollLockLed, AlarmLed, RunLed});

/// The functions that are offered, as far as the target system has them.
inline std::span<const enumLedType> LedsFor(Boolean vantaEnabled) {
  return IsTrue(vantaEnabled) ? std::span<const enumLedType>(LedsOfFourLayers) : LedsOfOneLayer;
}

/// Whether a function tells which layer is in force.
constexpr bool TellsLayer(enumLedType type) { return type >= Layer1Led && type <= Layer4Led; }

}  // namespace plexel
