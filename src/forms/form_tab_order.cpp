#include "forms/form.h"

#include <algorithm>

namespace plexel {

namespace {

/// Whether a control is an option of the same group as another one is.
bool SameGroup(const Control* option, const Control* control) {
  return control->Kind() == ControlKind::OptionButton && control->Container() == option->Container() &&
         control->Page() == option->Page();
}

bool IsSet(const Control* option) { return static_cast<const OptionButton*>(option)->Value(); }

}  // namespace

std::vector<Control*> Form::ControlsInTabOrder() const {
  std::vector<Control*> order = controls_;
  std::stable_sort(order.begin(), order.end(),
                   [](const Control* left, const Control* right) { return left->TabIndex() < right->TabIndex(); });
  return order;
}

std::vector<Control*> Form::TabOrder() const { return ReachableByTab(nullptr); }

std::vector<Control*> Form::ReachableByTab(const Control* preferred) const {
  std::vector<Control*> order;
  for (Control* control : ControlsInTabOrder()) {
    if (control == preferred || (control->TabStop() && control->CanTakeFocus())) order.push_back(control);
  }
  const auto standsForItsGroup = [&](const Control* option) {
    if (preferred != nullptr && SameGroup(option, preferred)) return option == preferred;
    const auto sameGroup = [&](const Control* other) { return SameGroup(option, other); };
    const auto set = std::find_if(order.begin(), order.end(),
                                  [&](const Control* other) { return sameGroup(other) && IsSet(other); });
    return option == (set != order.end() ? *set : *std::find_if(order.begin(), order.end(), sameGroup));
  };
  std::vector<Control*> reachable;
  std::copy_if(order.begin(), order.end(), std::back_inserter(reachable), [&](const Control* control) {
    return control->Kind() != ControlKind::OptionButton || standsForItsGroup(control);
  });
  return reachable;
}

Control* Form::TabNeighbour(bool forward) const {
  std::vector<Control*> order = ReachableByTab(focus_);
  if (!forward) std::reverse(order.begin(), order.end());
  const auto here = std::find(order.begin(), order.end(), focus_);
  if (here != order.end()) std::rotate(order.begin(), here + 1, order.end());
  return order.empty() || order.front() == focus_ ? nullptr : order.front();
}

}  // namespace plexel
