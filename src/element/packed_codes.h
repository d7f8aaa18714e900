#pragma once

#include <cstdint>
#include <vector>

#include "services/element_types.h"

namespace plexel {

/// The eight code buffers that an element keeps between two hand-outs of its record. A panel has many elements and most
/// buffers are short or untouched, so each is kept up to its last byte that is not 0, and a new element keeps nothing.
class PackedCodes {
 public:
  /// Takes over the buffers of a record.
  void Keep(const udtTactisBaseElement_ScanCodeInfo& record);
  /// Writes the buffers into a record; those of a new element are each InitialCodes.
  void PutInto(udtTactisBaseElement_ScanCodeInfo& record) const;

 private:
  /// Empty while all buffers are InitialCodes; else of each buffer the number of bytes, NextValue, and the bytes.
  std::vector<std::uint8_t> packed_;
};

}  // namespace plexel
