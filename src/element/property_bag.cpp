#include "element/property_bag.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <type_traits>

#include "forms/ascii.h"
#include "services/conversion.h"

namespace plexel {

namespace {

/// The value as a number; a boolean as its 16-bit value.
double ToNumber(const BagValue& value) {
  return std::visit(
      [](const auto& held) -> double {
        using Held = std::remove_cvref_t<decltype(held)>;
        if constexpr (std::is_same_v<Held, std::string>) {
          return TextToNumber(held);
        } else if constexpr (std::is_same_v<Held, Boolean>) {
          return held.Value();
        } else {
          return held;
        }
      },
      value);
}

}  // namespace

std::int32_t BagToInt32(const BagValue& value) {
  if (const auto* same = std::get_if<std::int32_t>(&value)) return *same;
  return RoundToInt32(ToNumber(value));
}

std::int16_t BagToInt16(const BagValue& value) {
  if (const auto* same = std::get_if<std::int16_t>(&value)) return *same;
  return RoundToInt16(ToNumber(value));
}

std::uint8_t BagToUInt8(const BagValue& value) {
  if (const auto* same = std::get_if<std::uint8_t>(&value)) return *same;
  return RoundToUInt8(ToNumber(value));
}

Boolean BagToBoolean(const BagValue& value) {
  if (const auto* same = std::get_if<Boolean>(&value)) return *same;
  if (const auto* text = std::get_if<std::string>(&value)) {
    if (ascii::Same(*text, "true")) return True;
    if (ascii::Same(*text, "false")) return False;
  }
  return ToNumber(value) != 0;
}

std::string BagToString(const BagValue& value) {
  if (const auto* same = std::get_if<std::string>(&value)) return *same;
  std::array<char, 32> text{};
  const auto result = std::to_chars(text.data(), text.data() + text.size(), ToNumber(value));
  return std::string(text.data(), result.ptr);
}

}  // namespace plexel
