#include "keyboard/hook_table.h"

#include <algorithm>

namespace plexel {

namespace {

constexpr std::int32_t KeyDownMessage = 0x100, KeyUpMessage = 0x101, SystemKeyDownMessage = 0x104,
                       SystemKeyUpMessage = 0x105;
constexpr std::int32_t FlagExtended = 0x01, FlagAlt = 0x20, FlagUp = 0x80;

LowLevelKey RecordOf(const KeyEvent& event, bool altDown) {
  LowLevelKey record;
  record.virtualKey = event.virtualKey;
  record.scanCode = event.scanCode;
  record.flags = (event.extended ? FlagExtended : 0) | (altDown ? FlagAlt : 0) | (event.down ? 0 : FlagUp);
  record.time = static_cast<std::int32_t>(event.time);
  return record;
}

std::int32_t MessageOf(const KeyEvent& event, bool altDown) {
  if (altDown) return event.down ? SystemKeyDownMessage : SystemKeyUpMessage;
  return event.down ? KeyDownMessage : KeyUpMessage;
}

/// The flag word of a keyboard hook: repeat count 1 and the bits of the event.
std::intptr_t FlagWordOf(const KeyEvent& event, bool altDown, bool wasDown) {
  const std::uint32_t word = 1U | (static_cast<std::uint32_t>(event.scanCode) & 0xFFU) << 16U |
                             (event.extended ? 1U << 24U : 0U) | (altDown ? 1U << 29U : 0U) |
                             (wasDown ? 1U << 30U : 0U) | (event.down ? 0U : 1U << 31U);
  return static_cast<std::int32_t>(word);
}

}  // namespace

std::int32_t HookTable::Install(HookKind kind, HookProcedure procedure) {
  hooks_.push_back({++lastHandle_, kind, procedure});
  const std::int32_t handle = lastHandle_;
  if (onChange) onChange(kind, true);
  return handle;
}

std::int32_t HookTable::Remove(std::int32_t hook) {
  const auto found = std::find_if(hooks_.begin(), hooks_.end(), [hook](const Hook& one) { return one.handle == hook; });
  if (found == hooks_.end()) return 0;
  const HookKind kind = found->kind;
  hooks_.erase(found);
  if (onChange) onChange(kind, false);
  return 1;
}

std::int32_t HookTable::CallNext(std::int32_t, std::int32_t, std::int32_t, std::intptr_t) {
  ++nextCalls_;
  return 0;
}

bool HookTable::Deliver(const KeyEvent& event, bool altDown) {
  const auto key = static_cast<std::size_t>(event.virtualKey) & 0xFFU;
  const bool wasDown = !event.down || down_.test(key);
  if (const HookProcedure lowLevel = Procedure(HookKind::LowLevelKeyboard)) {
    const LowLevelKey record = RecordOf(event, altDown);
    if (lowLevel(0, MessageOf(event, altDown), reinterpret_cast<std::intptr_t>(&record)) != 0) return true;
  }
  down_.set(key, event.down);
  if (const HookProcedure keyboard = Procedure(HookKind::Keyboard)) {
    keyboard(0, event.virtualKey, FlagWordOf(event, altDown, wasDown));
  }
  return false;
}

HookProcedure HookTable::Procedure(HookKind kind) const {
  const auto found = std::find_if(hooks_.rbegin(), hooks_.rend(), [kind](const Hook& one) { return one.kind == kind; });
  return found == hooks_.rend() ? nullptr : found->procedure;
}

}  // namespace plexel
