#pragma once

#include <QDockWidget>
#include <functional>

#include "project/trial.h"

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTreeWidget;

namespace plexel {

class PanelDocument;
class TimeLineView;

/// What a panel function is called in the user's language, by its command byte.
QString PanelFunctionText(KeyCode byte);
/// Keys by their names, with commas between them.
QString KeyList(const std::vector<KeyCode>& keys);

/// Tells what elements that are tried send, and what a PC makes of it.
class TrialDock : public QDockWidget {
 public:
  explicit TrialDock(QWidget* parent);

  void Show(const Trial& trial, const PanelDocument& document);
  /// Takes the texts of the language in force.
  void Retranslate();
  /// The words about what is down, empty for nothing.
  QString DownText() const;
  /// The bytes and commands told, a line each press or release.
  QString Content() const;
  const TimeLineView& TimeLine() const { return *timeLine_; }

  std::function<void()> onLetGoOfAll, onClear, onLeave;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void ShowEvents(const Trial& trial, const PanelDocument& document);
  void ShowTimeLine(const Trial& trial, const PanelDocument& document);

  QLabel *state_, *down_, *textTitle_, *hint_;
  QTreeWidget* events_;
  TimeLineView* timeLine_;
  QPlainTextEdit* text_;
  QPushButton *letGo_, *clear_;
};

}  // namespace plexel
