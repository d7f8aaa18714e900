#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "files/number_table.h"

namespace plexel {

/// The places of a project that have been met. All texts lie in one block, so a set of thousands leaves no holes
/// behind.
class PlaceSet {
 public:
  /// A set with room for `count` places, which grows beyond.
  explicit PlaceSet(std::size_t count = 0);
  /// Takes a place; false when the set has it already.
  bool Insert(std::string_view place);

 private:
  NumberTable numbers_;
  std::vector<std::size_t> ends_;  ///< of the places in the texts, by number, with 0 ahead of the first
  std::string texts_;
};

}  // namespace plexel
