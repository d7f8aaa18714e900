#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace plexel {

/// Something in a file of named code sequences that the dialog would silently drop, shorten or misread.
struct Finding {
  std::size_t line = 0;  ///< from 1
  /// What is wrong, in English.
  std::string text;
  bool operator==(const Finding&) const = default;
};

/// Looks through a file of named code sequences; the findings come in the order of their lines. FileError when the file
/// cannot be read at all.
std::vector<Finding> CheckParameterFile(const std::filesystem::path& file);

}  // namespace plexel
