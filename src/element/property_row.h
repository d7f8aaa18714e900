#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "element/ctlPlexelBaseElement.h"
#include "element/property_bag.h"

namespace plexel {

/// What the table of the element's properties tells of each.

/// The type of a property's value.
enum class PropertyType { Int16, Int32, UInt8, Bool, Double, String, Object, Record };

/// What a setter tells the container: nothing, the property's name, or its new value.
enum class NoticeStyle { None, Name, Value };

/// A property's value apart from its type: whole numbers and booleans as an integer, texts as a string.
using PropertyData = std::variant<std::int32_t, double, std::string>;

/// How a property is stored. The orders count from 1, and 0 stands for never. Strings have no defaults here, theirs are
/// empty.
struct Storage {
  /// The key in a bag; empty for what is never stored.
  std::string_view key;
  /// The place in the order of reading and of writing.
  std::int32_t readOrder = 0, writeOrder = 0;
  /// What a missing key is read as, and the value that is not written.
  std::int32_t readDefault = 0, writeDefault = 0;
};

/// One property of the element.
struct PropertyRow {
  /// Whose property it is.
  using Element = ctlPlexelBaseElement;
  /// The name, as in the element's interface.
  std::string_view name;
  /// The type of the value.
  PropertyType type;
  /// What the setter tells the container.
  NoticeStyle notice;
  /// How the value is stored.
  Storage storage;
  /// How the property is reached, null where it cannot be: an object or a record, and what is never stored.
  PropertyData (*get)(const Element&);
  void (*set)(Element&, const PropertyData&, std::string_view name);
  void (*load)(Element&, const BagValue&);
  BagValue (*save)(const Element&);
  /// Sets a whole number or a boolean that lies in the range of its type; null for a property of another type.
  void (*setWhole)(Element&, std::int32_t);
};

}  // namespace plexel
