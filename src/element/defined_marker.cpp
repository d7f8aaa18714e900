#include "element/defined_marker.h"

#include "element/element_access.h"
#include "services/failure_styles.h"
#include "services/module_state.h"

namespace plexel {

namespace {

bool HasLedFunction(const ctlPlexelBaseElement& element) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    if (element.LEDTypeLayer(layer) != LedNotEnabled) return true;
  }
  return false;
}

bool IsDefined(const ctlPlexelBaseElement& element) {
  switch (element.ElementType()) {
    case Led:
      return HasLedFunction(element);
    case Oval:
    case Rect:
      return !ElementAccess::IsDefinitionEmpty(element);
    case OvalLed:
    case RectLed:
      return HasLedFunction(element) || !ElementAccess::IsDefinitionEmpty(element);
    default:
      return false;
  }
}

}  // namespace

void UpdateDefinedMarker() {
  EndQuietly([] {
    ctlPlexelBaseElement& element = CurrentElement();
    element.ShowDefinedObject(IsDefined(element) ? element.ShowDefined() : False);
  });
}

}  // namespace plexel
