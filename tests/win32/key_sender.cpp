#include "win32/key_sender.h"

#include <filesystem>
#include <stdexcept>

namespace plexel {

namespace {

std::filesystem::path BesideThisProgram(const wchar_t* name) {
  std::wstring program(MAX_PATH, L'\0');
  program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
  return std::filesystem::path(program).parent_path() / name;
}

}  // namespace

KeySender::KeySender() {
  SECURITY_ATTRIBUTES handedOn = {sizeof handedOn, nullptr, TRUE};
  HANDLE read = nullptr;
  CreatePipe(&read, &input_, &handedOn, 0);
  SetHandleInformation(input_, HANDLE_FLAG_INHERIT, 0);
  HANDLE nowhere = CreateFileW(L"NUL", GENERIC_WRITE, FILE_SHARE_WRITE, &handedOn, OPEN_EXISTING, 0, nullptr);
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = read;
  start.hStdOutput = start.hStdError = nowhere;
  std::wstring program = BesideThisProgram(L"plexel-key-sender.exe").wstring();
  const BOOL made = CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr,
                                   &start, &process_);
  CloseHandle(read);
  CloseHandle(nowhere);
  if (made == FALSE) throw std::runtime_error("plexel-key-sender cannot be started");
}

KeySender::~KeySender() {
  CloseHandle(input_);
  constexpr DWORD Patience = 5000;
  WaitForSingleObject(process_.hProcess, Patience);
  CloseHandle(process_.hProcess);
  CloseHandle(process_.hThread);
}

void KeySender::Send(const std::string& lines) {
  DWORD written = 0;
  if (WriteFile(input_, lines.data(), static_cast<DWORD>(lines.size()), &written, nullptr) == FALSE) {
    throw std::runtime_error("plexel-key-sender has ended");
  }
}

}  // namespace plexel
