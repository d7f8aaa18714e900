#pragma once

#include <bitset>
#include <cstdint>
#include <functional>
#include <vector>

#include "platform/keyboard.h"

namespace plexel {

/// The keyboard hooks of this process, called by whoever receives the keys. The last hook installed of a kind is the
/// one that is called.
class HookTable : public KeyboardHooks {
 public:
  std::int32_t Install(HookKind kind, HookProcedure procedure) override;
  std::int32_t Remove(std::int32_t hook) override;
  /// There is no other hook behind ours: 0.
  std::int32_t CallNext(std::int32_t hook, std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam) override;

  /// Takes one key event to the low-level hook and, unless that keeps it, to the keyboard hook. True when the low-level
  /// hook kept the key. `altDown` is the physical state of Alt with this event.
  bool Deliver(const KeyEvent& event, bool altDown);

  /// Whether a hook of a kind is installed.
  bool Installed(HookKind kind) const { return Procedure(kind) != nullptr; }
  /// How often a hook has handed a key on.
  std::int64_t NextCalls() const { return nextCalls_; }

  /// Told after a hook has really been installed or removed.
  std::function<void(HookKind kind, bool installed)> onChange;

 private:
  struct Hook {
    std::int32_t handle = 0;
    HookKind kind{};
    HookProcedure procedure = nullptr;
  };
  HookProcedure Procedure(HookKind kind) const;

  std::vector<Hook> hooks_;
  std::int32_t lastHandle_ = 0x10000;
  std::int64_t nextCalls_ = 0;
  std::bitset<256> down_;
};

}  // namespace plexel
