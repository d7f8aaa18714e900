#include "cli/time_line.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "forms/characters.h"
#include "project/key_code_names.h"
#include "project/time_line.h"

namespace plexel {

namespace {

/// As TimeMark has them.
constexpr std::array<std::string_view, 7> signs = {"▼", "▲", "▽", "◆", "?", "━", " "};
constexpr std::string_view pressTitle = "press", releaseTitle = "release", between = " │ ";

std::string NameOf(const TimeRow& row) {
  if (row.kind == KeyDeed::Panel) return std::string(PanelFunctionNameOf(row.code));
  if (row.kind == KeyDeed::Unknown) return "unknown " + CodeText(row.code);
  return KeyNameOf(row.code);
}

std::size_t CountOf(std::string_view text) { return static_cast<std::size_t>(characters::Count(text)); }

std::string Padded(std::string text, std::size_t width) {
  const std::size_t length = CountOf(text);
  if (length < width) text.append(width - length, ' ');
  return text;
}

std::string_view SignOf(TimeMark mark) { return signs[static_cast<std::size_t>(mark)]; }

/// The marks of one direction, drawn on up to a width; `before` is the state ahead of them.
std::string Drawn(std::span<const TimeMark> marks, TimeMark before, std::size_t width) {
  std::string text;
  for (const TimeMark mark : marks) text += SignOf(mark);
  const TimeMark state = Behind(marks.empty() ? before : marks.back());
  for (std::size_t drawn = marks.size(); drawn < width; ++drawn) text += SignOf(state);
  return text;
}

}  // namespace

std::string TimeLine(const LayerReading& reading) {
  if (reading.reports.empty()) return "nothing is sent\n";
  const auto presses = static_cast<std::size_t>(std::ranges::count(reading.reports, Direction::Press, &KeyReport::at));
  const std::size_t pressWidth = std::max(presses, pressTitle.size());
  const std::size_t releaseWidth = std::max(reading.reports.size() - presses, releaseTitle.size());

  const std::vector<TimeRow> rows = TimeRows(reading.reports);
  std::size_t nameWidth = 0;
  for (const TimeRow& row : rows) nameWidth = std::max(nameWidth, CountOf(NameOf(row)));
  std::string text = std::string(nameWidth + 2, ' ') + Padded(std::string(pressTitle), pressWidth) +
                     std::string(between) + std::string(releaseTitle) + '\n';
  for (const TimeRow& row : rows) {
    const std::span marks(row.marks);
    const TimeMark pressed = presses == 0 ? TimeMark::Idle : marks[presses - 1];
    std::string line = Padded(NameOf(row), nameWidth + 2) + Drawn(marks.first(presses), TimeMark::Idle, pressWidth) +
                       std::string(between) + Drawn(marks.subspan(presses), pressed, releaseWidth);
    if (Behind(row.marks.back()) == TimeMark::Held) line += "  stays down";
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}

}  // namespace plexel
