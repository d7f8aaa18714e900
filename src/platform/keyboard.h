#pragma once

#include <cstdint>

namespace plexel {

/// One event of one key, as the operating system delivers it.
struct KeyEvent {
  std::int32_t virtualKey = 0;  ///< 1 to 254
  std::int32_t scanCode = 0;    ///< scan code of set 1, 0 to 255
  bool extended = false;        ///< the extended flag
  bool down = true;             ///< direction: true make, false break
  std::uint32_t time = 0;       ///< milliseconds, wraps
};

/// The record that a low-level keyboard hook receives: five 32-bit numbers.
struct LowLevelKey {
  /// As in a KeyEvent.
  std::int32_t virtualKey = 0;
  std::int32_t scanCode = 0;
  std::int32_t flags = 0;  ///< bit 0 extended, bit 5 Alt down, bit 7 going up
  std::int32_t time = 0;
  std::int32_t extraInfo = 0;
};
static_assert(sizeof(LowLevelKey) == 20);

/// The kinds of hooks.
enum class HookKind : std::int32_t { Keyboard = 2, LowLevelKeyboard = 13 };

/// A hook procedure. `lParam` is the key's flag word for a keyboard hook and the address of a LowLevelKey for a
/// low-level one.
using HookProcedure = std::int32_t (*)(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam);

/// Installs procedures that see key events before the window does.
class KeyboardHooks {
 public:
  virtual ~KeyboardHooks() = default;
  /// The handle of the hook, or 0 when it could not be installed.
  virtual std::int32_t Install(HookKind kind, HookProcedure procedure) = 0;
  /// Non-zero when the hook was removed.
  virtual std::int32_t Remove(std::int32_t hook) = 0;
  /// Hands a key on to the hook behind; gives what that returns.
  virtual std::int32_t CallNext(std::int32_t hook, std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam) = 0;
};

/// The state of keys. Bit 15 (0x8000) of a result is set while the key is physically down; the toggle bit is bit 0.
class KeyState {
 public:
  virtual ~KeyState() = default;
  virtual std::int16_t Asynchronous(std::int32_t virtualKey) = 0;  ///< at this moment
  virtual std::int16_t Synchronous(std::int32_t virtualKey) = 0;   ///< as of the event being handled
};

/// The characters on the keys of one keyboard layout, asked with an empty modifier state.
class KeyboardLayout {
 public:
  /// One layout of the system.
  using Handle = std::intptr_t;
  virtual ~KeyboardLayout() = default;
  /// The layout of the interface thread at this moment.
  virtual Handle Current() = 0;
  /// Writes up to `capacity` 16-bit characters to `text` and returns their count; -1 for a dead key, whose accent is
  /// then written; 0 when the key has no character.
  virtual std::int32_t ToUnicode(std::int32_t virtualKey, std::int32_t scanCode, char16_t* text, std::int32_t capacity,
                                 Handle layout) = 0;
  /// The same in the system's 8-bit code page: 0 for no character, else the character in `result`.
  virtual std::int32_t ToAscii(std::int32_t virtualKey, std::int32_t scanCode, std::uint16_t& result,
                               Handle layout) = 0;
};

}  // namespace plexel
