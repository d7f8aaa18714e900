#pragma once

#include <cstdint>

#include "scancodes/code_sequence.h"
#include "services/element_types.h"

namespace plexel {

/// Bytes 0xFF at the indices 0 to NextValue of press and release buffer of a layer; 0 for a layer outside 1 to 4.
/// Failure (Index) for a NextValue above the last index.
std::int32_t CountGroupEnds(std::int32_t lngLayer, const udtTactisBaseElement_ScanCodeInfo& udtBuffer);

/// Appends one group; a code type that is none appends nothing. Failure (Index) when a byte would land above the last
/// index or a length reaches beyond its sequence, Failure (Overflow) for a code that is no byte; what was written
/// stays.
void AppendCodeGroup(udtTactisBaseElement_TACTIS_SCANCODE& udtCode, const KeyCodes& codes, std::int32_t lngCodeType,
                     std::int32_t lngUnused);

/// Takes one group out of a buffer; false when there was none. Failure (Index) for a NextValue outside the buffer.
bool RemoveFirstCodeGroup(udtTactisBaseElement_TACTIS_SCANCODE& udtCode);
void RemoveLastCodeGroup(udtTactisBaseElement_TACTIS_SCANCODE& udtCode);

}  // namespace plexel
