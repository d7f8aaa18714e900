#pragma once

#include <ole2.h>
#include <windows.h>

#include <optional>

#include "element/property_bag.h"

namespace plexel::host {

/// A value of a control's bag as a project keeps it; nothing for one of a type that projects do not know. A boolean
/// keeps its 16 bits.
std::optional<BagValue> BagValueOf(const VARIANT& value);
/// The same the other way round. `value` is empty before.
void PutBagValue(const BagValue& kept, VARIANT& value);

}  // namespace plexel::host
