#pragma once

#include <cstdint>

#include "services/boolean.h"

namespace plexel {

/// Starts or stops capture for a target (0 configuration dialog, 2 wizard). The result of the hook call that it made,
/// not 0 on success; 0 when it did nothing.
std::int32_t SetDirectInput(Boolean bActive, std::int32_t lngTarget);

}  // namespace plexel
