#include "qt/plain_box.h"

#include <QLabel>

namespace plexel {

PlainBox::PlainBox(QWidget* parent) : QMessageBox(parent) { setTextFormat(Qt::PlainText); }

/// The label of the second text is made with that text, and guesses its format by itself.
void PlainBox::showEvent(QShowEvent* event) {
  for (QLabel* const label : findChildren<QLabel*>()) {
    label->setTextFormat(Qt::PlainText);
    label->setOpenExternalLinks(false);
  }
  QMessageBox::showEvent(event);
}

}  // namespace plexel
