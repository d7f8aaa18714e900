#pragma once

#include <string_view>

namespace plexel {

/// What must hold of the script language for any bytes: every command is answered by one line of JSON with its number
/// and whether it succeeded, what else is told has the number of a command too, nothing but the system ends the run,
/// and a second run tells the same. Commands that name files of the system are left out. A property that does not hold
/// ends in std::logic_error.
void CheckScript(std::string_view content);

}  // namespace plexel
