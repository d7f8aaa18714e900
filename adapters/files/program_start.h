#pragma once

#include <string>
#include <vector>

namespace plexel {

/// What a program's main is called with, without the program's own name, as UTF-8; and its standard streams from now on
/// carry bytes as they are.
std::vector<std::string> StartProgram(int count, char** values);

}  // namespace plexel
