#include "files/flat_bag.h"

#include <algorithm>

namespace plexel {

namespace {

/// Room for what an ordinary element stores.
constexpr std::size_t UsualSize = 24;

}  // namespace

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
  const std::size_t number = StoredKeyNumber(key);
  return number < StoredKeyCount ? FindOwn(number, key) : FindOther(key);
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
  const std::size_t number = StoredKeyNumber(key);
  if (number < StoredKeyCount) return StoreNew(number, std::move(value));
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
  const std::size_t number = StoredKeyNumber(key);
  if (number == StoredKeyCount) {
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
  const std::size_t number = StoredKeyNumber(key);
  const BagValue* const stored = number < StoredKeyCount ? FindOwn(number, key) : FindOther(key);
  if (stored != nullptr) {
    *const_cast<BagValue*>(stored) = std::move(value);
  } else if (number < StoredKeyCount) {
    StoreNew(number, std::move(value));
  } else {
    other_.emplace_back(key, std::move(value));
  }
}

}  // namespace plexel
