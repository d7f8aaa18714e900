#pragma once

#include "platform/keyboard.h"

namespace plexel {

/// The states of keys as the system knows them.
class NativeKeyState : public KeyState {
 public:
  std::int16_t Asynchronous(std::int32_t virtualKey) override;
  std::int16_t Synchronous(std::int32_t virtualKey) override;
};

/// The system's keyboard layouts.
class NativeLayout : public KeyboardLayout {
 public:
  Handle Current() override;
  std::int32_t ToUnicode(std::int32_t virtualKey, std::int32_t scanCode, char16_t* text, std::int32_t capacity,
                         Handle layout) override;
  std::int32_t ToAscii(std::int32_t virtualKey, std::int32_t scanCode, std::uint16_t& result, Handle layout) override;
};

/// Shift, Ctrl and Alt as of the message at hand, as the bits of a key event.
std::int16_t ShiftStateNow();

}  // namespace plexel
