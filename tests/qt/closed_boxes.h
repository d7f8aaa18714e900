#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <string>
#include <vector>

namespace plexel::testing {

/// Closes the message boxes of the editor as they come, and keeps what they tell.
class ClosedBoxes {
 public:
  ClosedBoxes() {
    closing_.setInterval(0);
    QObject::connect(&closing_, &QTimer::timeout, &closing_, [this] {
      if (auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        told.push_back(box->informativeText().toStdString());
        box->close();
      }
    });
    closing_.start();
  }

  std::vector<std::string> told;

 private:
  QTimer closing_;
};

}  // namespace plexel::testing
