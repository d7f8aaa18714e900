#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "services/element_types.h"

namespace plexel {

/// The bytes of a code buffer as text: two-digit hexadecimal numbers with a blank between them.

/// The place of the last byte in use, NextValue; the first for a negative one.
std::size_t LastInUse(const udtTactisBaseElement_TACTIS_SCANCODE& codes);

/// The bytes from `first` to `last`, both included, as far as the buffer reaches; empty when there are none.
std::string BytesText(const udtTactisBaseElement_TACTIS_SCANCODE& codes, std::size_t first, std::size_t last);

/// The bytes in use, 0 to NextValue, and what follows up to the last byte that InitialCodes does not have there.
std::string ChangedBytes(const udtTactisBaseElement_TACTIS_SCANCODE& codes);

/// Writes the bytes of a text over the first ones of a buffer. False for anything but such a text, and for one of more
/// bytes than a buffer has; the buffer may then be changed in part.
bool PutBytes(std::string_view text, udtTactisBaseElement_TACTIS_SCANCODE& codes);

}  // namespace plexel
