#include "editor/inspector.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "editor/element_text.h"
#include "editor/help_key.h"
#include "editor/layer_room.h"
#include "editor/text_line.h"
#include "editor/texts.h"
#include "project/shared_values.h"
#include "qt/units.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

constexpr std::size_t MostProblems = 12;
const QString empty = QString::fromUtf8("\u2013");

QString OrDash(const QString& text) { return text.isEmpty() ? empty : WithVisibleControls(text); }

QString LedWords(enumLedType led) { return led == LedNotEnabled ? empty : OrDash(ToQt(LedTypeToText(led))); }

bool HasKeys(enumTactisBaseElementType type) { return type != Led && type != Key; }

/// Line ends of notes are CR LF or LF; a field knows LF only.
QString Lines(const std::string& notes) { return ToQt(notes).replace("\r\n", "\n"); }

}  // namespace

Inspector::Inspector(Selection& selection, const LiveProblems& problems, QWidget* parent)
    : QDockWidget(parent), selection_(selection), problems_(problems) {
  setObjectName("inspector");
  SetHelpTopic(*this, help_topics::Inspector);
  MakeContent();
  selection_.Listen(*this, [this] {
    Commit();
    Refresh();
  });
  connect(notes_, &QPlainTextEdit::textChanged, this, [this] { LimitNotes(); });
  notes_->installEventFilter(this);
  Retranslate();
}

void Inspector::MakeContent() {
  body_ = new QWidget;
  auto* const layout = new QVBoxLayout(body_);
  layout->setContentsMargins(6, 4, 6, 6);
  layout->setSpacing(2);
  const auto add = [&](TextLine::Look look, bool isLink = false) {
    auto* const line = new TextLine(look, isLink);
    layout->addWidget(line);
    return line;
  };
  title_ = add(TextLine::Look::Heading);
  kind_ = add(TextLine::Look::Plain);
  numbers_ = add(TextLine::Look::Plain, true);
  connect(numbers_, &TextLine::clicked, this, [this] { onProperties(); });
  nothing_ = add(TextLine::Look::Quiet);
  auto* const grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(0);
  layout->addLayout(grid);
  int row = 0;
  for (Layer& layer : layers_) {
    layer = MakeLayer(*grid, row);
    row = grid->rowCount();
  }
  problemsTitle_ = add(TextLine::Look::Heading);
  problemBox_ = new QVBoxLayout;
  problemBox_->setSpacing(0);
  layout->addLayout(problemBox_);
  notesTitle_ = add(TextLine::Look::Heading);
  notes_ = new QPlainTextEdit;
  notes_->setTabChangesFocus(true);
  notes_->setMinimumHeight(4 * fontMetrics().lineSpacing());
  layout->addWidget(notes_, 1);
  auto* const scroll = new QScrollArea;
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(body_);
  constexpr int Narrowest = 200;
  scroll->setMinimumWidth(Narrowest);
  setWidget(scroll);
}

Inspector::Layer Inspector::MakeLayer(QGridLayout& grid, int row) {
  Layer layer{};
  const auto add = [&](int line, int column, TextLine::Look look, bool isLink = false) {
    auto* const text = new TextLine(look, isLink);
    grid.addWidget(text, line, column);
    return text;
  };
  layer.heading = add(row, 0, TextLine::Look::Heading, true);
  connect(layer.heading, &TextLine::clicked, this, [this] { onConfigure(); });
  layer.room = add(row, 1, TextLine::Look::Quiet);
  for (Row* const one : {&layer.press, &layer.release, &layer.led}) {
    ++row;
    *one = {add(row, 0, TextLine::Look::Quiet), add(row, 1, TextLine::Look::Plain)};
  }
  return layer;
}

void Inspector::Show(PanelDocument* document) {
  document_ = document;
  notesPlace_ = -1;
  Refresh();
}

void Inspector::Retranslate() {
  setWindowTitle(Say(Text::Inspector));
  toggleViewAction()->setText(Say(Text::ShowInspector));  // which otherwise follows the title
  nothing_->SetText(Say(Text::NothingToConfigure));
  notesTitle_->SetText(Say(Text::ColumnNotes));
  notes_->setAccessibleName(Say(Text::ColumnNotes));
  numbers_->setToolTip(Say(Text::PropertiesTip));
  for (std::size_t layer = 0; layer < layers_.size(); ++layer) {
    layers_[layer].heading->SetText(Say(Text::LayerOne).remove('&').arg(layer + 1));
    layers_[layer].heading->setToolTip(Say(Text::ConfigureTip));
    layers_[layer].press.caption->SetText(Say(Text::ColumnPress));
    layers_[layer].release.caption->SetText(Say(Text::ColumnRelease));
    layers_[layer].led.caption->SetText(Say(Text::ColumnLed));
  }
  Refresh();
}

