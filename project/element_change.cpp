#include "project/element_change.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "element/element_access.h"

namespace plexel {

namespace {

/// What the screen and the user's settings decide.
constexpr std::string_view ofTheScreen[] = {"ZoomFactor",      "FocusVisible", "FocusColor",     "FocusWidth",
                                            "ShowX",           "ShowDefined",  "ShowXPermanent", "WizardOn",
                                            "KeyDefinedColor", "XElementSize"};

bool IsKept(const PropertyRow& row) {
  return row.get != nullptr && !row.storage.key.empty() && !IsOfTheScreen(row.storage.key);
}

}  // namespace

bool IsOfTheScreen(std::string_view key) { return std::ranges::find(ofTheScreen, key) != std::end(ofTheScreen); }

ElementValues ValuesOf(const ctlPlexelBaseElement& element) {
  ElementValues values;
  values.properties.reserve(PropertyTable().size());
  for (const PropertyRow& row : PropertyTable()) {
    values.properties.push_back(IsKept(row) ? Get(element, row) : PropertyData{});
  }
  values.codes = ElementAccess::Codes(element);
  return values;
}

ElementChange::ElementChange(const ElementValues& wanted, const ElementValues& held) {
  for (std::size_t row = 0; row < wanted.properties.size(); ++row) {
    if (wanted.properties[row] == held.properties[row]) continue;
    properties_.emplace_back(static_cast<std::uint8_t>(row), wanted.properties[row]);
  }
  if (wanted.codes != held.codes) codes_ = wanted.codes;
}

void ElementChange::Exchange(ctlPlexelBaseElement& element) {
  for (auto& [row, value] : properties_) {
    PropertyData held = Get(element, PropertyTable()[row]);
    Set(element, PropertyTable()[row], value);
    value = std::move(held);
  }
  if (codes_) {
    std::vector<std::uint8_t> held = ElementAccess::Codes(element);
    ElementAccess::Codes(element, *codes_);
    *codes_ = std::move(held);
  }
  element.ShowDefined(element.ShowDefined());
}

void ElementChange::Precede(const ElementChange& earlier, const ctlPlexelBaseElement& element) {
  decltype(properties_) merged = earlier.properties_;
  for (auto& mine : properties_) {
    const auto place = std::ranges::lower_bound(merged, mine.first, {}, [](const auto& one) { return one.first; });
    if (place == merged.end() || place->first != mine.first) merged.insert(place, std::move(mine));
  }
  std::erase_if(merged, [&](const auto& one) { return one.second == Get(element, PropertyTable()[one.first]); });
  properties_ = std::move(merged);
  if (earlier.codes_) codes_ = earlier.codes_;
  if (codes_ && *codes_ == ElementAccess::Codes(element)) codes_.reset();
}

}  // namespace plexel
