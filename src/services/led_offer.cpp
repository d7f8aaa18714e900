#include "services/led_offer.h"

#include <algorithm>

#include "services/led_functions.h"
#include "services/shared_services.h"

namespace plexel {

bool TargetHasLed(enumLedType type, std::string_view targetSystem) {
  return TargetHas(*LedFunctions[static_cast<std::size_t>(type)].query, targetSystem);
}

bool LedIsOffered(enumLedType type, Boolean vantaEnabled, std::string_view targetSystem) {
  const std::span<const enumLedType> leds = LedsFor(vantaEnabled);
  return std::ranges::find(leds, type) != leds.end() && TargetHasLed(type, targetSystem);
}

}  // namespace plexel
