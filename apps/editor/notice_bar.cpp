#include "editor/notice_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace plexel {

NoticeBar::NoticeBar() : text_(new QLabel), layout_(new QHBoxLayout(this)) {
  setObjectName("notice");
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setForegroundRole(QPalette::ToolTipText);
  layout_->setContentsMargins(8, 4, 8, 4);
  layout_->addWidget(text_, 1);
  hide();
}

void NoticeBar::Tell(const QString& text, const std::vector<Choice>& choices) {
  for (QWidget* const button : buttons_) {
    button->hide();
    button->deleteLater();
  }
  buttons_.clear();
  text_->setText(text);
  for (const Choice& choice : choices) {
    auto* const button = new QPushButton(choice.text);
    connect(button, &QPushButton::clicked, this, [act = choice.act] { act(); });
    layout_->addWidget(button);
    buttons_.push_back(button);
  }
  show();
}

QString NoticeBar::Told() const { return isHidden() ? QString() : text_->text(); }

}  // namespace plexel
