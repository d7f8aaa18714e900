#include "editor/log_panel.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTime>

#include "editor/texts.h"

namespace plexel {

LogPanel::LogPanel(QWidget* parent) : QDockWidget(parent), lines_(new QPlainTextEdit), clear_(new QPushButton) {
  constexpr int MostLines = 2000;
  setObjectName("events");
  lines_->setReadOnly(true);
  lines_->setMaximumBlockCount(MostLines);
  lines_->setLineWrapMode(QPlainTextEdit::NoWrap);
  lines_->setFocusPolicy(Qt::ClickFocus);
  clear_->setFocusPolicy(Qt::NoFocus);
  auto* content = new QWidget;
  auto* layout = new QHBoxLayout(content);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addWidget(lines_);
  layout->addWidget(clear_, 0, Qt::AlignTop);
  setWidget(content);
  connect(clear_, &QPushButton::clicked, lines_, &QPlainTextEdit::clear);
  Retranslate();
}

void LogPanel::Append(const QString& line) {
  lines_->appendPlainText(QTime::currentTime().toString("hh:mm:ss  ") + line);
}

void LogPanel::Retranslate() {
  setWindowTitle(Say(Text::Events));
  clear_->setText(Say(Text::ClearEvents));
}

QString LogPanel::Content() const { return lines_->toPlainText(); }

}  // namespace plexel
