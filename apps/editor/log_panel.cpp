#include "editor/log_panel.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTime>

#include "editor/texts.h"

namespace plexel {

namespace {
constexpr int CallRole = Qt::UserRole;
}  // namespace

LogPanel::LogPanel(QWidget* parent) : QDockWidget(parent), lines_(new QListWidget), clear_(new QPushButton) {
  setObjectName("events");
  lines_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lines_->setUniformItemSizes(true);
  lines_->setFocusPolicy(Qt::ClickFocus);
  clear_->setFocusPolicy(Qt::NoFocus);
  auto* content = new QWidget;
  auto* layout = new QHBoxLayout(content);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addWidget(lines_);
  layout->addWidget(clear_, 0, Qt::AlignTop);
  setWidget(content);
  connect(clear_, &QPushButton::clicked, lines_, &QListWidget::clear);
  auto* copy = new QAction(lines_);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);
  lines_->addAction(copy);
  connect(copy, &QAction::triggered, this, [this] { CopyChosen(); });
  Retranslate();
}

void LogPanel::Append(const QString& words, const QString& call) {
  constexpr int MostLines = 2000;
  const bool atEnd = lines_->verticalScrollBar()->value() == lines_->verticalScrollBar()->maximum();
  auto* const line = new QListWidgetItem(QTime::currentTime().toString("hh:mm:ss  ") + words, lines_);
  line->setData(CallRole, call);
  if (!call.isEmpty()) {
    line->setToolTip("<p style='white-space:pre-wrap'>" + call.toHtmlEscaped() + "</p>");
  }
  while (lines_->count() > MostLines) delete lines_->takeItem(0);
  if (atEnd) lines_->scrollToBottom();
}

void LogPanel::CopyChosen() const {
  QStringList chosen;
  for (int row = 0; row < lines_->count(); ++row) {
    const QListWidgetItem& line = *lines_->item(row);
    if (line.isSelected()) chosen.append(line.text() + '\t' + line.data(CallRole).toString());
  }
  QApplication::clipboard()->setText(chosen.join('\n'));
}

void LogPanel::Retranslate() {
  setWindowTitle(Say(Text::Events));
  clear_->setText(Say(Text::ClearEvents));
}

QString LogPanel::Content() const {
  QStringList told;
  for (int row = 0; row < lines_->count(); ++row) told.append(lines_->item(row)->text());
  return told.join('\n');
}

QString LogPanel::Calls() const {
  QStringList calls;
  for (int row = 0; row < lines_->count(); ++row) calls.append(lines_->item(row)->data(CallRole).toString());
  return calls.join('\n');
}

}  // namespace plexel
