#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "project/panel_document.h"

namespace plexel {

/// What a report tells of a project, whatever its form.

/// One element on one layer; texts and numbers as they are shown, empty for what the element does not have.
struct ReportRow {
  std::string element, kind;
  std::int32_t layer = 0;
  /// What is sent, as texts without marks lost, and as bytes 0 to NextValue in hexadecimal; no bytes where none is in
  /// use.
  std::string press, release, pressBytes, releaseBytes;
  /// The function of the LED; empty for none.
  std::string led;
  /// Hardware numbers; those of a key switch stand under the button, with blanks between them.
  std::string buttonNumber, ledNumber;
  std::string note;
  bool operator==(const ReportRow&) const = default;
};

/// A problem as a report tells it.
struct ReportProblem {
  std::string element, place;  ///< the element, and the layers and the direction where it is about some
  std::string level, text;
};

/// All that a report is made of. LED functions have the names of the language in force.
struct Report {
  std::string name;              ///< of the project, for people
  const Panel* panel = nullptr;  ///< outlives the report
  std::vector<ReportRow> rows;   ///< the layers of each element one after the other, in the order of the project
  std::vector<ReportProblem> problems;
};

/// The words of a report in a language.
struct ReportWords {
  std::array<std::string_view, 6> kinds;  ///< by enumTactisBaseElementType, from Led
  std::string_view unknownKind;
};
const ReportWords& EnglishReportWords();

/// The rows of one element, by its layers.
std::array<ReportRow, LayerCount> RowsOf(const ctlPlexelBaseElement& element,
                                         const ReportWords& words = EnglishReportWords());

/// The report of a document, which must outlive it; `name` is how people call the project.
Report ReportOf(const PanelDocument& document, std::string name, const ReportWords& words = EnglishReportWords());

}  // namespace plexel
