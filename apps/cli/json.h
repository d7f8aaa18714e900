#pragma once

#include <nlohmann/json.hpp>

namespace plexel {

/// JSON whose members keep their order.
using Json = nlohmann::ordered_json;

}  // namespace plexel
