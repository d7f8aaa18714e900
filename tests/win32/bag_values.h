#pragma once

#include "element/property_bag.h"

namespace plexel {

/// A value of each type that a bag may have, with all its bits and characters of any kind.
inline const BagValue bagValues[] = {
    BagValue(std::int16_t{-7}),  BagValue(std::int32_t{70000}),
    BagValue(std::uint8_t{200}), BagValue(True),
    BagValue(Boolean::Raw(7)),   BagValue(0.5),
    BagValue(std::string()),     BagValue(std::string("\u00E4\u2039\u203A \U0001D11E"))};

}  // namespace plexel
