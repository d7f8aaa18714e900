#include "editor/overview_delegate.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "editor/texts.h"
#include "qt/units.h"
#include "services/led_functions.h"
#include "services/led_offer.h"
#include "services/notes_limit.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// The functions that the dialog has for an element, that in force, and none.
void FillLeds(QComboBox& box, const ctlPlexelBaseElement& element, enumLedType now) {
  box.addItem(Say(Text::LedNone), static_cast<int>(LedNotEnabled));
  for (const enumLedType type : LedsFor(element.VantaEnabled())) {
    const bool offered = LedIsOffered(type, element.VantaEnabled(), element.TargetSystem());
    if (offered) box.addItem(ToQt(LedTypeToText(type)), static_cast<int>(type));
  }
  if (box.findData(static_cast<int>(now)) < 0) box.addItem(ToQt(LedTypeToText(now)), static_cast<int>(now));
}

}  // namespace

QWidget* OverviewDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
  if (index.column() == OverviewModel::LedColumn) {
    auto* const box = new QComboBox(parent);
    FillLeds(*box, model_.ElementOf(index.row()), static_cast<enumLedType>(index.data(Qt::EditRole).toInt()));
    connect(box, &QComboBox::activated, this, [this, box] {
      auto* const self = const_cast<OverviewDelegate*>(this);
      emit self->commitData(box);
      emit self->closeEditor(box);
    });
    return box;
  }
  if (index.data(Qt::EditRole).toString().contains('\n')) return new QPlainTextEdit(parent);
  auto* const line = new QLineEdit(parent);
  line->setMaxLength(NotesLimit);
  return line;
}

void OverviewDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QVariant value = index.data(Qt::EditRole);
  if (auto* const box = qobject_cast<QComboBox*>(editor)) box->setCurrentIndex(box->findData(value));
  if (auto* const line = qobject_cast<QLineEdit*>(editor)) line->setText(value.toString());
  if (auto* const text = qobject_cast<QPlainTextEdit*>(editor)) text->setPlainText(value.toString());
}

void OverviewDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  QVariant value;
  if (const auto* const box = qobject_cast<QComboBox*>(editor)) value = box->currentData();
  if (const auto* const line = qobject_cast<QLineEdit*>(editor)) value = line->text();
  if (const auto* const text = qobject_cast<QPlainTextEdit*>(editor)) value = text->toPlainText().left(NotesLimit);
  model->setData(index, value);
}

void OverviewDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                            const QModelIndex&) const {
  constexpr int lines = 5;
  QRect place = option.rect;
  if (qobject_cast<QPlainTextEdit*>(editor) != nullptr) place.setHeight(option.fontMetrics.lineSpacing() * lines);
  if (qobject_cast<QComboBox*>(editor) != nullptr) place.setWidth(std::max(place.width(), editor->sizeHint().width()));
  const QRect room = editor->parentWidget()->rect();
  if (place.bottom() > room.bottom()) place.moveBottom(room.bottom());
  editor->setGeometry(place);
}

void OverviewDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const int place = model_.PlaceOf(index.row());
  if (place < selection_.Count() && (selection_.Has(place) || selection_.Current() == place)) {
    option->state |= QStyle::State_Selected;
  }
}

}  // namespace plexel
