#include "scancodes/capture.h"

#include <utility>

#include "element/element_access.h"
#include "platform/clean_up.h"
#include "platform/platform.h"
#include "scancodes/input_focus.h"
#include "scancodes/key_table.h"
#include "scancodes/keyboard_hook.h"
#include "services/failure_styles.h"
#include "services/module_state.h"
#include "services/setting_table.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

void StartCapture(std::int32_t& result, Boolean bActive, std::int32_t target) {
  ModuleState& state = Module();
  if (IsTrue(GetOption(OptionLockTaskKeys))) {
    state.lngLowLevelHook = Platform::Current().Hooks().Install(HookKind::LowLevelKeyboard, LowLevelKeyboardProc);
  }
  state.lngKeyboardHook = Platform::Current().Hooks().Install(HookKind::Keyboard, KeyboardHookProc);
  result = state.lngKeyboardHook;
  if (state.lngKeyboardHook == 0) return;

  state.HelpFile.clear();
  CatchFocus(target);
  ElementAccess::RaiseDirectInputStatusChanged(CurrentElement(), bActive);
  // The release of the key that switched capture on must not end a combination: no key is up before one has gone down.
  state.lngPressedKeys[0][key_field::Down] = 1;
  state.lngInputTarget = target;
}

void StopCapture(std::int32_t& result, Boolean bActive, std::int32_t target) {
  ModuleState& state = Module();
  KeyboardHooks& hooks = Platform::Current().Hooks();
  if (state.lngLowLevelHook != 0) state.lngLowLevelHook = hooks.Remove(state.lngLowLevelHook);
  state.lngKeyboardHook = hooks.Remove(state.lngKeyboardHook);
  result = state.lngKeyboardHook;
  if (state.lngKeyboardHook == 0) return;

  state.lngKeyboardHook = 0;
  state.lngLowLevelHook = 0;
  ElementAccess::RaiseDirectInputStatusChanged(CurrentElement(), bActive);
  state.HelpFile = HelpFileName();
  ReturnFocus(target);
  // The extended flag stays: it is written before it is read.
  for (ModuleState::KeySlot& slot : state.lngPressedKeys) {
    slot[key_field::VirtualKey] = slot[key_field::Down] = slot[key_field::ScanCode] = 0;
  }
  state.lngPressedKeyCount = 0;
}

}  // namespace

std::int32_t SetDirectInput(Boolean bActive, std::int32_t lngTarget) {
  const auto setUnlessItFails = [&] {
    return EndQuietlyWith(std::int32_t{0}, [&](std::int32_t& result) {
      const bool on = Module().lngKeyboardHook != 0;
      if (bActive == True && !on) StartCapture(result, bActive, lngTarget);
      if (bActive == False && on) StopCapture(result, bActive, lngTarget);
    });
  };
  return OrUndo(setUnlessItFails, AbandonCapture);
}

void DropCapture() {
  ModuleState& state = Module();
  const std::int32_t lowLevelHook = std::exchange(state.lngLowLevelHook, 0);
  const std::int32_t keyboardHook = std::exchange(state.lngKeyboardHook, 0);
  state.bDirectInputActive = False;
  state.lngPressedKeys = {};
  state.lngPressedKeyCount = 0;
  const auto remove = [](std::int32_t hook) {
    if (hook != 0) Platform::Current().Hooks().Remove(hook);
  };
  AndThen([&] { remove(lowLevelHook); }, [&] { remove(keyboardHook); });
}

void AbandonCapture() {
  const bool captured = Module().lngKeyboardHook != 0;
  DropCapture();
  if (captured) EndQuietly([] { ElementAccess::RaiseDirectInputStatusChanged(CurrentElement(), False); });
}

}  // namespace plexel
