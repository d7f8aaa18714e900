#include "headless/headless_keys.h"

#include <limits>

#include "forms/control.h"

namespace plexel {

namespace {
constexpr std::int32_t ShiftKey = 0x10, ControlKey = 0x11, AltKey = 0x12;
constexpr std::int16_t DownBit = std::numeric_limits<std::int16_t>::min();
}  // namespace

bool HeadlessKeys::IsDown(std::int32_t virtualKey) const {
  return virtualKey >= 0 && virtualKey < 256 && down_[static_cast<std::size_t>(virtualKey)];
}

std::int16_t HeadlessKeys::ShiftState() const {
  return static_cast<std::int16_t>((IsDown(ShiftKey) ? key::ShiftBit : 0) | (IsDown(ControlKey) ? key::ControlBit : 0) |
                                   (IsDown(AltKey) ? key::AltBit : 0));
}

std::int16_t HeadlessKeys::Ask(std::int32_t virtualKey) {
  faults_.Check(Fault::Keys);
  return IsDown(virtualKey) ? DownBit : std::int16_t{0};
}

void HeadlessKeys::Set(std::int32_t virtualKey, bool down) {
  if (virtualKey >= 0 && virtualKey < 256) down_.set(static_cast<std::size_t>(virtualKey), down);
}

}  // namespace plexel
