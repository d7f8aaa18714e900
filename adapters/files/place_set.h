#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace plexel {

/// The places of a project that have been met. Made for many: all texts lie in one block and the table has no nodes, so
/// a set of thousands costs two allocations and leaves no holes behind.
class PlaceSet {
 public:
  /// A set with room for `count` places, which grows beyond.
  explicit PlaceSet(std::size_t count = 0);
  /// Takes a place; false when the set has it already.
  bool Insert(std::string_view place);

 private:
  struct Slot {
    std::size_t hash = 0;
    std::size_t start = 0;  ///< in the texts
    std::size_t end = 0;    ///< behind the place, from 1; 0 in a free slot
  };
  /// The slot of the place, or the free one where it belongs.
  Slot& SlotOf(std::string_view place, std::size_t hash);
  void Grow();

  std::vector<Slot> slots_;  ///< a power of two, at least half of them free
  std::string texts_;
  std::size_t count_ = 0;
};

}  // namespace plexel
