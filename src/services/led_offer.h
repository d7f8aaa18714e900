#pragma once

#include <string_view>

#include "services/element_types.h"

namespace plexel {

/// Whether the target system has a function that LedsFor lists. Failures of the capability service pass to the caller.
bool TargetHasLed(enumLedType type, std::string_view targetSystem);
/// Whether the configuration dialog offers a function on a panel where no other element shows it. As above.
bool LedIsOffered(enumLedType type, Boolean vantaEnabled, std::string_view targetSystem);

}  // namespace plexel
