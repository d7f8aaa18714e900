#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "element/property_bag.h"
#include "element/property_table.h"

namespace plexel {

/// A property bag in memory, made for many elements: the keys of the element's properties are kept as numbers, and a
/// value is found without a search. Other keys are kept as they are.
class FlatBag : public PropertyBag {
 public:
  const BagValue* Find(std::string_view key) const override;
  const BagValue* FindOwn(std::size_t place, std::string_view key) const override;
  void Store(std::string_view key, BagValue value) override;
  void Remove(std::string_view key) override;

  /// Stores under the number of a key, or under another key; false when the bag holds that key already.
  bool StoreNew(std::size_t number, BagValue&& value);
  bool StoreNew(std::string_view key, BagValue&& value);

  /// Lets go of every value and keeps the room.
  void Clear();

  /// The number of values.
  std::size_t Size() const { return known_.size() + other_.size(); }
  /// Calls `visitOwn(key, value)` for the keys of properties in the order in which they were first stored, then
  /// `visitOther(key, value)` for all others.
  template <typename VisitOwn, typename VisitOther>
  void ForEach(VisitOwn&& visitOwn, VisitOther&& visitOther) const {
    for (const auto& [number, value] : known_) visitOwn(StoredKey(number), value);
    for (const auto& [key, value] : other_) visitOther(std::string_view(key), value);
  }

  /// Equal when the same keys were stored with the same values in the same order.
  bool operator==(const FlatBag& other) const { return known_ == other.known_ && other_ == other.other_; }

 private:
  const BagValue* FindOther(std::string_view key) const;

  std::array<std::uint8_t, StoredKeyCount> places_{};  ///< in `known_`, from 1; 0 for a key that is not stored
  std::vector<std::pair<std::uint8_t, BagValue>> known_;
  std::vector<std::pair<std::string, BagValue>> other_;
};

}  // namespace plexel
