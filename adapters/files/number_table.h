#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/ascii.h"

namespace plexel {

/// A hash of a name, whatever the case of its letters A to Z. Names that count upwards lie side by side, as they are
/// written and asked for.
constexpr std::uint32_t HashOfName(std::string_view name) {
  std::uint32_t hash = 0;
  for (const char c : name) hash = hash * 31 + static_cast<unsigned char>(ascii::Lower(c));
  return hash;
}

/// Finds things that are kept by number, from 1, by a hash of 32 bits. One block without nodes, made for many.
class NumberTable {
 public:
  /// A table with room for `count` numbers, which grows beyond.
  explicit NumberTable(std::size_t count = 0) : slots_(std::bit_ceil(std::max(2 * count, FewestSlots))) {}

  /// The number under this hash for which `same(number)` holds, or 0.
  template <typename Same>
  std::uint32_t Find(std::uint32_t hash, Same&& same) const {
    return slots_[IndexOf(slots_, hash, same)].number;
  }

  /// Enters a number under a hash; false when there is one already for which `same` holds.
  template <typename Same>
  bool Enter(std::uint32_t hash, std::uint32_t number, Same&& same) {
    if (2 * (count_ + 1) > slots_.size()) Grow();
    Slot& slot = slots_[IndexOf(slots_, hash, same)];
    if (slot.number != 0) return false;
    slot = {hash, number};
    ++count_;
    return true;
  }

 private:
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t number = 0;  ///< 0 in a free slot
  };
  static constexpr std::size_t FewestSlots = 16;

  /// Where the number stands, or the free slot where it belongs.
  template <typename Same>
  static std::size_t IndexOf(const std::vector<Slot>& table, std::uint32_t hash, Same&& same) {
    const std::size_t last = table.size() - 1;
    std::size_t index = hash & last;
    while (table[index].number != 0 && (table[index].hash != hash || !same(table[index].number))) {
      index = (index + 1) & last;
    }
    return index;
  }

  void Grow() {
    std::vector<Slot> larger(2 * slots_.size());
    for (const Slot& slot : slots_) {
      if (slot.number != 0) larger[IndexOf(larger, slot.hash, [](std::uint32_t) { return false; })] = slot;
    }
    slots_ = std::move(larger);
  }

  std::vector<Slot> slots_;  ///< a power of two, at least half of them free
  std::size_t count_ = 0;
};

}  // namespace plexel
