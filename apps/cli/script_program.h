#pragma once

#include <span>
#include <string>

namespace plexel {

/// "script [--base DIR] [FILE]": 0 when every command succeeded, 1 when some failed, 2 when the script could not be
/// read or the call is wrong.
int RunScript(std::span<const std::string> arguments);

}  // namespace plexel
