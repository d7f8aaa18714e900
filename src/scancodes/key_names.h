#pragma once

#include <cstdint>
#include <string>

namespace plexel {

/// The visible name of a key. `lngFamily` is lngOsFamily. "UnknownKey" after any failure.
std::string GetKeyName(std::int32_t lngVirtualKey, std::int32_t lngScanCode, std::int32_t lngExtended,
                       std::int32_t lngFamily);

}  // namespace plexel
