#include "scancodes/keyboard_hook.h"

#include <cstring>
#include <string>

#include "platform/platform.h"
#include "scancodes/code_type.h"
#include "scancodes/definition_text.h"
#include "scancodes/dialog_access.h"
#include "scancodes/element_codes.h"
#include "scancodes/input_focus.h"
#include "scancodes/key_names.h"
#include "scancodes/key_table.h"
#include "scancodes/key_translation.h"
#include "services/failure_styles.h"
#include "services/module_state.h"

namespace plexel {

namespace {

static_assert(MaxPressedKeys * FixedCodes::Most <= CodeSequence::Size, "no combination leaves its sequence");

std::string NamesOfPressedKeys() {
  std::string names;
  const std::int32_t count = Module().lngPressedKeyCount;
  for (std::int32_t place = 0; place < count; ++place) {
    const auto& slot = Module().lngPressedKeys[static_cast<std::size_t>(place)];
    const std::string name = GetKeyName(slot[key_field::VirtualKey], slot[key_field::ScanCode],
                                        slot[key_field::Extended], Module().lngOsFamily);
    names += name;
    if (place != count - 1 && !name.empty()) names += "+";
  }
  return names;
}

/// Keys come up in the opposite order of going down.
KeyCodes CodesOfPressedKeys() {
  KeyCodes codes, ofKey;  // one pair for all keys: a key without a translation repeats the one before it
  const auto translate = [&](std::int32_t place) {
    const auto& slot = Module().lngPressedKeys[static_cast<std::size_t>(place)];
    TranslateScanCode(slot[key_field::ScanCode], slot[key_field::VirtualKey], slot[key_field::Extended], ofKey);
  };
  const std::int32_t count = Module().lngPressedKeyCount;
  for (std::int32_t place = 0; place < count; ++place) {
    translate(place);
    codes.make.Append(ofKey.make);
  }
  for (std::int32_t place = count; place-- > 0;) {
    translate(place);
    codes.breaking.Append(ofKey.breaking);
  }
  return codes;
}

/// The code type whose option is set, or one that is none.
std::int32_t MarkedCodeType() {
  ConfigurationDialogAccess& dialog = OpenConfigurationDialogAccess();
  for (const std::int32_t codeType : {MakeAndBreak, MakeOnly, BreakOnly}) {
    if (dialog.CodeTypeOption(codeType).Value()) return codeType;
  }
  return FromDialog;
}

void ShowInConfigurationDialog(const std::string& names) {
  std::int32_t codeType = FromDialog;
  PassOver([&] { codeType = MarkedCodeType(); });
  const std::string group = DefinitionGroup(names, codeType);
  if (group == "[]") return;
  PassOver([&] {
    Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
    grid.Text(grid.Text() + group);
  });
  UpdateGridRowMarks();
}

void FinishCombination() {
  RemoveAltGrControl();
  const std::string names = NamesOfPressedKeys();
  const KeyCodes codes = CodesOfPressedKeys();
  Module().lngPressedKeys = {};
  Module().lngPressedKeyCount = 0;

  // A failing store is passed over like every statement here and reports no lack of room, so that the text goes on.
  std::int32_t refused = 0;
  PassOver([&] { refused = StoreScanCodes(codes, FromDialog, 0, Module().lngInputTarget); });
  if (refused != 0) return;

  if (Module().lngInputTarget == TargetConfigurationDialog) ShowInConfigurationDialog(names);
  if (Module().lngInputTarget == TargetWizard) {
    PassOver([&] { OpenWizardPageAccess().ScanCodeBox().Text(names); });
  }
}

bool IsTaskKey(const LowLevelKey& key, bool controlDown) {
  constexpr std::int32_t tab = 0x09, escape = 0x1B, windowsLeft = 0x5B, windowsRight = 0x5C, altDown = 0x20;
  const bool alt = (key.flags & altDown) != 0;
  if (key.virtualKey == escape) return alt || controlDown;
  return (key.virtualKey == tab && alt) || key.virtualKey == windowsLeft || key.virtualKey == windowsRight;
}

bool IsKeyMessage(std::int32_t message) {
  constexpr std::int32_t keyDown = 0x100, keyUp = 0x101, systemKeyDown = 0x104, systemKeyUp = 0x105;
  return message == keyDown || message == keyUp || message == systemKeyDown || message == systemKeyUp;
}

}  // namespace

std::int32_t KeyboardHookProc(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam) {
  const auto flags = static_cast<std::int32_t>(lParam);
  std::int32_t result = 0;
  if (nCode < 0) {
    // The next hook gets 2 for a handle and the address of the flag word.
    PassOver([&] {
      result = Platform::Current().Hooks().CallNext(2, nCode, wParam, reinterpret_cast<std::intptr_t>(&flags));
    });
  }
  if (nCode != 0) return result;
  ParkInputFocus();
  TrackKeyEvent(wParam, flags, ScanCodeOf(flags), ExtendedFlagOf(flags));
  if (AllKeysReleased()) FinishCombination();
  return 0;
}

std::int32_t LowLevelKeyboardProc(std::int32_t nCode, std::int32_t wParam, std::intptr_t lParam) {
  return EndQuietlyWith(std::int32_t{0}, [&](std::int32_t& result) {
    constexpr std::int32_t virtualKeyControl = 0x11, swallowed = -1;
    if (nCode == 0 && IsKeyMessage(wParam)) {
      LowLevelKey& key = Module().udtLowLevelKey;
      std::memcpy(&key, reinterpret_cast<const void*>(lParam), sizeof key);
      const bool controlDown = (Platform::Current().Keys().Synchronous(virtualKeyControl) & 0x8000) != 0;
      if (IsTaskKey(key, controlDown)) {
        result = swallowed;
        return;
      }
    }
    result = Platform::Current().Hooks().CallNext(0, nCode, wParam, lParam);
  });
}

}  // namespace plexel
