#include "element/property_table.h"

#include <array>

#include "element/name_index.h"
#include "element/property_rows.h"
#include "platform/failure.h"

namespace plexel {

namespace {

constexpr NameIndex rowIndex{[] {
  std::array<std::string_view, propertyRows.size()> names;
  for (std::size_t row = 0; row < names.size(); ++row) names[row] = propertyRows[row].name;
  return names;
}()};

/// The keys in the order in which an element reads them.
constexpr NameIndex keyIndex{[] {
  std::array<std::string_view, StoredKeyCount> keys;
  for (const PropertyRow& row : propertyRows) {
    if (row.storage.readOrder != 0) keys.at(static_cast<std::size_t>(row.storage.readOrder - 1)) = row.storage.key;
  }
  return keys;
}()};

[[noreturn]] void Refuse(const PropertyRow& row) {
  throw Failure(FailureKind::InvalidCall, std::string(row.name) + " is not a value");
}

}  // namespace

std::span<const PropertyRow> PropertyTable() { return propertyRows; }

const PropertyRow* FindProperty(std::string_view name) {
  const std::size_t row = rowIndex.Find(name);
  return row < propertyRows.size() ? &propertyRows[row] : nullptr;
}

std::size_t StoredKeyNumber(std::string_view key) { return keyIndex.Find(key); }

std::string_view StoredKey(std::size_t number) { return keyIndex.Name(number); }

PropertyData Get(const ctlPlexelBaseElement& element, const PropertyRow& row) {
  if (row.get == nullptr) Refuse(row);
  return row.get(element);
}

void Set(ctlPlexelBaseElement& element, const PropertyRow& row, const PropertyData& value) {
  if (row.set == nullptr) Refuse(row);
  row.set(element, value, row.name);
}

}  // namespace plexel
