#pragma once

#include <cstdint>

#include "services/boolean.h"

namespace plexel {

/// Starts or stops capture for a target (0 configuration dialog, 2 wizard). The result of the hook call that it made,
/// not 0 on success; 0 when it did nothing. An exception that is no Failure leaves capture off.
std::int32_t SetDirectInput(Boolean bActive, std::int32_t lngTarget);
/// Capture off, whatever its state: the hooks go, and nobody is told.
void DropCapture();
/// The same, and the host is told when capture was on.
void AbandonCapture();

}  // namespace plexel
