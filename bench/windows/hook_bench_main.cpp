#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <vector>

#include "component/component.h"
#include "headless/headless_platform.h"
#include "headless/headless_surroundings.h"
#include "scancodes/keyboard_hook.h"
#include "win32/win32_platform.h"

/// How long a key waits for what lies behind a hook: for a hook that hands it on and does nothing else, and for that of
/// capture. The measuring hook stands ahead of both. Then the work of capture's procedure alone, without what the
/// system does to find the next hook.

namespace {

constexpr int Keys = 20000, WarmUp = 500;

std::vector<double> theTimes;
LARGE_INTEGER theFrequency;

/// Keeps the time that a call takes.
template <typename Call>
auto Timed(const Call& call) {
  LARGE_INTEGER start, end;
  QueryPerformanceCounter(&start);
  const auto answer = call();
  QueryPerformanceCounter(&end);
  theTimes.push_back(static_cast<double>(end.QuadPart - start.QuadPart) * 1e6 /
                     static_cast<double>(theFrequency.QuadPart));
  return answer;
}

LRESULT CALLBACK Measure(int code, WPARAM wParam, LPARAM lParam) {
  return Timed([&] { return CallNextHookEx(nullptr, code, wParam, lParam); });
}

std::int32_t MeasuredCapture(std::int32_t code, std::int32_t wParam, std::intptr_t lParam) {
  return Timed([&] { return plexel::LowLevelKeyboardProc(code, wParam, lParam); });
}

/// Windows as it is, but that no hook stands behind capture's.
class Desktop : public plexel::Win32Platform, private plexel::KeyboardHooks {
 public:
  plexel::KeyboardHooks& System() { return Win32Platform::Hooks(); }
  plexel::KeyboardHooks& Hooks() override { return alone ? *this : System(); }
  bool alone = false;

 private:
  std::int32_t Install(plexel::HookKind, plexel::HookProcedure) override { return 0; }
  std::int32_t Remove(std::int32_t) override { return 0; }
  std::int32_t CallNext(std::int32_t, std::int32_t, std::int32_t, std::intptr_t) override { return 0; }
};

LRESULT CALLBACK HandOn(int code, WPARAM wParam, LPARAM lParam) {
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

void SendKeys() {
  for (int key = 0; key < (Keys + WarmUp) / 2; ++key) {
    for (const DWORD flags : {DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
      INPUT input = {};
      input.type = INPUT_KEYBOARD;
      input.ki.wVk = VK_F13;
      input.ki.wScan = 0x64;
      input.ki.dwFlags = flags;
      SendInput(1, &input, sizeof input);
    }
  }
}

void Run(const char* name, HOOKPROC measure) {
  theTimes.clear();
  theTimes.reserve(Keys + WarmUp);
  const HHOOK measuring =
      measure == nullptr ? nullptr : SetWindowsHookExW(WH_KEYBOARD_LL, measure, GetModuleHandleW(nullptr), 0);
  std::thread sender(SendKeys);
  while (theTimes.size() < Keys + WarmUp) {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
  sender.join();
  if (measuring != nullptr) UnhookWindowsHookEx(measuring);
  std::vector<double> times(theTimes.begin() + WarmUp, theTimes.end());
  std::sort(times.begin(), times.end());
  const auto at = [&times](double part) {
    return times[static_cast<std::size_t>(part * static_cast<double>(Keys - 1))];
  };
  std::printf("%-24s median %6.1f us, 99 %% %6.1f us, 99.9 %% %6.1f us, longest %6.1f us\n", name, at(0.5), at(0.99),
              at(0.999), times.back());
}

}  // namespace

int main() {
  QueryPerformanceFrequency(&theFrequency);
  plexel::HeadlessPlatform memory;
  plexel::HeadlessSurroundings surroundings(memory);
  Desktop platform;
  const plexel::Component component(platform, surroundings);
  constexpr auto LowLevel = plexel::HookKind::LowLevelKeyboard;
  for (int round = 0; round < 2; ++round) {
    const HHOOK plain = SetWindowsHookExW(WH_KEYBOARD_LL, HandOn, GetModuleHandleW(nullptr), 0);
    Run("a hook that hands on", Measure);
    UnhookWindowsHookEx(plain);
    std::int32_t own = platform.System().Install(LowLevel, plexel::LowLevelKeyboardProc);
    Run("the hook of capture", Measure);
    platform.System().Remove(own);
    platform.alone = true;
    own = platform.System().Install(LowLevel, MeasuredCapture);
    Run("its own work", nullptr);
    platform.System().Remove(own);
    platform.alone = false;
  }
  return 0;
}
