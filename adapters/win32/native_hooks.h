#pragma once

#include <cstdint>

#include "platform/keyboard.h"
#include "win32/form_desk.h"

namespace plexel {

/// The system's keyboard hooks: that of this thread, and the low-level one. Of each kind one procedure is known, the
/// one installed last. What a procedure throws goes to the desk of whoever installed it.
class NativeHooks : public KeyboardHooks {
 public:
  explicit NativeHooks(FormDesk& desk) : desk_(desk) {}
  /// Takes what it has still installed away.
  ~NativeHooks() override;
  NativeHooks(const NativeHooks&) = delete;
  NativeHooks& operator=(const NativeHooks&) = delete;

  std::int32_t Install(HookKind kind, HookProcedure procedure) override;
  std::int32_t Remove(std::int32_t hook) override;
  std::int32_t CallNext(std::int32_t hook, std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam) override;

 private:
  FormDesk& desk_;
};

/// Whether a keyboard hook of the thread is installed.
bool KeyboardHookRuns();

}  // namespace plexel
