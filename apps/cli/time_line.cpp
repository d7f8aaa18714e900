#include "cli/time_line.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "forms/characters.h"
#include "project/key_code_names.h"

namespace plexel {

namespace {

/// As KeyDeed has them.
constexpr std::array<std::string_view, 5> signs = {"▼", "▲", "▽", "◆", "?"};
constexpr std::string_view heldSign = "━";
constexpr std::string_view pressTitle = "press", releaseTitle = "release", between = " │ ";

std::string NameOfRow(const KeyReport& report) {
  if (report.deed == KeyDeed::Panel) return std::string(PanelFunctionNameOf(report.code));
  if (report.deed == KeyDeed::Unknown) return "unknown " + CodeText(report.code);
  return KeyNameOf(report.code);
}

/// A key, a panel function or an unknown byte.
struct Row {
  std::string name;
  std::string press, release;
  bool isDown = false;
  void Add(Direction at, std::string_view sign) { (at == Direction::Press ? press : release) += sign; }
  void AddState(Direction at) { Add(at, isDown ? heldSign : " "); }
};

std::size_t CountOf(std::string_view text) { return static_cast<std::size_t>(characters::Count(text)); }

std::string Padded(std::string text, std::size_t width) {
  const std::size_t length = CountOf(text);
  if (length < width) text.append(width - length, ' ');
  return text;
}

std::vector<Row> RowsOf(const LayerReading& reading) {
  std::vector<Row> rows;
  for (const KeyReport& report : reading.reports) {
    std::string name = NameOfRow(report);
    if (std::ranges::find(rows, name, &Row::name) == rows.end()) rows.push_back({std::move(name), {}, {}, false});
  }
  return rows;
}

/// Draws up to the end of a direction that has too few events for its title.
void FillUp(std::vector<Row>& rows, Direction at, std::size_t drawn, std::size_t width) {
  for (; drawn < width; ++drawn) {
    for (Row& row : rows) row.AddState(at);
  }
}

}  // namespace

std::string TimeLine(const LayerReading& reading) {
  if (reading.reports.empty()) return "nothing is sent\n";
  const auto presses = static_cast<std::size_t>(std::ranges::count(reading.reports, Direction::Press, &KeyReport::at));
  const std::size_t releases = reading.reports.size() - presses;
  const std::size_t pressWidth = std::max(presses, pressTitle.size());
  const std::size_t releaseWidth = std::max(releases, releaseTitle.size());

  std::vector<Row> rows = RowsOf(reading);
  bool pressing = true;
  for (const KeyReport& report : reading.reports) {
    if (pressing && report.at == Direction::Release) FillUp(rows, Direction::Press, presses, pressWidth);
    pressing = report.at == Direction::Press;
    const std::string name = NameOfRow(report);
    for (Row& row : rows) {
      if (row.name != name) {
        row.AddState(report.at);
        continue;
      }
      row.Add(report.at, signs[static_cast<std::size_t>(report.deed)]);
      row.isDown = report.deed == KeyDeed::Down || report.deed == KeyDeed::Repeat;
    }
  }
  if (pressing) FillUp(rows, Direction::Press, presses, pressWidth);
  FillUp(rows, Direction::Release, releases, releaseWidth);

  std::size_t nameWidth = 0;
  for (const Row& row : rows) nameWidth = std::max(nameWidth, CountOf(row.name));
  std::string text = std::string(nameWidth + 2, ' ') + Padded(std::string(pressTitle), pressWidth) +
                     std::string(between) + std::string(releaseTitle) + '\n';
  for (const Row& row : rows) {
    std::string line = Padded(row.name, nameWidth + 2) + row.press + std::string(between) + row.release;
    if (row.isDown) line += "  stays down";
    line.erase(line.find_last_not_of(' ') + 1);
    text += line + '\n';
  }
  return text;
}

}  // namespace plexel
