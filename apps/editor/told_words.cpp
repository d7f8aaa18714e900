#include "editor/told_words.h"

#include <algorithm>

#include "editor/element_text.h"
#include "editor/texts.h"

namespace plexel {

namespace {

/// By the rules of problems, then by the numbers that two share, then by direction.
constexpr std::array patternTexts = {Text::ProblemHeld,      Text::ProblemReleasedFirst,  Text::ProblemUnknownBytes,
                                     Text::ProblemNoBytes,   Text::ProblemNoText,         Text::ProblemGroupsDiffer,
                                     Text::ProblemOverLimit, Text::ProblemLedWithoutLamp, Text::ProblemLedNotOffered,
                                     Text::ProblemLedTwice,  Text::ProblemButtonTwice,    Text::ProblemLedNumberTwice,
                                     Text::ProblemKeyTwice,  Text::ProblemPress,          Text::ProblemRelease};
constexpr std::size_t RulesWithPattern = 10;  // all but NumberTwice, the last
static_assert(static_cast<std::size_t>(ProblemRule::NumberTwice) == RulesWithPattern);

}  // namespace

ToldWords::ToldWords() {
  for (std::size_t kind = 0; kind < rows_.kinds.size(); ++kind) {
    kinds_[kind] = KindText(static_cast<enumTactisBaseElementType>(Led + static_cast<int>(kind))).toStdString();
    rows_.kinds[kind] = kinds_[kind];
  }
  kinds_.back() = Say(Text::KindUnknown).toStdString();
  rows_.unknownKind = kinds_.back();
  std::ranges::transform(patternTexts, patterns_.begin(), [](Text text) { return Say(text).toStdString(); });
  const auto* next = patterns_.begin();
  for (std::size_t rule = 0; rule < RulesWithPattern; ++rule) problems_.patterns[rule] = *next++;
  for (std::string_view& number : problems_.numbers) number = *next++;
  for (std::string_view& direction : problems_.directions) direction = *next++;
}

}  // namespace plexel
