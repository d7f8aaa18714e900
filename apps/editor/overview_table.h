#pragma once

#include <QTableView>

#include "editor/overview_model.h"
#include "editor/selection.h"

namespace plexel {

/// The table of an overview. Its rows are chosen as the elements are: by the one selection of the editor, in which a
/// click, Ctrl, Shift and the arrow keys mean what they mean on the picture.
class OverviewTable : public QTableView {
 public:
  /// Both must outlive all use of the table.
  OverviewTable(OverviewModel& model, Selection& selection, QWidget* parent = nullptr);

  /// Brings the current row into line with the selection; behind each change of the rows.
  void Follow();
  /// Goes from row to row, round the end; from no row to the first.
  void GoOn(bool forward);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  /// Chooses the elements from the anchor of the choice to a row.
  void ExtendTo(int row);
  void GoTo(int row);

  OverviewModel& model_;
  Selection& selection_;
  bool follows_ = false;  ///< the current row changes by the selection
  bool byMouse_ = false;  ///< a press of the mouse decides what is chosen
};

}  // namespace plexel
