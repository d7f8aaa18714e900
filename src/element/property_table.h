#pragma once

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

/// The value of a property, through its getter. Failure (InvalidCall) for an object or a record.
PropertyData Get(const ctlPlexelBaseElement& element, const PropertyRow& row);

/// Assigns through the setter, with its notice and its effects. A number is rounded to the property's type, a text is
/// read as a number. Failure (Overflow) or (Conversion) with the property's name when the value does not convert,
/// Failure (InvalidCall) for an object or a record, and whatever the setter throws.
void Set(ctlPlexelBaseElement& element, const PropertyRow& row, const PropertyData& value);

}  // namespace plexel
