#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <array>
#include <cstdint>
#include <utility>

#include "editor/live_problems.h"

namespace plexel {

/// The problems as rows of a table: level, element, layer, and what happens. A change moves only the rows of the places
/// that it touches.
class ProblemModel : public QAbstractTableModel {
 public:
  enum Column { Level, Element, Layer, What, ColumnCount };

  /// The problems must outlive the model.
  explicit ProblemModel(const LiveProblems& problems, QObject* parent = nullptr);
  /// Shows errors alone.
  void ErrorsOnly(bool only);
  bool ErrorsOnly() const { return errorsOnly_; }
  /// All problems are other ones.
  void Reset();
  /// Those of some places may be; the places ascend.
  void Update(std::span<const std::size_t> places);

  int PlaceOf(int row) const { return static_cast<int>(rows_.at(static_cast<std::size_t>(row)).place); }
  Problem ProblemOf(int row) const;
  /// The first row of a place, -1 for none.
  int FirstRowOf(int place) const;

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Row {
    std::uint32_t place, index;  ///< `index` among the problems of the place
    bool operator==(const Row&) const = default;
  };
  std::vector<Row> RowsOf(std::size_t place) const;
  const std::vector<Problem>& ProblemsOf(std::size_t place) const;
  /// The rows of a place, as first and behind the last.
  std::pair<int, int> Range(std::size_t place) const;
  void UpdatePlace(std::size_t place);
  void Fill();

  const LiveProblems& problems_;
  std::array<QIcon, 2> icons_;  ///< by level
  bool errorsOnly_ = false;
  std::vector<Row> rows_;  ///< ascending by place
  /// The problems of the place that was asked for last.
  mutable std::pair<std::optional<std::size_t>, std::vector<Problem>> last_;
};

}  // namespace plexel
