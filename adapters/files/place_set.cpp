#include "files/place_set.h"

#include <algorithm>
#include <bit>
#include <functional>

namespace plexel {

namespace {

constexpr std::size_t fewestSlots = 16;
constexpr std::size_t usualLength = 16;

}  // namespace

PlaceSet::PlaceSet(std::size_t count) : slots_(std::bit_ceil(std::max(2 * count, fewestSlots))) {
  texts_.reserve(count * usualLength);
}

PlaceSet::Slot& PlaceSet::SlotOf(std::string_view place, std::size_t hash) {
  const std::size_t last = slots_.size() - 1;
  for (std::size_t index = hash & last;; index = (index + 1) & last) {
    Slot& slot = slots_[index];
    if (slot.end == 0) return slot;
    const std::string_view text = std::string_view(texts_).substr(slot.start, slot.end - 1 - slot.start);
    if (slot.hash == hash && text == place) return slot;
  }
}

void PlaceSet::Grow() {
  const std::vector<Slot> old = std::move(slots_);
  slots_ = std::vector<Slot>(2 * old.size());
  const std::size_t last = slots_.size() - 1;
  for (const Slot& slot : old) {
    if (slot.end == 0) continue;
    std::size_t index = slot.hash & last;
    while (slots_[index].end != 0) index = (index + 1) & last;
    slots_[index] = slot;
  }
}

bool PlaceSet::Insert(std::string_view place) {
  if (2 * (count_ + 1) > slots_.size()) Grow();
  const std::size_t hash = std::hash<std::string_view>{}(place);
  Slot& slot = SlotOf(place, hash);
  if (slot.end != 0) return false;
  slot = {hash, texts_.size(), texts_.size() + place.size() + 1};
  texts_ += place;
  ++count_;
  return true;
}

}  // namespace plexel
