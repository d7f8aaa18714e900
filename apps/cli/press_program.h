#pragma once

#include <span>
#include <string>

#include "cli/streams.h"

namespace plexel {

/// "press PROJECT ELEMENT [--layer N] [--json]": tells what a PC receives when an element is pressed and let go.
/// CallError for a wrong call, FileError for a project that cannot be read or lacks the element.
int RunPress(std::span<const std::string> arguments, const Streams& streams);

}  // namespace plexel
