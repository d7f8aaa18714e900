#include "project/time_line.h"

#include <algorithm>

namespace plexel {

namespace {

KeyDeed KindOf(const KeyReport& report) {
  return report.deed == KeyDeed::Panel || report.deed == KeyDeed::Unknown ? report.deed : KeyDeed::Down;
}

TimeRow& RowOf(std::vector<TimeRow>& rows, KeyDeed kind, KeyCode code) {
  const auto found =
      std::ranges::find_if(rows, [&](const TimeRow& row) { return row.kind == kind && row.code == code; });
  return found == rows.end() ? rows.emplace_back(TimeRow{kind, code, {}}) : *found;
}

}  // namespace

TimeMark Behind(TimeMark mark) {
  const bool down = mark == TimeMark::GoesDown || mark == TimeMark::Repeats || mark == TimeMark::Held;
  return down ? TimeMark::Held : TimeMark::Idle;
}

std::vector<TimeRow> TimeRows(std::span<const KeyReport> reports, std::span<const KeyCode> down) {
  std::vector<TimeRow> rows;
  for (const KeyCode code : down) {
    const bool told = std::ranges::any_of(
        reports, [code](const KeyReport& one) { return KindOf(one) == KeyDeed::Down && one.code == code; });
    if (!told) RowOf(rows, KeyDeed::Down, code).marks.assign(reports.size(), TimeMark::Held);
  }
  for (std::size_t event = 0; event < reports.size(); ++event) {
    const KeyReport& report = reports[event];
    TimeRow& row = RowOf(rows, KindOf(report), report.code);
    const TimeMark meanwhile = report.wasDown ? TimeMark::Held : TimeMark::Idle;
    row.marks.resize(event, row.marks.empty() ? meanwhile : Behind(row.marks.back()));
    row.marks.push_back(MarkOf(report.deed));
  }
  for (TimeRow& row : rows) {
    if (row.marks.size() < reports.size()) row.marks.resize(reports.size(), Behind(row.marks.back()));
  }
  return rows;
}

}  // namespace plexel
