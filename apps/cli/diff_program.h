#pragma once

#include <span>
#include <string>

namespace plexel {

/// "diff [--json] A B": tells in what two projects differ, in words or as one JSON object a line. 0 when in nothing, 1
/// when in something, 2 when the call is wrong or a file cannot be read.
int RunDiff(std::span<const std::string> arguments);

}  // namespace plexel
