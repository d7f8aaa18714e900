#include "files/file_port.h"

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
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

/// Others may read the file while it is open, and nothing else.
int OpenBy(const std::filesystem::path& file, int flags, int& handle) {
  return _wsopen_s(&handle, file.c_str(), flags | _O_WRONLY | _O_BINARY | _O_NOINHERIT, _SH_DENYWR,
                   _S_IREAD | _S_IWRITE);
}

class WindowsFiles : public FilePort {
 public:
  int Create(const std::filesystem::path& file, const std::filesystem::path& model, int& handle,
             FileTraits& lost) override {
    int error = OpenBy(file, _O_CREAT | _O_EXCL, handle);
    if (error != 0 || GetFileAttributesW(model.c_str()) == INVALID_FILE_ATTRIBUTES) return error;
    error = GiveTraits(model, file, handle, lost);
    if (error == 0) return 0;
    _close(handle);
    DeleteFileW(file.c_str());
    return error;
  }
  int Open(const std::filesystem::path& file, int& handle) override { return OpenBy(file, 0, handle); }
  int Write(int handle, std::size_t place, std::string_view bytes, std::size_t& written) override {
    if (_lseeki64(handle, static_cast<std::int64_t>(place), SEEK_SET) < 0) return errno;
    constexpr std::size_t most = std::size_t{1} << 30U;
    const int count = _write(handle, bytes.data(), static_cast<unsigned>(std::min(bytes.size(), most)));
    if (count < 0) return errno;
    written = static_cast<std::size_t>(count);
    return 0;
  }
  int Resize(int handle, std::size_t size) override { return _chsize_s(handle, static_cast<std::int64_t>(size)); }
  int Flush(int handle) override { return _commit(handle) == 0 ? 0 : errno; }
  int Close(int handle) override { return _close(handle) == 0 ? 0 : errno; }
  /// A file that is replaced hands its rights and attributes on.
  int Replace(int handle, const std::filesystem::path& from, const std::filesystem::path& to) override {
    if (const int error = Close(handle); error != 0) return error;
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
