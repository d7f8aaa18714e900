#include "qt/simple_views.h"

#include <QFrame>
#include <QPainterPath>

#include "forms/caption.h"
#include "qt/captions.h"
#include "qt/fonts.h"
#include "qt/pictures.h"
#include "qt/units.h"

namespace plexel {

/// Shows one picture of the product at the resolution of the screen.
class PictureWidget : public QWidget {
 public:
  using QWidget::QWidget;
  void Show(const std::string& name, bool stretch) {
    if (name_ == name && stretch_ == stretch) return;
    name_ = name;
    stretch_ = stretch;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF target = rect();
    if (!stretch_) {
      const QSize natural = PictureSize(name_);
      if (natural.isEmpty()) return;
      target.setSize(natural.scaled(size(), Qt::KeepAspectRatio));
      target.moveCenter(QRectF(rect()).center());
    }
    DrawPicture(painter, name_, target);
  }

 private:
  std::string name_;
  bool stretch_ = false;
};

/// A line round a group of controls, with the group's title in its upper edge.
class TitledFrame : public QWidget {
 public:
  using QWidget::QWidget;
  void Title(const QString& title) {
    if (title_ == title) return;
    title_ = title;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    constexpr int TitleLeft = 6, TitleMargin = 3;
    constexpr qreal Radius = 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetrics metrics = painter.fontMetrics();
    const int titleHeight = title_.isEmpty() ? 0 : metrics.height();
    const int titleMiddle = titleHeight / 2;
    const int titleWidth = metrics.size(Qt::TextShowMnemonic, title_).width();
    const QRect title(TitleLeft, 0, titleWidth + 2 * TitleMargin, titleHeight);
    QPainterPath gap, all;
    all.addRect(rect());
    if (!title_.isEmpty()) gap.addRect(title);
    painter.setClipPath(all - gap);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, titleMiddle + 0.5, -0.5, -0.5), Radius, Radius);
    painter.setClipping(false);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(title.adjusted(TitleMargin, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic,
                     title_);
  }

 private:
  QString title_;
};

namespace {

/// A frame up to this height in twips is drawn as a rule.
constexpr float RuleHeight = 90;

void SetBackground(QWidget& widget, std::int32_t colour) {
  QPalette palette = widget.palette();
  if (palette.color(QPalette::Window) == ColourOf(colour)) return;
  palette.setColor(QPalette::Window, ColourOf(colour));
  widget.setPalette(palette);
}

}  // namespace

Qt::Alignment AlignmentOf(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::Centre:
      return Qt::AlignHCenter;
    case TextAlignment::Right:
      return Qt::AlignRight;
    case TextAlignment::Left:
      break;
  }
  return Qt::AlignLeft;
}

ButtonView::ButtonView(CommandButton& model, QWidget& parent, UserActs& acts)
    : ControlView(model), model_(model), button_(new QPushButton(&parent)) {
  button_->setAutoDefault(false);
  QObject::connect(button_, &QPushButton::clicked, button_,
                   [this, &acts] { acts.Carry(model_, [this](Hand& hand) { hand.Click(model_); }); });
}

void ButtonView::SyncMore() {
  const QString caption = WithLetter(model_.Caption());
  if (button_->text() != caption) button_->setText(caption);
  // The mark stands on the button that Return presses: a button with the focus takes it from the default one.
  const Control* const focus = model_.Owner().Focus();
  const bool elsewhere = focus != nullptr && focus != &model_ && focus->Kind() == ControlKind::CommandButton;
  const bool marked = model_.Default() && !elsewhere;
  if (button_->isDefault() != marked) button_->setDefault(marked);
  if (picture_ == model_.Picture()) return;
  picture_ = model_.Picture();
  constexpr int Margin = 8;
  const QSize size = button_->size() - QSize(Margin, Margin);
  button_->setIcon(picture_.empty() ? QIcon() : QIcon(PicturePixmap(picture_, size, button_->devicePixelRatioF())));
  button_->setIconSize(size);
}

