#include "qt/combo_view.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QWheelEvent>

#include "qt/units.h"

namespace plexel {

class ComboWidget : public QComboBox {
 public:
  using QComboBox::QComboBox;
  void ShowText(const QString& text) {
    if (text_ == text) return;
    text_ = text;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.currentText = text_;
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
  }
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }

 private:
  QString text_;
};

ComboView::ComboView(ComboBox& model, QWidget& parent, UserActs& acts)
    : ControlView(model), model_(model), box_(new ComboWidget(&parent)) {
  box_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  QObject::connect(box_, &QComboBox::activated, box_, [this, &acts](int index) {
    acts.Carry(model_, [this, index](Hand& hand) { hand.Select(model_, index); });
  });
}

QWidget& ComboView::Outer() const { return *box_; }

void ComboView::Unfold() { box_->showPopup(); }

void ComboView::SyncMore() {
  const QSignalBlocker blocker(box_);
  if (items_ != model_.Items()) {
    items_ = model_.Items();
    QStringList texts;
    for (const std::string& item : items_) texts.append(ToQt(item));
    box_->clear();
    box_->addItems(texts);
  }
  if (box_->currentIndex() != model_.ListIndex()) box_->setCurrentIndex(model_.ListIndex());
  box_->ShowText(ToQt(model_.Text()));
}

}  // namespace plexel
