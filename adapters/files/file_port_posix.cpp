#include "files/file_port.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace plexel {

namespace {

int ResultOf(int outcome) { return outcome == 0 ? 0 : errno; }

int Hold(int handle) { return ResultOf(::flock(handle, LOCK_EX | LOCK_NB)); }

/// Holds a new file, where files can be held at all. EEXIST when somebody has taken it for left over in the meantime.
int HoldNew(int handle) {
  struct stat status{};
  if (Hold(handle) == EWOULDBLOCK) return EEXIST;
  if (::fstat(handle, &status) != 0) return errno;
  return status.st_nlink == 0 ? EEXIST : 0;
}

/// What directories tell that cannot be flushed at all.
bool IsNeverFlushed(int error) { return error == EINVAL || error == ENOTSUP; }

class PosixFiles : public FilePort {
 public:
  int Create(const std::filesystem::path& file, const std::filesystem::path& model, int& handle,
             FileTraits& lost) override {
    struct stat status{};
    const bool hasModel = ::stat(model.c_str(), &status) == 0;
    if (!hasModel && errno != ENOENT) return errno;
    handle = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, hasModel ? 0600 : 0666);
    if (handle < 0) return errno;
    int error = HoldNew(handle);
    if (error == 0 && hasModel) error = GiveTraits(model, file, handle, lost);
    if (error == 0) return 0;
    if (error != EEXIST) ::unlink(file.c_str());
    ::close(handle);
    return error;
  }

  int Open(const std::filesystem::path& file, int& handle) override {
    handle = ::open(file.c_str(), O_WRONLY | O_CLOEXEC);
    if (handle < 0) return errno;
    const int error = Hold(handle);
    if (error != 0) ::close(std::exchange(handle, -1));
    return error;
  }

  int Write(int handle, std::size_t place, std::string_view bytes, std::size_t& written) override {
    ssize_t count = 0;
    do {
      count = ::pwrite(handle, bytes.data(), bytes.size(), static_cast<off_t>(place));
    } while (count < 0 && errno == EINTR);
    if (count < 0) return errno;
    written = static_cast<std::size_t>(count);
    return 0;
  }

  int Resize(int handle, std::size_t size) override { return ResultOf(::ftruncate(handle, static_cast<off_t>(size))); }
  int Flush(int handle) override { return ResultOf(::fsync(handle)); }
  int Close(int handle) override { return ResultOf(::close(handle)); }
  int Replace(int handle, const std::filesystem::path& from, const std::filesystem::path& to) override {
    const int error = ResultOf(::rename(from.c_str(), to.c_str()));
    ::close(handle);  // what was flushed has nothing more to tell
    return error;
  }
  int Remove(const std::filesystem::path& file) override { return ResultOf(::unlink(file.c_str())); }
  int FlushDirectory(const std::filesystem::path& directory) override {
    const int handle = ::open(directory.c_str(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) return errno;
    const int error = ResultOf(::fsync(handle));
    ::close(handle);
    return IsNeverFlushed(error) ? 0 : error;
  }
};

}  // namespace

FilePort& SystemFiles() {
  static PosixFiles files;
  return files;
}

}  // namespace plexel
