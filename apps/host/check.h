#pragma once

#include <ostream>

namespace plexel::host {

/// Tries the registered control as containers use it, in a window of its own, and writes a line for each fact: "ok" or
/// "failed", what it is about, and what was seen instead. Whether all hold.
bool CheckControl(std::ostream& told);

}  // namespace plexel::host