void Inspector::Refresh() {
  places_ = document_ == nullptr ? std::vector<int>() : selection_.Meant();
  ShowElements();
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) ShowLayer(layer);
  ShowProblems();
  ShowNotes();
}

template <typename Get, typename Words>
void Inspector::ShowShared(TextLine& line, Get&& get, Words&& words) const {
  const auto first = get(places_.front());
  const bool alike = std::all_of(places_.begin(), places_.end(), [&](int place) { return get(place) == first; });
  line.SetText(alike ? words(first) : Say(Text::Differs));
  line.SetLook(alike ? TextLine::Look::Plain : TextLine::Look::Quiet);
}

void Inspector::ShowElements() {
  const bool one = places_.size() == 1;
  if (places_.empty()) {
    title_->SetText(Say(Text::NothingSelected));
  } else {
    title_->SetText(one ? WithVisibleControls(ToQt(At(places_.front()).Name()))
                        : Say(Text::ChosenCount).arg(places_.size()));
    ShowShared(*kind_, [this](int place) { return At(place).ElementType(); }, KindText);
  }
  kind_->setVisible(!places_.empty());
  numbers_->setVisible(one);
  if (one) {
    const QStringList numbers = NumbersText(At(places_.front()));
    numbers_->SetText(numbers.isEmpty() ? Say(Text::NoNumbers) : numbers.join("  \u00B7  "));
  }
}

void Inspector::ShowLayer(std::int32_t layer) {
  const Layer& lines = layers_[static_cast<std::size_t>(layer) - 1];
  const auto any = [this](auto&& holds) { return std::any_of(places_.begin(), places_.end(), holds); };
  // What an element cannot have is told of when it is there all the same.
  const bool keys = any([&](int place) {
    const ctlPlexelBaseElement& element = At(place);
    return HasKeys(element.ElementType()) || !element.PressKeyDefLayer(layer).empty() ||
           !element.ReleaseKeyDefLayer(layer).empty();
  });
  const bool leds =
      any([&](int place) { return HasLed(At(place).ElementType()) || At(place).LEDTypeLayer(layer) != LedNotEnabled; });
  lines.heading->setVisible(keys || leds);
  lines.heading->setEnabled(places_.size() == 1);
  lines.room->setVisible(keys);
  for (const Row& row : {lines.press, lines.release}) {
    row.caption->setVisible(keys);
    row.value->setVisible(keys);
  }
  lines.led.caption->setVisible(leds);
  lines.led.value->setVisible(leds);
  nothing_->setVisible(!places_.empty() && !keys && !leds);
  if (keys) {
    const auto words = [](const std::string* text) { return OrDash(ToQt(*text)); };
    struct Definition {
      const std::string* text;
      bool operator==(const Definition& other) const { return *text == *other.text; }
    };
    ShowShared(
        *lines.press.value, [&](int place) { return Definition{&At(place).PressKeyDefLayer(layer)}; },
        [&](const Definition& one) { return words(one.text); });
    ShowShared(
        *lines.release.value, [&](int place) { return Definition{&At(place).ReleaseKeyDefLayer(layer)}; },
        [&](const Definition& one) { return words(one.text); });
    ShowShared(
        *lines.room, [&](int place) { return RoomOf(At(place), At(place).TactisBaseElementScanCodeBuffer(), layer); },
        [](const LayerRoom& room) { return Say(Text::RoomLeft).arg(room.used).arg(room.free); });
    lines.room->SetLook(TextLine::Look::Quiet);
  }
  if (leds) ShowShared(*lines.led.value, [&](int place) { return At(place).LEDTypeLayer(layer); }, LedWords);
}

