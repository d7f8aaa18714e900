#include "project/problem.h"

#include <algorithm>

#include "project/key_code_names.h"
#include "project/text_in_force.h"
#include "services/shared_services.h"
#include "services/value_rows.h"

namespace plexel {

namespace {

constexpr auto rules = std::to_array<ProblemRuleRow>({
    {ProblemRule::Held, "held", ProblemLevel::Error},
    {ProblemRule::ReleasedFirst, "released-first", ProblemLevel::Warning},
    {ProblemRule::UnknownBytes, "unknown-bytes", ProblemLevel::Warning},
    {ProblemRule::NoBytes, "no-bytes", ProblemLevel::Error},
    {ProblemRule::NoText, "no-text", ProblemLevel::Error},
    {ProblemRule::GroupsDiffer, "groups-differ", ProblemLevel::Warning},
    {ProblemRule::OverLimit, "over-limit", ProblemLevel::Error},
    {ProblemRule::LedWithoutLamp, "led-without-lamp", ProblemLevel::Warning},
    {ProblemRule::LedNotOffered, "led-not-offered", ProblemLevel::Warning},
    {ProblemRule::LedTwice, "led-twice", ProblemLevel::Warning},
    {ProblemRule::NumberTwice, "number-twice", ProblemLevel::Error},
});
static_assert(InOrderOfValues(rules, &ProblemRuleRow::rule));

/// The texts of the languages begin with this number: one for each rule but NumberTwice, then those of numbers and of
/// directions.
constexpr std::int32_t FirstText = 21070;
constexpr std::size_t PatternCount = rules.size() - 1;
constexpr std::array<std::string_view, PatternCount> englishPatterns = {
    "%1 is still down after release: every further key reaches the machine together with it",
    "on %d %1 comes up that is not down: the machine passes over it",
    "on %d the machine gets %1, which is no key",
    "a text stands, but on %d the machine gets nothing",
    "no text stands, but on %d the machine gets bytes",
    "the text for %d has %1 groups, but the machine gets %2",
    "press and release hold %1 code bytes, more than the panel has room for in a layer",
    "there is no LED that could show %1",
    "the LED stays dark: the panel does not offer %1 here",
    "%2 shows %1 too: both light up at once"};
static_assert(static_cast<std::size_t>(ProblemRule::NumberTwice) == PatternCount);
constexpr std::array<std::string_view, 3> englishNumbers = {
    "button number %1 is that of %2 too: the panel takes both for one key",
    "LED number %1 is that of %2 too: the panel switches both at once",
    "key number %1 is that of %2 too: the panel takes both for one key switch"};
constexpr std::array<std::string_view, 2> englishDirections = {"press", "release"};

/// Makes words of the English ones and their numbers.
template <typename Word>
ProblemWords WordsBy(Word&& word) {
  ProblemWords words;
  static_assert(std::tuple_size_v<decltype(words.patterns)> == rules.size());
  std::int32_t number = FirstText;
  const auto take = [&](const auto& english, auto& texts) {
    for (std::size_t index = 0; index < english.size(); ++index) texts[index] = word(number++, english[index]);
  };
  take(englishPatterns, words.patterns);
  take(englishNumbers, words.numbers);
  take(englishDirections, words.directions);
  return words;
}

template <typename Values, typename Name>
std::string Joined(const Values& values, std::string_view between, Name&& name) {
  std::string text;
  for (const auto value : values) {
    if (!text.empty()) text += between;
    text += name(value);
  }
  return text;
}

std::string Number(std::uint32_t value) { return std::to_string(static_cast<std::int32_t>(value)); }

std::string LedName(std::uint32_t value) {
  std::string name = LedTypeToText(static_cast<std::int32_t>(value));
  return name.empty() ? Number(value) : name;
}

/// What a pattern tells beside itself.
struct PatternWords {
  std::string first, second;
};

PatternWords WordsOf(const Problem& problem, std::string_view with) {
  const auto distinct = [&] {
    std::vector<std::uint32_t> values = problem.values;
    std::ranges::sort(values);
    values.erase(std::unique(values.begin(), values.end()), values.end());
    return values;
  };
  switch (problem.rule) {
    case ProblemRule::Held:
    case ProblemRule::ReleasedFirst:
      return {Joined(problem.values, ", ", KeyNameOf), {}};
    case ProblemRule::UnknownBytes:
      return {Joined(problem.values, " ", CodeText), {}};
    case ProblemRule::GroupsDiffer:
      return {Number(problem.values.at(0)), Number(problem.values.at(1))};
    case ProblemRule::OverLimit:
      return {Number(problem.values.at(0)), {}};
    case ProblemRule::LedWithoutLamp:
    case ProblemRule::LedNotOffered:
    case ProblemRule::LedTwice:
      return {Joined(distinct(), ", ", LedName), std::string(with)};
    case ProblemRule::NumberTwice:
      return {Joined(problem.values, ", ", Number), std::string(with)};
    default:  // of no bytes and of no text the pattern tells all
      return {};
  }
}

std::string_view PatternOf(const Problem& problem, const ProblemWords& words) {
  if (problem.rule != ProblemRule::NumberTwice) return words.patterns[static_cast<std::size_t>(problem.rule)];
  return words.numbers[static_cast<std::size_t>(problem.number.value_or(SharedNumber::Button))];
}

}  // namespace

std::span<const ProblemRuleRow> ProblemRules() { return rules; }

const ProblemRuleRow& RowOf(ProblemRule rule) { return rules[static_cast<std::size_t>(rule)]; }

std::string_view NameOf(ProblemLevel level) { return level == ProblemLevel::Error ? "error" : "warning"; }

std::string_view NameOf(Direction direction) { return direction == Direction::Press ? "press" : "release"; }

const ProblemWords& EnglishProblemWords() {
  static const ProblemWords english = WordsBy([](std::int32_t, std::string_view text) { return std::string(text); });
  return english;
}

ProblemWords ProblemWordsInForce() { return WordsBy(TextInForce); }

std::string ProblemText(const Problem& problem, std::string_view with, const ProblemWords& words) {
  const PatternWords told = WordsOf(problem, with);
  std::string text;
  for (std::string_view left = PatternOf(problem, words); !left.empty();) {
    const bool first = left.starts_with("%1"), second = left.starts_with("%2"), direction = left.starts_with("%d");
    if (!first && !second && !direction) {
      text += left.front();
      left.remove_prefix(1);
      continue;
    }
    if (first) text += told.first;
    if (second) text += told.second;
    if (direction && problem.direction) text += words.directions[static_cast<std::size_t>(*problem.direction)];
    left.remove_prefix(2);
  }
  return text;
}

}  // namespace plexel
