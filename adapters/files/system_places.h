#pragma once

#include <filesystem>
#include <vector>

namespace plexel {

/// The value of a variable of the environment as a name; empty when it is not set.
std::filesystem::path EnvironmentPath(const char* name);

/// Where the data that came with the running program would be, best first: beside the program, beside the library that
/// holds this code, and where both were built for. One at least; names may be relative or of nothing that exists.
std::vector<std::filesystem::path> PlacesOfData();

}  // namespace plexel
