#include "scancodes/definition_text.h"

#include <algorithm>

#include "scancodes/code_type.h"
#include "scancodes/dialog_access.h"
#include "services/code_page.h"
#include "services/failure_styles.h"
#include "services/setting_table.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::int32_t colourBlack = 0, colourRed = 255, colourWhite = 0xFFFFFF;

std::string Without(std::string text, std::string_view part) {
  for (std::size_t place = text.find(part); place != std::string::npos; place = text.find(part, place)) {
    text.erase(place, part.size());
  }
  return text;
}

int CountOf(std::string_view part, std::string_view text) {
  int count = 0;
  for (std::size_t place = text.find(part); place != std::string_view::npos;
       place = text.find(part, place + part.size())) {
    ++count;
  }
  return count;
}

}  // namespace

std::string RemoveFirstDefinitionText(std::string_view strText) {
  const std::size_t place = strText.find(']');
  return place == std::string_view::npos ? std::string() : std::string(strText.substr(place + 1));
}

std::string RemoveLastDefinitionText(std::string_view strText) {
  const std::size_t place = strText.rfind('[');
  return place == std::string_view::npos ? std::string() : std::string(strText.substr(0, place));
}

std::string StripDefinitionMarks(std::string_view strText) {
  std::string text(strText);
  std::erase_if(text, [](char character) { return character == '[' || character == ']'; });
  return Without(Without(std::move(text), chrMakeMark), chrBreakMark);
}

std::string RoundBrackets(std::string_view strText) {
  std::string text(strText);
  std::ranges::replace(text, '[', '(');
  std::ranges::replace(text, ']', ')');
  return text;
}

std::string DefinitionGroup(std::string_view strBody, std::int32_t lngCodeType) {
  std::string group = "[";
  group += strBody;
  if (lngCodeType == MakeAndBreak || lngCodeType == MakeOnly) group += chrMakeMark;
  if (lngCodeType == MakeAndBreak || lngCodeType == BreakOnly) group += chrBreakMark;
  return group + "]";
}

void AppendSpecialDefinition(std::string_view strText) {
  EndQuietly([&] {
    Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
    grid.Enabled(false);
    grid.Text(grid.Text() + DefinitionGroup(RoundBrackets(strText), GetSelectedCodeType()));
    grid.Enabled(true);
  });
}

void UpdateGridRowMarks() {
  EndQuietly([] {
    if (!IsTrue(GetOption(OptionShowCodeBalance))) return;
    Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
    const int currentRow = grid.Row(), currentCol = grid.Col();
    for (int row = 1; row < grid.Rows(); ++row) {
      const std::string texts = grid.CellAt(row, 1).text + grid.CellAt(row, 2).text;
      const bool balanced = CountOf(chrMakeMark, texts) == CountOf(chrBreakMark, texts);
      grid.Current(row, 0);
      grid.CellForeColor(balanced ? colourBlack : colourRed);
      grid.Text(balanced ? std::to_string(row) : "X");
    }
    grid.Current(currentRow, currentCol);
  });
}

void ResetGridCellColours() {
  EndQuietly([] {
    Grid& grid = OpenConfigurationDialogAccess().ScanCodeGrid();
    const int currentRow = grid.Row(), currentCol = grid.Col();
    grid.Redraw(false);
    for (int row = 1; row < grid.Rows(); ++row) {
      for (int col = 1; col < grid.Cols(); ++col) {
        grid.Current(row, col);
        grid.CellBackColor(colourWhite);
      }
    }
    grid.Current(currentRow, currentCol);
    grid.Redraw(true);
    grid.Refresh();
    grid.Visible(true);
  });
}

}  // namespace plexel
