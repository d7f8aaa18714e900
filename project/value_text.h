#pragma once

#include <string>
#include <string_view>

#include "element/property_bag.h"

namespace plexel {

/// A stored value as JSON, with the name of its type as project files have it.
struct TypedJson {
  std::string_view type;
  std::string json;
};

/// Whole numbers are numbers, and so is a boolean: the system's 16 bits. Floats are numbers too but for those that JSON
/// has none for, which are texts: "inf", "-inf", "nan", "-nan". Texts stand as AppendJsonText writes them.
TypedJson JsonOf(const BagValue& value);

}  // namespace plexel
