#pragma once

#include <filesystem>

namespace plexel::host {

/// Loads a project into controls and saves it by them into a file. What controls could not read is told on the error
/// stream. FileError for a file that cannot be read or written, ComError when a control fails.
void Convert(const std::filesystem::path& project, const std::filesystem::path& target);

}  // namespace plexel::host
