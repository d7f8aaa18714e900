#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

#include "files/process_lock.h"

namespace plexel {

/// The mark of a project file that a program has open, by which programs of one user know of each other. It goes with
/// the program, however that ends.
class OpenFile {
 public:
  /// The directory, which is made where it is missing, is the same for all programs. FileError when the mark cannot be
  /// put there.
  OpenFile(const std::filesystem::path& directory, const std::filesystem::path& file);
  ~OpenFile();
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  /// How many others have the file open now. FileError when the marks cannot be listed.
  std::size_t Others() const;

 private:
  std::filesystem::path directory_, mark_;
  std::string fingerprint_;
  std::optional<ProcessLock> lock_;
};

}  // namespace plexel
