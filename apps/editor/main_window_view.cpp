#include "editor/main_window.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QDockWidget>
#include <QMenu>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <initializer_list>

#include "editor/element_text.h"
#include "editor/inspector.h"
#include "editor/log_panel.h"
#include "editor/overview_panel.h"
#include "editor/panel_scroll.h"
#include "editor/panel_view.h"
#include "editor/problem_panel.h"
#include "editor/trial_dock.h"
#include "editor/trial_mode.h"

namespace plexel {

namespace {

constexpr std::array zoomSteps = {25, 50, 75, 100, 125, 150, 200, 250, 300, 400};

/// What is chosen together by the kind of the elements.
struct KindChoice {
  Text text;
  std::array<enumTactisBaseElementType, 2> kinds;
};
constexpr std::array kindChoices = {
    KindChoice{Text::SelectKeys, {Oval, Rect}}, KindChoice{Text::SelectLeds, {Led, Led}},
    KindChoice{Text::SelectKeysWithLed, {OvalLed, RectLed}}, KindChoice{Text::SelectKeySwitches, {Key, Key}}};

QString LayerText(std::int32_t layer) {
  return layer == AllLayersShown ? Say(Text::LayerAll) : Say(Text::LayerOne).arg(layer);
}

}  // namespace

void MainWindow::GatherDocks() {
  setTabPosition(Qt::BottomDockWidgetArea, QTabWidget::North);
  for (QDockWidget* const dock : std::initializer_list<QDockWidget*>{log_, overview_, trialDock_}) {
    tabifyDockWidget(problemList_, dock);
  }
  for (QDockWidget* const dock : std::initializer_list<QDockWidget*>{problemList_, log_, overview_, trialDock_}) {
    connect(dock->toggleViewAction(), &QAction::triggered, dock, [dock](bool shown) {
      if (shown) dock->raise();
    });
  }
}

void MainWindow::MakeSelectMenu(QMenu& menu) {
  QMenu* const select = menu.addMenu(QString());
  menus_.emplace_back(select, Text::SelectMenu);
  // Their keys hold for the picture; a list has its own of the same meaning.
  for (QAction* const action : {Add(*select, Text::SelectAll, QKeySequence::SelectAll, &MainWindow::SelectAll),
                                Add(*select, Text::SelectNone, Qt::Key_Escape, &MainWindow::SelectNone)}) {
    action->setShortcutContext(Qt::WidgetShortcut);
    view_->addAction(action);
  }
  select->addSeparator();
  for (const KindChoice& choice : kindChoices) {
    QAction* const action = select->addAction(QString());
    connect(action, &QAction::triggered, this,
            [this, &choice] { Guarded([&] { SelectKinds({choice.kinds.begin(), choice.kinds.end()}); }); });
    named_.push_back({action, choice.text});
  }
}

void MainWindow::MakeViewMenu(QMenu& menu) {
  Add(menu, Text::ZoomIn, QKeySequence::ZoomIn, &MainWindow::ZoomIn)
      ->setShortcuts({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
  Add(menu, Text::ZoomOut, Qt::CTRL | Qt::Key_Minus, &MainWindow::ZoomOut);
  Add(menu, Text::ZoomNormal, Qt::CTRL | Qt::Key_0, &MainWindow::ZoomNormal);
  Add(menu, Text::ZoomFit, Qt::CTRL | Qt::Key_9, &MainWindow::ZoomFit);
  menu.addSeparator();
  QMenu* const layer = menu.addMenu(QString());
  menus_.emplace_back(layer, Text::MenuLayer);
  layers_ = new QActionGroup(this);
  for (std::int32_t one = AllLayersShown; one <= LayerCount; ++one) {
    QAction* const action = layers_->addAction(layer->addAction(QString()));
    action->setCheckable(true);
    action->setChecked(one == AllLayersShown);
    connect(action, &QAction::triggered, this, [this, one] { ShowLayer(one); });
  }
  labels_ = menu.addAction(QString());
  labels_->setCheckable(true);
  labels_->setChecked(store_.Labels());
  view_->Labels(store_.Labels());
  named_.push_back({labels_, Text::ShowDefinitions});
  connect(labels_, &QAction::toggled, this, [this](bool shown) {
    view_->Labels(shown);
    store_.Labels(shown);
  });
  menu.addSeparator();
  AddTrial(menu);
  AddVirtualPanel(menu);
  menu.addSeparator();
  tools_ = addToolBar(QString());
  menu.addAction(tools_->toggleViewAction());
  named_.push_back({tools_->toggleViewAction(), Text::ShowToolBar});
  menu.addAction(overview_->toggleViewAction());
  named_.push_back({overview_->toggleViewAction(), Text::ShowOverview});
  menu.addAction(inspector_->toggleViewAction());
  menu.addAction(problemList_->toggleViewAction());
  menu.addAction(log_->toggleViewAction());
  named_.push_back({log_->toggleViewAction(), Text::ShowEvents});
  menu.addSeparator();
  Add(menu, Text::NextArea, Qt::Key_F6, &MainWindow::GoToNextArea)->setObjectName("NextArea");
}

void MainWindow::RetranslateView() {
  std::int32_t layer = AllLayersShown;
  for (QAction* const action : layers_->actions()) {
    action->setText(LayerText(layer));
    layerBox_->setItemText(layer, LayerText(layer).remove('&'));
    ++layer;
  }
  layerBox_->setToolTip(Say(Text::LayerShownTip));
  zoomFigure_->setToolTip(Say(Text::ZoomFigureTip));
  ShowZoom();
}

void MainWindow::ShowLayer(std::int32_t layer) {
  view_->Layer(layer);
  if (trial_->IsOn()) trial_->ChooseLayer(std::max(1, layer));
  layers_->actions().at(layer)->setChecked(true);
  layerBox_->setCurrentIndex(layer);
}

void MainWindow::SetZoom(int percent, std::optional<QPoint> about) {
  if (!document_ || percent == document_->Zoom()) return;
  scroll_->Zoom(
      document_->Zoom(),
      [&] {
        document_->Zoom(percent);
        return document_->Zoom();
      },
      about);
  ShowZoom();
}

void MainWindow::ShowZoom() {
  zoomFigure_->setText(Say(Text::ZoomFigure).arg(document_ ? document_->Zoom() : PanelDocument::NormalZoom));
}

int MainWindow::ZoomStep(int steps) const {
  const int zoom = document_ ? document_->Zoom() : PanelDocument::NormalZoom;
  const auto* const above = std::upper_bound(zoomSteps.begin(), zoomSteps.end(), zoom);
  const auto* const notBelow = std::lower_bound(zoomSteps.begin(), zoomSteps.end(), zoom);
  if (steps > 0) return above == zoomSteps.end() ? zoom : *above;
  return notBelow == zoomSteps.begin() ? zoom : *std::prev(notBelow);
}

void MainWindow::ZoomIn() { SetZoom(ZoomStep(1)); }
void MainWindow::ZoomOut() { SetZoom(ZoomStep(-1)); }
void MainWindow::ZoomNormal() { SetZoom(PanelDocument::NormalZoom); }

void MainWindow::ZoomFit() {
  if (!document_) return;
  SetZoom(scroll_->FittingZoom(QSize(document_->ThePanel().width, document_->ThePanel().height)));
}

void MainWindow::SelectAll() { selection_.ChooseAll(); }
void MainWindow::SelectNone() { selection_.ChooseNone(); }

void MainWindow::SelectKinds(const std::vector<enumTactisBaseElementType>& kinds) {
  std::vector<int> places;
  for (int place = 0; place < selection_.Count(); ++place) {
    const auto kind = document_->Places()[static_cast<std::size_t>(place)].element->ElementType();
    if (std::find(kinds.begin(), kinds.end(), kind) != kinds.end()) places.push_back(place);
  }
  selection_.ChooseAndGo(places);
}

}  // namespace plexel
