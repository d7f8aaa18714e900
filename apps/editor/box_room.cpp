#include "editor/box_room.h"

#include <QFontMetrics>
#include <QLabel>
#include <QMessageBox>
#include <algorithm>

namespace plexel {

void GiveRoom(QMessageBox& box) {
  constexpr int MostWidth = 420;
  auto* const label = box.findChild<QLabel*>("qt_msgbox_informativelabel");
  if (label == nullptr) return;
  const QRect lines = label->fontMetrics().boundingRect(QRect(0, 0, MostWidth, 0), Qt::TextWordWrap, label->text());
  label->setMinimumWidth(std::min(MostWidth, lines.width() + 1));
}

}  // namespace plexel
