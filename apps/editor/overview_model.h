#pragma once

#include <QAbstractTableModel>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "editor/live_problems.h"
#include "project/panel_document.h"
#include "project/report.h"
#include "project/search.h"

namespace plexel {

/// A document as a table: a row for each element and layer, those that a search finds, in the order of a column. What
/// it tells is what a report tells. Only what is asked for is made, and kept until the element changes.
class OverviewModel : public QAbstractTableModel {
 public:
  enum Column {
    ElementColumn,
    KindColumn,
    LayerColumn,
    PressColumn,
    ReleaseColumn,
    LedColumn,
    NoteColumn,
    ProblemColumn,
    ColumnCount
  };
  /// The problems are those of the document that is shown, and must outlive all use of the model.
  explicit OverviewModel(const LiveProblems& problems, QObject* parent = nullptr)
      : QAbstractTableModel(parent), problems_(problems) {}

  /// Takes a document, which must outlive its use here; null takes it away.
  void Show(const PanelDocument* document);
  /// The elements of some places have changed, or their problems; the places ascend.
  void Changed(std::span<const std::size_t> places);
  /// All problems are other ones.
  void ProblemsReset();
  /// Takes the texts of the language in force.
  void Retranslate();

  /// Shows what a search finds alone, of two the last that was set; an empty one finds everything.
  void Look(TextSearch search);
  void Look(KeySearch search);
  bool Searches() const { return !words_.IsEmpty() || !keys_.IsEmpty(); }
  /// The places of the rows that are there, ascending, each once.
  std::vector<int> PlacesShown() const;

  /// The row of an element and a layer, -1 when it is not there; with layer 0 the first one of the element.
  int RowOf(int place, std::int32_t layer) const;
  int PlaceOf(int row) const { return order_[static_cast<std::size_t>(row)] / LayerCount; }
  std::int32_t LayerOf(int row) const { return order_[static_cast<std::size_t>(row)] % LayerCount + 1; }
  const ctlPlexelBaseElement& ElementOf(int row) const { return ElementAt(PlaceOf(row)); }
  /// How many rows there are without a search.
  int LineCount() const { return static_cast<int>(entries_.size()) * LayerCount; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  void sort(int column, Qt::SortOrder order) override;

  /// The user wants another note, or another LED function on a layer.
  std::function<void(int place, const QString& note)> onNote;
  std::function<void(int place, std::int32_t layer, enumLedType type)> onLed;

 private:
  /// What is told of one element.
  struct Entry {
    std::array<ReportRow, LayerCount> rows;
    std::array<std::string, LayerCount> problems, searchable;
    std::array<bool, LayerCount> hasError{};
  };
  const ctlPlexelBaseElement& ElementAt(int place) const;
  const Entry& At(int place) const;
  const ReportRow& LineAt(int line) const;
  std::string_view TextOf(int line, int column) const;
  void AddProblems(int place, Entry& entry) const;
  bool IsFound(int line) const;
  bool IsMarked(int line, int column) const;
  KeySearch::Found KeysFound(int line) const;
  /// Makes the rows anew: those found, in their order.
  void Arrange();
  void SortLines(std::vector<int>& lines) const;

  const LiveProblems& problems_;
  const PanelDocument* document_ = nullptr;
  std::optional<ReportWords> told_;
  mutable std::vector<std::optional<Entry>> entries_;  ///< by place
  std::vector<int> order_;                             ///< by row the line: four to a place, layer by layer
  std::vector<int> rowOf_;                             ///< by line, -1 for one that is not there
  TextSearch words_;
  KeySearch keys_;
  int sortedBy_ = -1;
  bool descending_ = false;
};

}  // namespace plexel
