#include "editor/trial_dock.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <algorithm>
#include <array>

#include "editor/help_key.h"
#include "editor/texts.h"
#include "editor/time_line_view.h"
#include "editor/trial_layer.h"
#include "project/key_code_names.h"
#include "project/panel_document.h"
#include "qt/units.h"
#include "scancodes/special_functions.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

/// The LEDs that a trial knows, besides those of the layers.
constexpr std::array lockLeds = {CapsLockLed, NumLockLed, ScrollLockLed};

QString PlaceName(std::size_t place, const PanelDocument& document) {
  return place == Trial::NoPlace ? Say(Text::TrialAll) : ToQt(document.Places()[place].element->Name());
}

QString BytesOf(const Trial::Event& event) {
  QStringList bytes;
  for (const std::uint8_t byte : event.bytes) bytes.append(ToQt(CodeText(byte)));
  return bytes.join(' ');
}

QString CommandsOf(const Trial::Event& event) {
  QStringList commands;
  for (const KeyReport& report : event.reports) {
    if (report.deed == KeyDeed::Panel) commands.append(PanelFunctionText(report.code));
    if (report.deed == KeyDeed::Unknown) commands.append(Say(Text::TrialUnknown).arg(ToQt(CodeText(report.code))));
  }
  return commands.join(", ");
}

QString NameOf(const TimeRow& row) {
  if (row.kind == KeyDeed::Panel) return PanelFunctionText(row.code);
  if (row.kind == KeyDeed::Unknown) return Say(Text::TrialUnknown).arg(ToQt(CodeText(row.code)));
  return ToQt(KeyNameOf(row.code));
}

bool Contains(const std::vector<KeyCode>& keys, KeyCode key) {
  return std::find(keys.begin(), keys.end(), key) != keys.end();
}

}  // namespace

QString PanelFunctionText(KeyCode byte) {
  for (const SpecialFunction& one : SpecialFunctions()) {
    if (one.code == byte) return ToQt(GetText(one.textId));
  }
  return ToQt(CodeText(byte));
}

QString KeyList(const std::vector<KeyCode>& keys) {
  QStringList names;
  for (const KeyCode key : keys) names.append(ToQt(KeyNameOf(key)));
  return names.join(", ");
}

TrialDock::TrialDock(QWidget* parent) : LateDock(parent) {
  setObjectName("trial");
  SetHelpTopic(*this, help_topics::Trial);
  auto* leave = new QAction(this);
  leave->setShortcut(Qt::Key_Escape);
  leave->setShortcutContext(Qt::WidgetWithChildrenShortcut);
  addAction(leave);
  connect(leave, &QAction::triggered, this, [this] { onLeave(); });
}

void TrialDock::MakeContent() {
  for (QLabel** const label : {&state_, &down_, &textTitle_, &hint_}) *label = new QLabel;
  events_ = new QTreeWidget;
  timeLine_ = new TimeLineView;
  text_ = new QPlainTextEdit;
  letGo_ = new QPushButton;
  clear_ = new QPushButton;
  events_->setRootIsDecorated(false);
  events_->setUniformRowHeights(true);
  events_->setColumnCount(4);
  for (QWidget* const plain :
       {static_cast<QWidget*>(events_), static_cast<QWidget*>(letGo_), static_cast<QWidget*>(clear_)}) {
    plain->setFocusPolicy(Qt::NoFocus);
  }
  text_->setReadOnly(true);
  text_->setFocusPolicy(Qt::ClickFocus);
  letGo_->setObjectName("LetGoOfAll");
  for (QLabel* const label : {state_, down_, textTitle_, hint_}) label->setTextFormat(Qt::PlainText);
  down_->setWordWrap(true);
  hint_->setWordWrap(true);

  auto* side = new QWidget;
  auto* column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(textTitle_);
  column->addWidget(text_);
  auto* parts = new QSplitter;
  parts->addWidget(events_);
  parts->addWidget(timeLine_);
  parts->addWidget(side);
  parts->setSizes({330, 460, 270});
  auto* top = new QHBoxLayout;
  top->addWidget(state_);
  top->addSpacing(12);
  top->addWidget(down_, 1);
  top->addWidget(letGo_);
  top->addWidget(clear_);
  auto* content = new QWidget;
  auto* layout = new QVBoxLayout(content);
  layout->setContentsMargins(6, 4, 6, 4);
  layout->addLayout(top);
  layout->addWidget(parts, 1);
  layout->addWidget(hint_);
  constexpr int LeastHeight = 210;
  content->setMinimumHeight(LeastHeight);
  setWidget(content);
  connect(letGo_, &QPushButton::clicked, this, [this] { onLetGoOfAll(); });
  connect(clear_, &QPushButton::clicked, this, [this] { onClear(); });
  NameContent();
}

