#include "host/host_user.h"

#include <cstdlib>
#include <stdexcept>

namespace plexel::host {

namespace {

constexpr DWORD Pause = 40, Patience = 20000;  ///< milliseconds

struct Search {
  DWORD process;
  HWND other;
  HWND found = nullptr;
};

BOOL CALLBACK IsDialog(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<Search*>(data);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  if (process != search.process || window == search.other || IsWindowVisible(window) == FALSE) return TRUE;
  if ((GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) != WS_CAPTION) return TRUE;
  search.found = window;
  return FALSE;
}

/// What is sent at once has one time: a machine that is busy makes no two clicks of a double click.
void Send(std::vector<INPUT> inputs) {
  const auto count = static_cast<UINT>(inputs.size());
  if (SendInput(count, inputs.data(), sizeof(INPUT)) != count) throw std::runtime_error("the system takes no input");
  Sleep(Pause);
}

}  // namespace

HostUser::HostUser(const std::filesystem::path& project) {
  std::wstring program(MAX_PATH, L'\0');
  program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
  const std::filesystem::path host = std::filesystem::path(program).parent_path() / L"plexel-host.exe";
  std::wstring words = L"\"" + host.wstring() + L"\" \"" + project.wstring() + L"\"";
  STARTUPINFOW start = {};
  start.cb = sizeof start;
  if (CreateProcessW(nullptr, words.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process_) == FALSE) {
    throw std::runtime_error("plexel-host cannot be started");
  }
  const std::wstring title = project.filename().wstring() + L" \u2013 Plexel";
  Until("the window opens", [&] {
    window_ = FindWindowW(L"PlexelHost", title.c_str());
    return window_ != nullptr && GetForegroundWindow() == window_;
  });
  Until("the first element has the keys", [this] { return !Events().empty(); });
  // Behind that it still hears where the mouse was before: a move of the test's own must not be undone by it.
  if (WaitForInputIdle(process_.hProcess, Patience) != 0) throw std::runtime_error("plexel-host does not come to rest");
}

HostUser::~HostUser() {
  TerminateProcess(process_.hProcess, 9);
  WaitForSingleObject(process_.hProcess, Patience);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
}

HWND HostUser::Dialog() const {
  Search search{process_.dwProcessId, window_};
  EnumWindows(IsDialog, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::wstring HostUser::TextOf(HWND window) {
  std::wstring text(1024, L'\0');
  const LRESULT length = SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

std::wstring HostUser::Title() const { return TextOf(window_); }

std::vector<std::wstring> HostUser::Events() const {
  const HWND list = Find(window_, L"ListBox");
  std::vector<std::wstring> lines;
  const LRESULT count = SendMessageW(list, LB_GETCOUNT, 0, 0);
  for (LRESULT index = 0; index < count; ++index) {
    std::wstring line(static_cast<std::size_t>(SendMessageW(list, LB_GETTEXTLEN, static_cast<WPARAM>(index), 0)) + 1,
                      L'\0');
    SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(line.data()));
    line.pop_back();
    lines.push_back(line);
  }
  return lines;
}

struct HostUser::Wanted {
  const wchar_t *kind, *text;
  HWND found;
};

BOOL CALLBACK HostUser::EndAtWanted(HWND child, LPARAM data) {
  auto& wanted = *reinterpret_cast<Wanted*>(data);
  wchar_t name[64] = {};
  GetClassNameW(child, name, 64);
  if (_wcsicmp(name, wanted.kind) != 0 || (wanted.text != nullptr && TextOf(child) != wanted.text)) return TRUE;
  wanted.found = child;
  return FALSE;
}

HWND HostUser::Find(HWND within, const wchar_t* kind, const wchar_t* text) {
  Wanted wanted = {kind, text, nullptr};
  EnumChildWindows(within, EndAtWanted, reinterpret_cast<LPARAM>(&wanted));
  return wanted.found;
}

void HostUser::Click(HWND window, POINT place, int times) {
  ClientToScreen(window, &place);
  Until("the mouse is there", [place] {
    POINT now{};
    SetCursorPos(place.x, place.y);
    Sleep(Pause);
    return GetCursorPos(&now) != FALSE && now.x == place.x && now.y == place.y;
  });
  std::vector<INPUT> acts;
  for (int time = 0; time < times; ++time) {
    for (const DWORD act : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
      acts.push_back({.type = INPUT_MOUSE, .mi = {.dwFlags = act}});
    }
  }
  Send(acts);
}

void HostUser::Keys(const std::vector<int>& keys) {
  for (const int key : keys) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(std::abs(key));
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(input.ki.wVk, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = key < 0 ? KEYEVENTF_KEYUP : 0U;
    Send({input});
  }
}

void HostUser::Until(const std::string& what, const std::function<bool()>& holds) {
  for (DWORD waited = 0; !holds(); waited += Pause) {
    if (waited > Patience) throw std::runtime_error("in vain: " + what);
    Sleep(Pause);
  }
}

DWORD HostUser::Ended() {
  if (WaitForSingleObject(process_.hProcess, Patience) != WAIT_OBJECT_0) throw std::runtime_error("it does not end");
  DWORD status = 0;
  GetExitCodeProcess(process_.hProcess, &status);
  return status;
}

}  // namespace plexel::host
