#include "editor/problem_panel.h"

#include <QAction>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

#include "editor/help_key.h"
#include "editor/texts.h"

namespace plexel {

ProblemPanel::ProblemPanel(const LiveProblems& problems, Selection& selection, QWidget* parent)
    : QDockWidget(parent),
      problems_(problems),
      selection_(selection),
      model_(new ProblemModel(problems, this)),
      pages_(new QStackedWidget),
      list_(new QTableView),
      empty_(new QLabel),
      errorsOnly_(new QCheckBox) {
  setObjectName("problems");
  SetHelpTopic(*this, help_topics::Problems);
  MakeContent();
  connect(errorsOnly_, &QCheckBox::toggled, this, [this](bool only) {
    Moving([&] { model_->ErrorsOnly(only); });
    ShowCounts();
  });
  connect(list_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& current) { Go(current); });
  connect(list_, &QTableView::clicked, this, [this](const QModelIndex& index) { Go(index); });
  connect(list_, &QTableView::doubleClicked, this, [this](const QModelIndex& index) { Open(index); });
  auto* const open = new QAction(list_);
  open->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
  open->setShortcutContext(Qt::WidgetShortcut);
  list_->addAction(open);
  connect(open, &QAction::triggered, this, [this] { Open(list_->currentIndex()); });
  selection_.Listen(*this, [this] { FollowSelection(); });
  Retranslate();
}

void ProblemPanel::MakeContent() {
  list_->setModel(model_);
  list_->setSelectionBehavior(QAbstractItemView::SelectRows);
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setTabKeyNavigation(false);
  list_->setShowGrid(false);
  list_->setWordWrap(false);
  list_->verticalHeader()->hide();
  list_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  list_->horizontalHeader()->setHighlightSections(false);
  list_->horizontalHeader()->setStretchLastSection(true);
  empty_->setTextFormat(Qt::PlainText);
  empty_->setAlignment(Qt::AlignCenter);
  empty_->setWordWrap(true);
  pages_->addWidget(list_);
  pages_->addWidget(empty_);
  auto* const content = new QWidget;
  auto* const layout = new QVBoxLayout(content);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addWidget(errorsOnly_);
  layout->addWidget(pages_, 1);
  setWidget(content);
}

void ProblemPanel::Moving(const std::function<void()>& act) {
  {
    const QScopedValueRollback<bool> guard(moving_, true);
    act();
  }
  FollowSelection();
}

void ProblemPanel::Reset() {
  Moving([this] { model_->Reset(); });
  ShowCounts();
}

void ProblemPanel::Update(std::span<const std::size_t> places) {
  Moving([&] { model_->Update(places); });
  ShowCounts();
}

void ProblemPanel::Enter() {
  if (model_->rowCount() == 0) return errorsOnly_->setFocus(Qt::ShortcutFocusReason);
  list_->setFocus(Qt::ShortcutFocusReason);
  if (!list_->currentIndex().isValid()) list_->setCurrentIndex(model_->index(0, 0));
}

QString ProblemPanel::EmptyText() const {
  if (!problems_.Failure().isEmpty()) return Say(Text::ProblemsUnknown).arg(problems_.Failure());
  if (model_->rowCount() > 0) return {};
  return Say(problems_.Counts().warnings > 0 ? Text::ErrorsNone : Text::ProblemsNone);
}

void ProblemPanel::ShowCounts() {
  const QString counts = problems_.Failure().isEmpty() ? CountText(problems_.Counts()) : QString("?");
  setWindowTitle(Say(Text::Problems) + " \u2013 " + counts);
  toggleViewAction()->setText(Say(Text::ShowProblems));  // which otherwise follows the title
  empty_->setText(EmptyText());
  pages_->setCurrentWidget(empty_->text().isEmpty() ? static_cast<QWidget*>(list_) : empty_);
}

void ProblemPanel::Retranslate() {
  errorsOnly_->setText(Say(Text::ErrorsOnly));
  list_->setAccessibleName(Say(Text::Problems));
  Reset();
  const QFontMetrics metrics = list_->fontMetrics();
  const int pad = 2 * metrics.horizontalAdvance('m');
  const auto wide = [&](Text text) { return metrics.horizontalAdvance(Say(text)); };
  const int icon = list_->iconSize().isValid() ? list_->iconSize().width() : 16;
  list_->verticalHeader()->setDefaultSectionSize(std::max(metrics.height(), icon) + 4);
  list_->setColumnWidth(
      ProblemModel::Level,
      icon + pad + std::max({wide(Text::LevelError), wide(Text::LevelWarning), wide(Text::ColumnLevel)}));
  list_->setColumnWidth(ProblemModel::Element,
                        pad + std::max(wide(Text::ColumnElement), metrics.horizontalAdvance("MMMMMMMM")));
  list_->setColumnWidth(ProblemModel::Layer,
                        pad + std::max(wide(Text::ColumnLayer), metrics.horizontalAdvance("1, 2, 3, 4")));
}

void ProblemPanel::FollowSelection() {
  if (moving_) return;
  const QScopedValueRollback<bool> guard(moving_, true);
  const int current = selection_.Current();
  const QModelIndex at = list_->currentIndex();
  if (at.isValid() && model_->PlaceOf(at.row()) == current) return;
  const int row = model_->FirstRowOf(current);
  if (row < 0) {
    list_->setCurrentIndex({});
    return list_->clearSelection();
  }
  list_->selectRow(row);
}

void ProblemPanel::Go(const QModelIndex& index) {
  if (moving_ || !index.isValid()) return;
  const QScopedValueRollback<bool> guard(moving_, true);
  const int place = model_->PlaceOf(index.row());
  if (selection_.Current() != place || selection_.IsMany() || !selection_.Has(place)) selection_.Only(place);
}

void ProblemPanel::Open(const QModelIndex& index) {
  if (!index.isValid()) return;
  Go(index);
  const int place = model_->PlaceOf(index.row());
  const Problem problem = model_->ProblemOf(index.row());
  if (onOpen) onOpen(place, problem);
}

}  // namespace plexel
