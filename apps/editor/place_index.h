#pragma once

#include <QRect>
#include <vector>

namespace plexel {

/// Many boxes in a plane, found by where they lie without looking at all of them.
class PlaceIndex {
 public:
  /// Boxes are told by their numbers in the list.
  explicit PlaceIndex(std::vector<QRect> boxes = {});
  /// The numbers of the boxes that meet a rectangle, ascending.
  std::vector<int> Meeting(const QRect& area) const;

 private:
  /// The cells that a rectangle meets, as columns and rows.
  QRect CellsOf(const QRect& area) const;
  std::size_t CellAt(int column, int row) const;

  std::vector<QRect> boxes_;
  QRect whole_;
  int cell_ = 1, columns_ = 0, rows_ = 0;
  std::vector<std::vector<int>> inCell_;  ///< row by row
};

}  // namespace plexel
