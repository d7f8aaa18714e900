#pragma once

#include <string>
#include <vector>

#include "forms/control.h"

namespace plexel {

/// A grid of cells, of which one is current. The first rows and columns may be fixed: they take no click and do not
/// scroll. Cell operations work on the current cell. Rows, columns and places count from 0; sizes are twips.
class Grid : public Control {
 public:
  /// At least one row and one column must not be fixed; Failure (InvalidCall) otherwise. The first cell that is not
  /// fixed is current.
  Grid(Form& form, std::string_view name, int rows, int cols, int fixedRows, int fixedCols);
  bool Focusable() const override { return true; }

  /// The size of the grid, and how many of its first rows and columns are fixed.
  int Rows() const { return static_cast<int>(cells_.size()); }
  int Cols() const { return static_cast<int>(colWidths_.size()); }
  int FixedRows() const { return fixedRows_; }
  int FixedCols() const { return fixedCols_; }

  /// The current cell. Setting a row or column outside the grid is a Failure (Index). A change raises EnterCell.
  int Row() const { return row_; }
  void Row(int value);
  /// The column of the current cell.
  int Col() const { return col_; }
  void Col(int value);
  /// Makes a cell current in one step, with one EnterCell.
  void Current(int row, int col);

  /// The text of the current cell.
  const std::string& Text() const { return Cell().text; }
  void Text(std::string value) { Cell().text = std::move(value); }
  /// Colours of the current cell's text and ground, 0x00BBGGRR.
  std::int32_t CellForeColor() const { return Cell().foreColor; }
  void CellForeColor(std::int32_t value) { Cell().foreColor = value; }
  /// Colours of the current cell's text and ground, 0x00BBGGRR.
  std::int32_t CellBackColor() const { return Cell().backColor; }
  void CellBackColor(std::int32_t value) { Cell().backColor = value; }
  /// Whether the text of the current cell stands in the middle.
  void CellCentred(bool value) { Cell().centred = value; }
  /// Failure (Index) outside the grid.
  const GridCell& CellAt(int row, int col) const;
  /// Whether a cell is fixed.
  bool IsFixed(int row, int col) const { return row < fixedRows_ || col < fixedCols_; }

  /// The width of a column. Failure (Index) outside the grid, Failure (InvalidCall) for a negative width.
  int ColWidth(int col) const;
  void ColWidth(int col, int width);
  /// The height of every row.
  int RowHeight() const { return rowHeight_; }
  void RowHeight(int value) { rowHeight_ = value; }
  /// Whether the user may change the widths.
  bool UserResizing() const { return userResizing_; }
  void UserResizing(bool value) { userResizing_ = value; }

  /// The current cell's place in the grid, as scrolled, and its size.
  float CellLeft() const;
  /// The current cell's place in the grid, as scrolled.
  float CellTop() const;
  /// The current cell's size.
  float CellWidth() const { return static_cast<float>(ColWidth(col_)); }
  /// The current cell's size.
  float CellHeight() const { return static_cast<float>(rowHeight_); }

  /// Whether the current cell shows the end of a text for which it has no room, and not the beginning.
  bool ShowsEnd() const { return showsEnd_; }
  void ShowsEnd(bool value) { showsEnd_ = value; }

  /// Off while the program changes much, so that nothing flickers.
  bool Redraw() const { return redraw_; }
  void Redraw(bool value) { redraw_ = value; }
  /// Draws what has changed while Redraw was off.
  void Refresh() { ++refreshes_; }
  /// How often Refresh was called.
  int Refreshes() const { return refreshes_; }

  /// The first row and column in view behind the fixed ones.
  int TopRow() const { return topRow_; }
  /// The first column in view behind the fixed ones.
  int LeftCol() const { return leftCol_; }
  /// The rows that are wholly in view behind the fixed ones, by the grid's height; at least one.
  int RowsInView() const;
  /// Scrolls, no further than the last row and column need; raises Scroll when that changes the view.
  void ScrollTo(int topRow, int leftCol);
  /// Scrolls as little as brings a cell into view.
  void ScrollIntoView(int row, int col);

  /// The current cell has changed; the view has been scrolled.
  Event OnEnterCell, OnScroll;

 protected:
  void DescribeMore(Description& description) const override;

 private:
  const GridCell& Cell() const { return cells_[static_cast<std::size_t>(row_)][static_cast<std::size_t>(col_)]; }
  GridCell& Cell() { return cells_[static_cast<std::size_t>(row_)][static_cast<std::size_t>(col_)]; }
  void CheckCell(int row, int col) const;
  /// Twips from the left edge of column `first` to that of column `end`.
  int WidthOf(int first, int end) const;
  /// The leftmost column with which `col` is wholly in view, `col` itself when it is too wide.
  int FirstColShowing(int col) const;

  GridCells cells_;
  std::vector<int> colWidths_;
  int fixedRows_, fixedCols_;
  int row_, col_;
  int rowHeight_ = 255;
  int topRow_, leftCol_;
  int refreshes_ = 0;
  bool redraw_ = true, userResizing_ = false, showsEnd_ = false;
};

}  // namespace plexel
