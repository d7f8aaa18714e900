#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "element/property_bag.h"

namespace plexel {

/// A property bag in memory, in the order of storing. Storing under a key anew keeps its place.
class MemoryBag : public PropertyBag {
 public:
  /// Keys and values in their order.
  using Entries = std::vector<std::pair<std::string, BagValue>>;
  MemoryBag() = default;
  /// A bag that holds these.
  explicit MemoryBag(Entries entries) : entries_(std::move(entries)) {}

  const BagValue* Find(std::string_view key) const override {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [key](const auto& e) { return e.first == key; });
    return found == entries_.end() ? nullptr : &found->second;
  }
  void Store(std::string_view key, BagValue value) override {
    const auto found = std::find_if(entries_.begin(), entries_.end(), [key](const auto& e) { return e.first == key; });
    if (found == entries_.end()) {
      entries_.emplace_back(key, std::move(value));
    } else {
      found->second = std::move(value);
    }
  }
  void Remove(std::string_view key) override {
    std::erase_if(entries_, [key](const auto& e) { return e.first == key; });
  }
  /// What it holds.
  const Entries& All() const { return entries_; }

 private:
  Entries entries_;
};

}  // namespace plexel
