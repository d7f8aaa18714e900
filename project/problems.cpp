#include "project/problems.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <tuple>
#include <utility>

#include "element/ctlPlexelBaseElement.h"
#include "project/element_problems.h"
#include "project/panel_document.h"

namespace plexel {

namespace {

std::vector<const ctlPlexelBaseElement*> ElementsOf(const PanelDocument& document) {
  std::vector<const ctlPlexelBaseElement*> elements;
  for (const PanelDocument::Place& place : document.Places()) elements.push_back(place.element.get());
  return elements;
}

/// By layer, then rule, then direction, then the other of a pair.
auto OrderOf(const Problem& problem) {
  return std::make_tuple(problem.layers.empty() ? 0 : problem.layers.front(), problem.rule, problem.direction,
                         problem.with, problem.number);
}

bool ComesFirst(const Problem& a, const Problem& b) { return OrderOf(a) < OrderOf(b); }

constexpr SharedValue::Kind lastLed = SharedValue::Kind::Led4;

SharedNumber NumberOf(SharedValue::Kind kind) {
  switch (kind) {
    case SharedValue::Kind::LedNumber:
      return SharedNumber::Led;
    case SharedValue::Kind::KeyNumber:
      return SharedNumber::KeySwitch;
    default:
      return SharedNumber::Button;
  }
}

/// Which problem a shared value belongs to: one for all layers of a pair, one for each kind of number.
using PairKey = std::pair<std::uint32_t, std::optional<SharedNumber>>;

}  // namespace

Problems::Problems(const PanelDocument& document) : Problems(ElementsOf(document)) {}

Problems::Problems(std::vector<const ctlPlexelBaseElement*> elements)
    : elements_(std::move(elements)), entries_(elements_.size()) {
  places_.reserve(elements_.size());
  for (std::size_t element = 0; element < elements_.size(); ++element) {
    places_.emplace(elements_[element], element);
    entries_[element].values = SharedValuesOf(*elements_[element]);
    index_.Add(static_cast<std::uint32_t>(element), entries_[element].values);
    CheckOwn(element);
  }
  for (std::size_t element = 0; element < elements_.size(); ++element) CheckShared(element);
}

void Problems::Put(std::vector<Problem>& place, std::vector<Problem> problems) {
  const auto count = [](const std::vector<Problem>& some) {
    return static_cast<std::size_t>(
        std::ranges::count_if(some, [](const Problem& one) { return RowOf(one.rule).level == ProblemLevel::Error; }));
  };
  const std::size_t oldErrors = count(place), newErrors = count(problems);
  errors_ = errors_ - oldErrors + newErrors;
  warnings_ = warnings_ - (place.size() - oldErrors) + (problems.size() - newErrors);
  place = std::move(problems);
}

void Problems::CheckOwn(std::size_t element) { Put(entries_[element].own, OwnProblems(*elements_[element], element)); }

void Problems::CheckShared(std::size_t element) {
  std::map<PairKey, Problem> pairs;
  for (const SharedValue& value : entries_[element].values) {
    const SharedValues::Elements& holders = index_.Holders(value);
    const std::size_t most = std::min(holders.size(), MostPartners);
    for (std::size_t place = 0; place < most && holders[place] < element; ++place) {
      const bool isLed = value.kind <= lastLed;
      const auto number = isLed ? std::nullopt : std::optional(NumberOf(value.kind));
      Problem& problem = pairs[{holders[place], number}];
      problem.rule = isLed ? ProblemRule::LedTwice : ProblemRule::NumberTwice;
      problem.element = element;
      problem.with = holders[place];
      problem.number = number;
      problem.values.push_back(value.value);
      if (isLed) problem.layers.push_back(static_cast<std::int32_t>(value.kind) + 1);
    }
  }
  std::vector<Problem> problems;
  for (auto& [key, problem] : pairs) problems.push_back(std::move(problem));
  std::ranges::sort(problems, ComesFirst);
  Put(entries_[element].shared, std::move(problems));
}

std::vector<std::size_t> Problems::Recheck(const ctlPlexelBaseElement& changed) {
  const auto found = places_.find(&changed);
  if (found == places_.end()) return {};
  const std::size_t element = found->second;
  const auto number = static_cast<std::uint32_t>(element);
  Entry& entry = entries_[element];
  std::vector<std::size_t> touched = {element};
  CheckOwn(element);
  std::vector<SharedValue> values = SharedValuesOf(changed);
  if (values != entry.values) {
    // Behind the first partners of a value nobody is told about, and who comes ahead hears of nobody behind.
    const auto touchHolders = [&](const SharedValue& value) {
      const SharedValues::Elements& holders = index_.Holders(value);
      const auto place = std::ranges::lower_bound(holders, number);
      if (static_cast<std::size_t>(place - holders.begin()) < MostPartners) {
        touched.insert(touched.end(), place, holders.end());
      }
    };
    const auto isIn = [](const std::vector<SharedValue>& some, const SharedValue& value) {
      return std::ranges::find(some, value) != some.end();
    };
    for (const SharedValue& value : entry.values) {
      if (!isIn(values, value)) touchHolders(value);
    }
    for (const SharedValue& value : values) {
      if (!isIn(entry.values, value)) touchHolders(value);
    }
    index_.Remove(number, entry.values);
    index_.Add(number, values);
    entry.values = std::move(values);
  }
  std::ranges::sort(touched);
  touched.erase(std::unique(touched.begin(), touched.end()), touched.end());
  for (const std::size_t one : touched) CheckShared(one);
  return touched;
}

std::vector<Problem> Problems::Of(std::size_t element) const {
  const Entry& entry = entries_.at(element);
  std::vector<Problem> problems;
  std::ranges::merge(entry.own, entry.shared, std::back_inserter(problems), ComesFirst);
  return problems;
}

std::vector<Problem> Problems::All() const {
  std::vector<Problem> all;
  all.reserve(errors_ + warnings_);
  for (std::size_t element = 0; element < elements_.size(); ++element) {
    const Entry& entry = entries_[element];
    std::ranges::merge(entry.own, entry.shared, std::back_inserter(all), ComesFirst);
  }
  return all;
}

std::string Problems::Text(const Problem& problem, const ProblemWords& words) const {
  return ProblemText(problem, problem.with ? std::string_view(Element(*problem.with).Name()) : std::string_view(),
                     words);
}

}  // namespace plexel
