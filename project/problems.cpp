#include "project/problems.h"

#include <algorithm>
#include <array>
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

std::optional<SharedNumber> NumberIn(const SharedValue& value) {
  return value.kind <= lastLed ? std::nullopt : std::optional(NumberOf(value.kind));
}

/// Which problem a shared value belongs to: one for all layers of a pair, one for each kind of number.
using PairKey = std::pair<std::uint32_t, std::optional<SharedNumber>>;

/// The same as one number.
std::uint64_t PairNumber(std::uint32_t with, std::optional<SharedNumber> number) {
  return std::uint64_t{with} << 8U | (number ? static_cast<std::uint64_t>(*number) + 1 : 0);
}
bool IsLedPair(std::uint64_t pair) { return (pair & 0xFFU) == 0; }

/// Where the problems of a level are counted.
std::size_t& CountOf(ProblemCounts& counts, ProblemRule rule) {
  return RowOf(rule).level == ProblemLevel::Error ? counts.errors : counts.warnings;
}

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
  for (std::size_t element = 0; element < elements_.size(); ++element) CountShared(element);
}

void Problems::Put(ProblemCounts& place, const ProblemCounts& counts) {
  counts_.errors = counts_.errors - place.errors + counts.errors;
  counts_.warnings = counts_.warnings - place.warnings + counts.warnings;
  place = counts;
}

void Problems::CheckOwn(std::size_t element) {
  Entry& entry = entries_[element];
  entry.own = OwnProblems(*elements_[element], element);
  ProblemCounts counts;
  for (const Problem& problem : entry.own) ++CountOf(counts, problem.rule);
  Put(entry.ownCounts, counts);
}

template <typename Visit>
void Problems::ForEachPartner(std::size_t element, Visit&& visit) const {
  for (const SharedValue& value : entries_[element].values) {
    const SharedValues::Elements& holders = index_.Holders(value);
    const std::size_t most = std::min(holders.size(), MostPartners);
    for (std::size_t place = 0; place < most && holders[place] < element; ++place) visit(holders[place], value);
  }
}

void Problems::CountShared(std::size_t element) {
  pairs_.clear();
  ForEachPartner(element, [this](std::uint32_t with, const SharedValue& value) {
    pairs_.push_back(PairNumber(with, NumberIn(value)));
  });
  std::ranges::sort(pairs_);
  const auto end = std::unique(pairs_.begin(), pairs_.end());
  const auto leds = static_cast<std::size_t>(std::count_if(pairs_.begin(), end, IsLedPair));
  ProblemCounts counts;
  CountOf(counts, ProblemRule::LedTwice) += leds;
  CountOf(counts, ProblemRule::NumberTwice) += static_cast<std::size_t>(end - pairs_.begin()) - leds;
  Put(entries_[element].sharedCounts, counts);
}

std::vector<Problem> Problems::SharedOf(std::size_t element) const {
  std::map<PairKey, Problem> pairs;
  ForEachPartner(element, [&](std::uint32_t with, const SharedValue& value) {
    const auto number = NumberIn(value);
    Problem& problem = pairs[{with, number}];
    problem.rule = number ? ProblemRule::NumberTwice : ProblemRule::LedTwice;
    problem.element = element;
    problem.with = with;
    problem.number = number;
    problem.values.push_back(value.value);
    if (!number) problem.layers.push_back(static_cast<std::int32_t>(value.kind) + 1);
  });
  std::vector<Problem> problems;
  problems.reserve(pairs.size());
  for (auto& [key, problem] : pairs) problems.push_back(std::move(problem));
  std::ranges::sort(problems, ComesFirst);
  return problems;
}

std::vector<std::size_t> Problems::Recheck(const ctlPlexelBaseElement& changed) {
  const auto found = places_.find(&changed);
  if (found == places_.end()) return {};
  return Recheck(std::array{found->second});
}

std::vector<std::size_t> Problems::Recheck(std::span<const std::size_t> changed) {
  std::vector<std::size_t> touched(changed.begin(), changed.end());
  std::unordered_map<SharedValue, std::uint32_t, SharedValueHash> firstOf;  // by value that came or went
  for (const std::size_t element : changed) {
    CheckOwn(element);
    Entry& entry = entries_.at(element);
    std::vector<SharedValue> values = SharedValuesOf(*elements_[element]);
    if (values == entry.values) continue;
    const auto number = static_cast<std::uint32_t>(element);
    const auto note = [&](const std::vector<SharedValue>& some, const std::vector<SharedValue>& others) {
      for (const SharedValue& value : some) {
        if (std::ranges::find(others, value) != others.end()) continue;
        std::uint32_t& first = firstOf.try_emplace(value, number).first->second;
        first = std::min(first, number);
      }
    };
    note(entry.values, values);
    note(values, entry.values);
    index_.Remove(number, entry.values);
    index_.Add(number, values);
    entry.values = std::move(values);
  }
  for (const auto& [value, first] : firstOf) {
    // Behind the first partners of a value nobody is told about, and who comes ahead hears of nobody behind.
    const SharedValues::Elements& holders = index_.Holders(value);
    const auto place = std::ranges::lower_bound(holders, first);
    if (static_cast<std::size_t>(place - holders.begin()) < MostPartners) {
      touched.insert(touched.end(), place, holders.end());
    }
  }
  std::ranges::sort(touched);
  touched.erase(std::unique(touched.begin(), touched.end()), touched.end());
  for (const std::size_t one : touched) CountShared(one);
  return touched;
}

ProblemCounts Problems::CountsOf(std::size_t element) const {
  const Entry& entry = entries_.at(element);
  return {entry.ownCounts.errors + entry.sharedCounts.errors, entry.ownCounts.warnings + entry.sharedCounts.warnings};
}

std::vector<Problem> Problems::Of(std::size_t element) const {
  std::vector<Problem> problems;
  std::ranges::merge(entries_.at(element).own, SharedOf(element), std::back_inserter(problems), ComesFirst);
  return problems;
}

std::vector<Problem> Problems::All() const {
  std::vector<Problem> all;
  all.reserve(counts_.errors + counts_.warnings);
  for (std::size_t element = 0; element < elements_.size(); ++element) {
    std::ranges::merge(entries_[element].own, SharedOf(element), std::back_inserter(all), ComesFirst);
  }
  return all;
}

std::string Problems::Text(const Problem& problem, const ProblemWords& words) const {
  return ProblemText(problem, problem.with ? std::string_view(Element(*problem.with).Name()) : std::string_view(),
                     words);
}

}  // namespace plexel
