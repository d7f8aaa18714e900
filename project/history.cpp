#include "project/history.h"

#include <utility>

namespace plexel {

void History::Add(Step step) {
  steps_.resize(done_);
  steps_.push_back(std::move(step));
  done_ = steps_.size();
}

}  // namespace plexel
