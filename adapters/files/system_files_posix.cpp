#include "files/system_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace plexel {

namespace {

int ResultOf(int outcome) { return outcome == 0 ? 0 : errno; }

/// Gives a file to an owner and his group, as far as the user may: to the group alone when only root may do more.
int GiveTo(int handle, const struct stat& owner) {
  if (::fchown(handle, owner.st_uid, owner.st_gid) == 0) return 0;
  if (errno == EPERM && ::fchown(handle, static_cast<uid_t>(-1), owner.st_gid) == 0) return 0;
  return errno == EPERM ? 0 : errno;
}

class PosixFiles : public FilePort {
 public:
  int Create(const std::filesystem::path& file, const std::filesystem::path& model, int& handle) override {
    handle = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (handle < 0) return errno;
    struct stat status {};
    if (::stat(model.c_str(), &status) != 0) return 0;
    int error = GiveTo(handle, status);
    if (error == 0 && ::fchmod(handle, status.st_mode & 07777U) != 0) error = errno;
    if (error == 0) return 0;
    ::close(handle);
    ::unlink(file.c_str());
    return error;
  }

  int Write(int handle, std::string_view bytes, std::size_t& written) override {
    ssize_t count = 0;
    do {
      count = ::write(handle, bytes.data(), bytes.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0) return errno;
    written = static_cast<std::size_t>(count);
    return 0;
  }

  int Flush(int handle) override { return ResultOf(::fsync(handle)); }
  int Close(int handle) override { return ResultOf(::close(handle)); }
  int Rename(const std::filesystem::path& from, const std::filesystem::path& to) override {
    return ResultOf(::rename(from.c_str(), to.c_str()));
  }
  int Remove(const std::filesystem::path& file) override { return ResultOf(::unlink(file.c_str())); }
  int FlushDirectory(const std::filesystem::path& directory) override {
    const int handle = ::open(directory.c_str(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) return errno;
    const int error = ResultOf(::fsync(handle));
    ::close(handle);
    return error;
  }
};

}  // namespace

FilePort& SystemFiles() {
  static PosixFiles files;
  return files;
}

}  // namespace plexel
