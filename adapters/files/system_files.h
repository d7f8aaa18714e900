#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "files/file_port.h"
#include "files/file_traits.h"

namespace plexel {

/// The whole content of a regular file. FileError when it is missing, no regular file, unreadable or larger than
/// `limit` bytes. Never waits for a pipe or a device. A file whose writing in place was cut off gives what it held
/// before, and is given that back, where the user may and no other program is still writing it.
std::string ReadWholeFile(const std::filesystem::path& file, std::size_t limit);

/// The same, but of a larger file its first `limit` bytes.
std::string ReadFileStart(const std::filesystem::path& file, std::size_t limit);

/// Makes a directory for the user alone, and those above it, where they are missing. FileError when that fails.
void MakeOwnDirectory(const std::filesystem::path& directory);

/// Replaces a file as a whole: the content is written beside it, flushed and renamed. On any failure the old file
/// stands as it was, nothing is left beside it, and a FileError tells the reason. A link is followed, also
/// where it leads to no file yet; what is no regular file, or may not be written, is refused. What a file has besides
/// its content stays, but for what LostByWriting tells. What killed programs have left beside it goes.
///
/// A file of several names is written in place instead (WriteInPlace), and loses nothing.
///
/// A FileWarning tells of a directory that could not be flushed: the file is written, but may not outlast a power cut.
void WriteWholeFile(const std::filesystem::path& file, std::string_view content, FilePort& port = SystemFiles());

/// What a file would have no more after WriteWholeFile, found out with a file beside it. FileError where it cannot be
/// written.
FileTraits LostByWriting(const std::filesystem::path& file, FilePort& port = SystemFiles());

}  // namespace plexel
