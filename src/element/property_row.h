#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "element/ctlPlexelBaseElement.h"
#include "element/property_bag.h"

namespace plexel {

/// What the table of the element's properties tells of each.

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

}  // namespace plexel
