#include "editor/versions_dialog.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "editor/difference_text.h"
#include "editor/difference_view.h"
#include "editor/help_key.h"
#include "files/file_error.h"
#include "project/element_change.h"
#include "qt/units.h"

namespace plexel {

namespace {

/// Day and time to the second: some versions are saved within one minute.
QString TimeText(std::int64_t milliseconds) {
  const QDateTime time = QDateTime::fromMSecsSinceEpoch(milliseconds);
  const QLocale locale = UserLocale();
  const QString format = locale.timeFormat(QLocale::ShortFormat).replace("mm", "mm:ss");
  return locale.toString(time.date(), QLocale::ShortFormat) + ' ' + locale.toString(time.time(), format);
}

}  // namespace

VersionsDialog::VersionsDialog(const VersionStore& store, const PanelDocument& document, QWidget* parent)
    : QDialog(parent),
      now_(document.Content()),
      versions_(document.File().empty() ? std::vector<VersionStore::Version>() : store.List(document.File())),
      list_(new QListWidget),
      summary_(new QLabel),
      differences_(new DifferenceView(Text::ColumnNow, Text::ColumnThen)) {
  const QString name = document.File().empty() ? Say(Text::Untitled) : ToQt(document.File().filename().string());
  setWindowTitle(Say(Text::VersionsTitle).arg(name));
  summary_->setTextFormat(Qt::PlainText);
  summary_->setWordWrap(true);
  list_->setObjectName("Versions");
  for (const VersionStore::Version& version : versions_) {
    list_->addItem(TimeText(version.time));
  }
  auto* const right = new QWidget;
  auto* const rightLayout = new QVBoxLayout(right);
  rightLayout->setContentsMargins(0, 0, 0, 0);
  rightLayout->addWidget(new QLabel(Say(Text::VersionsHint)));
  rightLayout->addWidget(summary_);
  rightLayout->addWidget(differences_);
  auto* const splitter = new QSplitter;
  splitter->addWidget(list_);
  splitter->addWidget(right);
  splitter->setStretchFactor(1, 1);
  auto* const buttons = new QDialogButtonBox;
  bringBack_ = buttons->addButton(Say(Text::BringBack), QDialogButtonBox::AcceptRole);
  bringBack_->setObjectName("BringBack");
  buttons->addButton(Say(Text::Close), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(list_, &QListWidget::currentRowChanged, this, [this](int row) { ShowVersion(row); });
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(splitter);
  layout->addWidget(buttons);
  constexpr QSize firstSize(860, 480);
  constexpr int listWidth = 200;
  resize(firstSize);
  splitter->setSizes({listWidth, firstSize.width() - listWidth});
  AddHelpKey(*this, help_topics::Versions);
  bringBack_->setEnabled(false);
  if (versions_.empty()) {
    summary_->setText(Say(Text::VersionsNone));
  } else {
    list_->setCurrentRow(0);
  }
}

std::filesystem::path VersionsDialog::Chosen() const {
  return versions_.at(static_cast<std::size_t>(list_->currentRow())).file;
}

void VersionsDialog::ShowVersion(int row) {
  if (row < 0) return;
  try {
    auto differences = DifferencesOf(now_, ReadProject(versions_.at(static_cast<std::size_t>(row)).file));
    // What a version has been saved with of the user's settings does not come back with it.
    std::erase_if(differences, [](const ProjectDifference& one) {
      return one.kind == DifferenceKind::Property && IsOfTheScreen(one.name);
    });
    differences_->Show(differences);
    summary_->setText(SummaryOf(differences));
    bringBack_->setEnabled(!differences.empty());
  } catch (const FileError& failure) {
    differences_->Show({});
    summary_->setText(Say(Text::VersionDamaged).arg(ToQt(std::string_view(failure.what()))));
    bringBack_->setEnabled(false);
  }
}

}  // namespace plexel
