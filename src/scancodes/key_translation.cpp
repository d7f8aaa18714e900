#include "scancodes/key_translation.h"

#include "platform/platform.h"
#include "scancodes/scan_code_table.h"
#include "services/failure_styles.h"
#include "services/module_state.h"

namespace plexel {

namespace {

using scan_code_table::Form;
using scan_code_table::KeySequences;
using scan_code_table::Row;
using scan_code_table::Rule;
namespace variant = scan_code_table::variant;

constexpr std::int32_t virtualKeyShift = 0x10, virtualKeyControl = 0x11, virtualKeyMenu = 0x12, virtualKeyDivide = 0x6F,
                       virtualKeyNumLock = 0x90;

Boolean IsPhysicallyDown(KeyState& keys, std::int32_t virtualKey) {
  return (keys.Asynchronous(virtualKey) & 0x8000) != 0;
}

/// The module state with the modifiers of this moment.
const ModuleState& SampledState() {
  SampleModifierKeys();
  return Module();
}

std::size_t SelectCursorVariant() {
  const ModuleState& state = SampledState();
  if (IsTrue(state.bShiftDown)) return variant::CursorShift;
  return IsTrue(state.bNumLockDown) ? variant::CursorNumLock : variant::CursorPlain;
}

std::size_t SelectPrintVariant() {
  const ModuleState& state = SampledState();
  if (IsTrue(state.bShiftDown) || IsTrue(state.bCtrlDown)) return variant::PrintShiftOrCtrl;
  return IsTrue(state.bAltDown) ? variant::PrintAlt : variant::PrintPlain;
}

/// The variants that the state of the modifier keys may decide.
std::size_t SelectByModifiers(const Row& row, std::int32_t virtualKey) {
  if (row.rule == Rule::Cursor) return SelectCursorVariant();
  if (row.rule == Rule::Print) return SelectPrintVariant();
  if (row.rule == Rule::Divide) {
    if (virtualKey != virtualKeyDivide) return variant::DivideMainBlock;
    return IsTrue(SampledState().bShiftDown) ? variant::DivideShift : variant::DividePlain;
  }
  if (virtualKey == virtualKeyNumLock) return variant::NumLockKey;
  return IsTrue(SampledState().bCtrlDown) ? variant::PauseCtrl : variant::PausePlain;
}

constexpr std::int32_t extendedPrefix = 0xE0, breakPrefix = 0xF0;

inline void Write(const KeySequences& key, KeyCodes& codes) {
  const std::int32_t code = key.code;
  CodeSequence &make = codes.make, &breaking = codes.breaking;
  switch (key.form) {
    case Form::Plain:
      make.codes[0] = code;
      make.length = 1;
      breaking.codes[0] = breakPrefix;
      breaking.codes[1] = code;
      breaking.length = 2;
      break;
    case Form::Extended:
      make.codes[0] = extendedPrefix;
      make.codes[1] = code;
      make.length = 2;
      breaking.codes[0] = extendedPrefix;
      breaking.codes[1] = breakPrefix;
      breaking.codes[2] = code;
      breaking.length = 3;
      break;
    default:  // listed
      key.make.WriteTo(make);
      key.breaking.WriteTo(breaking);
  }
}

/// Apart from the keys that need no question, so that these cost nothing for it.
[[gnu::noinline]] void TranslateByModifiers(const Row& row, std::int32_t virtualKey, KeyCodes& codes) {
  Write(row.variants[SelectByModifiers(row, virtualKey)], codes);
}

}  // namespace

void SampleModifierKeys() {
  EndQuietly([] {
    ModuleState& state = Module();
    KeyState& keys = Platform::Current().Keys();
    state.bShiftDown = IsPhysicallyDown(keys, virtualKeyShift);
    state.bNumLockDown = IsPhysicallyDown(keys, virtualKeyNumLock);
    state.bAltDown = IsPhysicallyDown(keys, virtualKeyMenu);
    state.bCtrlDown = IsPhysicallyDown(keys, virtualKeyControl);
  });
}

void TranslateScanCode(std::int32_t varScanCode, std::int32_t varVirtualKey, std::int32_t lngExtended,
                       KeyCodes& codes) {
  const auto& table = scan_code_table::table;
  if (varScanCode < 0 || static_cast<std::size_t>(varScanCode) >= table.size()) return;
  const Row& row = table[static_cast<std::size_t>(varScanCode)];
  if (row.rule == Rule::Fixed) return Write(row.variants[variant::Only], codes);
  if (row.rule == Rule::Sided) return Write(row.variants[lngExtended != 0 ? variant::Right : variant::Left], codes);
  if (row.rule == Rule::Cursor && varVirtualKey != row.navigationKey) {
    return Write(row.variants[variant::CursorPad], codes);
  }
  if (row.rule != Rule::None) TranslateByModifiers(row, varVirtualKey, codes);
}

}  // namespace plexel
