#include "qt/tab_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionTabWidgetFrame>

#include "qt/captions.h"
#include "qt/units.h"

namespace plexel {

namespace {

constexpr int TabRowHeight = 24, PageBorder = 2;  // pixels

/// A bar that brings no page to the front by itself.
class AskingTabBar : public QTabBar {
 public:
  AskingTabBar(TabStrip& model, QWidget* parent, UserActs& acts) : QTabBar(parent), model_(model), acts_(acts) {}

 protected:
  QSize tabSizeHint(int index) const override { return {QTabBar::tabSizeHint(index).width(), TabRowHeight}; }
  void mousePressEvent(QMouseEvent* event) override {
    const int page = tabAt(event->pos());
    if (event->button() != Qt::LeftButton || page < 0 || !model_.TabEnabled(page)) return;
    acts_.Carry(model_, [this, page](Hand& hand) { hand.Tab(model_, page); });
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    const int page = tabAt(event->pos());
    if (event->button() != Qt::LeftButton || page < 0 || !model_.TabEnabled(page)) return;
    acts_.Carry(model_, [this, page](Hand& hand) { hand.DblClickTab(model_, page); });
  }
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent*) override {}
  void wheelEvent(QWheelEvent*) override {}

 private:
  TabStrip& model_;
  UserActs& acts_;
};

/// The border round the pages.
class PageFrame : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QStyleOptionTabWidgetFrame option;
    option.initFrom(this);
    option.lineWidth = 1;
    option.rect = rect().adjusted(0, TabRowHeight - 1, 0, 0);
    style()->drawPrimitive(QStyle::PE_FrameTabWidget, &option, &painter, this);
  }
};

}  // namespace

TabView::TabView(TabStrip& model, QWidget& parent, UserActs& acts)
    : ControlView(model), model_(model), outer_(new PageFrame(&parent)), bar_(new AskingTabBar(model, outer_, acts)) {
  bar_->setDrawBase(false);
  bar_->setExpanding(false);
  for (int page = 0; page < model.Pages(); ++page) {
    pages_.push_back(new QWidget(outer_));
    bar_->addTab(QString());
  }
}

void TabView::SyncMore() {
  const QSize size = outer_->size();
  bar_->setGeometry(0, 0, size.width(), TabRowHeight);
  for (int page = 0; page < model_.Pages(); ++page) {
    const QString caption = WithLetter(model_.TabCaption(page));
    if (bar_->tabText(page) != caption) bar_->setTabText(page, caption);
    if (bar_->isTabEnabled(page) != model_.TabEnabled(page)) bar_->setTabEnabled(page, model_.TabEnabled(page));
    QWidget& inner = Inner(page);
    inner.setGeometry(PageBorder, TabRowHeight, size.width() - 2 * PageBorder, size.height() - TabRowHeight);
    inner.setVisible(page == model_.Tab());
    inner.setEnabled(model_.TabEnabled(page));
  }
  if (bar_->currentIndex() != model_.Tab()) bar_->setCurrentIndex(model_.Tab());
}

}  // namespace plexel
