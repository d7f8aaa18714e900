#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace plexel {

/// The visible name of a key. `lngFamily` is lngOsFamily. "UnknownKey" after any failure.
std::string GetKeyName(std::int32_t lngVirtualKey, std::int32_t lngScanCode, std::int32_t lngExtended,
                       std::int32_t lngFamily);

/// The name of a key that has the same one in every layout; empty for a key that the layout names.
std::string_view FixedKeyName(std::int32_t lngVirtualKey, std::int32_t lngScanCode, std::int32_t lngExtended);

}  // namespace plexel
