#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "project/key_reading.h"

namespace plexel {

/// The keys that have names, in the order of their codes.
std::span<const KeyCode> NamedKeys();

/// The name of a key on a keyboard of the US layout; for a code without a name the code itself, as CodeText has it.
/// Keys of the number pad have the names that they have with Num Lock.
std::string KeyNameOf(KeyCode code);

/// The name of a panel function by its command byte; empty for a byte that is none.
std::string_view PanelFunctionNameOf(KeyCode byte);

}  // namespace plexel
