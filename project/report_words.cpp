#include "project/report_words.h"

#include "project/text_in_force.h"
#include "services/value_rows.h"

namespace plexel {

namespace {

struct WordRow {
  ReportWord word;
  std::int32_t text;  ///< its number in the languages
  std::string_view english;
};
constexpr auto rows = std::to_array<WordRow>({
    {ReportWord::LanguageCode, 21200, "en"},
    {ReportWord::KindLed, 21201, "LED"},
    {ReportWord::KindRoundKey, 21202, "round key"},
    {ReportWord::KindRoundKeyWithLed, 21203, "round key with LED"},
    {ReportWord::KindKey, 21204, "key"},
    {ReportWord::KindKeyWithLed, 21205, "key with LED"},
    {ReportWord::KindKeySwitch, 21206, "key switch"},
    {ReportWord::KindUnknown, 21207, "unknown"},
    {ReportWord::Error, 21208, "error"},
    {ReportWord::Warning, 21209, "warning"},
    {ReportWord::OnLayer, 20914, "layer %1"},
    {ReportWord::OnLayers, 20915, "layers %1"},
    {ReportWord::OnRelease, 21210, "on release %1"},
    {ReportWord::LedShows, 21211, "LED: %1"},
    {ReportWord::ButtonNumber, 21212, "key %1"},
    {ReportWord::LedNumber, 20321, "LED %1"},
    {ReportWord::Legend, 21050, "What each key does"},
    {ReportWord::Elements, 21051, "All elements"},
    {ReportWord::Problems, 21052, "Problems"},
    {ReportWord::NoProblems, 21053, "None were found."},
    {ReportWord::ColumnElement, 20830, "Element"},
    {ReportWord::ColumnLayer, 21023, "Layer"},
    {ReportWord::ColumnPress, 21024, "Press"},
    {ReportWord::ColumnRelease, 21025, "Release"},
    {ReportWord::ColumnLed, 21026, "LED"},
    {ReportWord::ColumnNumbers, 21213, "Numbers"},
    {ReportWord::ColumnNote, 21027, "Note"},
    {ReportWord::ColumnWhere, 21214, "Where"},
    {ReportWord::ColumnLevel, 20910, "Level"},
    {ReportWord::ColumnProblem, 21028, "Problem"},
    {ReportWord::FieldElement, 21215, "element"},
    {ReportWord::FieldKind, 21216, "kind"},
    {ReportWord::FieldLayer, 21217, "layer"},
    {ReportWord::FieldPress, 21218, "press"},
    {ReportWord::FieldRelease, 21219, "release"},
    {ReportWord::FieldPressBytes, 21220, "press bytes"},
    {ReportWord::FieldReleaseBytes, 21221, "release bytes"},
    {ReportWord::FieldLed, 21222, "led"},
    {ReportWord::FieldButtonNumber, 21223, "button number"},
    {ReportWord::FieldLedNumber, 21224, "LED number"},
    {ReportWord::FieldNote, 21225, "note"},
});
static_assert(rows.size() == ReportWordCount && InOrderOfValues(rows, &WordRow::word));
static_assert(static_cast<int>(ReportWord::KindKeySwitch) - static_cast<int>(ReportWord::KindLed) == Key - Led);

}  // namespace

std::string ReportWords::With(ReportWord pattern, std::string_view told) const {
  std::string text = (*this)[pattern];
  const std::size_t place = text.find("%1");
  return place == std::string::npos ? text : text.replace(place, 2, told);
}

const std::string& ReportWords::KindOf(enumTactisBaseElementType type) const {
  if (type < Led || type > Key) return (*this)[ReportWord::KindUnknown];
  return texts[static_cast<std::size_t>(ReportWord::KindLed) + static_cast<std::size_t>(type - Led)];
}

const ReportWords& EnglishReportWords() {
  static const ReportWords english = [] {
    ReportWords words;
    for (const WordRow& row : rows) words.texts[static_cast<std::size_t>(row.word)] = row.english;
    words.problems = EnglishProblemWords();
    return words;
  }();
  return english;
}

ReportWords ReportWordsInForce() {
  ReportWords words;
  for (const WordRow& row : rows) words.texts[static_cast<std::size_t>(row.word)] = TextInForce(row.text, row.english);
  words.problems = ProblemWordsInForce();
  return words;
}

}  // namespace plexel
