#pragma once

#include <cstdint>
#include <vector>

#include "services/element_types.h"

namespace plexel {

/// The eight code buffers that an element keeps between two hand-outs of its record. A panel has many elements and most
/// buffers are short or untouched, so each is kept up to its last byte that is not 0, and a new element keeps nothing:
/// the bytes are none while all buffers are InitialCodes, else of each buffer the number of bytes, NextValue, and the
/// bytes.

/// Packs the buffers of a record.
void PackCodes(const udtTactisBaseElement_ScanCodeInfo& record, std::vector<std::uint8_t>& packed);
/// Writes packed buffers into a record.
void UnpackCodes(const std::vector<std::uint8_t>& packed, udtTactisBaseElement_ScanCodeInfo& record);

}  // namespace plexel
