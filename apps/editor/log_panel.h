#pragma once

#include <QDockWidget>

class QListWidget;
class QPushButton;

namespace plexel {

/// A dock with the events that the editor has heard, the newest last.
class LogPanel : public QDockWidget {
 public:
  explicit LogPanel(QWidget* parent);
  /// An event in words, and as tool tip the precise call that it was; both plain text.
  void Append(const QString& words, const QString& call = QString());
  /// Takes the texts of the language in force.
  void Retranslate();
  /// The lines, with their times.
  QString Content() const;
  /// The precise calls, a line each.
  QString Calls() const;

 private:
  void CopyChosen() const;

  QListWidget* lines_;
  QPushButton* clear_;
};

}  // namespace plexel
