#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

namespace plexel {

/// Where the search for a name begins in an open hash table. Length, first and last character tell the element's names
/// well apart.
constexpr std::size_t FirstSlotOfName(std::size_t size, unsigned first, unsigned last, std::size_t slots) {
  return (size * 5U + std::size_t{first} * 11U + std::size_t{last} * 3U) % slots;
}

/// Finds the place of a name in a fixed list: an open hash table, made by the compiler.
template <std::size_t Count>
class NameIndex {
 public:
  /// Names that are not empty, none twice; does not compile otherwise.
  explicit consteval NameIndex(const std::array<std::string_view, Count>& names) : names_(names) {
    slots_.fill(Free);
    for (std::size_t place = 0; place < Count; ++place) {
      if (names[place].empty()) throw "a name is empty";
      if (Find(names[place]) != Count) throw "a name stands twice";
      std::size_t slot = FirstSlot(names[place]);
      while (slots_[slot] != Free) slot = (slot + 1) % SlotCount;
      slots_[slot] = static_cast<std::uint8_t>(place);
    }
  }

  /// The place of a name, which is compared exactly; Count for any other text.
  constexpr std::size_t Find(std::string_view name) const {
    if (name.empty()) return Count;
    for (std::size_t slot = FirstSlot(name); slots_[slot] != Free; slot = (slot + 1) % SlotCount) {
      const std::string_view candidate = names_[slots_[slot]];
      // The element asks with the very texts of its table. Where constants lie, the compiler does not know.
      if (!std::is_constant_evaluated()) {
        if (candidate.data() == name.data() && candidate.size() == name.size()) return slots_[slot];
      }
      if (candidate == name) return slots_[slot];
    }
    return Count;
  }
  constexpr std::string_view Name(std::size_t place) const { return names_.at(place); }

 private:
  static constexpr std::size_t SlotCount = 128;
  static constexpr std::uint8_t Free = 0xFF;
  static_assert(Count < Free && Count < SlotCount / 2);

  static constexpr std::size_t FirstSlot(std::string_view name) {
    const auto first = static_cast<unsigned char>(name.front()), last = static_cast<unsigned char>(name.back());
    return FirstSlotOfName(name.size(), first, last, SlotCount);
  }

  std::array<std::string_view, Count> names_;
  std::array<std::uint8_t, SlotCount> slots_{};
};

}  // namespace plexel
