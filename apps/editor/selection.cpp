#include "editor/selection.h"

#include <algorithm>

namespace plexel {

void Selection::Reset(int count) {
  chosen_.assign(static_cast<std::size_t>(count), false);
  chosenCount_ = 0;
  current_ = anchor_ = -1;
}

std::vector<int> Selection::Chosen() const {
  std::vector<int> places;
  for (int place = 0; place < Count(); ++place) {
    if (Has(place)) places.push_back(place);
  }
  return places;
}

std::vector<int> Selection::Meant() const {
  if (chosenCount_ > 0 || current_ < 0) return Chosen();
  return {current_};
}

bool Selection::IsMany() const { return chosenCount_ > 1 || (chosenCount_ == 1 && !Has(current_)); }

void Selection::Only(int place) { Put(Flags({place}), place, place); }

void Selection::Toggle(int place) {
  std::vector<bool> chosen = chosen_;
  chosen[static_cast<std::size_t>(place)] = !Has(place);
  Put(std::move(chosen), place, place);
}

void Selection::Current(int place) { Put(chosen_, place, anchor_); }

void Selection::Choose(const std::vector<int>& places) { Choose(places, current_); }

void Selection::Choose(const std::vector<int>& places, int current) { Put(Flags(places), current, anchor_); }

void Selection::ChooseAndGo(const std::vector<int>& places) {
  const bool stays = places.empty() || std::find(places.begin(), places.end(), current_) != places.end();
  const int current = stays ? current_ : places.front();
  Put(Flags(places), current, current);
}

void Selection::ChooseAll() { Put(std::vector<bool>(chosen_.size(), true), current_, anchor_); }

void Selection::ChooseNone() { Put(std::vector<bool>(chosen_.size(), false), current_, anchor_); }

std::vector<bool> Selection::Flags(const std::vector<int>& places) const {
  std::vector<bool> chosen(chosen_.size(), false);
  for (const int place : places) chosen[static_cast<std::size_t>(place)] = true;
  return chosen;
}

void Selection::Put(std::vector<bool> chosen, int current, int anchor) {
  anchor_ = anchor;
  if (chosen == chosen_ && current == current_) return;
  chosen_ = std::move(chosen);
  chosenCount_ = static_cast<int>(std::count(chosen_.begin(), chosen_.end(), true));
  current_ = current;
  const auto listeners = listeners_;  // one of them may add another
  for (const auto& [owner, listener] : listeners) {
    if (owner) listener();
  }
}

void Selection::Listen(QObject& owner, std::function<void()> listener) {
  std::erase_if(listeners_, [](const auto& one) { return one.first.isNull(); });
  listeners_.emplace_back(&owner, std::move(listener));
}

}  // namespace plexel
