#include "files/place_set.h"

namespace plexel {

namespace {

constexpr std::size_t usualLength = 16;

}  // namespace

PlaceSet::PlaceSet(std::size_t count) : numbers_(count), ends_{0} {
  ends_.reserve(count + 1);
  texts_.reserve(count * usualLength);
}

bool PlaceSet::Insert(std::string_view place) {
  const auto same = [&](std::uint32_t number) {
    return std::string_view(texts_).substr(ends_[number - 1], ends_[number] - ends_[number - 1]) == place;
  };
  if (!numbers_.Enter(HashOfName(place), static_cast<std::uint32_t>(ends_.size()), same)) return false;
  texts_ += place;
  ends_.push_back(texts_.size());
  return true;
}

}  // namespace plexel
