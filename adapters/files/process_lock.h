#pragma once

#include <filesystem>
#include <optional>

namespace plexel {

/// The number of this process, which no other that runs on the machine has.
long ProcessNumber();

/// A lock that a process holds as long as it lives, however it ends: a file that is locked, not one that merely stands.
class ProcessLock {
 public:
  /// Makes the file where it is missing and locks it; nothing when another holder has it. FileError when the file
  /// cannot be made or locked.
  static std::optional<ProcessLock> Try(const std::filesystem::path& file);
  ~ProcessLock();
  ProcessLock(ProcessLock&& other) noexcept;
  ProcessLock& operator=(ProcessLock&& other) noexcept;

  /// Removes the file and lets go of the lock.
  void Remove();

 private:
  ProcessLock(std::filesystem::path file, int handle) : file_(std::move(file)), handle_(handle) {}
  void Release();

  std::filesystem::path file_;
  int handle_;
};

}  // namespace plexel
