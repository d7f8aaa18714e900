#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <unordered_map>
#include <vector>

#include "project/problem.h"

namespace plexel {

class ctlPlexelBaseElement;

/// Whether elements of a kind have an LED, or are keys.
constexpr bool HasLed(std::int32_t kind) { return kind == Led || kind == OvalLed || kind == RectLed; }
constexpr bool IsKey(std::int32_t kind) { return kind >= Oval && kind <= RectLed; }

/// Something that one element alone should hold: a hardware number, or the LED function of a layer.
struct SharedValue {
  enum class Kind : std::uint8_t { Led1, Led2, Led3, Led4, Button, LedNumber, KeyNumber };
  Kind kind{};
  std::uint32_t value{};
  bool operator==(const SharedValue&) const = default;
};

struct SharedValueHash {
  std::size_t operator()(const SharedValue& value) const {
    return std::hash<std::uint64_t>()(static_cast<std::uint64_t>(value.kind) << 32U | value.value);
  }
};

/// What an element holds, each value once.
std::vector<SharedValue> SharedValuesOf(const ctlPlexelBaseElement& element);

/// Who holds which value.
class SharedValues {
 public:
  using Elements = std::vector<std::uint32_t>;

  void Add(std::uint32_t element, std::span<const SharedValue> values);
  /// Takes back what was added for an element, as far as it was.
  void Remove(std::uint32_t element, std::span<const SharedValue> values);
  /// The elements that hold a value, in their order.
  const Elements& Holders(const SharedValue& value) const;

 private:
  std::unordered_map<SharedValue, Elements, SharedValueHash> holders_;
};

}  // namespace plexel
