#include "project/history.h"

#include <bit>
#include <cstdint>
#include <utility>

namespace plexel {

bool ForeignValue::operator==(const ForeignValue& other) const {
  const auto *mine = std::get_if<double>(&value), *theirs = std::get_if<double>(&other.value);
  const bool same = mine != nullptr && theirs != nullptr
                        ? std::bit_cast<std::uint64_t>(*mine) == std::bit_cast<std::uint64_t>(*theirs)
                        : value == other.value;
  return same && key == other.key;
}

void History::Add(Step step) {
  steps_.resize(done_);
  steps_.push_back(std::move(step));
  done_ = steps_.size();
}

}  // namespace plexel