void TrialDock::Retranslate() {
  setWindowTitle(Say(Text::TrialTitle));
  if (IsMade()) NameContent();
}

void TrialDock::NameContent() {
  events_->setHeaderLabels(
      {Say(Text::ColumnElement), Say(Text::TrialAct), Say(Text::TrialBytes), Say(Text::TrialCommands)});
  textTitle_->setText(Say(Text::TrialText));
  letGo_->setText(Say(Text::TrialLetGo));
  clear_->setText(Say(Text::ClearEvents));
  hint_->setText(Say(Text::TrialHint));
}

void TrialDock::Show(const Trial& trial, const PanelDocument& document) {
  QStringList state = {Say(Text::TrialLayer).arg(trial.Layer())};
  for (const enumLedType led : lockLeds) {
    if (trial.IsLit(led)) state.append(ToQt(LedTypeToText(led)));
  }
  state_->setText(state.join("  \u00B7  "));
  const std::vector<KeyCode> left = trial.LeftDown();
  down_->setText(left.empty() ? QString() : Say(Text::TrialStays).arg(KeyList(left)));
  down_->setStyleSheet(QString("color: %1; font-weight: bold").arg(TrialLayer::LeftDownColour.name()));
  letGo_->setEnabled(!trial.Down().empty() || trial.AnyHeld());
  ShowEvents(trial, document);
  ShowTimeLine(trial, document);
  if (const QString text = ToQt(trial.Pc().Text()); text != text_->toPlainText()) {
    text_->setPlainText(text);
    text_->moveCursor(QTextCursor::End);
  }
}

void TrialDock::ShowEvents(const Trial& trial, const PanelDocument& document) {
  events_->clear();
  QList<QTreeWidgetItem*> items;
  for (const Trial::Event& event : trial.Events()) {
    const Text act = event.at == Direction::Press ? Text::TrialPress : Text::TrialRelease;
    auto* const item =
        new QTreeWidgetItem({PlaceName(event.place, document), Say(act).arg(event.layer),
                             event.bytes.empty() ? Say(Text::Nothing) : BytesOf(event), CommandsOf(event)});
    item->setToolTip(2, BytesOf(event));
    items.append(item);
  }
  events_->addTopLevelItems(items);
  for (const int column : {0, 1, 2}) events_->resizeColumnToContents(column);
  constexpr int MostBytes = 110;  // the tool tip has them all
  events_->setColumnWidth(2, std::min(events_->columnWidth(2), MostBytes));
  events_->scrollToBottom();
}

void TrialDock::ShowTimeLine(const Trial& trial, const PanelDocument& document) {
  std::vector<TimeLineView::Stretch> stretches;
  for (const Trial::Event& event : trial.Events()) {
    if (event.reports.empty()) continue;
    const QString sign = event.at == Direction::Press ? "\u25BC" : "\u25B2";
    stretches.push_back({sign + ' ' + PlaceName(event.place, document), event.reports.size()});
  }
  const std::vector<KeyReport> reports = trial.Reports();
  const std::vector<KeyCode> left = trial.LeftDown();
  std::vector<TimeLineView::Row> rows;
  for (const TimeRow& row : TimeRows(reports, trial.Down())) {
    rows.push_back({NameOf(row), row.marks, row.kind == KeyDeed::Down && Contains(left, row.code)});
  }
  timeLine_->Show(std::move(stretches), std::move(rows));
}

QString TrialDock::DownText() const { return down_->text(); }

QString TrialDock::Content() const {
  QStringList lines;
  for (int row = 0; row < events_->topLevelItemCount(); ++row) {
    const QTreeWidgetItem& item = *events_->topLevelItem(row);
    QStringList cells;
    for (int column = 0; column < events_->columnCount(); ++column) cells.append(item.text(column));
    lines.append(cells.join(" | "));
  }
  return lines.join('\n');
}

void TrialDock::closeEvent(QCloseEvent* event) {
  event->ignore();
  onLeave();
}

}  // namespace plexel
