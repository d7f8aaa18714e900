#pragma once

#include <span>
#include <string>

#include "cli/streams.h"

namespace plexel {

/// "report PROJECT --html FILE | --csv FILE | --svg FILE": writes what a project holds for people. FileError when a
/// file cannot be read or written, and then nothing was written.
int RunReport(std::span<const std::string> arguments, const Streams& streams);

}  // namespace plexel