void Inspector::ShowProblems() {
  ProblemCounts counts;
  for (const int place : places_) {
    if (place >= problems_.PlaceCount()) continue;
    counts.errors += problems_.CountsOf(place).errors;
    counts.warnings += problems_.CountsOf(place).warnings;
  }
  problemsTitle_->setVisible(counts != ProblemCounts());
  problemsTitle_->SetText(Say(Text::Problems) + ": " + CountText(counts));
  for (TextLine* const line : problemLines_) {
    line->hide();
    line->deleteLater();
  }
  problemLines_.clear();
  if (places_.size() != 1 || counts == ProblemCounts()) return;
  const std::vector<Problem> problems = problems_.Of(places_.front());
  for (const Problem& problem : problems) {
    if (problemLines_.size() == MostProblems) {
      problemLines_.push_back(new TextLine(TextLine::Look::Quiet));
      problemLines_.back()->SetText(Say(Text::MoreOfThem).arg(problems.size() - MostProblems));
      problemBox_->addWidget(problemLines_.back());
      return;
    }
    auto* const line = new TextLine(TextLine::Look::Plain, true);
    const QString layers = LayersInWords(problem);
    line->SetPicture(ProblemPicture(RowOf(problem.rule).level));
    line->SetText(layers.isEmpty() ? problems_.TextOf(problem) : layers + ": " + problems_.TextOf(problem));
    line->setAccessibleName(problems_.WholeText(problem));
    // Later, since what it opens may end the line.
    connect(
        line, &TextLine::clicked, this, [this, place = places_.front(), problem] { onProblem(place, problem); },
        Qt::QueuedConnection);
    problemLines_.push_back(line);
    problemBox_->addWidget(line);
  }
}

void Inspector::ShowNotes() {
  const int place = places_.size() == 1 ? places_.front() : -1;
  notesTitle_->setVisible(!places_.empty());
  notes_->setVisible(!places_.empty());
  notes_->setReadOnly(place < 0);
  if (places_.empty()) {
    notesPlace_ = -1;
    return;
  }
  const std::string& stored = At(places_.front()).ButtonNotes();
  const bool alike =
      std::all_of(places_.begin(), places_.end(), [&](int one) { return At(one).ButtonNotes() == stored; });
  notes_->setPlaceholderText(alike ? QString() : Say(Text::Differs));
  // What is being typed stays until the element holds something else.
  if (place >= 0 && place == notesPlace_ && stored == storedNotes_) return;
  notesPlace_ = -1;
  storedNotes_ = stored;
  const QString text = alike ? Lines(stored) : QString();
  if (notes_->toPlainText() != text) notes_->setPlainText(text);
  typed_ = text;
  notesPlace_ = place;
}

void Inspector::LimitNotes() {
  if (notesPlace_ < 0) return;
  const QString text = notes_->toPlainText();
  const auto length = [](const QString& one) { return CharactersAhead(one, static_cast<int>(one.size())); };
  if (length(text) <= MostNotes || length(text) <= length(typed_)) {
    typed_ = text;
    return;
  }
  const int caret = notes_->textCursor().position() - static_cast<int>(text.size() - typed_.size());
  const QString before = typed_;
  notes_->setPlainText(before);
  QTextCursor cursor = notes_->textCursor();
  cursor.setPosition(std::clamp(caret, 0, static_cast<int>(before.size())));
  notes_->setTextCursor(cursor);
}

void Inspector::Commit() {
  if (notesPlace_ < 0 || notes_->toPlainText() == Lines(storedNotes_)) return;
  QString text = notes_->toPlainText();
  if (storedNotes_.find("\r\n") != std::string::npos) text.replace("\n", "\r\n");
  storedNotes_ = text.toStdString();
  if (onNotes) onNotes(notesPlace_, storedNotes_);
}

void Inspector::Enter() {
  QWidget* const first = numbers_->isVisible() ? numbers_ : static_cast<QWidget*>(notes_);
  first->setFocus(Qt::ShortcutFocusReason);
}

bool Inspector::eventFilter(QObject* watched, QEvent* event) {
  if (watched == notes_ && event->type() == QEvent::FocusOut) {
    if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) Commit();
  }
  if (watched == notes_ && event->type() == QEvent::KeyPress && notesPlace_ >= 0 &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    notes_->setPlainText(Lines(storedNotes_));
    return true;
  }
  return QDockWidget::eventFilter(watched, event);
}

QString Inspector::Content() const {
  QStringList told;
  const auto add = [&](std::initializer_list<const TextLine*> lines) {
    QStringList texts;
    for (const TextLine* const line : lines) {
      if (!line->isHidden()) texts.append(line->Content());
    }
    if (!texts.isEmpty()) told.append(texts.join(" | "));
  };
  for (const TextLine* const line : {title_, kind_, numbers_, nothing_}) add({line});
  for (const Layer& layer : layers_) {
    add({layer.heading, layer.room});
    for (const Row& row : {layer.press, layer.release, layer.led}) add({row.caption, row.value});
  }
  add({problemsTitle_});
  for (const TextLine* const line : problemLines_) add({line});
  return told.join('\n');
}

}  // namespace plexel
