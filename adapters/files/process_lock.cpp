#include "files/process_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "files/file_error.h"

namespace plexel {

std::optional<ProcessLock> ProcessLock::Try(const std::filesystem::path& file) {
  const int handle = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
  if (handle < 0) throw FileError(file, 0, "cannot be locked: " + std::generic_category().message(errno));
  if (::flock(handle, LOCK_EX | LOCK_NB) == 0) return ProcessLock(file, handle);
  const int error = errno;
  ::close(handle);
  if (error == EWOULDBLOCK) return std::nullopt;
  throw FileError(file, 0, "cannot be locked: " + std::generic_category().message(error));
}

ProcessLock::~ProcessLock() { Release(); }

ProcessLock::ProcessLock(ProcessLock&& other) noexcept
    : file_(std::move(other.file_)), handle_(std::exchange(other.handle_, -1)) {}

ProcessLock& ProcessLock::operator=(ProcessLock&& other) noexcept {
  std::swap(file_, other.file_);
  std::swap(handle_, other.handle_);
  return *this;
}

void ProcessLock::Remove() {
  if (handle_ >= 0) ::unlink(file_.c_str());
  Release();
}

void ProcessLock::Release() {
  if (handle_ >= 0) ::close(std::exchange(handle_, -1));
}

}  // namespace plexel
