#pragma once

#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <system_error>
#include <type_traits>
#include <utility>

namespace plexel {

/// The whole number that a text is in decimal, or nothing for anything else and for a number outside the type.
template <typename Number>
std::optional<Number> ParseNumber(std::string_view text) {
  constexpr std::size_t mostDigits = std::numeric_limits<std::int64_t>::digits10;
  if constexpr (std::integral<Number> && sizeof(Number) < sizeof(std::int64_t)) {
    // So few digits fit into 64 bits, and need one look at the bounds.
    bool negative = false;
    if constexpr (std::is_signed_v<Number>) negative = text.starts_with('-');
    const std::string_view digits = text.substr(negative ? 1 : 0);
    if (digits.size() <= mostDigits) {
      std::int64_t value = 0;
      for (const char c : digits) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + (c - '0');
      }
      if (negative) value = -value;
      const bool fits = !digits.empty() && std::in_range<Number>(value);
      return fits ? std::optional<Number>(static_cast<Number>(value)) : std::nullopt;
    }
  }
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

/// The same with bounds, both included.
template <typename Number>
std::optional<Number> ParseNumber(std::string_view text, Number low, Number high) {
  const std::optional<Number> number = ParseNumber<Number>(text);
  if (!number || *number < low || *number > high) return std::nullopt;
  return number;
}

}  // namespace plexel
