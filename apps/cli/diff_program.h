#pragma once

#include <span>
#include <string>

#include "cli/streams.h"

namespace plexel {

/// "diff [--json] A B": tells in what two projects differ, in words or as one JSON object a line. 0 when in nothing, 1
/// when in something. CallError for a wrong call, FileError for a file that cannot be read.
int RunDiff(std::span<const std::string> arguments, const Streams& streams);

}  // namespace plexel
