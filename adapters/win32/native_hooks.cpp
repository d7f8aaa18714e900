#include "win32/native_hooks.h"

#include <windows.h>

#include <algorithm>
#include <functional>
#include <vector>

namespace plexel {

namespace {

struct Hook {
  HHOOK handle;
  HookKind kind;
  const NativeHooks* owner;
};

/// What the system's calls find: they bring nothing that tells whose they are.
struct Installed {
  FormDesk* desk = nullptr;
  HookProcedure keyboard = nullptr, lowLevel = nullptr;
  std::vector<Hook> hooks;
  /// The record that the low-level procedure gets in place of the system's, and the system's own.
  const LowLevelKey* record = nullptr;
  LPARAM original = 0;
};
Installed theInstalled;

/// Handles of the system are 32 bits wide in programs of either bitness.
std::int32_t NumberOf(HHOOK hook) { return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(hook)); }

HMODULE ThisModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<LPCWSTR>(&theInstalled), &module);
  return module;
}

/// The flags of a key. That of Alt is missing from keys that programs send, on some systems: a message of the kind that
/// keys send while Alt is down tells it too.
DWORD FlagsOf(const KBDLLHOOKSTRUCT& key, WPARAM message) {
  const bool withAlt = (message == WM_SYSKEYDOWN || message == WM_SYSKEYUP) && key.vkCode != VK_F10;
  return key.flags | (withAlt ? DWORD{LLKHF_ALTDOWN} : 0U);
}

/// The procedure's answer; 0 when it throws, so that the key goes its way.
LRESULT Answer(HookProcedure procedure, int code, WPARAM wParam, std::intptr_t lParam) {
  std::int32_t answer = 0;
  const auto call = [&] { answer = procedure(code, static_cast<std::int32_t>(wParam), lParam); };
  theInstalled.desk->Contain(std::cref(call));
  return answer;
}

LRESULT CALLBACK Keyboard(int code, WPARAM wParam, LPARAM lParam) {
  if (theInstalled.keyboard == nullptr) return CallNextHookEx(nullptr, code, wParam, lParam);
  return Answer(theInstalled.keyboard, code, wParam, lParam);
}

LRESULT CALLBACK LowLevelKeyboard(int code, WPARAM wParam, LPARAM lParam) {
  if (theInstalled.lowLevel == nullptr || code < 0) return CallNextHookEx(nullptr, code, wParam, lParam);
  const auto& told = *reinterpret_cast<const KBDLLHOOKSTRUCT*>(lParam);
  const LowLevelKey record = {static_cast<std::int32_t>(told.vkCode), static_cast<std::int32_t>(told.scanCode),
                              static_cast<std::int32_t>(FlagsOf(told, wParam)), static_cast<std::int32_t>(told.time),
                              static_cast<std::int32_t>(told.dwExtraInfo)};
  theInstalled.record = &record;
  theInstalled.original = lParam;
  const LRESULT answer = Answer(theInstalled.lowLevel, code, wParam, reinterpret_cast<std::intptr_t>(&record));
  theInstalled.record = nullptr;
  return answer;
}

}  // namespace

NativeHooks::~NativeHooks() {
  const std::vector<Hook> hooks = theInstalled.hooks;
  for (const Hook& hook : hooks) {
    if (hook.owner == this) Remove(NumberOf(hook.handle));
  }
}

std::int32_t NativeHooks::Install(HookKind kind, HookProcedure procedure) {
  const bool lowLevel = kind == HookKind::LowLevelKeyboard;
  HookProcedure& known = lowLevel ? theInstalled.lowLevel : theInstalled.keyboard;
  const HHOOK handle = lowLevel ? SetWindowsHookExA(WH_KEYBOARD_LL, LowLevelKeyboard, ThisModule(), 0)
                                : SetWindowsHookExA(WH_KEYBOARD, Keyboard, nullptr, GetCurrentThreadId());
  if (handle == nullptr) return 0;
  known = procedure;
  theInstalled.desk = &desk_;
  theInstalled.hooks.push_back({handle, kind, this});
  return NumberOf(handle);
}

std::int32_t NativeHooks::Remove(std::int32_t hook) {
  std::vector<Hook>& hooks = theInstalled.hooks;
  const auto found =
      std::find_if(hooks.begin(), hooks.end(), [hook](const Hook& one) { return NumberOf(one.handle) == hook; });
  if (found == hooks.end() || UnhookWindowsHookEx(found->handle) == FALSE) return 0;
  const HookKind kind = found->kind;
  hooks.erase(found);
  if (std::none_of(hooks.begin(), hooks.end(), [kind](const Hook& one) { return one.kind == kind; })) {
    (kind == HookKind::LowLevelKeyboard ? theInstalled.lowLevel : theInstalled.keyboard) = nullptr;
  }
  return 1;
}

std::int32_t NativeHooks::CallNext(std::int32_t hook, std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam) {
  const bool ours = theInstalled.record != nullptr && lParam == reinterpret_cast<std::intptr_t>(theInstalled.record);
  const auto handle = reinterpret_cast<HHOOK>(static_cast<std::intptr_t>(hook));
  return static_cast<std::int32_t>(CallNextHookEx(handle, nCode, static_cast<WPARAM>(wParam),
                                                  ours ? theInstalled.original : static_cast<LPARAM>(lParam)));
}

bool KeyboardHookRuns() { return theInstalled.keyboard != nullptr; }

}  // namespace plexel
