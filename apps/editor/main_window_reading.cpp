#include "editor/main_window.h"

#include <QToolButton>
#include <array>

#include "editor/inspector.h"
#include "editor/overview_panel.h"
#include "editor/panel_view.h"
#include "editor/problem_panel.h"
#include "editor/trial_layer.h"
#include "editor/trial_mode.h"

namespace plexel {

void MainWindow::MakeReading() {
  problemList_ = new ProblemPanel(problems_, selection_, this);
  addDockWidget(Qt::BottomDockWidgetArea, problemList_);
  constexpr int ListHeight = 190;
  resizeDocks({problemList_}, {ListHeight}, Qt::Vertical);
  inspector_ = new Inspector(selection_, problems_, this);
  addDockWidget(Qt::RightDockWidgetArea, inspector_);
  constexpr int InspectorWidth = 260;
  resizeDocks({inspector_}, {InspectorWidth}, Qt::Horizontal);
  problemCount_ = new QToolButton;
  problemCount_->setObjectName("ProblemCount");
  problemCount_->setAutoRaise(true);
  problemCount_->setFocusPolicy(Qt::NoFocus);
  connect(problemCount_, &QToolButton::clicked, this, [this] {
    problemList_->show();
    problemList_->raise();
    problemList_->Enter();
  });
}

void MainWindow::ConnectReading() {
  problems_.onReset = [this] {
    problemList_->Reset();
    overview_->ProblemsReset();
    inspector_->Refresh();
    ShowProblemCount();
    view_->update();
  };
  problems_.onChanged = [this](std::span<const std::size_t> places) {
    problemList_->Update(places);
    overview_->Changed(places);
    inspector_->Refresh();
    ShowProblemCount();
    view_->BadgesChanged(places);
  };
  problemList_->onOpen = [this](int place, const Problem& problem) { Guarded([&] { OpenProblem(place, problem); }); };
  inspector_->onConfigure = [this] {
    Guarded([this] {
      Try(false);
      Configure();
    });
  };
  inspector_->onProperties = [this] {
    Guarded([this] {
      Try(false);
      ShowProperties();
    });
  };
  inspector_->onProblem = problemList_->onOpen;
  inspector_->onNotes = [this](int place, const std::string& notes) {
    Guarded([&] {
      ctlPlexelBaseElement& element = *document_->Places()[static_cast<std::size_t>(place)].element;
      Change(StepKind::Notes, element, [&] { element.ButtonNotes(notes); });
    });
  };
  view_->problemOf = [this](int place) { return problems_.LevelOf(place); };
  view_->problemTexts = [this](int place) {
    QStringList told;
    for (const Problem& problem : problems_.Of(place)) told.append(problems_.WholeText(problem));
    return told;
  };
}

void MainWindow::RetranslateReading() {
  problemList_->Retranslate();
  inspector_->Retranslate();
  problems_.Retranslate();
  problemCount_->setToolTip(Say(Text::ProblemsTip));
}

void MainWindow::ShowProblemCount() {
  problemCount_->setText(problems_.Failure().isEmpty() ? CountText(problems_.Counts()) : Say(Text::Problems) + ": ?");
}

void MainWindow::OpenProblem(int place, const Problem& problem) {
  Try(false);
  selection_.Only(place);
  const bool isKeySwitch = view_->Selected()->ElementType() == Key;
  if (problem.rule == ProblemRule::NumberTwice || isKeySwitch) return ShowProperties();
  Configure();
}

void MainWindow::GoToNextArea() {
  struct Area {
    QWidget* whole;
    std::function<void()> enter;
  };
  QWidget* const picture = trial_->IsOn() ? static_cast<QWidget*>(&trial_->Layer()) : view_;
  const std::array areas = {Area{view_, [picture] { picture->setFocus(Qt::ShortcutFocusReason); }},
                            Area{inspector_, [this] { inspector_->Enter(); }},
                            Area{problemList_, [this] { problemList_->Enter(); }},
                            Area{overview_, [this] { overview_->Find(); }}};
  const QWidget* const focus = focusWidget();
  std::size_t at = 0;
  for (std::size_t area = 0; area < areas.size(); ++area) {
    if (areas[area].whole->isAncestorOf(focus)) at = area;
  }
  do {
    at = (at + 1) % areas.size();
  } while (!areas[at].whole->isVisible());
  areas[at].enter();
}

}  // namespace plexel
