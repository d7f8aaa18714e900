#pragma once

#include <ole2.h>
#include <windows.h>

#include <optional>

#include "element/property_bag.h"

namespace plexel {

/// A value of a container's bag, in the type in which it stands there; nothing for one of a type that properties do not
/// have. A boolean keeps its 16 bits.
std::optional<BagValue> BagValueOf(const VARIANT& value);
/// The same the other way round. `value` is empty before.
void PutBagValue(const BagValue& kept, VARIANT& value);

}  // namespace plexel
