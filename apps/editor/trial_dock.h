#pragma once

#include <functional>

#include "editor/late_dock.h"
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
class TrialDock : public LateDock {
 public:
  explicit TrialDock(QWidget* parent);

  /// Once it has been shown, as all that asks for what it tells.
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
  void MakeContent() override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void NameContent();
  void ShowEvents(const Trial& trial, const PanelDocument& document);
  void ShowTimeLine(const Trial& trial, const PanelDocument& document);

  QLabel *state_ = nullptr, *down_ = nullptr, *textTitle_ = nullptr, *hint_ = nullptr;
  QTreeWidget* events_ = nullptr;
  TimeLineView* timeLine_ = nullptr;
  QPlainTextEdit* text_ = nullptr;
  QPushButton *letGo_ = nullptr, *clear_ = nullptr;
};

}  // namespace plexel
