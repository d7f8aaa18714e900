#include "files/flat_bag.h"

#include <algorithm>

#include "element/property_rows.h"

namespace plexel {

namespace {

/// The keys in the order in which an element reads them.
constexpr auto keys = [] {
  std::array<std::string_view, BagKeyCount> made{};
  std::size_t count = 0;
  for (const PropertyRow& row : propertyRows) {
    if (row.storage.readOrder == 0) continue;
    made.at(static_cast<std::size_t>(row.storage.readOrder - 1)) = row.storage.key;
    ++count;
  }
  if (count != BagKeyCount) throw "the number of keys has changed";
  return made;
}();

/// An open hash table of the keys, made by the compiler.
constexpr std::size_t SlotCount = 128;
constexpr std::uint8_t EmptySlot = BagKeyCount;

constexpr std::size_t FirstSlot(std::string_view key) {
  const auto first = static_cast<unsigned char>(key.front());
  const auto last = static_cast<unsigned char>(key.back());
  return (key.size() * 5U + first * 11U + last * 3U) % SlotCount;
}

constexpr auto slots = [] {
  std::array<std::uint8_t, SlotCount> made{};
  made.fill(EmptySlot);
  for (std::size_t number = 0; number < keys.size(); ++number) {
    std::size_t slot = FirstSlot(keys[number]);
    while (made[slot] != EmptySlot) slot = (slot + 1) % SlotCount;
    made[slot] = static_cast<std::uint8_t>(number);
  }
  return made;
}();

/// Room for what an ordinary element stores.
constexpr std::size_t UsualSize = 24;

}  // namespace

std::size_t BagKeyNumber(std::string_view key) {
  if (key.empty()) return BagKeyCount;
  for (std::size_t slot = FirstSlot(key); slots[slot] != EmptySlot; slot = (slot + 1) % SlotCount) {
    const std::string_view candidate = keys[slots[slot]];
    // The element asks with the very texts of its table.
    if (candidate.data() == key.data() && candidate.size() == key.size()) return slots[slot];
    if (candidate == key) return slots[slot];
  }
  return BagKeyCount;
}

std::string_view BagKey(std::size_t number) { return keys.at(number); }

const BagValue* FlatBag::FindOwn(std::size_t place, std::string_view) const {
  const std::size_t index = places_.at(place);
  return index == 0 ? nullptr : &known_[index - 1].second;
}

const BagValue* FlatBag::FindOther(std::string_view key) const {
  const auto found =
      std::find_if(other_.begin(), other_.end(), [key](const auto& entry) { return entry.first == key; });
  return found == other_.end() ? nullptr : &found->second;
}

const BagValue* FlatBag::Find(std::string_view key) const {
  const std::size_t number = BagKeyNumber(key);
  return number < BagKeyCount ? FindOwn(number, key) : FindOther(key);
}

bool FlatBag::StoreNew(std::size_t number, BagValue&& value) {
  std::uint8_t& place = places_.at(number);
  if (place != 0) return false;
  if (known_.empty()) known_.reserve(UsualSize);
  known_.emplace_back(static_cast<std::uint8_t>(number), std::move(value));
  place = static_cast<std::uint8_t>(known_.size());
  return true;
}

bool FlatBag::StoreNew(std::string_view key, BagValue&& value) {
  const std::size_t number = BagKeyNumber(key);
  if (number < BagKeyCount) return StoreNew(number, std::move(value));
  if (FindOther(key) != nullptr) return false;
  other_.emplace_back(key, std::move(value));
  return true;
}

void FlatBag::Clear() {
  places_.fill(0);
  known_.clear();
  other_.clear();
}

void FlatBag::Remove(std::string_view key) {
  const std::size_t number = BagKeyNumber(key);
  if (number == BagKeyCount) {
    std::erase_if(other_, [key](const auto& entry) { return entry.first == key; });
    return;
  }
  const std::uint8_t removed = std::exchange(places_.at(number), std::uint8_t{0});
  if (removed == 0) return;
  known_.erase(known_.begin() + (removed - 1));
  for (std::uint8_t& place : places_) {
    if (place > removed) --place;
  }
}

void FlatBag::Store(std::string_view key, BagValue value) {
  const std::size_t number = BagKeyNumber(key);
  const BagValue* const stored = number < BagKeyCount ? FindOwn(number, key) : FindOther(key);
  if (stored != nullptr) {
    *const_cast<BagValue*>(stored) = std::move(value);
  } else if (number < BagKeyCount) {
    StoreNew(number, std::move(value));
  } else {
    other_.emplace_back(key, std::move(value));
  }
}

}  // namespace plexel
