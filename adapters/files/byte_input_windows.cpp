#include "files/byte_input.h"

#include <windows.h>

#include <system_error>

#include "files/last_error.h"

namespace plexel {

namespace {

HANDLE HandleOf(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

}  // namespace

ByteInput::ByteInput() : ByteInput(reinterpret_cast<std::intptr_t>(GetStdHandle(STD_INPUT_HANDLE))) {}

ByteInput::ByteInput(const std::filesystem::path& file)
    : handle_(reinterpret_cast<std::intptr_t>(CreateFileW(file.c_str(), GENERIC_READ,
                                                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                                          nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))),
      own_(true) {
  if (HandleOf(handle_) == INVALID_HANDLE_VALUE) throw std::system_error(LastError());
}

ByteInput::~ByteInput() {
  if (own_) CloseHandle(HandleOf(handle_));
}

std::size_t ByteInput::Read(std::span<char> room) {
  DWORD count = 0;
  if (ReadFile(HandleOf(handle_), room.data(), static_cast<DWORD>(room.size()), &count, nullptr) != 0) return count;
  if (GetLastError() == ERROR_BROKEN_PIPE) return 0;  // the writer has closed its end
  throw std::system_error(LastError());
}

bool ByteInput::Ready(int milliseconds) const {
  switch (GetFileType(HandleOf(handle_))) {
    case FILE_TYPE_DISK:
      return true;
    case FILE_TYPE_PIPE:
      break;
    default:
      return WaitForSingleObject(HandleOf(handle_), static_cast<DWORD>(milliseconds)) == WAIT_OBJECT_0;
  }
  // A pipe cannot be waited for.
  for (const ULONGLONG end = GetTickCount64() + static_cast<ULONGLONG>(milliseconds);; Sleep(1)) {
    DWORD count = 0;
    if (PeekNamedPipe(HandleOf(handle_), nullptr, 0, nullptr, &count, nullptr) == 0 || count > 0) return true;
    if (GetTickCount64() >= end) return false;
  }
}

}  // namespace plexel
