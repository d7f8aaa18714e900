#pragma once

#include <QDockWidget>

class QPlainTextEdit;
class QPushButton;

namespace plexel {

/// A dock with the events that the editor has heard, the newest last.
class LogPanel : public QDockWidget {
 public:
  explicit LogPanel(QWidget* parent);
  void Append(const QString& line);
  /// Takes the texts of the language in force.
  void Retranslate();
  QString Content() const;

 private:
  QPlainTextEdit* lines_;
  QPushButton* clear_;
};

}  // namespace plexel
