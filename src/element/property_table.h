#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "element/ctlPlexelBaseElement.h"
#include "element/property_bag.h"

namespace plexel {

/// The element's properties, one row each: what the setters announce, what is stored under which key, and how a
/// property is reached by its name.

enum class PropertyType { Int16, Int32, UInt8, Bool, Double, String, Object, Record };

/// What a setter tells the container: nothing, the property's name, or its new value.
enum class NoticeStyle { None, Name, Value };

/// A property's value apart from its type: whole numbers and booleans as an integer, texts as a string.
using PropertyData = std::variant<std::int32_t, double, std::string>;

/// How a property is stored. The orders count from 1, and 0 stands for never. The defaults of strings are empty.
struct Storage {
  std::string_view key;
  std::int32_t readOrder = 0, writeOrder = 0;
  std::int32_t readDefault = 0, writeDefault = 0;
};

struct PropertyRow {
  using Element = ctlPlexelBaseElement;
  std::string_view name;
  PropertyType type;
  NoticeStyle notice;
  Storage storage;
  // How the property is reached, null where it cannot be: an object or a record, and what is never stored.
  PropertyData (*get)(const Element&);
  void (*set)(Element&, const PropertyData&, std::string_view name);
  void (*load)(Element&, const BagValue&);
  BagValue (*save)(const Element&);
};

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
