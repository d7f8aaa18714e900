#include "scancodes/windows_shortcuts.h"

#include <cstddef>
#include <iterator>

namespace plexel {

namespace {

constexpr ShortCut shortCuts[] = {
    {2610, {0x14, 0x11, 0xE0, 0x71}, {0xE0, 0xF0, 0x71, 0xF0, 0x11, 0xF0, 0x14}},  // Ctrl, Alt, Delete
    {2611, {0x11, 0x0D}, {0xF0, 0x0D, 0xF0, 0x11}},                                // Alt, Tab
    {2612, {0x11, 0x76}, {0xF0, 0x76, 0xF0, 0x11}},                                // Alt, Esc
    {2613, {0xE0, 0x1F}, {0xE0, 0xF0, 0x1F}},                                      // left Windows key
    {2614, {0xE0, 0x27}, {0xE0, 0xF0, 0x27}},                                      // right Windows key
    {2615, {0x08}, {0xF0, 0x08}},                                                  // F13
    {2616, {0x10}, {0xF0, 0x10}},
    {2617, {0x18}, {0xF0, 0x18}},
    {2618, {0x20}, {0xF0, 0x20}},
    {2619, {0x28}, {0xF0, 0x28}},
    {2620, {0x30}, {0xF0, 0x30}},
    {2621, {0x38}, {0xF0, 0x38}},
    {2622, {0x40}, {0xF0, 0x40}},
    {2623, {0x48}, {0xF0, 0x48}},
    {2624, {0x50}, {0xF0, 0x50}},
    {2625, {0x57}, {0xF0, 0x57}},
    {2626, {0x5F}, {0xF0, 0x5F}},                                       // F24
    {10928, {0x14, 0x12, 0x76}, {0xF0, 0x76, 0xF0, 0x12, 0xF0, 0x14}},  // Ctrl, Shift, Esc
    {10929, {0x11, 0x0C}, {0xF0, 0x0C, 0xF0, 0x11}},                    // Alt, F4
};

}  // namespace

std::span<const ShortCut> WindowsShortCuts() { return shortCuts; }

void GetWindowsShortCutCodes(KeyCodes& codes, std::int32_t lngIndex) {
  if (lngIndex < 0 || static_cast<std::size_t>(lngIndex) >= std::size(shortCuts)) return;
  const ShortCut& shortCut = shortCuts[lngIndex];
  shortCut.make.WriteTo(codes.make);
  shortCut.breaking.WriteTo(codes.breaking);
}

}  // namespace plexel
