#pragma once

#include <QDockWidget>

#include "editor/problem_model.h"
#include "editor/selection.h"

class QCheckBox;
class QLabel;
class QStackedWidget;
class QTableView;

namespace plexel {

/// A dock with the list of problems. A row that the user goes to selects its element; a double click or Return opens
/// where the problem is mended.
class ProblemPanel : public QDockWidget {
 public:
  /// Problems and selection must outlive all use of the panel.
  ProblemPanel(const LiveProblems& problems, Selection& selection, QWidget* parent);
  /// Brings the list into line with the problems: all of them, or those of some places.
  void Reset();
  void Update(std::span<const std::size_t> places);
  /// Takes the texts of the language in force.
  void Retranslate();

  /// Takes the keyboard.
  void Enter();

  QTableView& List() const { return *list_; }
  QCheckBox& ErrorsOnly() const { return *errorsOnly_; }
  /// What stands in place of a list without rows; empty while there are rows.
  QString EmptyText() const;

  std::function<void(int place, const Problem& problem)> onOpen;

 private:
  void MakeContent();
  /// Runs what moves rows by itself, which is no move of the user.
  void Moving(const std::function<void()>& act);
  void ShowCounts();
  /// Goes to the row of the current element.
  void FollowSelection();
  void Go(const QModelIndex& index);
  void Open(const QModelIndex& index);

  const LiveProblems& problems_;
  Selection& selection_;
  ProblemModel* model_;
  QStackedWidget* pages_;
  QTableView* list_;
  QLabel* empty_;
  QCheckBox* errorsOnly_;
  bool moving_ = false;
};

}  // namespace plexel
