#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

namespace plexel {

/// Bytes that come as their writer has them: of a file, or of standard input.
class ByteInput {
 public:
  /// Standard input, which stays open.
  ByteInput();
  /// What the system knows by this handle, which its owner closes.
  explicit ByteInput(std::intptr_t handle) : handle_(handle), own_(false) {}
  /// A file by its name. std::system_error when it cannot be opened.
  explicit ByteInput(const std::filesystem::path& file);
  ~ByteInput();
  ByteInput(const ByteInput&) = delete;
  ByteInput& operator=(const ByteInput&) = delete;

  /// Reads at least one byte, waiting for it, and gives how many; 0 at the end. std::system_error when reading fails.
  std::size_t Read(std::span<char> room);
  /// Whether bytes or the end stand ready, after waiting for so many milliseconds at most.
  bool Ready(int milliseconds) const;

 private:
  std::intptr_t handle_;
  bool own_;
};

}  // namespace plexel
