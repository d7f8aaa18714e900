#include "files/system_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>

#include "files/file_error.h"

namespace plexel {

namespace {

std::string ReasonOf(int error) { return std::generic_category().message(error); }

int ResultOf(int outcome) { return outcome == 0 ? 0 : errno; }

/// A descriptor that is only read from, so that closing it has nothing to tell.
class ReadHandle {
 public:
  explicit ReadHandle(const std::filesystem::path& file)
      : handle_(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}
  ~ReadHandle() {
    if (handle_ >= 0) ::close(handle_);
  }
  ReadHandle(const ReadHandle&) = delete;
  ReadHandle& operator=(const ReadHandle&) = delete;
  int Get() const { return handle_; }

 private:
  int handle_;
};

class PosixFiles : public FilePort {
 public:
  int Create(const std::filesystem::path& file, const std::filesystem::path& model, int& handle) override {
    handle = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (handle < 0) return errno;
    struct stat status {};
    if (::stat(model.c_str(), &status) != 0 || ::fchmod(handle, status.st_mode & 07777U) == 0) return 0;
    const int error = errno;
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
    const ReadHandle handle(directory);
    return handle.Get() < 0 ? errno : ResultOf(::fsync(handle.Get()));
  }
};

/// Writes and flushes the content of a new file. The handle is closed in every case.
int Fill(FilePort& port, int handle, std::string_view content) {
  int error = 0;
  while (error == 0 && !content.empty()) {
    std::size_t written = 0;
    error = port.Write(handle, content, written);
    if (error == 0 && written == 0) error = EIO;
    if (error == 0) content.remove_prefix(std::min(written, content.size()));
  }
  if (error == 0) error = port.Flush(handle);
  const int closed = port.Close(handle);
  return error != 0 ? error : closed;
}

/// Where links lead, of which the last one leads nowhere yet.
std::filesystem::path EndOfLinks(const std::filesystem::path& file) {
  constexpr int most = 40;  // as many as systems follow
  std::filesystem::path target = file;
  for (int links = 0; std::filesystem::is_symlink(target); ++links) {
    if (links == most) throw FileError(file, 0, "cannot be written: " + ReasonOf(ELOOP));
    target = target.parent_path() / std::filesystem::read_symlink(target);
  }
  return target;
}

/// The file behind a name; refuses what must not be replaced by a rename.
std::filesystem::path TargetOf(const std::filesystem::path& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0) {
    if (errno != ENOENT) throw FileError(file, 0, "cannot be written: " + ReasonOf(errno));
    try {
      return EndOfLinks(file);
    } catch (const std::filesystem::filesystem_error& failure) {
      throw FileError(file, 0, "cannot be written: " + failure.code().message());
    }
  }
  if (!S_ISREG(status.st_mode)) throw FileError(file, 0, "cannot be written: it is no regular file");
  if (::access(file.c_str(), W_OK) != 0) throw FileError(file, 0, "cannot be written: " + ReasonOf(errno));
  std::error_code error;
  const std::filesystem::path target = std::filesystem::canonical(file, error);
  if (error) throw FileError(file, 0, "cannot be written: " + error.message());
  return target;
}

constexpr int NameAttempts = 100;

/// Creates a file beside the target under a name that is not taken.
int CreateBeside(FilePort& port, const std::filesystem::path& target, std::filesystem::path& file, int& handle) {
  int error = EEXIST;
  for (int attempt = 0; error == EEXIST && attempt < NameAttempts; ++attempt) {
    file = target;
    file += "." + std::to_string(::getpid()) + "-" + std::to_string(attempt) + ".new";
    error = port.Create(file, target, handle);
  }
  return error;
}

}  // namespace

FilePort& SystemFiles() {
  static PosixFiles files;
  return files;
}

namespace {

/// Reads a regular file up to `limit` bytes; `complete` tells whether that was all of it.
std::string ReadUpTo(const std::filesystem::path& file, std::size_t limit, bool& complete) {
  const auto refuse = [&file](const std::string& reason) { return FileError(file, 0, "cannot be read: " + reason); };
  const ReadHandle handle(file);
  struct stat status {};
  if (handle.Get() < 0 || ::fstat(handle.Get(), &status) != 0) throw refuse(ReasonOf(errno));
  if (S_ISDIR(status.st_mode)) throw refuse("it is a directory");
  if (!S_ISREG(status.st_mode)) throw refuse("it is no regular file");

  // Piece by piece through a block that stays in the cache: the memory of the content is touched only once.
  std::array<char, std::size_t{64} << 10U> piece;
  std::string content;
  content.reserve(std::min(static_cast<std::uintmax_t>(status.st_size), std::uintmax_t{limit}));
  for (complete = false; !complete;) {
    const ssize_t count = ::read(handle.Get(), piece.data(), piece.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw refuse(ReasonOf(errno));
    complete = count == 0;
    const std::size_t room = limit - content.size();
    content.append(piece.data(), std::min(static_cast<std::size_t>(count), room));
    if (static_cast<std::size_t>(count) > room) break;
  }
  return content;
}

}  // namespace

std::string ReadWholeFile(const std::filesystem::path& file, std::size_t limit) {
  bool complete = false;
  std::string content = ReadUpTo(file, limit, complete);
  if (!complete) throw FileError(file, 0, "cannot be read: it is larger than " + std::to_string(limit) + " bytes");
  return content;
}

std::string ReadFileStart(const std::filesystem::path& file, std::size_t limit) {
  bool complete = false;
  return ReadUpTo(file, limit, complete);
}

void MakeOwnDirectory(const std::filesystem::path& directory) {
  const auto make = [&directory] { return ::mkdir(directory.c_str(), 0700) == 0 || errno == EEXIST ? 0 : errno; };
  int error = make();
  if (error == ENOENT && directory.has_parent_path() && directory.parent_path() != directory) {
    MakeOwnDirectory(directory.parent_path());
    error = make();
  }
  if (error != 0) throw FileError(directory, 0, "cannot be made: " + ReasonOf(error));
}

void WriteWholeFile(const std::filesystem::path& file, std::string_view content, FilePort& port) {
  const std::filesystem::path target = TargetOf(file);
  std::filesystem::path beside;
  int handle = -1;
  int error = CreateBeside(port, target, beside, handle);
  if (error != 0) throw FileError(file, 0, "cannot be written: " + ReasonOf(error));
  error = Fill(port, handle, content);
  if (error == 0) error = port.Rename(beside, target);
  if (error != 0) {
    std::string reason = "cannot be written: " + ReasonOf(error);
    if (port.Remove(beside) != 0) reason += " (" + beside.string() + " is left over)";
    throw FileError(file, 0, reason);
  }
  // The new file stands complete under its name; a system that cannot flush directories has nothing more to give.
  static_cast<void>(port.FlushDirectory(target.has_parent_path() ? target.parent_path() : "."));
}

}  // namespace plexel
