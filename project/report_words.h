#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "project/problem.h"
#include "services/element_types.h"

namespace plexel {

/// What a report says beside what stands in the project. In a pattern %1 is what is told beside it.
enum class ReportWord : std::uint8_t {
  LanguageCode,  ///< as pages tell it
  KindLed,       ///< the kinds in the order of enumTactisBaseElementType
  KindRoundKey,
  KindRoundKeyWithLed,
  KindKey,
  KindKeyWithLed,
  KindKeySwitch,
  KindUnknown,
  Error,
  Warning,
  OnLayer,
  OnLayers,
  OnRelease,
  LedShows,
  ButtonNumber,
  LedNumber,
  Legend,
  Elements,
  Problems,
  NoProblems,
  ColumnElement,  ///< the columns of a page's tables
  ColumnLayer,
  ColumnPress,
  ColumnRelease,
  ColumnLed,
  ColumnNumbers,
  ColumnNote,
  ColumnWhere,
  ColumnLevel,
  ColumnProblem,
  FieldElement,  ///< the columns of a table for programs
  FieldKind,
  FieldLayer,
  FieldPress,
  FieldRelease,
  FieldPressBytes,
  FieldReleaseBytes,
  FieldLed,
  FieldButtonNumber,
  FieldLedNumber,
  FieldNote
};
inline constexpr std::size_t ReportWordCount = static_cast<std::size_t>(ReportWord::FieldNote) + 1;

/// The words of a report in a language.
struct ReportWords {
  std::array<std::string, ReportWordCount> texts;
  ProblemWords problems;

  const std::string& operator[](ReportWord word) const { return texts[static_cast<std::size_t>(word)]; }
  /// A pattern with what is told beside it.
  std::string With(ReportWord pattern, std::string_view told) const;
  const std::string& KindOf(enumTactisBaseElementType type) const;
};

const ReportWords& EnglishReportWords();
/// Those of the language in force; English where it has none.
ReportWords ReportWordsInForce();

}  // namespace plexel
