#include "files/process_lock.h"

#include <windows.h>

#include <utility>

#include "files/file_error.h"
#include "files/last_error.h"

namespace plexel {

namespace {

HANDLE HandleOf(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

}  // namespace

long ProcessNumber() { return static_cast<long>(GetCurrentProcessId()); }

std::optional<ProcessLock> ProcessLock::Try(const std::filesystem::path& file) {
  const HANDLE handle = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (handle != INVALID_HANDLE_VALUE) return ProcessLock(file, reinterpret_cast<std::intptr_t>(handle));
  if (GetLastError() == ERROR_SHARING_VIOLATION) return std::nullopt;
  throw FileError(file, "cannot be locked: " + LastError().message());
}

void ProcessLock::Remove() {
  FILE_DISPOSITION_INFO gone = {TRUE};
  if (handle_ != None) SetFileInformationByHandle(HandleOf(handle_), FileDispositionInfo, &gone, sizeof gone);
  Release();
}

void ProcessLock::Release() {
  if (handle_ != None) CloseHandle(HandleOf(std::exchange(handle_, None)));
}

}  // namespace plexel
