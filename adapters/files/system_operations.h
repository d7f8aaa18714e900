#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace plexel {

/// Reads a regular file up to `limit` bytes; `complete` tells whether that was all of it. FileError as ReadWholeFile.
std::string ReadUpTo(const std::filesystem::path& file, std::size_t limit, bool& complete);

/// Makes a directory for the user alone. 0, also where it stands already, or the error number.
int MakeDirectory(const std::filesystem::path& directory);

/// The file that a name leads to, whose content may be replaced by a rename. FileError where it must not be.
std::filesystem::path WritableTarget(const std::filesystem::path& file);

}  // namespace plexel
