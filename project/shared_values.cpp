#include "project/shared_values.h"

#include <algorithm>

#include "element/ctlPlexelBaseElement.h"

namespace plexel {

namespace {

constexpr std::int32_t keyNumbers = 8, noKeyNumber = -1;

}  // namespace

std::vector<SharedValue> SharedValuesOf(const ctlPlexelBaseElement& element) {
  std::vector<SharedValue> values;
  const auto add = [&values](SharedValue::Kind kind, std::int32_t value) {
    const SharedValue one{kind, static_cast<std::uint32_t>(value)};
    if (std::ranges::find(values, one) == values.end()) values.push_back(one);
  };
  const std::int32_t kind = element.ElementType();
  if (HasLed(kind)) {
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      const enumLedType type = element.LEDTypeLayer(layer);
      if (type != LedNotEnabled) add(static_cast<SharedValue::Kind>(layer - 1), type);
    }
    if (element.HardwareNumberLed() != 0) add(SharedValue::Kind::LedNumber, element.HardwareNumberLed());
  }
  if (IsKey(kind) && element.HardwareNumberButton() != 0) {
    add(SharedValue::Kind::Button, element.HardwareNumberButton());
  }
  if (kind == Key) {
    for (std::int32_t index = 0; index < keyNumbers; ++index) {
      const std::int32_t number = element.HardwareNumberKeyAt(index);
      if (number != noKeyNumber) add(SharedValue::Kind::KeyNumber, number);
    }
  }
  return values;
}

void SharedValues::Add(std::uint32_t element, std::span<const SharedValue> values) {
  for (const SharedValue& value : values) {
    Elements& holders = holders_[value];
    holders.insert(std::ranges::lower_bound(holders, element), element);
  }
}

void SharedValues::Remove(std::uint32_t element, std::span<const SharedValue> values) {
  for (const SharedValue& value : values) {
    const auto found = holders_.find(value);
    if (found == holders_.end()) continue;
    std::erase(found->second, element);
    if (found->second.empty()) holders_.erase(found);
  }
}

const SharedValues::Elements& SharedValues::Holders(const SharedValue& value) const {
  static const Elements none;
  const auto found = holders_.find(value);
  return found == holders_.end() ? none : found->second;
}

}  // namespace plexel
