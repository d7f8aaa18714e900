#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

namespace plexel {

/// Reads a regular file up to `limit` bytes; `complete` tells whether that was all of it. FileError as ReadWholeFile.
std::string ReadUpTo(const std::filesystem::path& file, std::size_t limit, bool& complete);

/// Makes a directory for the user alone. 0, also where it stands already, or the error number.
int MakeDirectory(const std::filesystem::path& directory);

/// A file that may be written, by a name that leads through no links.
struct WritableFile {
  std::filesystem::path file;
  std::uintmax_t names = 0;  ///< how many it has; none where it does not stand yet
};
/// The file that a name leads to. FileError where its content must not be replaced.
WritableFile WritableTarget(const std::filesystem::path& file);

/// How many names a file has; none where the system does not tell.
std::uintmax_t NamesOf(const std::filesystem::path& file);

/// The most bytes that names in a directory may have.
std::size_t LongestName(const std::filesystem::path& directory);

}  // namespace plexel
