#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "element/property_row.h"

namespace plexel {

/// The element's properties, one row each: what the setters announce, what is stored under which key, and how a
/// property is reached by its name.

/// All rows, in the order of the element's interface.
std::span<const PropertyRow> PropertyTable();

/// The row of a property's name, which is compared exactly; null for an unknown name.
const PropertyRow* FindProperty(std::string_view name);

/// The number of a key under which a property is stored: its place in the order of reading, from 0; StoredKeyCount for
/// any other key.
std::size_t StoredKeyNumber(std::string_view key);
/// The key of a number. std::out_of_range for a number that no key has.
std::string_view StoredKey(std::size_t number);
inline constexpr std::size_t StoredKeyCount = 39;

/// The value of a property, through its getter. Failure (InvalidCall) for an object or a record.
PropertyData Get(const ctlPlexelBaseElement& element, const PropertyRow& row);

/// Assigns through the setter, with its notice and its effects. A number is rounded to the property's type, a text is
/// read as a number. Failure (Overflow) or (Conversion) with the property's name when the value does not convert,
/// Failure (InvalidCall) for an object or a record, and whatever the setter throws.
void Set(ctlPlexelBaseElement& element, const PropertyRow& row, const PropertyData& value);

}  // namespace plexel
