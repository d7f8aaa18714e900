#include "project/report_csv.h"

#include <array>

#include "project/plain_text.h"

namespace plexel {

namespace {

/// The columns with what stands in them.
struct Column {
  ReportWord name;
  std::string (*field)(const ReportRow&);
};
constexpr std::array columns = {
    Column{ReportWord::FieldElement, [](const ReportRow& row) { return row.element; }},
    Column{ReportWord::FieldKind, [](const ReportRow& row) { return row.kind; }},
    Column{ReportWord::FieldLayer, [](const ReportRow& row) { return std::to_string(row.layer); }},
    Column{ReportWord::FieldPress, [](const ReportRow& row) { return row.press; }},
    Column{ReportWord::FieldRelease, [](const ReportRow& row) { return row.release; }},
    Column{ReportWord::FieldPressBytes, [](const ReportRow& row) { return row.pressBytes; }},
    Column{ReportWord::FieldReleaseBytes, [](const ReportRow& row) { return row.releaseBytes; }},
    Column{ReportWord::FieldLed, [](const ReportRow& row) { return row.led; }},
    Column{ReportWord::FieldButtonNumber, [](const ReportRow& row) { return row.buttonNumber; }},
    Column{ReportWord::FieldLedNumber, [](const ReportRow& row) { return row.ledNumber; }},
    Column{ReportWord::FieldNote, [](const ReportRow& row) { return row.note; }}};

void AppendField(std::string& out, std::string_view text) {
  constexpr std::string_view formulas = "=+-@\t\r";
  std::string field = WellFormed(text);
  if (!field.empty() && formulas.find(field.front()) != std::string_view::npos) field.insert(field.begin(), '\'');
  if (field.find_first_of("\",\r\n") == std::string::npos) {
    out += field;
    return;
  }
  out += '"';
  for (const char c : field) out.append(c == '"' ? 2 : 1, c);
  out += '"';
}

template <typename Field>
void AppendLine(std::string& out, Field&& field) {
  for (std::size_t index = 0; index < columns.size(); ++index) {
    if (index > 0) out += ',';
    AppendField(out, field(columns[index]));
  }
  out += "\r\n";
}

}  // namespace

std::string ReportCsv(const Report& report) {
  std::string out = "\uFEFF";
  AppendLine(out, [&report](const Column& column) { return report.words[column.name]; });
  for (const ReportRow& row : report.rows) AppendLine(out, [&row](const Column& column) { return column.field(row); });
  return out;
}

}  // namespace plexel
