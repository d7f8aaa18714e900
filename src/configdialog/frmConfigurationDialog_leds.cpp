#include "configdialog/frmConfigurationDialog.h"

#include "element/ctlPlexelBaseElement.h"
#include "forms/list_keys.h"
#include "services/failure_styles.h"
#include "services/led_functions.h"
#include "services/led_offer.h"
#include "services/module_state.h"
#include "services/shared_services.h"

namespace plexel {

void frmConfigurationDialog::FillLedLists() {
  EndQuietly([this] {
    const Boolean vantaEnabled = CurrentElement().VantaEnabled();
    for (int index = 1; index < LayerCount; ++index) LedTypeBox(index).Enabled(IsTrue(vantaEnabled));
    for (const enumLedType type : LedsFor(vantaEnabled)) {
      if (TargetHasLed(type, CurrentElement().TargetSystem())) AddLedToLists(type);
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
  EndQuietly([enumType, &strText] { strText = enumType == LedNotEnabled ? "" : LedTypeToText(enumType); });
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
  EndQuietly([this, Index] { LedTypeBox(Index).Text(LedTypeToText(LedNotEnabled)); });
}

void frmConfigurationDialog::cmbLEDTypes_KeyDown(std::int16_t, std::int16_t& KeyCode, std::int16_t) {
  KeepListKeys(KeyCode);
}

void frmConfigurationDialog::cmbLEDTypes_KeyPress(std::int16_t, std::int16_t& KeyAscii) { KeyAscii = 0; }

}  // namespace plexel
