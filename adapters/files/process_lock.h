#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <utility>

namespace plexel {

/// The number of this process, which no other that runs on the machine has.
long ProcessNumber();

/// A lock that a process holds as long as it lives, however it ends: a file that is locked, not one that merely stands.
class ProcessLock {
 public:
  /// Makes the file where it is missing and locks it; nothing when another holder has it. FileError when the file
  /// cannot be made or locked.
  static std::optional<ProcessLock> Try(const std::filesystem::path& file);
  ~ProcessLock() { Release(); }
  ProcessLock(ProcessLock&& other) noexcept
      : file_(std::move(other.file_)), handle_(std::exchange(other.handle_, None)) {}
  ProcessLock& operator=(ProcessLock&& other) noexcept {
    std::swap(file_, other.file_);
    std::swap(handle_, other.handle_);
    return *this;
  }

  /// Removes the file and lets go of the lock.
  void Remove();

 private:
  static constexpr std::intptr_t None = -1;

  ProcessLock(std::filesystem::path file, std::intptr_t handle) : file_(std::move(file)), handle_(handle) {}
  void Release();

  std::filesystem::path file_;
  std::intptr_t handle_;  ///< of the system, or None
};

}  // namespace plexel
