#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace plexel {

/// The files of a directory with an extension such as ".lang", sorted. `error` tells why the directory could not be
/// read to its end; the files found by then are given.
std::vector<std::filesystem::path> FilesWith(std::string_view extension, const std::filesystem::path& directory,
                                             std::error_code& error);

/// The same, of those whose names begin so.
std::vector<std::filesystem::path> FilesNamed(std::string_view start, const std::filesystem::path& directory,
                                              std::error_code& error);

/// As FilesWith. A directory that does not exist has none; FileError when it cannot be read.
std::vector<std::filesystem::path> ExistingFilesWith(std::string_view extension,
                                                     const std::filesystem::path& directory);

/// The names of those files without the extension, sorted. A directory that cannot be read has none, or those found.
std::vector<std::string> NamesOfFilesWith(std::string_view extension, const std::filesystem::path& directory);

}  // namespace plexel
