#include "project/project_read_ahead.h"

#include <system_error>

namespace plexel {

ProjectReadAhead::ProjectReadAhead(const TextFile& file, const Start& start) : reader_(file) {
  if (Count() > PortionSize) {
    try {
      thread_ = start([this] { Run(); });
    } catch (const std::system_error&) {  // without a thread it takes longer, and no more
    }
  }
}

ProjectReadAhead::~ProjectReadAhead() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    stops_ = true;
  }
  given_.notify_one();
  thread_.join();
}

void ProjectReadAhead::Fill(Portion& portion) {
  portion.elements.resize(PortionSize);
  portion.count = 0;
  try {
    while (!portion.last && portion.count < PortionSize) {
      if (reader_.Next(portion.elements[portion.count])) {
        ++portion.count;
      } else {
        portion.last = true;
      }
    }
  } catch (...) {
    portion.failure = std::current_exception();
    portion.last = true;
  }
}

void ProjectReadAhead::Run() {
  for (bool last = false; !last;) {
    {
      std::unique_lock lock(mutex_);
      // Once all are full it goes on when half of them are free: each waking costs more than reading an element.
      if (filled_ - taken_ == portions_.size()) {
        given_.wait(lock, [this] { return stops_ || filled_ - taken_ <= portions_.size() / 2; });
      }
      if (stops_) return;
    }
    Portion& portion = portions_.at(filled_ % portions_.size());
    Fill(portion);
    last = portion.last;
    {
      const std::lock_guard lock(mutex_);
      ++filled_;
    }
    made_.notify_one();
  }
}

void ProjectReadAhead::TakePortion() {
  position_ = 0;
  if (!thread_.joinable()) {
    inHand_ = &portions_.front();
    Fill(portions_.front());
    return;
  }
  std::unique_lock lock(mutex_);
  if (inHand_ != nullptr) {
    ++taken_;
    given_.notify_one();
  }
  made_.wait(lock, [this] { return filled_ > taken_; });
  inHand_ = &portions_.at(taken_ % portions_.size());
}

const ProjectElement* ProjectReadAhead::Next() {
  while (inHand_ == nullptr || position_ == inHand_->count) {
    if (inHand_ != nullptr && inHand_->failure) std::rethrow_exception(inHand_->failure);
    if (inHand_ != nullptr && inHand_->last) return nullptr;
    TakePortion();
  }
  return &inHand_->elements[position_++];
}

}  // namespace plexel
