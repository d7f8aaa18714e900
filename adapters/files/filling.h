#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "files/file_port.h"

namespace plexel {

/// Writes all of the bytes at a place of a file. 0 or the error number, as all here.
int WriteAll(FilePort& port, int handle, std::size_t place, std::string_view bytes);

/// Creates a file beside another under a name that is not taken.
int CreateBeside(FilePort& port, const std::filesystem::path& target, std::string_view ending,
                 std::filesystem::path& file, int& handle, FileTraits& lost);

/// The reasons of FileError and FileWarning.
std::string CannotBeWritten(int error);
std::string MayNotOutlast(int error);
/// To be put behind another; empty for no error.
std::string LeftOver(const std::filesystem::path& file, int error);

}  // namespace plexel
