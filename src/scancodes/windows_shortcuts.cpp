#include "scancodes/windows_shortcuts.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>

#include "platform/failure.h"
#include "scancodes/key_translation.h"

namespace plexel {

namespace {

struct ShortCut {
  std::int32_t textId;
  std::int32_t makeLength;
  std::array<std::uint8_t, 4> make;
  std::int32_t breakLength;
  std::array<std::uint8_t, 7> breaking;
};

constexpr std::array<ShortCut, WindowsShortCutCount> shortCuts = {{
    {2610, 4, {0x14, 0x11, 0xE0, 0x71}, 7, {0xE0, 0xF0, 0x71, 0xF0, 0x11, 0xF0, 0x14}},  // Ctrl, Alt, Delete
    {2611, 2, {0x11, 0x0D}, 4, {0xF0, 0x0D, 0xF0, 0x11}},                                // Alt, Tab
    {2612, 2, {0x11, 0x76}, 4, {0xF0, 0x76, 0xF0, 0x11}},                                // Alt, Esc
    {2613, 2, {0xE0, 0x1F}, 3, {0xE0, 0xF0, 0x1F}},                                      // left Windows key
    {2614, 2, {0xE0, 0x27}, 3, {0xE0, 0xF0, 0x27}},                                      // right Windows key
    {2615, 1, {0x08}, 2, {0xF0, 0x08}},                                                  // F13
    {2616, 1, {0x10}, 2, {0xF0, 0x10}},
    {2617, 1, {0x18}, 2, {0xF0, 0x18}},
    {2618, 1, {0x20}, 2, {0xF0, 0x20}},
    {2619, 1, {0x28}, 2, {0xF0, 0x28}},
    {2620, 1, {0x30}, 2, {0xF0, 0x30}},
    {2621, 1, {0x38}, 2, {0xF0, 0x38}},
    {2622, 1, {0x40}, 2, {0xF0, 0x40}},
    {2623, 1, {0x48}, 2, {0xF0, 0x48}},
    {2624, 1, {0x50}, 2, {0xF0, 0x50}},
    {2625, 1, {0x57}, 2, {0xF0, 0x57}},
    {2626, 1, {0x5F}, 2, {0xF0, 0x5F}},                                       // F24
    {10928, 3, {0x14, 0x12, 0x76}, 6, {0xF0, 0x76, 0xF0, 0x12, 0xF0, 0x14}},  // Ctrl, Shift, Esc
    {10929, 2, {0x11, 0x0C}, 4, {0xF0, 0x0C, 0xF0, 0x11}},                    // Alt, F4
}};

template <std::size_t Size>
constexpr bool Fills(const std::array<std::uint8_t, Size>& codes, std::int32_t length) {
  return length > 0 && codes[static_cast<std::size_t>(length) - 1] != 0 &&
         std::all_of(codes.begin() + length, codes.end(), [](std::uint8_t code) { return code == 0; });
}
static_assert(std::ranges::all_of(shortCuts,
                                  [](const ShortCut& shortCut) {
                                    return Fills(shortCut.make, shortCut.makeLength) &&
                                           Fills(shortCut.breaking, shortCut.breakLength);
                                  }),
              "the lengths are those of the codes");

const ShortCut* Find(std::int32_t index) {
  if (index < 0 || index >= WindowsShortCutCount) return nullptr;
  return &shortCuts[static_cast<std::size_t>(index)];
}

}  // namespace

std::int32_t WindowsShortCutTextId(std::int32_t index) {
  const ShortCut* shortCut = Find(index);
  if (shortCut == nullptr) throw Failure(FailureKind::Index, "no shortcut " + std::to_string(index));
  return shortCut->textId;
}

void GetWindowsShortCutCodes(CodeArray& lngMake, std::int32_t& lngMakeLength, CodeArray& lngBreak,
                             std::int32_t& lngBreakLength, std::int32_t lngIndex) {
  const ShortCut* shortCut = Find(lngIndex);
  if (shortCut == nullptr) return;
  std::copy_n(shortCut->make.begin(), shortCut->makeLength, lngMake.begin());
  lngMakeLength = shortCut->makeLength;
  std::copy_n(shortCut->breaking.begin(), shortCut->breakLength, lngBreak.begin());
  lngBreakLength = shortCut->breakLength;
}

}  // namespace plexel
