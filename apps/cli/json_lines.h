#pragma once

#include <ostream>

#include "cli/json.h"

namespace plexel {

/// Writes one JSON object and its line end. Text that is no UTF-8 has replacement characters.
inline void PutJsonLine(std::ostream& output, const Json& object) {
  output << object.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
}

}  // namespace plexel
