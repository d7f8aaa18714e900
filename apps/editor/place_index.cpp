#include "editor/place_index.h"

#include <algorithm>

namespace plexel {

namespace {
constexpr int SmallestCell = 64, MostCells = 256;  // along an edge
}  // namespace

PlaceIndex::PlaceIndex(std::vector<QRect> boxes) : boxes_(std::move(boxes)) {
  for (const QRect& box : boxes_) whole_ |= box;
  if (whole_.isEmpty()) return;
  cell_ = std::max(SmallestCell, std::max(whole_.width(), whole_.height()) / MostCells + 1);
  columns_ = whole_.width() / cell_ + 1;
  rows_ = whole_.height() / cell_ + 1;
  inCell_.resize(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_));
  for (std::size_t number = 0; number < boxes_.size(); ++number) {
    const QRect cells = CellsOf(boxes_[number]);
    for (int row = cells.top(); row <= cells.bottom(); ++row) {
      for (int column = cells.left(); column <= cells.right(); ++column) {
        inCell_[CellAt(column, row)].push_back(static_cast<int>(number));
      }
    }
  }
}

std::size_t PlaceIndex::CellAt(int column, int row) const {
  return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) + static_cast<std::size_t>(column);
}

QRect PlaceIndex::CellsOf(const QRect& area) const {
  const QRect inside = area.intersected(whole_);
  if (inside.isEmpty()) return {};
  const QPoint from = (inside.topLeft() - whole_.topLeft()), to = (inside.bottomRight() - whole_.topLeft());
  return {QPoint(from.x() / cell_, from.y() / cell_), QPoint(to.x() / cell_, to.y() / cell_)};
}

std::vector<int> PlaceIndex::Meeting(const QRect& area) const {
  std::vector<int> found;
  const QRect cells = CellsOf(area);
  for (int row = cells.top(); row <= cells.bottom(); ++row) {
    for (int column = cells.left(); column <= cells.right(); ++column) {
      for (const int number : inCell_[CellAt(column, row)]) {
        if (boxes_[static_cast<std::size_t>(number)].intersects(area)) found.push_back(number);
      }
    }
  }
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

}  // namespace plexel
