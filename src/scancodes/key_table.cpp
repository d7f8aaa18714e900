#include "scancodes/key_table.h"

#include "services/module_state.h"

namespace plexel {

namespace {

using Slot = ModuleState::KeySlot;

constexpr std::int32_t virtualKeyPrint = 0x2C;

Slot& SlotAt(std::int32_t place) { return Module().lngPressedKeys[static_cast<std::size_t>(place)]; }

/// From the limit on, new keys land in one scratch slot that is not counted.
void RaiseKeyCount() {
  if (Module().lngPressedKeyCount < MaxPressedKeys) ++Module().lngPressedKeyCount;
}

void TrackKeyUp(std::int32_t virtualKey, std::int32_t extended) {
  const std::int32_t count = Module().lngPressedKeyCount;
  for (std::int32_t place = 0; place <= count; ++place) {
    if (SlotAt(place)[key_field::VirtualKey] == virtualKey) {
      SlotAt(place)[key_field::Down] = 0;
      return;
    }
    // Print reports its release only, so it enters the table here, once for each slot that is passed.
    if (virtualKey == virtualKeyPrint) {
      SlotAt(Module().lngPressedKeyCount) = {virtualKey, 0, 0, extended};
      RaiseKeyCount();
    }
  }
}

void TrackKeyDown(std::int32_t virtualKey, std::int32_t scanCode, std::int32_t extended) {
  const std::int32_t count = Module().lngPressedKeyCount;
  std::int32_t position = count;
  bool found = false;
  for (std::int32_t place = 0; place <= count; ++place) {
    if (SlotAt(place)[key_field::VirtualKey] == virtualKey) {
      found = true;
      position = place;
    }
  }
  SlotAt(position) = {virtualKey, 1, scanCode, extended};
  if (!found) RaiseKeyCount();
}

bool IsKey(const Slot& slot, std::int32_t virtualKey, std::int32_t scanCode, std::int32_t extended) {
  return slot[key_field::VirtualKey] == virtualKey && slot[key_field::ScanCode] == scanCode &&
         slot[key_field::Extended] == extended;
}

}  // namespace

std::int32_t ScanCodeOf(std::int32_t lngParam) { return (lngParam & 0xFF0000) / 65536; }

std::int32_t ExtendedFlagOf(std::int32_t lngParam) { return (lngParam & 0x1000000) / 16777216; }

void TrackKeyEvent(std::int32_t lngVirtualKey, std::int32_t lngParam, std::int32_t lngScanCode,
                   std::int32_t lngExtended) {
  const bool goingUp = lngParam < 0;  // bit 31
  if (goingUp) {
    TrackKeyUp(lngVirtualKey, lngExtended);
  } else {
    TrackKeyDown(lngVirtualKey, lngScanCode, lngExtended);
  }
}

bool AllKeysReleased() {
  for (std::int32_t place = 0; place <= Module().lngPressedKeyCount; ++place) {
    if (SlotAt(place)[key_field::Down] == 1) return false;
  }
  return true;
}

void RemoveAltGrControl() {
  const std::int32_t count = Module().lngPressedKeyCount;
  std::int32_t altGr = 0;
  for (std::int32_t place = 1; place <= count; ++place) {
    if (IsKey(SlotAt(place), 0x12, 0x38, 1)) altGr = place;
  }
  if (altGr < 1 || !IsKey(SlotAt(altGr - 1), 0x11, 0x1D, 0)) return;
  for (std::int32_t place = altGr; place <= count; ++place) SlotAt(place - 1) = SlotAt(place);
  --Module().lngPressedKeyCount;
}

}  // namespace plexel
