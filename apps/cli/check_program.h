#pragma once

#include <span>
#include <string>

namespace plexel {

/// "check FILE.cfg": tells what is wrong with a file of named code sequences, one finding a line. 0 when nothing is, 1
/// when something is, 2 when the file could not be read or the call is wrong.
int RunCheck(std::span<const std::string> arguments);

}  // namespace plexel
