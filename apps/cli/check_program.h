#pragma once

#include <span>
#include <string>

#include "cli/streams.h"

namespace plexel {

/// "check [--json] FILE...": tells what would surprise on the machine, and what is wrong with files. 0 when nothing is
/// found, 1 when something is, 2 when a file could not be read; the others are checked all the same. CallError for a
/// wrong call.
int RunCheck(std::span<const std::string> arguments, const Streams& streams);

}  // namespace plexel
