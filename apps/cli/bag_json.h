#pragma once

#include <string>

#include "cli/json.h"
#include "element/property_bag.h"
#include "headless/memory_bag.h"

namespace plexel {

/// A stored bag as a script gives it: whole numbers become 32-bit integers, numbers with a fraction floats, true and
/// false booleans, texts strings. Any other value is there and does not convert: asking for it is a Failure
/// (Conversion).
class ScriptBag : public PropertyBag {
 public:
  explicit ScriptBag(const Json& values);
  const BagValue* Find(std::string_view key) const override;
  void Store(std::string_view key, BagValue value) override;
  void Remove(std::string_view key) override;

 private:
  MemoryBag bag_;
  std::vector<std::string> unreadable_;
};

}  // namespace plexel
