#include "element/element_access.h"

#include <utility>

#include "services/failure_styles.h"

namespace plexel {

void ElementAccess::Codes(ctlPlexelBaseElement& element, std::vector<std::uint8_t> packed) {
  element.codes_ = std::move(packed);
  EndQuietly([&] {
    element.WizardOptions(element.WizardOptions());
    element.HardwareNumberButton(element.HardwareNumberButton());
    for (std::int32_t index = 0; index < 8; ++index) {
      element.HardwareNumberKeyAt(index, element.HardwareNumberKeyAt(index));
    }
    element.HardwareNumberLed(element.HardwareNumberLed());
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) element.LEDTypeLayer(layer, element.LEDTypeLayer(layer));
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      element.PressKeyDefLayer(layer, element.PressKeyDefLayer(layer));
    }
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      element.ReleaseKeyDefLayer(layer, element.ReleaseKeyDefLayer(layer));
    }
  });
}

}  // namespace plexel
