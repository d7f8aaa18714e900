#include <benchmark/benchmark.h>
#include <xkbcommon/xkbcommon.h>

#include "allocations.h"
#include "files/data_directory.h"
#include "files/language_file.h"
#include "headless/key_road.h"
#include "scancodes/capture.h"
#include "scancodes/dialog_access.h"
#include "scancodes/key_translation.h"
#include "scancodes/keyboard_hook.h"
#include "services/module_state.h"
#include "world.h"

namespace {

using namespace plexel;

struct Key {
  std::int32_t virtualKey, scanCode, extended;
};
constexpr Key keys[] = {{0x41, 0x1E, 0}, {0x11, 0x1D, 0}, {0x0D, 0x1C, 1}, {0x66, 0x4D, 0},
                        {0x70, 0x3B, 0}, {0x5B, 0x5B, 1}, {0x31, 0x02, 0}, {0x87, 0x76, 0}};
constexpr std::size_t KeyCount = sizeof keys / sizeof keys[0];

void TranslateOneScanCode(benchmark::State& state) {
  bench::TheWorld();
  KeyCodes codes;
  std::size_t i = 0;
  const std::int64_t before = bench::Allocations();
  for (auto _ : state) {
    const Key& key = keys[i++ % KeyCount];
    TranslateScanCode(key.scanCode, key.virtualKey, key.extended, codes);
    benchmark::DoNotOptimize(codes.make.codes[0]);
  }
  state.counters["allocations"] = static_cast<double>(bench::Allocations() - before);
}
BENCHMARK(TranslateOneScanCode);

/// A key of the cursor block, for which the state of four keys is asked through the platform's port.
void TranslateOneCursorKey(benchmark::State& state) {
  bench::TheWorld();
  KeyCodes codes;
  for (auto _ : state) {
    TranslateScanCode(0x4D, 0x27, 1, codes);
    benchmark::DoNotOptimize(codes.make.codes[0]);
  }
}
BENCHMARK(TranslateOneCursorKey);

/// The peer: one look-up from key to symbol and the key's change of state, as a toolkit does for each key event.
void PeerXkbcommonKeyToSymbol(benchmark::State& state) {
  xkb_context* context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
  const xkb_rule_names names{"evdev", "pc105", "us", "", ""};
  xkb_keymap* keymap = xkb_keymap_new_from_names(context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
  xkb_state* keyboard = xkb_state_new(keymap);
  constexpr xkb_keycode_t codes[] = {38, 37, 104, 114, 67, 133, 10, 202};
  std::size_t i = 0;
  for (auto _ : state) benchmark::DoNotOptimize(xkb_state_key_get_one_sym(keyboard, codes[i++ % KeyCount]));
  xkb_state_unref(keyboard);
  xkb_keymap_unref(keymap);
  xkb_context_unref(context);
}
BENCHMARK(PeerXkbcommonKeyToSymbol);

void LowLevelHookOfOneKey(benchmark::State& state) {
  bench::TheWorld();
  LowLevelKey record{0x41, 0x1E, 0, 0, 0};
  const std::int64_t before = bench::Allocations();
  for (auto _ : state)
    benchmark::DoNotOptimize(LowLevelKeyboardProc(0, 0x100, reinterpret_cast<std::intptr_t>(&record)));
  state.counters["allocations"] = static_cast<double>(bench::Allocations() - before);
}
BENCHMARK(LowLevelHookOfOneKey);

/// Ctrl+a, four events, from the hook to the cell. The cell and its buffer are emptied after each; that time counts
/// too.
void OneCombinationFromHookToCell(benchmark::State& state) {
  bench::World& world = bench::TheWorld();
  const auto element = world.component.Create("F1", world.host);
  element->ElementType(Oval);
  const udtTactisBaseElement_ScanCodeInfo fresh = element->TactisBaseElementScanCodeBuffer();
  KeyRoad road(world.platform);
  world.platform.Modal().onRun = [&](Form& form) {
    Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
    SetDirectInput(True, 0);
    for (auto _ : state) {
      road.Send({0x11, 0x1D, false, true, 0});
      road.Send({0x41, 0x1E, false, true, 0});
      road.Send({0x41, 0x1E, false, false, 0});
      road.Send({0x11, 0x1D, false, false, 0});
      if (grid.Text().empty()) state.SkipWithError("the combination did not reach the cell");
      grid.Text("");
      element->TactisBaseElementScanCodeBuffer(fresh);
    }
    SetDirectInput(False, 0);
    form.Unload();
  };
  element->OpenConfigurationDialog();
  Module().ctlCurrentElement.reset();
}
BENCHMARK(OneCombinationFromHookToCell);

void OpenAndCloseTheConfigurationDialog(benchmark::State& state) {
  bench::World& world = bench::TheWorld();
  const auto element = world.component.Create("F1", world.host);
  element->ElementType(OvalLed);
  world.surroundings.Language().Source([] { return ReadLanguageFile(DataDirectory() / "languages" / "English.lang"); });
  std::size_t entries = 0;
  world.platform.Modal().onRun = [&entries](Form& form) {
    entries += form.Caption().size();
    form.Unload();
  };
  for (auto _ : state) element->OpenConfigurationDialog();
  if (entries == 0) state.SkipWithError("the dialog did not load");
  Module().ctlCurrentElement.reset();
}
BENCHMARK(OpenAndCloseTheConfigurationDialog)->Unit(benchmark::kMicrosecond);

}  // namespace
