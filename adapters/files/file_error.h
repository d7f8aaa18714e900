#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace plexel {

/// A file that cannot be read or written, or whose text is wrong. `what()` is "FILE:LINE: reason", or "FILE: reason"
/// when the reason is not a matter of one line.
class FileError : public std::runtime_error {
 public:
  /// Lines count from 1; 0 stands for the file as a whole.
  FileError(const std::filesystem::path& file, std::size_t line, const std::string& reason);
  /// Of the file as a whole.
  FileError(const std::filesystem::path& file, const std::string& reason) : FileError(file, std::size_t{}, reason) {}

  /// The file, the line from 1 or 0, and the reason alone.
  const std::filesystem::path& File() const { return file_; }
  std::size_t Line() const { return line_; }
  const std::string& Reason() const { return reason_; }

 private:
  std::filesystem::path file_;
  std::size_t line_;
  std::string reason_;
};

/// A file that is written whole, of which something is to be told all the same: `Reason()` says what.
class FileWarning : public FileError {
 public:
  using FileError::FileError;
};

}  // namespace plexel
