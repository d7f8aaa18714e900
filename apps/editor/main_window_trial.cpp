#include "editor/main_window.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <algorithm>
#include <array>

#include "editor/element_text.h"
#include "editor/panel_view.h"
#include "editor/trial_dock.h"
#include "editor/trial_mode.h"

namespace plexel {

namespace {

/// The menus whose entries act on elements.
constexpr std::array editingMenus = {Text::MenuEdit, Text::MenuElement};

void AddEntries(const QMenu& menu, std::vector<QAction*>& entries) {
  for (QAction* const action : menu.actions()) {
    if (action->menu() != nullptr) {
      AddEntries(*action->menu(), entries);
    } else if (!action->isSeparator()) {
      entries.push_back(action);
    }
  }
}

}  // namespace

void MainWindow::MakeTrial() {
  trialDock_ = new TrialDock(this);
  addDockWidget(Qt::BottomDockWidgetArea, trialDock_);
  trialDock_->hide();
  GatherDocks();
  trial_ = std::make_unique<TrialMode>(*view_, *trialDock_, selection_);
  trial_->onLeave = [this] { Try(false); };
  trial_->onChange = [this] { view_->Layer(trial_->State().Layer()); };
}

void MainWindow::AddTrial(QMenu& menu) {
  try_ = menu.addAction(QString());
  try_->setObjectName("Try");
  try_->setCheckable(true);
  try_->setShortcut(Qt::Key_F5);
  named_.push_back({try_, Text::Try});
  connect(try_, &QAction::triggered, this, [this](bool on) { Guarded([&] { Try(on); }); });
}

void MainWindow::Try(bool on) {
  on = on && document_ != nullptr;
  try_->setChecked(on);
  if (on == trial_->IsOn()) return;
  if (on) {
    trial_->Enter(*document_, std::max(1, layerBox_->currentIndex()));
  } else {
    trial_->Leave();
    view_->Layer(layerBox_->currentIndex());
  }
  ShowEditing();
}

void MainWindow::ShowEditing() {
  if (!trial_->IsOn()) {
    for (QAction* const action : std::exchange(restingActions_, {})) action->setEnabled(true);
    ShowConfigure();
    ShowHistory();
    return;
  }
  std::vector<QAction*> entries;
  for (const auto& [menu, text] : menus_) {
    if (std::find(editingMenus.begin(), editingMenus.end(), text) != editingMenus.end()) AddEntries(*menu, entries);
  }
  for (QAction* const action : entries) {
    if (!action->isEnabled() || std::ranges::find(seekingActions_, action) != seekingActions_.end()) continue;
    action->setEnabled(false);
    restingActions_.push_back(action);
  }
}

}  // namespace plexel
