#include "editor/overview_panel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimer>
#include <QToolButton>
#include <algorithm>

#include "editor/help_key.h"
#include "editor/key_listener.h"
#include "editor/overview_table.h"
#include "editor/texts.h"
#include "project/key_code_names.h"
#include "qt/plain_box.h"
#include "qt/units.h"
#include "scancodes/special_functions.h"
#include "services/shared_services.h"

namespace plexel {

OverviewPanel::OverviewPanel(Selection& selection, const LiveProblems& problems, QWidget* parent)
    : LateDock(parent), model_(problems), selection_(selection) {
  setObjectName("overview");
  SetHelpTopic(*this, help_topics::Overview);
  model_.onNote = [this](int place, const QString& note) { SetNote(place, note); };
  // The editor in the cell is gone before a question comes.
  model_.onLed = [this](int place, std::int32_t layer, enumLedType type) {
    QTimer::singleShot(0, this, [this, place, layer, type] { AskLed(place, layer, type); });
  };
  Retranslate();
}

void OverviewPanel::MakeContent() {
  table_ = new OverviewTable(model_, selection_);
  auto* const content = new QWidget;
  auto* const layout = new QVBoxLayout(content);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addWidget(MakeTools());
  layout->addWidget(table_);
  setWidget(content);
  connect(&model_, &QAbstractItemModel::modelReset, this, [this] { ShowFound(); });
  NameContent();
}

QWidget* OverviewPanel::MakeTools() {
  auto* const tools = new QWidget;
  auto* const layout = new QHBoxLayout(tools);
  layout->setContentsMargins(0, 0, 0, 0);
  words_ = new QLineEdit;
  words_->setObjectName("FindWords");
  words_->installEventFilter(this);
  connect(words_, &QLineEdit::textChanged, this, [this] { LookForWords(); });
  press_ = new QToolButton;
  press_->setObjectName("PressKeys");
  press_->setCheckable(true);
  press_->setFocusPolicy(Qt::StrongFocus);
  listener_ = new KeyListener(*press_);
  listener_->onStroke = [this](const std::vector<KeyCode>& keys) { LookForKeys(keys); };
  listener_->onStop = [this] {
    press_->setChecked(false);
    press_->setText(Say(Text::PressKeys));
  };
  connect(press_, &QToolButton::clicked, this, [this](bool wanted) { wanted ? FindByPressing() : listener_->Stop(); });
  pick_ = new QComboBox;
  pick_->setObjectName("PickKey");
  pick_->setMaxVisibleItems(20);
  FillKeys();
  connect(pick_, &QComboBox::activated, this,
          [this](int row) { LookForKeys({static_cast<KeyCode>(pick_->itemData(row).toUInt())}); });
  count_ = new QLabel;
  layout->addWidget(words_, 1);
  layout->addWidget(press_);
  layout->addWidget(pick_);
  layout->addWidget(count_);
  return tools;
}

void OverviewPanel::FillKeys() {
  struct Named {
    QString name;
    KeyCode code;
  };
  std::vector<Named> keys;
  for (const KeyCode code : NamedKeys()) keys.push_back({ToQt(KeyNameOf(code)), code});
  for (const SpecialFunction& one : SpecialFunctions()) {
    keys.push_back({ToQt(PanelFunctionNameOf(one.code)), static_cast<KeyCode>(one.code)});
  }
  // The longer keys last: a, b, ... F1, F2, ... F10.
  std::ranges::stable_sort(keys, [](const Named& a, const Named& b) {
    if ((a.name.size() == 1) != (b.name.size() == 1)) return a.name.size() == 1;
    return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
  });
  for (const Named& key : keys) pick_->addItem(key.name + "   " + ToQt(CodeText(key.code)), key.code);
  pick_->setCurrentIndex(-1);
}

void OverviewPanel::Show(PanelDocument* document) {
  document_ = document;
  stale_ = true;
  if (document == nullptr || isVisible()) {
    stale_ = false;
    model_.Show(document);
  }
}

void OverviewPanel::Changed(std::span<const std::size_t> places) {
  if (!stale_) model_.Changed(places);
}

void OverviewPanel::ProblemsReset() {
  if (!stale_) model_.ProblemsReset();
}

void OverviewPanel::Retranslate() {
  setWindowTitle(Say(Text::Overview));
  if (IsMade()) NameContent();
  model_.Retranslate();
}

void OverviewPanel::NameContent() {
  words_->setPlaceholderText(Say(Text::FindWords));
  words_->setToolTip(Say(Text::FindTip));
  press_->setText(Say(listener_->Hears() ? Text::PressNow : Text::PressKeys));
  press_->setToolTip(Say(Text::PressTip));
  pick_->setPlaceholderText(Say(Text::PickKey));
  pick_->setToolTip(Say(Text::PickTip));
}

void OverviewPanel::Find() {
  show();
  raise();
  words_->setFocus(Qt::ShortcutFocusReason);
  words_->selectAll();
}

void OverviewPanel::FindByPressing() {
  show();
  raise();
  press_->setChecked(true);
  press_->setText(Say(Text::PressNow));
  listener_->Start();
}

void OverviewPanel::LookForWords() {
  sought_.clear();
  pick_->setCurrentIndex(-1);
  model_.Look(TextSearch(words_->text().toStdString()));
}

void OverviewPanel::LookForKeys(const std::vector<KeyCode>& keys) {
  const QSignalBlocker quiet(words_);
  words_->clear();
  if (keys.size() != 1 || pick_->currentData().toUInt() != keys.front()) pick_->setCurrentIndex(-1);
  const KeySearch search(keys);
  sought_ = keys.empty() ? Say(Text::NotHeard) : ToQt(search.Text());
  model_.Look(search);
}

void OverviewPanel::ShowFound() {
  if (!model_.Searches()) {
    count_->setText(sought_);
  } else if (sought_.isEmpty()) {
    count_->setText(Say(Text::LinesShown).arg(model_.rowCount()).arg(model_.LineCount()));
  } else {
    count_->setText(Say(Text::LinesSending).arg(sought_).arg(model_.rowCount()).arg(model_.LineCount()));
  }
  if (onFound) onFound(model_.Searches() && isVisible() ? model_.PlacesShown() : std::vector<int>());
}

void OverviewPanel::showEvent(QShowEvent* event) {
  LateDock::showEvent(event);
  words_->setClearButtonEnabled(true);  // the toolkit looks through the desktop's icons for it, which takes its time
  if (!stale_) return ShowFound();
  stale_ = false;
  model_.Show(document_);
}

void OverviewPanel::hideEvent(QHideEvent* event) {
  LateDock::hideEvent(event);
  if (!IsMade()) return;
  listener_->Stop();
  if (onFound) onFound({});
}

bool OverviewPanel::eventFilter(QObject* receiver, QEvent* event) {
  if (receiver != words_ || event->type() != QEvent::KeyPress) return LateDock::eventFilter(receiver, event);
  const auto& key = *static_cast<const QKeyEvent*>(event);
  switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      table_->GoOn(!key.modifiers().testFlag(Qt::ShiftModifier));
      return true;
    case Qt::Key_Down:
      table_->setFocus();
      return true;
    case Qt::Key_Escape:
      words_->clear();
      return true;
    default:
      return false;
  }
}

