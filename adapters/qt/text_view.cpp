#include "qt/text_view.h"

#include <QScopedValueRollback>

#include "qt/fonts.h"
#include "qt/simple_views.h"
#include "qt/units.h"

namespace plexel {

namespace {

/// Line ends of the model are CR LF or LF; the toolkit knows LF only.
QString Lines(const std::string& text) { return ToQt(text).replace("\r\n", "\n"); }

void SetLook(QWidget& widget, const TextBox& model) {
  QPalette palette = widget.palette();
  const QColor paper = ColourOf(model.BackColor()), ink = ColourOf(model.ForeColor());
  const bool plain = model.Enabled() || model.BackColor() != 0xFFFFFF;
  for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Base, paper);
    palette.setColor(group, QPalette::Text, ink);
  }
  if (plain) palette.setColor(QPalette::Disabled, QPalette::Base, paper);
  if (palette != widget.palette()) widget.setPalette(palette);
  if (model.FontSize() <= 0) return;
  QFont font = widget.font();
  font.setPixelSize(FontPixels(static_cast<double>(model.FontSize())));
  if (font != widget.font()) widget.setFont(font);
}

}  // namespace

std::unique_ptr<ControlView> MakeTextView(Control& control, QWidget& parent, UserActs& acts) {
  auto& model = static_cast<TextBox&>(control);
  if (model.MultiLine()) return std::make_unique<NoteView>(model, parent, acts);
  return std::make_unique<LineView>(model, parent, acts);
}

LineView::LineView(TextBox& model, QWidget& parent, UserActs& acts)
    : ControlView(model), model_(model), acts_(acts), edit_(new QLineEdit(&parent)) {
  QObject::connect(edit_, &QLineEdit::textEdited, edit_, [this] { HandOver(); });
  QObject::connect(edit_, &QLineEdit::cursorPositionChanged, edit_, [this] { HandOver(); });
}

void LineView::HandOver() {
  if (syncing_ || model_.Locked()) return;
  const QString text = edit_->text();
  const int caret = CharactersAhead(text, edit_->cursorPosition());
  if (text == ToQt(model_.Text()) && caret == model_.SelStart()) return;
  acts_.Carry(model_, [&](Hand& hand) { hand.Edit(model_, text.toStdString(), caret); });
}

void LineView::SyncMore() {
  const QScopedValueRollback<bool> guard(syncing_, true);
  SetLook(*edit_, model_);
  edit_->setReadOnly(model_.Locked());
  edit_->setAlignment(AlignmentOf(model_.Alignment()));
  constexpr int NoLimit = 32767;
  edit_->setMaxLength(model_.MaxLength() > 0 ? model_.MaxLength() : NoLimit);
  const QString text = model_.Locked() ? WithVisibleControls(ToQt(model_.Text())) : ToQt(model_.Text());
  if (edit_->text() != text) edit_->setText(text);
  const int caret = UnitsAhead(text, model_.SelStart());
  if (!model_.Locked() && edit_->cursorPosition() != caret) edit_->setCursorPosition(caret);
}

NoteView::NoteView(TextBox& model, QWidget& parent, UserActs& acts)
    : ControlView(model), model_(model), acts_(acts), edit_(new QPlainTextEdit(&parent)) {
  edit_->setTabChangesFocus(true);
  edit_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  edit_->viewport()->setFocusPolicy(Qt::NoFocus);
  QObject::connect(edit_, &QPlainTextEdit::textChanged, edit_, [this] { HandOver(); });
  QObject::connect(edit_, &QPlainTextEdit::cursorPositionChanged, edit_, [this] { HandOver(); });
}

void NoteView::HandOver() {
  if (syncing_ || model_.Locked()) return;
  const QString text = edit_->toPlainText();
  const int caret = CharactersAhead(text, edit_->textCursor().position());
  if (text == Lines(model_.Text()) && caret == model_.SelStart()) return;
  const std::string stored = model_.Text().find("\r\n") == std::string::npos
                                 ? text.toStdString()
                                 : QString(text).replace("\n", "\r\n").toStdString();
  acts_.Carry(model_, [&](Hand& hand) { hand.Edit(model_, stored, caret); });
}

void NoteView::SyncMore() {
  const QScopedValueRollback<bool> guard(syncing_, true);
  SetLook(*edit_, model_);
  edit_->setReadOnly(model_.Locked());
  const QString text = Lines(model_.Text());
  if (edit_->toPlainText() == text) return;
  edit_->setPlainText(text);
  QTextCursor cursor = edit_->textCursor();
  cursor.setPosition(UnitsAhead(text, model_.SelStart()));
  edit_->setTextCursor(cursor);
}

}  // namespace plexel
