#pragma once

#include <cstdint>

#include "services/boolean.h"

namespace plexel {

/// The value of lngMaxScanCodes that an element's VantaEnabled demands.
constexpr std::int32_t MaxScanCodesFor(Boolean vantaEnabled) { return IsTrue(vantaEnabled) ? 22 : 43; }

}  // namespace plexel
