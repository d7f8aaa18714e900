#include "project/key_stroke.h"

#include <algorithm>

#include "scancodes/scan_code_table.h"

namespace plexel {

namespace {

using namespace scan_code_table;

/// Print is translated under a scan code of its own.
constexpr std::int32_t virtualKeyPrint = 0x2C, scanCodeOfPrint = 0;
constexpr std::int32_t virtualKeyDivide = 0x6F, virtualKeyNumLock = 0x90;
constexpr KeyCode LeftCtrl = 0x14, RightCtrl = 0xE014, LeftAlt = 0x11, RightAlt = 0xE011;
constexpr std::uint8_t extendedPrefix = 0xE0;

/// Of the variants of a key the one without false shifts.
std::size_t VariantOf(const Row& row, const KeyEvent& event, bool ctrl, bool alt) {
  switch (row.rule) {
    case Rule::Sided:
      return event.extended ? variant::Right : variant::Left;
    case Rule::Cursor:
      return event.virtualKey == row.navigationKey ? variant::CursorPlain : variant::CursorPad;
    case Rule::Divide:
      return event.virtualKey == virtualKeyDivide ? variant::DividePlain : variant::DivideMainBlock;
    case Rule::Print:
      return alt ? variant::PrintAlt : variant::PrintPlain;
    case Rule::NumLock:
      if (event.virtualKey == virtualKeyNumLock) return variant::NumLockKey;
      return ctrl ? variant::PauseCtrl : variant::PausePlain;
    default:
      return variant::Only;
  }
}

/// The keys that go down by the bytes of a key.
std::vector<KeyReport> ReportsOf(const KeySequences& sequences) {
  udtTactisBaseElement_TACTIS_SCANCODE buffer;
  const auto put = [&](std::uint8_t byte) { buffer.Value[static_cast<std::size_t>(++buffer.NextValue)] = byte; };
  if (sequences.form == Form::Extended) put(extendedPrefix);
  if (sequences.form != Form::Listed) put(sequences.code);
  for (std::size_t place = 0; place < sequences.make.count; ++place) put(sequences.make.codes[place]);
  std::vector<KeyReport> reports;
  KeyReader().Read(buffer, Direction::Press, reports);
  return reports;
}

}  // namespace

void KeyStroke::Take(const KeyEvent& event) {
  const Held key{event.scanCode, event.extended};
  const bool isHeld = std::ranges::find(held_, key) != held_.end();
  if (event.down == isHeld) return;
  if (!event.down) {
    std::erase(held_, key);
    return;
  }
  if (IsOver()) Reset();
  begun_ = true;
  held_.push_back(key);
  Add(event);
}

void KeyStroke::Add(const KeyEvent& event) {
  const auto has = [this](KeyCode code) { return std::ranges::find(keys_, code) != keys_.end(); };
  const auto scanCode =
      static_cast<std::size_t>(event.virtualKey == virtualKeyPrint ? scanCodeOfPrint : event.scanCode);
  if (scanCode >= table.size() || table[scanCode].rule == Rule::None) return;
  const Row& row = table[scanCode];
  const bool ctrl = has(LeftCtrl) || has(RightCtrl), alt = has(LeftAlt) || has(RightAlt);
  for (const KeyReport& report : ReportsOf(row.variants[VariantOf(row, event, ctrl, alt)])) {
    if (report.deed == KeyDeed::Down && !has(report.code)) keys_.push_back(report.code);
  }
}

}  // namespace plexel
