#pragma once

#include <vector>

#include "forms/grid.h"

namespace plexel {

/// A place in a grid, in twips from its upper left corner.
struct GridPlace {
  float left = 0, top = 0, width = 0, height = 0;
  bool IsEmpty() const { return width <= 0 || height <= 0; }
  bool operator==(const GridPlace&) const = default;
};

/// What a renderer draws of a grid, and where: all of it at one moment. Two are the same when they look the same.
struct GridShot {
  /// A column that the user may make smaller keeps so many twips, and so much of the next one in view.
  static constexpr int Narrowest = 120, NextInView = 240;

  /// The grid as it is now.
  static GridShot Of(const Grid& grid);

  GridCells cells;
  /// The widths of the columns as they are drawn. Where the user may change them, each column keeps an edge that the
  /// mouse can take, with a piece of the next column in view behind it, whatever width the grid has for it.
  std::vector<int> widths;
  int fixedRows = 0, fixedCols = 0;
  int row = 0, col = 0;  ///< the current cell
  int topRow = 0, leftCol = 0, rowsInView = 0, rowHeight = 0;
  float width = 0, height = 0;  ///< of the grid
  bool focus = false, enabled = true, showsEnd = false;

  bool operator==(const GridShot& other) const;

  int Rows() const { return static_cast<int>(cells.size()); }
  int Cols() const { return static_cast<int>(widths.size()); }
  const GridCell& At(int cellRow, int cellCol) const {
    return cells[static_cast<std::size_t>(cellRow)][static_cast<std::size_t>(cellCol)];
  }
  bool IsFixed(int cellRow, int cellCol) const { return cellRow < fixedRows || cellCol < fixedCols; }
  bool IsCurrent(int cellRow, int cellCol) const { return cellRow == row && cellCol == col; }
  /// Whether a cell shows the end of a text for which it has no room.
  bool ShowsEnd(int cellRow, int cellCol) const { return showsEnd && IsCurrent(cellRow, cellCol); }

  /// Where a cell lies; empty when it is scrolled out of view.
  GridPlace PlaceOf(int cellRow, int cellCol) const;
  /// The width that the user may give a column, next to one that he asks for.
  int WidthWithin(int cellCol, int asked) const;

  /// Whether there are more rows, or more columns, than come into view.
  bool IsTall() const { return Rows() - fixedRows > rowsInView; }
  bool IsWide() const;
  /// The height below the last row, negative when there is none.
  float HeightBelow() const { return height - static_cast<float>(Rows() * rowHeight); }
};

}  // namespace plexel