void OverviewPanel::SetNote(int place, const QString& note) {
  const auto element = document_->Places()[static_cast<std::size_t>(place)].element;
  change(StepKind::Notes, place, [&] { element->ButtonNotes(note.toStdString()); });
}

const ctlPlexelBaseElement* OverviewPanel::Shower(std::int32_t layer, enumLedType type) const {
  for (const PanelDocument::Place& place : document_->Places()) {
    if (place.element->LEDTypeLayer(layer) == type) return place.element.get();
  }
  return nullptr;
}

bool OverviewPanel::AgreesToTwice(const ctlPlexelBaseElement& other, std::int32_t layer, enumLedType type) {
  PlainBox box(window());
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle("Plexel");
  box.setText(Say(Text::LedTwice).arg(ToQt(other.Name()), ToQt(LedTypeToText(type))).arg(layer));
  const QPushButton* const set = box.addButton(Say(Text::LedTwiceSet), QMessageBox::AcceptRole);
  QPushButton* const cancel = box.addButton(Say(Text::Cancel), QMessageBox::RejectRole);
  box.setDefaultButton(cancel);
  box.setEscapeButton(cancel);
  box.exec();
  return box.clickedButton() == set;
}

void OverviewPanel::AskLed(int place, std::int32_t layer, enumLedType type) {
  if (document_ == nullptr || place >= static_cast<int>(document_->Places().size())) return;
  const auto element = document_->Places()[static_cast<std::size_t>(place)].element;
  const ctlPlexelBaseElement* const other = type == LedNotEnabled ? nullptr : Shower(layer, type);
  if (other != nullptr && !AgreesToTwice(*other, layer, type)) return;
  change(StepKind::LedFunction, place, [&] {
    element->LEDTypeLayer(layer, type);
    element->ShowDefined(element->ShowDefined());
  });
}

}  // namespace plexel
