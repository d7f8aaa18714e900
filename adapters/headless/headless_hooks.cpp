#include "headless/headless_hooks.h"

namespace plexel {

std::int32_t HeadlessHooks::Install(HookKind kind, HookProcedure procedure) {
  const Fault fault = kind == HookKind::Keyboard ? Fault::KeyboardHook : Fault::LowLevelHook;
  return faults_.Trips(fault) ? 0 : HookTable::Install(kind, procedure);
}

std::int32_t HeadlessHooks::Remove(std::int32_t hook) {
  return faults_.Trips(Fault::Unhook) ? 0 : HookTable::Remove(hook);
}

}  // namespace plexel
