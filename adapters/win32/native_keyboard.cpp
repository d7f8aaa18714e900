#include "win32/native_keyboard.h"

#include <windows.h>

#include <array>

#include "forms/control.h"

namespace plexel {

namespace {

HKL LayoutOf(KeyboardLayout::Handle layout) { return reinterpret_cast<HKL>(layout); }

/// No key is down, and a dead key that the user has typed stays pending.
constexpr std::array<BYTE, 256> NoKeys{};
constexpr UINT KeepDeadKey = 4;

bool IsDown(int virtualKey) { return GetKeyState(virtualKey) < 0; }

}  // namespace

std::int16_t NativeKeyState::Asynchronous(std::int32_t virtualKey) { return GetAsyncKeyState(virtualKey); }

std::int16_t NativeKeyState::Synchronous(std::int32_t virtualKey) { return GetKeyState(virtualKey); }

KeyboardLayout::Handle NativeLayout::Current() { return reinterpret_cast<Handle>(GetKeyboardLayout(0)); }

std::int32_t NativeLayout::ToUnicode(std::int32_t virtualKey, std::int32_t scanCode, char16_t* text,
                                     std::int32_t capacity, Handle layout) {
  static_assert(sizeof(char16_t) == sizeof(WCHAR));
  return ToUnicodeEx(static_cast<UINT>(virtualKey), static_cast<UINT>(scanCode), NoKeys.data(),
                     reinterpret_cast<WCHAR*>(text), capacity, KeepDeadKey, LayoutOf(layout));
}

std::int32_t NativeLayout::ToAscii(std::int32_t virtualKey, std::int32_t scanCode, std::uint16_t& result,
                                   Handle layout) {
  return ToAsciiEx(static_cast<UINT>(virtualKey), static_cast<UINT>(scanCode), NoKeys.data(), &result, KeepDeadKey,
                   LayoutOf(layout));
}

std::int16_t ShiftStateNow() {
  int shift = 0;
  if (IsDown(VK_SHIFT)) shift |= key::ShiftBit;
  if (IsDown(VK_CONTROL)) shift |= key::ControlBit;
  if (IsDown(VK_MENU)) shift |= key::AltBit;
  return static_cast<std::int16_t>(shift);
}

}  // namespace plexel
