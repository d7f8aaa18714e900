#include "element/property_table.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "element/property_rows.h"
#include "platform/failure.h"
#include "services/conversion.h"

namespace plexel {

namespace {

/// An open hash table of the rows, made by the compiler. Length, first and last character tell the names well apart.
constexpr std::size_t slotCount = 128;
constexpr std::uint8_t emptySlot = 0xFF;
static_assert(propertyRows.size() < emptySlot && propertyRows.size() < slotCount / 2);

constexpr std::size_t FirstSlot(std::string_view name) {
  const auto first = static_cast<unsigned char>(name.front()), last = static_cast<unsigned char>(name.back());
  return (name.size() * 5 + first * 11U + last * 3U) % slotCount;
}

constexpr auto slots = [] {
  std::array<std::uint8_t, slotCount> made{};
  made.fill(emptySlot);
  for (std::size_t row = 0; row < propertyRows.size(); ++row) {
    std::size_t slot = FirstSlot(propertyRows[row].name);
    while (made[slot] != emptySlot) slot = (slot + 1) % slotCount;
    made[slot] = static_cast<std::uint8_t>(row);
  }
  return made;
}();

[[noreturn]] void Refuse(const PropertyRow& row) {
  throw Failure(FailureKind::InvalidCall, std::string(row.name) + " is not a value");
}

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

namespace property_access {

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
  if (const auto* number = std::get_if<double>(&value)) return NumberText(*number);
  return std::get<std::string>(value);
}

}  // namespace property_access

std::span<const PropertyRow> PropertyTable() { return propertyRows; }

const PropertyRow* FindProperty(std::string_view name) {
  if (name.empty()) return nullptr;
  for (std::size_t slot = FirstSlot(name); slots[slot] != emptySlot; slot = (slot + 1) % slotCount) {
    const PropertyRow& row = propertyRows[slots[slot]];
    if (row.name == name) return &row;
  }
  return nullptr;
}

PropertyData Get(const ctlPlexelBaseElement& element, const PropertyRow& row) {
  if (row.get == nullptr) Refuse(row);
  return row.get(element);
}

void Set(ctlPlexelBaseElement& element, const PropertyRow& row, const PropertyData& value) {
  if (row.set == nullptr) Refuse(row);
  row.set(element, value, row.name);
}

}  // namespace plexel
