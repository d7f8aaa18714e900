#pragma once

#include <cstdint>

#include "scancodes/code_sequence.h"
#include "services/element_types.h"

namespace plexel {

/// Code groups inside the current element.

/// Whether `lngNewCodes` more code bytes fit the layer.
bool HasRoomForCodes(std::int32_t lngLayer, const udtTactisBaseElement_ScanCodeInfo& udtBuffer,
                     std::int32_t lngNewCodes);

/// Brings one group into the current element: 0 stored, 1 no room. No guard.
std::int32_t StoreScanCodes(const KeyCodes& codes, std::int32_t lngCodeType, std::int32_t lngUnused,
                            std::int32_t lngTarget);

/// Takes one group out of the buffer of the grid's current cell, inside the current element. No guard.
void DeleteFirstCodeGroup();
void DeleteLastCodeGroup();

}  // namespace plexel