OptionView::OptionView(OptionButton& model, QWidget& parent, UserActs& acts)
    : ControlView(model), model_(model), button_(new QRadioButton(&parent)) {
  button_->setAutoExclusive(false);
  QObject::connect(button_, &QRadioButton::clicked, button_,
                   [this, &acts] { acts.Carry(model_, [this](Hand& hand) { hand.Click(model_); }); });
}

void OptionView::SyncMore() {
  const QString caption = WithLetter(model_.Caption());
  if (button_->text() != caption) button_->setText(caption);
  button_->setChecked(model_.Value());
}

LabelView::LabelView(Label& model, QWidget& parent, UserActs&)
    : ControlView(model), model_(model), label_(new QLabel(&parent)) {
  label_->setTextFormat(Qt::PlainText);
  label_->setWordWrap(true);
  QFont font = label_->font();
  if (model.Look() == LabelLook::Title) {
    constexpr double TitlePoints = 10.5;
    font.setBold(true);
    font.setPixelSize(FontPixels(TitlePoints));
  }
  if (model.Look() == LabelLook::Link) {
    font.setUnderline(true);
    label_->setForegroundRole(QPalette::Link);
    label_->setCursor(Qt::PointingHandCursor);
  }
  label_->setFont(font);
}

/// The widget to which the letter of the caption leads; the toolkit underlines no letter without one.
QWidget* LabelView::Named() const {
  if (model_.Look() == LabelLook::Link) return label_;
  return model_.Names() == nullptr ? nullptr : label_->window()->findChild<QWidget*>(ToQt(model_.Names()->FullName()));
}

void LabelView::SyncMore() {
  const ReadableCaption read = ReadCaption(model_.Caption());
  QWidget* const named = read.letterAt == ReadableCaption::NoLetter ? nullptr : Named();
  if (label_->buddy() != named) label_->setBuddy(named);
  const QString caption = named != nullptr ? WithLetter(model_.Caption()) : ToQt(read.text);
  if (label_->text() != caption) label_->setText(caption);
  label_->setAlignment(AlignmentOf(model_.Alignment()) | Qt::AlignTop);
}

PictureView::PictureView(PictureBox& model, QWidget& parent, UserActs&)
    : ControlView(model), model_(model), widget_(new PictureWidget(&parent)) {}

QWidget& PictureView::Outer() const { return *widget_; }

void PictureView::SyncMore() { widget_->Show(model_.Picture(), model_.Stretch()); }

FrameView::FrameView(Frame& model, QWidget& parent, UserActs&) : ControlView(model), model_(model) {
  if (!model.Border()) {
    widget_ = new QWidget(&parent);
  } else if (model.Height() <= RuleHeight) {
    auto* rule = new QFrame(&parent);
    rule->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    widget_ = rule;
  } else {
    titled_ = new TitledFrame(&parent);
    widget_ = titled_;
  }
}

void FrameView::SyncMore() {
  if (titled_ == nullptr) return;
  titled_->Title(WithLetter(model_.Caption()));
  titled_->setAccessibleName(ToQt(ReadCaption(model_.Caption()).text));
}

StatusView::StatusView(StatusBar& model, QWidget& parent, UserActs&)
    : ControlView(model), model_(model), label_(new QLabel(&parent)) {
  label_->setTextFormat(Qt::PlainText);
  label_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  label_->setIndent(4);
}

void StatusView::SyncMore() {
  const QString text = ToQt(model_.SimpleText());
  if (label_->text() != text) label_->setText(text);
}

ShapeView::ShapeView(Shape& model, QWidget& parent, UserActs&)
    : ControlView(model), model_(model), widget_(new QWidget(&parent)) {
  widget_->setAutoFillBackground(true);
  widget_->lower();
}

void ShapeView::SyncMore() { SetBackground(*widget_, model_.BackColor()); }

}  // namespace plexel
