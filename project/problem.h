#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "project/key_reading.h"

namespace plexel {

/// What would surprise on the machine.
enum class ProblemRule : std::uint8_t {
  Held,
  ReleasedFirst,
  UnknownBytes,
  NoBytes,
  NoText,
  GroupsDiffer,
  OverLimit,
  LedWithoutLamp,
  LedNotOffered,
  LedTwice,
  NumberTwice
};

enum class ProblemLevel : std::uint8_t { Error, Warning };

/// How many problems of each level something has.
struct ProblemCounts {
  std::size_t errors = 0, warnings = 0;
  bool operator==(const ProblemCounts&) const = default;
};

/// What is told about a rule.
struct ProblemRuleRow {
  ProblemRule rule;
  std::string_view name;  ///< as programs read it
  ProblemLevel level;
};
/// In the order of the enumeration.
std::span<const ProblemRuleRow> ProblemRules();
const ProblemRuleRow& RowOf(ProblemRule rule);
std::string_view NameOf(ProblemLevel level);
std::string_view NameOf(Direction direction);

/// The hardware numbers that no two elements share.
enum class SharedNumber : std::uint8_t { Button, Led, KeySwitch };

struct Problem {
  ProblemRule rule{};
  std::size_t element = 0;             ///< which one, in the order of the elements
  std::vector<std::int32_t> layers;    ///< several for LedTwice alone, none where the rule is about no layer
  std::optional<Direction> direction;  ///< where the rule is about one
  std::optional<std::size_t> with;     ///< the element ahead that is the other of a pair
  std::optional<SharedNumber> number;  ///< of NumberTwice: which
  std::vector<std::uint32_t> values;   ///< by rule: key codes, bytes, counts, LED functions of the layers, numbers
  bool operator==(const Problem&) const = default;
};

/// The words of a language for problems. In a pattern %1 and %2 are what is told beside it, %d is the direction.
struct ProblemWords {
  std::array<std::string, 11> patterns;  ///< by rule; that of NumberTwice is not used
  std::array<std::string, 3> numbers;    ///< patterns of NumberTwice by SharedNumber: %1 numbers, %2 the other one
  std::array<std::string, 2> directions;
};
const ProblemWords& EnglishProblemWords();
/// Those of the language in force; English where it has none.
ProblemWords ProblemWordsInForce();

/// What would happen on the machine. `with` is the name of the other element of a pair. LED functions have the names of
/// the language in force.
std::string ProblemText(const Problem& problem, std::string_view with,
                        const ProblemWords& words = EnglishProblemWords());

}  // namespace plexel
