#include "scancodes/key_translation.h"

#include "platform/platform.h"
#include "scancodes/scan_code_table.h"
#include "services/failure_styles.h"
#include "services/module_state.h"

namespace plexel {

namespace {

using scan_code_table::Row;
using scan_code_table::Rule;
using scan_code_table::Sequence;
namespace variant = scan_code_table::variant;

constexpr std::int32_t virtualKeyShift = 0x10, virtualKeyControl = 0x11, virtualKeyMenu = 0x12, virtualKeyDivide = 0x6F,
                       virtualKeyNumLock = 0x90;

Boolean IsPhysicallyDown(KeyState& keys, std::int32_t virtualKey) {
  return ToBoolean((keys.Asynchronous(virtualKey) & 0x8000) != 0);
}

std::size_t SelectVariant(const Row& row, std::int32_t virtualKey, std::int32_t extended) {
  const ModuleState& state = Module();
  switch (row.rule) {
    case Rule::None:
    case Rule::Fixed:
      break;
    case Rule::Sided:
      return extended != 0 ? variant::Right : variant::Left;
    case Rule::Cursor:
      if (virtualKey != row.navigationKey) return variant::CursorPad;
      SampleModifierKeys();
      if (IsTrue(state.bShiftDown)) return variant::CursorShift;
      return IsTrue(state.bNumLockDown) ? variant::CursorNumLock : variant::CursorPlain;
    case Rule::Divide:
      if (virtualKey != virtualKeyDivide) return variant::DivideMainBlock;
      SampleModifierKeys();
      return IsTrue(state.bShiftDown) ? variant::DivideShift : variant::DividePlain;
    case Rule::Print:
      SampleModifierKeys();
      if (IsTrue(state.bShiftDown) || IsTrue(state.bCtrlDown)) return variant::PrintShiftOrCtrl;
      return IsTrue(state.bAltDown) ? variant::PrintAlt : variant::PrintPlain;
    case Rule::NumLock:
      if (virtualKey == virtualKeyNumLock) return variant::NumLockKey;
      SampleModifierKeys();
      return IsTrue(state.bCtrlDown) ? variant::PauseCtrl : variant::PausePlain;
  }
  return variant::Only;
}

void Write(const Sequence& sequence, CodeArray& codes, std::int32_t& length) {
  for (std::size_t place = 0; place < sequence.count; ++place) codes[place] = sequence.codes[place];
  if (sequence.length != Sequence::Untouched) length = sequence.length;
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
                       CodeArray& lngMake, std::int32_t& varMakeLength, CodeArray& lngBreak,
                       std::int32_t& varBreakLength) {
  const auto& table = scan_code_table::table;
  if (varScanCode < 0 || static_cast<std::size_t>(varScanCode) >= table.size()) return;
  const Row& row = table[static_cast<std::size_t>(varScanCode)];
  if (row.rule == Rule::None) return;
  const auto& sequences = row.variants[SelectVariant(row, varVirtualKey, lngExtended)];
  Write(sequences.make, lngMake, varMakeLength);
  Write(sequences.breaking, lngBreak, varBreakLength);
}

}  // namespace plexel
