#include "forms/controls.h"

#include <algorithm>
#include <utility>

#include "forms/characters.h"
#include "platform/failure.h"

namespace plexel {

namespace {
bool StandsBefore(const std::string& left, const std::string& right) {
  return std::pair(characters::Folded(left), left) < std::pair(characters::Folded(right), right);
}
}  // namespace

void ComboBox::Text(std::string value) {
  text_ = std::move(value);
  const auto entry = std::find(items_.begin(), items_.end(), text_);
  listIndex_ = entry == items_.end() ? -1 : static_cast<int>(entry - items_.begin());
}

void ComboBox::AddItem(std::string text) {
  const auto place = sorted_ ? std::upper_bound(items_.begin(), items_.end(), text, StandsBefore) : items_.end();
  const int index = static_cast<int>(place - items_.begin());
  items_.insert(place, std::move(text));
  ++itemsVersion_;
  if (index <= listIndex_) ++listIndex_;
}

void ComboBox::Clear() {
  items_.clear();
  ++itemsVersion_;
  listIndex_ = -1;
  text_.clear();
}

const std::string& ComboBox::List(int index) const {
  if (index < 0 || index >= ListCount()) {
    throw Failure(FailureKind::Index, FullName() + " has no entry " + std::to_string(index));
  }
  return items_[static_cast<std::size_t>(index)];
}

void ComboBox::ListIndex(int index) {
  text_ = index == -1 ? std::string() : List(index);
  listIndex_ = index;
  Raise(OnClick);
}

std::vector<TextSlot> ComboBox::Texts() {
  return {{text_, [this](std::string text) { Text(std::move(text)); }}};
}

void ComboBox::DescribeMore(Description& description) const {
  description.emplace_back("Text", text_);
  description.emplace_back("List", items_);
  description.emplace_back("ListIndex", static_cast<std::int32_t>(listIndex_));
  description.emplace_back("Sorted", sorted_);
}

}  // namespace plexel
