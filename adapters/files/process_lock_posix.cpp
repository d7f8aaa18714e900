#include "files/process_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>
#include <utility>

#include "files/file_error.h"

namespace plexel {

namespace {

/// Whether the name still stands for the file that is open: its last holder may have removed it in the meantime.
bool IsStill(const std::filesystem::path& file, int handle) {
  struct stat named{}, open{};
  return ::stat(file.c_str(), &named) == 0 && ::fstat(handle, &open) == 0 && named.st_dev == open.st_dev &&
         named.st_ino == open.st_ino;
}

}  // namespace

long ProcessNumber() { return ::getpid(); }

std::optional<ProcessLock> ProcessLock::Try(const std::filesystem::path& file) {
  while (true) {
    const int handle = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (handle < 0) throw FileError(file, "cannot be locked: " + std::generic_category().message(errno));
    const int error = ::flock(handle, LOCK_EX | LOCK_NB) == 0 ? 0 : errno;
    if (error == 0 && IsStill(file, handle)) return ProcessLock(file, handle);
    ::close(handle);
    if (error == EWOULDBLOCK) return std::nullopt;
    if (error != 0) throw FileError(file, "cannot be locked: " + std::generic_category().message(error));
  }
}

void ProcessLock::Remove() {
  if (handle_ != None) ::unlink(file_.c_str());
  Release();
}

void ProcessLock::Release() {
  if (handle_ != None) ::close(static_cast<int>(std::exchange(handle_, None)));
}

}  // namespace plexel
