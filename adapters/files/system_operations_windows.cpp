#include "files/system_operations.h"

#include <direct.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>

#include "files/file_error.h"
#include "files/last_error.h"

namespace plexel {

namespace {

std::string LastReason() { return LastError().message(); }

class ReadHandle {
 public:
  explicit ReadHandle(const std::filesystem::path& file)
      : handle_(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  ~ReadHandle() {
    if (handle_ != INVALID_HANDLE_VALUE) CloseHandle(handle_);
  }
  ReadHandle(const ReadHandle&) = delete;
  ReadHandle& operator=(const ReadHandle&) = delete;
  HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_;
};

}  // namespace

std::string ReadUpTo(const std::filesystem::path& file, std::size_t limit, bool& complete) {
  const auto refuse = [&file](const std::string& reason) { return FileError(file, "cannot be read: " + reason); };
  std::error_code error;
  if (std::filesystem::is_directory(file, error)) throw refuse("it is a directory");
  const ReadHandle handle(file);
  if (handle.Get() == INVALID_HANDLE_VALUE) throw refuse(LastReason());
  if (GetFileType(handle.Get()) != FILE_TYPE_DISK) throw refuse("it is no regular file");
  LARGE_INTEGER size = {};
  if (GetFileSizeEx(handle.Get(), &size) == FALSE) throw refuse(LastReason());

  std::array<char, std::size_t{64} << 10U> piece;
  std::string content;
  content.reserve(static_cast<std::size_t>(std::min<std::uint64_t>(static_cast<std::uint64_t>(size.QuadPart), limit)));
  for (complete = false; !complete;) {
    DWORD count = 0;
    if (ReadFile(handle.Get(), piece.data(), piece.size(), &count, nullptr) == FALSE) throw refuse(LastReason());
    complete = count == 0;
    const std::size_t room = limit - content.size();
    content.append(piece.data(), std::min<std::size_t>(count, room));
    if (count > room) break;
  }
  return content;
}

int MakeDirectory(const std::filesystem::path& directory) {
  return _wmkdir(directory.c_str()) == 0 || errno == EEXIST ? 0 : errno;
}

WritableFile WritableTarget(const std::filesystem::path& file) {
  const auto refuse = [&file](const std::string& reason) { return FileError(file, "cannot be written: " + reason); };
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(file, error);
  if (status.type() == std::filesystem::file_type::not_found) return {file, 0};
  if (!std::filesystem::status_known(status)) throw refuse(error.message());
  if (!std::filesystem::is_regular_file(status)) throw refuse("it is no regular file");
  const DWORD attributes = GetFileAttributesW(file.c_str());
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) throw refuse("it is marked as read-only");
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return {file, NamesOf(file)};
  const ReadHandle handle(file);
  std::wstring target(std::size_t{1} << 15U, L'\0');  // longer than any name
  const DWORD length = GetFinalPathNameByHandleW(handle.Get(), target.data(), static_cast<DWORD>(target.size()), 0);
  if (length == 0 || length >= target.size()) throw refuse(LastReason());
  target.resize(length);
  return {target, NamesOf(target)};
}

std::uintmax_t NamesOf(const std::filesystem::path& file) {
  const ReadHandle handle(file);
  BY_HANDLE_FILE_INFORMATION information = {};
  return GetFileInformationByHandle(handle.Get(), &information) == FALSE ? 0 : information.nNumberOfLinks;
}

std::size_t LongestName(const std::filesystem::path&) {
  return 255;  // of the system's characters, each of which has one byte at least
}

}  // namespace plexel
