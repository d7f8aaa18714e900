#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "project/panel_document.h"
#include "project/report_words.h"

namespace plexel {

/// What a report tells of a project, whatever its form.

/// One element on one layer; texts and numbers as they are shown, empty for what the element does not have.
struct ReportRow {
  std::string element, kind;
  std::int32_t layer{};
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
  ProblemLevel level{};
  std::string text;
};

/// All that a report is made of. LED functions have the names of the language in force, whatever the words.
struct Report {
  std::string name;              ///< of the project, for people
  const Panel* panel = nullptr;  ///< outlives the report
  std::vector<ReportRow> rows;   ///< the layers of each element one after the other, in the order of the project
  std::vector<ReportProblem> problems;
  ReportWords words = EnglishReportWords();
};

/// The rows of one element, by its layers.
std::array<ReportRow, LayerCount> RowsOf(const ctlPlexelBaseElement& element,
                                         const ReportWords& words = EnglishReportWords());

/// The report of a document, which must outlive it; `name` is how people call the project.
Report ReportOf(const PanelDocument& document, std::string name, ReportWords words = EnglishReportWords());

}  // namespace plexel
