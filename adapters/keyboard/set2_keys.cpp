#include "keyboard/set2_keys.h"

#include <algorithm>
#include <array>

#include "keyboard/key_table.h"
#include "scancodes/scan_code_table.h"

namespace plexel {

namespace {

constexpr std::uint32_t extendedPrefix = 0xE000;

struct SpecialRow {
  std::uint32_t code;
  int evdev;
};
/// The keys whose code does not follow from their place: those that change with Shift, Ctrl or Alt, Num Lock, which the
/// hooks of a PC report as an extended key, and F24, which shares its scan code with a key of Japanese keyboards.
constexpr int f24 = 194;
constexpr auto specialRows = std::to_array<SpecialRow>({{0x5F, f24},
                                                        {0x77, evdev::NumLock},
                                                        {0x84, evdev::Print},
                                                        {0xE07C, evdev::Print},
                                                        {0xE07E, evdev::Pause},
                                                        {0xE11477, evdev::Pause}});

/// The byte of set 2 for a scan code of set 1, which is the same with and without a prefix; 0 for none.
std::uint8_t ByteOf(std::int32_t scanCode) {
  using namespace scan_code_table;
  for (const ScanCodePair& key : plainKeys) {
    if (key.scanCode == scanCode) return key.code;
  }
  for (const CursorKey& key : cursorKeys) {
    if (key.scanCode == scanCode) return key.code;
  }
  constexpr auto others = std::to_array<ScanCodePair>(
      {{0x1C, 0x5A}, {0x1D, 0x14}, {0x35, 0x4A}, {0x38, 0x11}, {0x5B, 0x1F}, {0x5C, 0x27}, {0x5D, 0x2F}});
  const auto* const found = std::ranges::find(others, scanCode, &ScanCodePair::scanCode);
  return found == others.end() ? std::uint8_t{0} : found->code;
}

}  // namespace

std::optional<int> KeyOfSet2(std::uint32_t code) {
  const auto* const special = std::ranges::find(specialRows, code, &SpecialRow::code);
  if (special != specialRows.end()) return special->evdev;
  for (const KeyPosition& key : KeyPositions()) {
    const bool listed = std::ranges::find(specialRows, key.evdev, &SpecialRow::evdev) != specialRows.end();
    const std::uint8_t byte = listed ? std::uint8_t{0} : ByteOf(key.scanCode);
    if (byte != 0 && (byte | (key.extended ? extendedPrefix : 0U)) == code) return key.evdev;
  }
  return std::nullopt;
}

}  // namespace plexel
