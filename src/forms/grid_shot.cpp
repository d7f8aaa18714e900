#include "forms/grid_shot.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace plexel {

namespace {

bool SameCell(const GridCell& one, const GridCell& other) {
  return one.text == other.text && one.foreColor == other.foreColor && one.backColor == other.backColor &&
         one.centred == other.centred;
}

bool SameRow(const std::vector<GridCell>& one, const std::vector<GridCell>& other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(), SameCell);
}

/// All but the cells.
auto FactsOf(const GridShot& shot) {
  return std::tie(shot.widths, shot.fixedRows, shot.fixedCols, shot.row, shot.col, shot.topRow, shot.leftCol,
                  shot.rowsInView, shot.rowHeight, shot.width, shot.height, shot.focus, shot.enabled, shot.showsEnd);
}

}  // namespace

GridShot GridShot::Of(const Grid& grid) {
  GridShot shot;
  for (int row = 0; row < grid.Rows(); ++row) {
    std::vector<GridCell>& cells = shot.cells.emplace_back();
    for (int col = 0; col < grid.Cols(); ++col) cells.push_back(grid.CellAt(row, col));
  }
  shot.fixedRows = grid.FixedRows();
  shot.fixedCols = grid.FixedCols();
  shot.width = grid.Width();
  shot.height = grid.Height();
  for (int col = 0; col < grid.Cols(); ++col) {
    const int width = grid.ColWidth(col);
    shot.widths.push_back(grid.UserResizing() ? shot.WidthWithin(col, width) : width);
  }
  shot.row = grid.Row();
  shot.col = grid.Col();
  shot.topRow = grid.TopRow();
  shot.leftCol = grid.LeftCol();
  shot.rowsInView = grid.RowsInView();
  shot.rowHeight = grid.RowHeight();
  shot.focus = grid.HasFocus();
  shot.enabled = grid.Enabled();
  shot.showsEnd = grid.ShowsEnd();
  return shot;
}

bool GridShot::operator==(const GridShot& other) const {
  return FactsOf(*this) == FactsOf(other) &&
         std::equal(cells.begin(), cells.end(), other.cells.begin(), other.cells.end(), SameRow);
}

GridPlace GridShot::PlaceOf(int cellRow, int cellCol) const {
  const bool fixedRow = cellRow < fixedRows, fixedCol = cellCol < fixedCols;
  if ((!fixedRow && cellRow < topRow) || (!fixedCol && cellCol < leftCol)) return {};
  float left = 0;
  for (int before = 0; before < cellCol; ++before) {
    if (before < fixedCols || before >= leftCol) left += static_cast<float>(widths[static_cast<std::size_t>(before)]);
  }
  const int rowsAbove = fixedRow ? cellRow : fixedRows + cellRow - topRow;
  return {left, static_cast<float>(rowsAbove * rowHeight),
          static_cast<float>(widths[static_cast<std::size_t>(cellCol)]), static_cast<float>(rowHeight)};
}

/// Fixed columns share half of the grid; any other leaves the next one in view beside the fixed.
int GridShot::WidthWithin(int cellCol, int asked) const {
  const int room = static_cast<int>(width);
  const int widest = cellCol < fixedCols
                         ? room / 2 / fixedCols
                         : room - std::accumulate(widths.begin(), widths.begin() + fixedCols, 0) - NextInView;
  return std::clamp(asked, Narrowest, std::max(Narrowest, widest));
}

bool GridShot::IsWide() const { return static_cast<float>(std::accumulate(widths.begin(), widths.end(), 0)) > width; }

}  // namespace plexel
