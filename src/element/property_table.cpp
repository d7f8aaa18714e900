#include "element/property_table.h"

#include <array>

#include "element/property_rows.h"
#include "platform/failure.h"

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

}  // namespace

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
