#pragma once

#include <ole2.h>
#include <windows.h>

#include <cstdint>

#include "services/boolean.h"

namespace plexel::activex {

/// Asks the container whether an element of the panel has the LED function in the layer: the parent of what the
/// container has made of the control, else the container itself, by the name CheckIfLedIsAlreadyDefined. Failure
/// (NoSuchMember) when neither has the member, (Handler) when it fails, (Conversion) for an answer that is neither yes
/// nor no.
Boolean AskContainer(IOleClientSite* site, std::int32_t& LEDType, std::int32_t& Layer);

}  // namespace plexel::activex
