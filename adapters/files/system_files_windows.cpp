#include "files/system_files.h"

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "files/last_error.h"

namespace plexel {

namespace {

/// 0, or the error number of what the system told last.
int ResultOf(BOOL success) {
  if (success != FALSE) return 0;
  const std::error_code error = LastError();
  return error.category() == std::generic_category() ? error.value() : EIO;
}

class WindowsFiles : public FilePort {
 public:
  int Create(const std::filesystem::path& file, const std::filesystem::path&, int& handle) override {
    return _wsopen_s(&handle, file.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT, _SH_DENYWR,
                     _S_IREAD | _S_IWRITE);
  }
  int Write(int handle, std::string_view bytes, std::size_t& written) override {
    constexpr std::size_t most = std::size_t{1} << 30U;
    const int count = _write(handle, bytes.data(), static_cast<unsigned>(std::min(bytes.size(), most)));
    if (count < 0) return errno;
    written = static_cast<std::size_t>(count);
    return 0;
  }
  int Flush(int handle) override { return _commit(handle) == 0 ? 0 : errno; }
  int Close(int handle) override { return _close(handle) == 0 ? 0 : errno; }
  /// A file that is replaced hands its rights and attributes on.
  int Rename(const std::filesystem::path& from, const std::filesystem::path& to) override {
    if (ReplaceFileW(to.c_str(), from.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != FALSE) {
      return 0;
    }
    return ResultOf(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
  }
  int Remove(const std::filesystem::path& file) override { return ResultOf(DeleteFileW(file.c_str())); }
  /// The system keeps its directories by itself.
  int FlushDirectory(const std::filesystem::path&) override { return 0; }
};

}  // namespace

FilePort& SystemFiles() {
  static WindowsFiles files;
  return files;
}

}  // namespace plexel
