#pragma once

#include <QMessageBox>

namespace plexel {

/// A message box that shows its texts as they are: nothing in them is taken for mark-up, and no link can be followed.
class PlainBox : public QMessageBox {
 public:
  explicit PlainBox(QWidget* parent = nullptr);

 protected:
  void showEvent(QShowEvent* event) override;
};

}  // namespace plexel
