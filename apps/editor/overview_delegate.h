#pragma once

#include <QStyledItemDelegate>

#include "editor/overview_model.h"
#include "editor/selection.h"

namespace plexel {

/// Paints the rows of an overview as they are chosen, and edits a note in its cell and an LED function from the list of
/// those that the configuration dialog has for the element.
class OverviewDelegate : public QStyledItemDelegate {
 public:
  OverviewDelegate(const OverviewModel& model, const Selection& selection, QObject* parent)
      : QStyledItemDelegate(parent), model_(model), selection_(selection) {}

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  const OverviewModel& model_;
  const Selection& selection_;
};

}  // namespace plexel
