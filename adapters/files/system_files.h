#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace plexel {

/// The steps of writing a file, one operation each. Every operation gives 0 or the system's error number.
class FilePort {
 public:
  virtual ~FilePort() = default;
  /// Creates a new file that must not exist yet and opens it for writing. Where `model` exists, it has the
  /// permissions of that file, and its owner and group as far as the user may give them.
  virtual int Create(const std::filesystem::path& file, const std::filesystem::path& model, int& handle) = 0;
  /// Writes a part of the bytes, at least one; `written` tells how many.
  virtual int Write(int handle, std::string_view bytes, std::size_t& written) = 0;
  /// Brings what was written to the disk.
  virtual int Flush(int handle) = 0;
  virtual int Close(int handle) = 0;
  virtual int Rename(const std::filesystem::path& from, const std::filesystem::path& to) = 0;
  virtual int Remove(const std::filesystem::path& file) = 0;
  /// Brings the names of a directory to the disk.
  virtual int FlushDirectory(const std::filesystem::path& directory) = 0;
};

/// The operating system's files.
FilePort& SystemFiles();

/// The whole content of a regular file. FileError when it is missing, no regular file, unreadable or larger than
/// `limit` bytes. Never waits for a pipe or a device.
std::string ReadWholeFile(const std::filesystem::path& file, std::size_t limit);

/// The same, but of a larger file its first `limit` bytes.
std::string ReadFileStart(const std::filesystem::path& file, std::size_t limit);

/// Makes a directory for the user alone, and those above it, where they are missing. FileError when that fails.
void MakeOwnDirectory(const std::filesystem::path& directory);

/// Replaces a file as a whole: the content is written beside it, flushed and renamed. On any failure the old file
/// stands as it was, nothing is left beside it, and a FileError tells the reason. A link is followed, also
/// where it leads to no file yet; what is no regular file, or may not be written, is refused.
void WriteWholeFile(const std::filesystem::path& file, std::string_view content, FilePort& port = SystemFiles());

}  // namespace plexel
