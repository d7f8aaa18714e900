#include "project/report_html.h"

#include <algorithm>
#include <array>

#include "project/panel_svg.h"
#include "project/plain_text.h"

namespace plexel {

namespace {

constexpr std::string_view Style = R"(@page { size: A4; margin: 15mm 12mm; }
body { font: 10pt/1.35 "Liberation Sans", Arial, Helvetica, sans-serif; color: #1c2733; margin: 1.5em auto;
  max-width: 190mm; padding: 0 1em; }
h1 { font-size: 17pt; margin: 0 0 .2em; } h2 { font-size: 12.5pt; margin: 1.6em 0 .5em; break-after: avoid; }
p { margin: .2em 0; overflow-wrap: anywhere; }
figure { margin: 1em 0; text-align: center; break-inside: avoid; }
svg { max-width: 100%; height: auto; max-height: 170mm; }
dl { columns: 2; column-gap: 2em; margin: 0; } dl div { break-inside: avoid; padding: .15em 0; }
dt { float: left; min-width: 3.5em; font-weight: bold; margin-right: .6em; } dd { margin-left: 4.1em; }
dt, dd, td { overflow-wrap: anywhere; }
table { border-collapse: collapse; width: 100%; font-size: 8.5pt; }
th, td { border: 1px solid #b9c3cd; padding: .2em .4em; text-align: left; vertical-align: top; }
th { background: #e9eef2; } thead { display: table-header-group; } tr { break-inside: avoid; }
.bytes { font-family: "Liberation Mono", monospace; font-size: 7.5pt; } .error { color: #a11212; }
@media print { body { margin: 0; max-width: none; padding: 0; } * { print-color-adjust: exact;
  -webkit-print-color-adjust: exact; } }
)";

std::string Tag(std::string_view name, std::string_view text, std::string_view style = {}) {
  std::string tag = '<' + std::string(name);
  if (!style.empty()) tag += " class=\"" + std::string(style) + '"';
  return tag + '>' + MarkupText(text) + "</" + std::string(name) + '>';
}

/// What a row tells beside the element's own numbers.
bool TellsSomething(const ReportRow& row) {
  return !(row.press.empty() && row.release.empty() && row.pressBytes.empty() && row.releaseBytes.empty() &&
           row.led.empty());
}

/// What an element does on one layer, in a line.
std::string DeedOf(const ReportRow& row, const ReportWords& words) {
  std::string deed = row.press.empty() ? row.pressBytes : row.press;
  const std::string& release = row.release.empty() ? row.releaseBytes : row.release;
  if (!release.empty()) deed += (deed.empty() ? "" : " ") + words.With(ReportWord::OnRelease, release);
  if (!row.led.empty()) deed += (deed.empty() ? "" : ", ") + words.With(ReportWord::LedShows, row.led);
  return deed;
}

class Page {
 public:
  explicit Page(const Report& report) : report_(report), words_(report.words) {}

  std::string Write() {
    const std::string title = report_.name.empty() ? report_.panel->title : report_.name;
    out_ = "<!DOCTYPE html>\n<html lang=\"" + MarkupText(words_[ReportWord::LanguageCode]) +
           "\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'\">\n"
           "<meta name=\"viewport\" content=\"width=device-width\">\n" +
           Tag("title", title) + "\n<style>\n" + std::string(Style) + "</style>\n</head>\n<body>\n" + Tag("h1", title) +
           '\n' + Tag("p", report_.panel->title) + '\n';
    out_ += "<figure>\n" + PanelSvg(*report_.panel, PanelPlaces::Shown) + "</figure>\n";
    Legend();
    Table();
    Problems();
    return std::move(out_ += "</body>\n</html>\n");
  }

 private:
  /// The rows of one element, from the row `first` on.
  std::size_t EndOf(std::size_t first) const {
    std::size_t end = first;
    while (end < report_.rows.size() && report_.rows[end].element == report_.rows[first].element) ++end;
    return end;
  }

  void Legend() {
    out_ += Tag("h2", words_[ReportWord::Legend]) + "\n<dl>\n";
    for (std::size_t first = 0; first < report_.rows.size();) {
      const std::size_t end = EndOf(first);
      LegendOf(first, end);
      first = end;
    }
    out_ += "</dl>\n";
  }

  void LegendOf(std::size_t first, std::size_t end) {
    std::vector<std::string> deeds;
    for (std::size_t row = first; row < end; ++row) deeds.push_back(DeedOf(report_.rows[row], words_));
    if (std::all_of(deeds.begin(), deeds.end(), [](const std::string& deed) { return deed.empty(); })) return;
    out_ += "<div>" + Tag("dt", report_.rows[first].element);
    if (std::count(deeds.begin(), deeds.end(), deeds.front()) == static_cast<std::ptrdiff_t>(deeds.size())) {
      out_ += Tag("dd", deeds.front());
    } else {
      for (std::size_t index = 0; index < deeds.size(); ++index) {
        if (!deeds[index].empty()) out_ += Tag("dd", std::to_string(index + 1) + ": " + deeds[index]);
      }
    }
    out_ += "</div>\n";
  }

  /// Each element has the layers in which something stands, and at least one line.
  void Table() {
    out_ += Tag("h2", words_[ReportWord::Elements]) + '\n';
    Heads({ReportWord::ColumnElement, ReportWord::ColumnLayer, ReportWord::ColumnPress, ReportWord::ColumnRelease,
           ReportWord::ColumnLed, ReportWord::ColumnNumbers, ReportWord::ColumnNote});
    for (std::size_t first = 0; first < report_.rows.size();) {
      const std::size_t end = EndOf(first);
      bool told = false;
      for (std::size_t row = first; row < end; ++row) {
        if (!TellsSomething(report_.rows[row]) && (told || row + 1 < end)) continue;
        Row(report_.rows[row], !told);
        told = true;
      }
      first = end;
    }
    out_ += "</tbody>\n</table>\n";
  }

  void Row(const ReportRow& row, bool first) {
    const auto sent = [](const std::string& text, const std::string& bytes) {
      return "<td>" + MarkupText(text) + (bytes.empty() ? "" : "<br>" + Tag("span", bytes, "bytes")) + "</td>";
    };
    std::string numbers = row.buttonNumber.empty() ? "" : words_.With(ReportWord::ButtonNumber, row.buttonNumber);
    if (!row.ledNumber.empty()) {
      numbers += (numbers.empty() ? "" : ", ") + words_.With(ReportWord::LedNumber, row.ledNumber);
    }
    out_ += "<tr><td>" + Tag("b", row.element) + (first ? "<br>" + MarkupText(row.kind) : "") + "</td>" +
            Tag("td", TellsSomething(row) ? std::to_string(row.layer) : "") + sent(row.press, row.pressBytes) +
            sent(row.release, row.releaseBytes) + Tag("td", row.led) + Tag("td", first ? numbers : "") +
            Tag("td", first ? row.note : "") + "</tr>\n";
  }

  void Problems() {
    out_ += Tag("h2", words_[ReportWord::Problems]) + '\n';
    if (report_.problems.empty()) {
      out_ += Tag("p", words_[ReportWord::NoProblems]) + '\n';
      return;
    }
    Heads({ReportWord::ColumnElement, ReportWord::ColumnWhere, ReportWord::ColumnLevel, ReportWord::ColumnProblem});
    for (const ReportProblem& problem : report_.problems) {
      const bool error = problem.level == ProblemLevel::Error;
      out_ += "<tr>" + Tag("td", problem.element) + Tag("td", problem.place) +
              Tag("td", words_[error ? ReportWord::Error : ReportWord::Warning], error ? "error" : "") +
              Tag("td", problem.text) + "</tr>\n";
    }
    out_ += "</tbody>\n</table>\n";
  }

  /// Begins a table.
  void Heads(std::initializer_list<ReportWord> columns) {
    out_ += "<table>\n<thead><tr>";
    for (const ReportWord column : columns) out_ += Tag("th", words_[column]);
    out_ += "</tr></thead>\n<tbody>\n";
  }

  const Report& report_;
  const ReportWords& words_;
  std::string out_;
};

}  // namespace

std::string ReportHtml(const Report& report) { return Page(report).Write(); }

}  // namespace plexel
