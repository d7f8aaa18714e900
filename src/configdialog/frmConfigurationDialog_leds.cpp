#include "configdialog/frmConfigurationDialog.h"

#include <array>

#include "element/ctlPlexelBaseElement.h"
#include "forms/list_keys.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// A function that is offered when the target system has it.
struct LedCandidate {
  Capability query;
  enumLedType type;
};

constexpr std::array<LedCandidate, 12> candidatesOfFourLayers = {{
    {Capability::HasHarddiskLed, HarddiskLed},
    {Capability::HasPowerLed, PowerLed},
    {Capability::HasCapsLockLed, CapsLockLed},
    {Capability::HasNumLockLed, NumLockLed},
    {Capability::HasLayer1Led, Layer1Led},
    {Capability::HasLayer2Led, Layer2Led},
    {Capability::HasLayer3Led, Layer3Led},
    {Capability::HasLayer4Led, Layer4Led},
    {Capability::HasPanelLockedLed, PanelLockedLed},
    {Capability::HasScrollLockLed, ScrollLockLed},
    {Capability::HasAlarmLed, AlarmLed},
    {Capability::HasRunLed, RunLed},
}};

constexpr std::array<LedCandidate, 4> candidatesOfOneLayer = {{
    {Capability::HasUserLed, UserLed},
    {Capability::HasTemperatureLed, TemperatureLed},
    {Capability::HasHarddiskLed, HarddiskLed},
    {Capability::HasPowerLed, PowerLed},
}};

constexpr std::int32_t highestLedType = RunLed;
constexpr std::int32_t noFunctionText = 10413;

}  // namespace

void frmConfigurationDialog::FillLedLists() {
  EndQuietly([this] {
    const bool fourLayers = IsTrue(CurrentElement().VantaEnabled());
    for (int index = 1; index < LayerCount; ++index) LedTypeBox(index).Enabled(fourLayers);
    const auto offer = [this](const auto& candidates) {
      for (const LedCandidate& candidate : candidates) {
        if (TargetHas(candidate.query, CurrentElement().TargetSystem())) AddLedToLists(candidate.type);
      }
    };
    if (fourLayers) {
      offer(candidatesOfFourLayers);
    } else {
      offer(candidatesOfOneLayer);
    }
  });
}

void frmConfigurationDialog::AddLedToLists(enumLedType enumType) {
  EndQuietly([this, enumType] {
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      const Boolean bUsed = CurrentElement().CheckIfLedIsAlreadyDefined(enumType, layer);
      const enumLedType enumCurrent = CurrentElement().LEDTypeLayer(layer);
      if (bUsed != False && enumCurrent != enumType) continue;
      std::string text;
      LedTypeToListText(enumType, text);
      LedTypeBox(layer - 1).AddItem(text);
    }
  });
}

void frmConfigurationDialog::LedTypeToListText(enumLedType enumType, std::string& strText) {
  EndQuietly([enumType, &strText] {
    strText = enumType == LedNotEnabled || enumType > highestLedType ? "" : LedTypeToText(enumType);
  });
}

void frmConfigurationDialog::LoadLedSelections() {
  EndQuietly([this] {
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      LedTypeBox(layer - 1).Text(LedTypeToText(CurrentElement().LEDTypeLayer(layer)));
    }
  });
}

bool frmConfigurationDialog::AnyLEDDefined() {
  return EndQuietlyWith(false, [this](bool& defined) {
    for (const ComboBox& box : cmbLEDTypes) {
      if (LedTextToType(box.Text()) != LedNotEnabled) defined = true;
    }
  });
}

void frmConfigurationDialog::cmdDeleteLED_Click(std::int16_t Index) {
  EndQuietly([this, Index] { LedTypeBox(Index).Text(GetText(noFunctionText)); });
}

void frmConfigurationDialog::cmbLEDTypes_KeyDown(std::int16_t, std::int16_t& KeyCode, std::int16_t) {
  KeepListKeys(KeyCode);
}

void frmConfigurationDialog::cmbLEDTypes_KeyPress(std::int16_t, std::int16_t& KeyAscii) { KeyAscii = 0; }

}  // namespace plexel
