#pragma once

#include "cli/json.h"
#include "services/module_state.h"

namespace plexel {

/// The module state by its own names; of the pressed keys the slots up to their number.
Json ToJson(const ModuleState& state);

}  // namespace plexel
