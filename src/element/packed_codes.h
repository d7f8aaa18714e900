#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "services/element_types.h"

namespace plexel {

/// The eight code buffers that an element keeps between two hand-outs of its record. A panel has many elements and most
/// buffers are short or untouched, so each is kept up to its last byte that is not 0, and a new element keeps nothing:
/// the bytes are none while all buffers are InitialCodes, else of each buffer the number of bytes, NextValue, and the
/// bytes.

/// The buffers, press before release, layer by layer; null for one that is untouched.
using CodeBuffers = std::array<const udtTactisBaseElement_TACTIS_SCANCODE*, std::size_t{2} * LayerCount>;

/// Packs the buffers of a record, or buffers by themselves.
void PackCodes(const udtTactisBaseElement_ScanCodeInfo& record, std::vector<std::uint8_t>& packed);
void PackCodes(const CodeBuffers& buffers, std::vector<std::uint8_t>& packed);
/// Writes packed buffers into a record.
void UnpackCodes(const std::vector<std::uint8_t>& packed, udtTactisBaseElement_ScanCodeInfo& record);

}  // namespace plexel
