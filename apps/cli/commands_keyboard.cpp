#include "cli/commands.h"

#include <array>

#include "cli/values_json.h"
#include "scancodes/keyboard_hook.h"

namespace plexel {

namespace {

constexpr std::int32_t LastScanCode = 255;

void SendKey(Workbench& bench, Arguments& arguments, Json&) {
  KeyEvent event;
  event.down = arguments.Choice("down", "up");
  event.virtualKey = arguments.UpTo(KeyRoad::LastVirtualKey, "virtual key");
  event.scanCode = arguments.UpTo(LastScanCode, "scan code");
  event.extended = arguments.Int32() != 0;
  const bool swallowed = bench.Box() != nullptr ? bench.keys.ToHooks(event) : bench.keys.Send(event);
  if (swallowed) bench.ReportSwallowedKey();
}

void CallHook(Workbench&, Arguments& arguments, Json& answer) {
  const std::int32_t code = arguments.Int32();
  const std::int32_t wParam = arguments.Int32();
  answer["result"] = KeyboardHookProc(code, wParam, arguments.Bits32());
}

void CallLowLevelHook(Workbench& bench, Arguments& arguments, Json& answer) {
  const std::int32_t code = arguments.Int32();
  const std::int32_t wParam = arguments.Int32();
  LowLevelKey key;
  key.virtualKey = arguments.Int32();
  key.scanCode = arguments.Int32();
  key.flags = arguments.Bits32();
  const std::int64_t before = bench.platform.Hooks().NextCalls();
  answer["result"] = LowLevelKeyboardProc(code, wParam, reinterpret_cast<std::intptr_t>(&key));
  answer["next"] = bench.platform.Hooks().NextCalls() != before;
}

constexpr auto commands = std::to_array<Command>({{"key", "down|up VK SCAN EXT", 4, 4, SendKey},
                                                  {"hook", "NCODE WPARAM LPARAM", 3, 3, CallHook},
                                                  {"lowhook", "NCODE WPARAM VK SCAN FLAGS", 5, 5, CallLowLevelHook}});

}  // namespace

std::span<const Command> KeyboardCommands() { return commands; }

}  // namespace plexel
