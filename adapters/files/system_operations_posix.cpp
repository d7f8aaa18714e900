#include "files/system_operations.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <system_error>
#include <utility>

#include "files/file_error.h"

namespace plexel {

namespace {

std::string ReasonOf(int error) { return std::generic_category().message(error); }

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

/// Asks the system for few large pages in the room of a text instead of thousands of small ones. It need not do so.
void TakeInLargePages(std::string& text) {
#ifdef MADV_HUGEPAGE
  const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
  const auto start = reinterpret_cast<std::uintptr_t>(text.data());
  const std::uintptr_t first = (start + page - 1) / page * page, last = (start + text.capacity()) / page * page;
  constexpr std::uintptr_t large = std::uintptr_t{2} << 20U;
  if (last > first + large) ::madvise(text.data() + (first - start), last - first, MADV_HUGEPAGE);
#else
  static_cast<void>(text);
#endif
}

}  // namespace

std::string ReadUpTo(const std::filesystem::path& file, std::size_t limit, bool& complete) {
  const auto refuse = [&file](const std::string& reason) { return FileError(file, "cannot be read: " + reason); };
  const ReadHandle handle(file);
  struct stat status{};
  if (handle.Get() < 0 || ::fstat(handle.Get(), &status) != 0) throw refuse(ReasonOf(errno));
  if (S_ISDIR(status.st_mode)) throw refuse("it is a directory");
  if (!S_ISREG(status.st_mode)) throw refuse("it is no regular file");

  // Piece by piece through a block that stays in the cache: the memory of the content is touched only once.
  std::array<char, std::size_t{64} << 10U> piece{};
  std::string content;
  content.reserve(std::min(static_cast<std::uintmax_t>(status.st_size), std::uintmax_t{limit}));
  TakeInLargePages(content);
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

int MakeDirectory(const std::filesystem::path& directory) {
  return ::mkdir(directory.c_str(), 0700) == 0 || errno == EEXIST ? 0 : errno;
}

WritableFile WritableTarget(const std::filesystem::path& file) {
  struct stat status{};
  if (::stat(file.c_str(), &status) != 0) {
    if (errno != ENOENT) throw FileError(file, "cannot be written: " + ReasonOf(errno));
    return {file, 0};
  }
  if (!S_ISREG(status.st_mode)) throw FileError(file, "cannot be written: it is no regular file");
  if (::access(file.c_str(), W_OK) != 0) throw FileError(file, "cannot be written: " + ReasonOf(errno));
  std::error_code error;
  std::filesystem::path target = std::filesystem::canonical(file, error);
  if (error) throw FileError(file, "cannot be written: " + error.message());
  return {std::move(target), status.st_nlink};
}

std::uintmax_t NamesOf(const std::filesystem::path& file) {
  struct stat status{};
  return ::stat(file.c_str(), &status) == 0 ? status.st_nlink : 0;
}

std::size_t LongestName(const std::filesystem::path& directory) {
  const long limit = ::pathconf(directory.c_str(), _PC_NAME_MAX);
  return limit > 0 ? static_cast<std::size_t>(limit) : NAME_MAX;
}

}  // namespace plexel
