#include "element/property_access.h"

#include <array>
#include <charconv>

#include "platform/failure.h"
#include "services/conversion.h"

namespace plexel::property_access {

namespace {

/// Runs a conversion with the property's name in its failures.
template <typename Conversion>
auto Named(std::string_view name, Conversion&& conversion) {
  try {
    return conversion();
  } catch (const Failure& failure) {
    throw Failure(failure.Kind(), std::string(name) + ": " + failure.what());
  }
}

template <typename Number>
std::string NumberText(Number value) {
  std::array<char, 32> text{};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

double NumberOf(const PropertyData& value) {
  if (const auto* integer = std::get_if<std::int32_t>(&value)) return *integer;
  if (const auto* number = std::get_if<double>(&value)) return *number;
  return TextToNumber(std::get<std::string>(value));
}

}  // namespace

std::int32_t ToInteger(const PropertyData& value, std::string_view name, std::int32_t low, std::int32_t high) {
  const auto* integer = std::get_if<std::int32_t>(&value);
  const std::int32_t number =
      integer != nullptr ? *integer : Named(name, [&] { return RoundToInt32(NumberOf(value)); });
  if (number < low || number > high) {
    throw Failure(FailureKind::Overflow, std::string(name) + ": " + NumberText(number) + " does not fit its type");
  }
  return number;
}

double ToDouble(const PropertyData& value, std::string_view name) {
  return Named(name, [&] { return NumberOf(value); });
}

std::string ToText(const PropertyData& value) {
  if (const auto* integer = std::get_if<std::int32_t>(&value)) return NumberText(*integer);
  return NumberText(std::get<double>(value));
}

}  // namespace plexel::property_access
