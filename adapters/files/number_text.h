#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace plexel {

/// The whole number that a text is in decimal, or nothing for anything else and for a number outside the type.
template <typename Number>
std::optional<Number> ParseNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

/// The same with bounds, both included.
template <typename Number>
std::optional<Number> ParseNumber(std::string_view text, Number low, Number high) {
  const std::optional<Number> number = ParseNumber<Number>(text);
  return number && *number >= low && *number <= high ? number : std::nullopt;
}

}  // namespace plexel
