#include "qt/combo_view.h"

#include <QAbstractListModel>
#include <QComboBox>
#include <QListView>
#include <QSignalBlocker>
#include <QStylePainter>
#include <QWheelEvent>

#include "qt/units.h"

namespace plexel {

namespace {

/// As much of an entry as can ever be seen of it; an endless one is not measured to its end.
QString ShownPart(const std::string& text) {
  constexpr std::size_t most = 1024;
  return ToQt(std::string_view(text).substr(0, most));
}

}  // namespace

/// The entries of the model as the widget asks for them, so that a list of many thousands costs nothing to open.
class ItemsModel : public QAbstractListModel {
 public:
  ItemsModel(const ComboBox& list, QObject& parent) : QAbstractListModel(&parent), list_(list) {}
  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count_; }
  QVariant data(const QModelIndex& index, int role) const override {
    const bool text = role == Qt::DisplayRole || role == Qt::EditRole;
    const bool there = index.isValid() && index.row() < list_.ListCount();
    return text && there ? QVariant(ShownPart(list_.List(index.row()))) : QVariant();
  }
  void Sync() {
    if (version_ == list_.ItemsVersion()) return;
    beginResetModel();
    version_ = list_.ItemsVersion();
    count_ = list_.ListCount();
    endResetModel();
  }

 private:
  const ComboBox& list_;
  std::uint64_t version_ = 0;
  int count_ = 0;
};

class ComboWidget : public QComboBox {
 public:
  using QComboBox::QComboBox;
  void ShowText(const QString& text) {
    if (text_ == text) return;
    text_ = text;
    update();
  }
  const QString& Shown() const { return text_; }

  /// The form says how large it is: no entry is measured for it.
  QSize sizeHint() const override { return size(); }
  QSize minimumSizeHint() const override { return {}; }

  void showPopup() override {
    // Every entry is one line of text: the list measures one and not all.
    if (auto* const list = qobject_cast<QListView*>(view())) list->setUniformItemSizes(true);
    QComboBox::showPopup();
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
    : ControlView(model), model_(model), box_(new ComboWidget(&parent)), items_(new ItemsModel(model, *box_)) {
  box_->setModel(items_);
  QObject::connect(box_, &QComboBox::activated, box_, [this, &acts](int index) {
    acts.Carry(model_, [this, index](Hand& hand) { hand.Select(model_, index); });
  });
}

QWidget& ComboView::Outer() const { return *box_; }

QString ComboView::Shown() const { return box_->Shown(); }

void ComboView::Unfold() { box_->showPopup(); }

void ComboView::SyncMore() {
  const QSignalBlocker blocker(box_);
  items_->Sync();
  if (box_->currentIndex() != model_.ListIndex()) box_->setCurrentIndex(model_.ListIndex());
  box_->ShowText(ShownPart(model_.Text()));
}

}  // namespace plexel
