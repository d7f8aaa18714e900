#include "editor/difference_view.h"

#include <QHeaderView>

#include "editor/difference_text.h"
#include "qt/captions.h"

namespace plexel {

DifferenceView::DifferenceView(Text first, Text second) {
  setHeaderLabels({Say(Text::ColumnElement), Say(Text::ColumnWhat), Say(first), Say(second)});
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  setTextElideMode(Qt::ElideRight);
}

void DifferenceView::Show(const std::vector<ProjectDifference>& differences) {
  clear();
  QList<QTreeWidgetItem*> items;
  for (const ProjectDifference& difference : differences) {
    const DifferenceText text = TextOf(difference);
    auto* const item = new QTreeWidgetItem({text.element, text.what, text.from, text.to});
    // A tool tip takes text that looks like mark-up for mark-up, unless it is told otherwise.
    for (const auto& [column, value] : {std::pair{2, text.from}, std::pair{3, text.to}}) {
      item->setToolTip(column, ToolTipOf(value));
    }
    items.append(item);
  }
  addTopLevelItems(items);
  for (int column = 0; column < 2; ++column) resizeColumnToContents(column);
  header()->resizeSection(2, header()->width() / 3);
}

}  // namespace plexel
