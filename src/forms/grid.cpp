#include "forms/grid.h"

#include <algorithm>
#include <numeric>

#include "forms/form.h"
#include "platform/failure.h"

namespace plexel {

namespace {
constexpr int DesignedColWidth = 960;
}

Grid::Grid(Form& form, std::string_view name, int rows, int cols, int fixedRows, int fixedCols)
    : Control(form, ControlKind::Grid, name),
      fixedRows_(fixedRows),
      fixedCols_(fixedCols),
      row_(fixedRows),
      col_(fixedCols),
      topRow_(fixedRows),
      leftCol_(fixedCols) {
  if (fixedRows < 0 || fixedCols < 0 || rows <= fixedRows || cols <= fixedCols) {
    throw Failure(FailureKind::InvalidCall, FullName() + " would have no cell that is not fixed");
  }
  cells_.assign(static_cast<std::size_t>(rows), std::vector<GridCell>(static_cast<std::size_t>(cols)));
  colWidths_.assign(static_cast<std::size_t>(cols), DesignedColWidth);
}

void Grid::CheckCell(int row, int col) const {
  if (row < 0 || row >= Rows() || col < 0 || col >= Cols()) {
    throw Failure(FailureKind::Index,
                  FullName() + " has no cell (" + std::to_string(row) + ", " + std::to_string(col) + ')');
  }
}

void Grid::Row(int value) { Current(value, col_); }
void Grid::Col(int value) { Current(row_, value); }

void Grid::Current(int row, int col) {
  CheckCell(row, col);
  if (row == row_ && col == col_) return;
  row_ = row;
  col_ = col;
  Raise(OnEnterCell);
}

const GridCell& Grid::CellAt(int row, int col) const {
  CheckCell(row, col);
  return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
}

int Grid::ColWidth(int col) const {
  CheckCell(0, col);
  return colWidths_[static_cast<std::size_t>(col)];
}

void Grid::ColWidth(int col, int width) {
  CheckCell(0, col);
  if (width < 0) throw Failure(FailureKind::InvalidCall, FullName() + " cannot have a column of negative width");
  colWidths_[static_cast<std::size_t>(col)] = width;
}

int Grid::WidthOf(int first, int end) const {
  return std::accumulate(colWidths_.begin() + first, colWidths_.begin() + end, 0);
}

float Grid::CellLeft() const {
  if (col_ < fixedCols_) return static_cast<float>(WidthOf(0, col_));
  const int scrolled = col_ >= leftCol_ ? WidthOf(leftCol_, col_) : -WidthOf(col_, leftCol_);
  return static_cast<float>(WidthOf(0, fixedCols_) + scrolled);
}

float Grid::CellTop() const {
  const int rowsAbove = row_ < fixedRows_ ? row_ : fixedRows_ + row_ - topRow_;
  return static_cast<float>(rowsAbove * rowHeight_);
}

int Grid::RowsInView() const {
  if (rowHeight_ <= 0) return Rows() - fixedRows_;
  return std::max(1, static_cast<int>(Height()) / rowHeight_ - fixedRows_);
}

int Grid::FirstColShowing(int col) const {
  const int room = static_cast<int>(Width()) - WidthOf(0, fixedCols_);
  int first = col;
  while (first > fixedCols_ && WidthOf(first - 1, col + 1) <= room) --first;
  return first;
}

void Grid::ScrollTo(int topRow, int leftCol) {
  const int lastTopRow = std::max(fixedRows_, Rows() - RowsInView());
  const int top = std::clamp(topRow, fixedRows_, lastTopRow);
  const int left = std::clamp(leftCol, fixedCols_, FirstColShowing(Cols() - 1));
  if (top == topRow_ && left == leftCol_) return;
  topRow_ = top;
  leftCol_ = left;
  Raise(OnScroll);
}

void Grid::ScrollIntoView(int row, int col) {
  CheckCell(row, col);
  int top = topRow_, left = leftCol_;
  if (row >= fixedRows_) top = std::clamp(top, row - RowsInView() + 1, row);
  if (col >= fixedCols_) left = std::clamp(left, FirstColShowing(col), col);
  ScrollTo(top, left);
}

void Grid::DescribeMore(Description& description) const {
  description.emplace_back("Text", Text());
  description.emplace_back("Rows", static_cast<std::int32_t>(Rows()));
  description.emplace_back("Cols", static_cast<std::int32_t>(Cols()));
  description.emplace_back("Row", static_cast<std::int32_t>(row_));
  description.emplace_back("Col", static_cast<std::int32_t>(col_));
  description.emplace_back("ColWidth", std::vector<std::int32_t>(colWidths_.begin(), colWidths_.end()));
  description.emplace_back("Cells", cells_);
}

}  // namespace plexel
