#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "services/boolean.h"

namespace plexel {

/// A value in a property bag, of the type in which it was written: int16, int32, uint8, boolean, string, or a float
/// that only a foreign writer stores.
using BagValue = std::variant<std::int16_t, std::int32_t, std::uint8_t, Boolean, double, std::string>;

/// The container's store of one element's values. Its serial form is the container's.
class PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  /// The stored value of the key, or null when it is absent. The pointer holds until the bag changes.
  virtual const BagValue* Find(std::string_view key) const = 0;
  /// The same for a key of the element's own, with its place in the order of reading, from 0. A bag that keeps its
  /// values by place finds them without comparing texts.
  virtual const BagValue* FindOwn(std::size_t /*place*/, std::string_view key) const { return Find(key); }
  /// Stores a value under a key.
  virtual void Store(std::string_view key, BagValue value) = 0;
  /// Takes the value of a key away; nothing happens when there is none. An element that is written takes away what it
  /// leaves out, so that a bag that is written again holds the values that a new one would.
  virtual void Remove(std::string_view key) = 0;
};

/// Conversions of a stored value, as the element reads it. Failure (Conversion) or (Overflow) for a value that does not
/// convert. A boolean keeps its 16-bit value; of a text for
/// a boolean "True" and "False" in any case count too; any other value that is not 0 becomes true.
std::int32_t BagToInt32(const BagValue& value);
std::int16_t BagToInt16(const BagValue& value);
std::uint8_t BagToUInt8(const BagValue& value);
Boolean BagToBoolean(const BagValue& value);
std::string BagToString(const BagValue& value);

}  // namespace plexel
