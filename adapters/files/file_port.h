#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>

#include "files/file_traits.h"

namespace plexel {

/// The steps of writing a file, one operation each. Every operation gives 0 or the system's error number.
class FilePort {
 public:
  virtual ~FilePort() = default;
  /// Creates a new file that must not exist yet, opens it for writing and holds it until it is closed, as a ProcessLock
  /// does. Where `model` exists, the new file is given what that has besides its content (GiveTraits).
  virtual int Create(const std::filesystem::path& file, const std::filesystem::path& model, int& handle,
                     FileTraits& lost) = 0;
  /// Opens a file for writing and holds it until it is closed: EWOULDBLOCK (on Windows EACCES) while another does, and
  /// an error too where files cannot be held.
  virtual int Open(const std::filesystem::path& file, int& handle) = 0;
  /// Writes a part of the bytes, at least one, at a place of the file; `written` tells how many.
  virtual int Write(int handle, std::size_t place, std::string_view bytes, std::size_t& written) = 0;
  /// Makes the file as long as told.
  virtual int Resize(int handle, std::size_t size) = 0;
  /// Brings what was written to the disk.
  virtual int Flush(int handle) = 0;
  virtual int Close(int handle) = 0;
  /// Puts the flushed file of a handle, which is closed in every case, in the place of another. It is held until it
  /// stands there; on Windows it is let go of ahead of that, and who saves the same file then may clear it away, which
  /// is a failure that changes nothing.
  virtual int Replace(int handle, const std::filesystem::path& from, const std::filesystem::path& to) = 0;
  virtual int Remove(const std::filesystem::path& file) = 0;
  /// Brings the names of a directory to the disk; 0 on systems that do so by themselves or not at all.
  virtual int FlushDirectory(const std::filesystem::path& directory) = 0;
};

/// The operating system's files.
FilePort& SystemFiles();

}  // namespace plexel
