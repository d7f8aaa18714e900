#pragma once

#include "headless/faults.h"
#include "keyboard/hook_table.h"

namespace plexel {

/// A hook table that can be made to fail.
class HeadlessHooks : public HookTable {
 public:
  /// The faults outlive it.
  explicit HeadlessHooks(Faults& faults) : faults_(faults) {}
  std::int32_t Install(HookKind kind, HookProcedure procedure) override;
  std::int32_t Remove(std::int32_t hook) override;

 private:
  Faults& faults_;
};

}  // namespace plexel
