#pragma once

#include <filesystem>
#include <string>

namespace plexel {

/// Sixteen digits that stand for a file, by whatever name it is called: the same in every run.
std::string FingerprintOf(const std::filesystem::path& file);

}  // namespace plexel
