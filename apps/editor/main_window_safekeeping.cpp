#include "editor/main_window.h"

#include <QDateTime>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <set>
#include <string_view>

#include "editor/box_room.h"
#include "editor/difference_text.h"
#include "editor/difference_view.h"
#include "editor/help_key.h"
#include "editor/log_panel.h"
#include "editor/notice_bar.h"
#include "editor/versions_dialog.h"
#include "editor/wait_cursor.h"
#include "files/file_error.h"
#include "files/system_files.h"
#include "qt/plain_box.h"
#include "qt/units.h"

namespace plexel {

namespace {

/// What lost work differs in from the file that it belongs to, or where no such file can be read from an empty project
/// on its panel.
std::vector<ProjectDifference> AgainstItsFile(const RecoveryFile& lost, const PanelDocument::Site& site) {
  try {
    if (!lost.head.file.empty()) {
      return DifferencesOf(PanelDocument::Open(lost.head.file, site)->Content(), lost.project);
    }
  } catch (const FileError&) {  // the file is gone, or is no project any more
  }
  try {
    const Project empty{lost.project.panel, {}, lost.project.panelText};
    return DifferencesOf(PanelDocument::Of(empty, lost.head.file, site)->Content(), lost.project);
  } catch (const FileError&) {
    return {};
  }
}

void ShowDifferences(const std::vector<ProjectDifference>& differences, const QString& title, Text before, Text after,
                     QWidget* parent) {
  QDialog dialog(parent);
  dialog.setWindowTitle(title);
  auto* const layout = new QVBoxLayout(&dialog);
  auto* const view = new DifferenceView(before, after);
  layout->addWidget(view);
  auto* const buttons = new QDialogButtonBox;
  buttons->addButton(Say(Text::Close), QDialogButtonBox::RejectRole);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  layout->addWidget(buttons);
  constexpr QSize firstSize(760, 420);
  dialog.resize(firstSize);
  AddHelpKey(dialog, help_topics::Versions);
  view->Show(differences);
  dialog.exec();
}

enum class LostAnswer { BringBack, Discard, Later };

LostAnswer AskAboutLost(const RecoveryFile& lost, const PanelDocument::Site& site, QWidget* parent) {
  PlainBox box(parent);
  box.setIcon(QMessageBox::Question);
  box.setWindowTitle("Plexel");
  const QDateTime time = QDateTime::fromSecsSinceEpoch(lost.head.time);
  box.setText(Say(Text::LostWorkFound).arg(UserLocale().toString(time, QLocale::ShortFormat)));
  QStringList lines = {lost.head.file.empty() ? Say(Text::LostWorkNew)
                                              : Say(Text::LostWorkOf).arg(ToQt(lost.head.file.string()))};
  const std::vector<ProjectDifference> differences = AgainstItsFile(lost, site);
  if (!differences.empty()) lines.append(SummaryOf(differences));
  box.setInformativeText(lines.join('\n'));
  GiveRoom(box);
  QPushButton* const back = box.addButton(Say(Text::BringBack), QMessageBox::AcceptRole);
  QPushButton* const discard = box.addButton(Say(Text::Discard), QMessageBox::DestructiveRole);
  box.setEscapeButton(box.addButton(Say(Text::Later), QMessageBox::RejectRole));
  QPushButton* const show =
      differences.empty() ? nullptr : box.addButton(Say(Text::ShowDifference), QMessageBox::HelpRole);
  box.setDefaultButton(back);
  do {
    if (show != nullptr && box.clickedButton() == show) {
      ShowDifferences(differences, lines.front(), Text::ColumnSaved, Text::ColumnUnsaved, parent);
    }
    box.exec();
  } while (show != nullptr && box.clickedButton() == show);
  if (box.clickedButton() == back) return LostAnswer::BringBack;
  return box.clickedButton() == discard ? LostAnswer::Discard : LostAnswer::Later;
}

bool Confirm(const QString& question, const QString& yes, QWidget* parent) {
  PlainBox box(parent);
  box.setIcon(QMessageBox::Warning);
  box.setWindowTitle("Plexel");
  box.setText(question);
  QPushButton* const accept = box.addButton(yes, QMessageBox::DestructiveRole);
  QPushButton* const reject = box.addButton(Say(Text::Cancel), QMessageBox::RejectRole);
  box.setEscapeButton(reject);
  box.setDefaultButton(reject);
  box.exec();
  return box.clickedButton() == accept;
}

QString WordsOf(const FileTrait& trait) {
  const QString name = ToQt(trait.name);
  switch (trait.kind) {
    case FileTrait::Kind::Owner:
      return Say(Text::LosesOwner).arg(name);
    case FileTrait::Kind::Group:
      return Say(Text::LosesGroup).arg(name);
    case FileTrait::Kind::AccessList:
      return Say(Text::LosesAccessList);
    case FileTrait::Kind::Attribute:
      break;
  }
  return Say(Text::LosesAttribute).arg(name);
}

struct PanelText {
  PanelDifference::Kind kind;
  Text text;
};
constexpr PanelText panelTexts[] = {
    {PanelDifference::Kind::Settings, Text::PanelSettings}, {PanelDifference::Kind::Drawing, Text::PanelDrawing},
    {PanelDifference::Kind::Added, Text::PanelAdded},       {PanelDifference::Kind::Removed, Text::PanelRemoved},
    {PanelDifference::Kind::Place, Text::PanelPlace},       {PanelDifference::Kind::Type, Text::PanelType},
    {PanelDifference::Kind::Numbers, Text::PanelNumbers}};

/// The first differences of a panel, in words.
QString Words(const std::vector<PanelDifference>& differences) {
  constexpr std::size_t most = 8;
  QStringList words;
  for (std::size_t index = 0; index < std::min(most, differences.size()); ++index) {
    for (const PanelText& one : panelTexts) {
      if (one.kind != differences[index].kind) continue;
      const QString pattern = Say(one.text);
      words.append(pattern.contains("%1") ? pattern.arg(ToQt(differences[index].element)) : pattern);
    }
  }
  return words.join(", ") + (differences.size() > most ? ", \u2026" : "");
}

}  // namespace

void MainWindow::TellPanelChanged() {
  if (!document_->CarriesPanel()) return;
  try {
    const auto differences = document_->InstalledPanelDiffers(Site().panelDirectory);
    if (differences.empty()) return;
    notice_->Tell(Say(Text::PanelHasChanged).arg(ToQt(document_->PanelName()), Words(differences)),
                  {{Say(Text::KeepCarriedPanel), [this] { notice_->hide(); }},
                   {Say(Text::UseInstalledPanel), [this] { Guarded([this] { UseInstalledPanel(); }); }}});
  } catch (const FileError& failure) {
    log_->Append(ToQt(std::string_view(failure.what())));
  }
}

void MainWindow::TellUnread() {
  if (document_->Unread().empty()) return;
  constexpr std::size_t most = 12;
  QStringList lines;
  for (const std::string& one : document_->Unread()) {
    if (lines.size() < static_cast<qsizetype>(most)) lines.append(ToQt(one));
  }
  if (document_->Unread().size() > most) lines.append(Say(Text::MoreOfThem).arg(document_->Unread().size() - most));
  Tell(Text::ValuesUnread, lines.join('\n'));
}

void MainWindow::UseInstalledPanel() {
  Project project = document_->Content();
  project.panelText.clear();
  try {
    const std::filesystem::path file = document_->File();
    const Panel installed = ReadPanel(PanelFile(Site().panelDirectory, project.panel));
    std::set<std::string_view> places;
    for (const PanelPart& part : installed.parts) {
      if (part.element) places.insert(part.element->id);
    }
    std::erase_if(project.elements, [&](const ProjectElement& one) { return !places.contains(one.place); });
    std::unique_ptr<PanelDocument> document = PanelDocument::Of(project, file, Site());
    document->CarriesPanel(true);
    if (document_->HasElementsOf(*document)) {
      document_->Become(StepKind::UsePanel, *document);
      notice_->hide();
      return;
    }
    if (!Confirm(Say(Text::AskUsePanel), Say(Text::UseInstalledPanel), this)) return;
    document->FileIsLost(file);
    Take(std::move(document));
  } catch (const FileError& failure) {
    Tell(Text::CannotBecome, ToQt(std::string_view(failure.what())));
  }
}

void MainWindow::ConnectSafekeeping() {
  safekeeping_.onFileChanged = [this](const PanelDocument::FileState& state) { TellFileChanged(state); };
  safekeeping_.onOthers = [this](std::size_t others) {
    const QString text = Say(Text::OthersHaveIt);
    if (others > 0) {
      notice_->Tell(text, {{Say(Text::OK), [this] { notice_->hide(); }}});
    } else if (notice_->Told() == text) {
      notice_->hide();
    }
  };
  safekeeping_.onProblem = [this](const QString& reason) {
    log_->Append(Say(Text::NotKept) + ' ' + reason);
    notice_->Tell(Say(Text::NotKept) + ' ' + reason, {{Say(Text::OK), [this] { notice_->hide(); }}});
  };
}

void MainWindow::TellFileChanged(const PanelDocument::FileState& state) {
  const NoticeBar::Choice keep = {Say(Text::KeepMine), [this] { Guarded([this] { KeepMine(); }); }};
  const NoticeBar::Choice seen = {Say(Text::OK), [this] { notice_->hide(); }};
  switch (state.now) {
    case PanelDocument::OnDisk::Same:
      notice_->hide();
      break;
    case PanelDocument::OnDisk::Gone:
      document_->FileIsLost(document_->File());
      ShowTitle();
      notice_->Tell(Say(Text::FileGone).arg(ProjectName()), {seen});
      break;
    case PanelDocument::OnDisk::Unreadable:
      notice_->Tell(Say(Text::FileUnreadable) + ' ' + ToQt(state.reason), {seen});
      break;
    case PanelDocument::OnDisk::Other:
      notice_->Tell(Say(Text::FileChanged).arg(ProjectName()),
                    {keep,
                     {Say(Text::TakeTheirs), [this] { Guarded([this] { TakeTheirs(); }); }},
                     {Say(Text::ShowDifference), [this] { Guarded([this] { ShowFileDifference(); }); }}});
      break;
  }
}

void MainWindow::KeepMine() {
  try {
    document_->FileHolds(*PanelDocument::Open(document_->File(), Site()));
  } catch (const FileError&) {
    document_->FileIsLost(document_->File());
  }
  safekeeping_.Saved();
  notice_->hide();
  ShowChange();
}

void MainWindow::TakeTheirs() {
  try {
    const auto theirs = PanelDocument::Open(document_->File(), Site());
    document_->Become(StepKind::TakeOver, *theirs);
    document_->FileHolds(*theirs);
  } catch (const FileError& failure) {
    Tell(Text::CannotBecome, ToQt(std::string_view(failure.what())));
    return;
  }
  safekeeping_.Saved();
  notice_->hide();
  ShowChange();
}

void MainWindow::ShowFileDifference() {
  ShowDifferences(DifferencesOf(document_->Content(), PanelDocument::Open(document_->File(), Site())->Content()),
                  Say(Text::DifferenceTitle), Text::ColumnMine, Text::ColumnTheirs, this);
}

bool MainWindow::MayOverwrite(const std::filesystem::path& file) {
  // Saving under another name has been asked for by the toolkit's dialog.
  if (file != document_->File()) return true;
  WaitCursor waits;
  const PanelDocument::FileState state = document_->FileNow();
  waits.End();
  if (state.now == PanelDocument::OnDisk::Unreadable) log_->Append(ToQt(state.reason));
  if (state.now == PanelDocument::OnDisk::Same || state.now == PanelDocument::OnDisk::Gone) return true;
  return Confirm(Say(Text::AskOverwrite), Say(Text::Overwrite), this);
}

bool MainWindow::MayReplace(const std::filesystem::path& file) {
  WaitCursor waits;
  const FileTraits lost = LostByWriting(file);
  waits.End();
  if (lost.empty()) return true;
  QStringList words;
  for (const FileTrait& trait : lost) words.append(WordsOf(trait));
  return Confirm(Say(Text::ReplacedWithout).arg(ToQt(file.filename().string()), words.join(", ")),
                 Say(Text::SaveAllTheSame), this);
}

void MainWindow::TellSaved(const FileWarning& warning) {
  const QString words = Say(Text::SavedBut) + ' ' + ToQt(std::string_view(warning.what()));
  log_->Append(words);
  notice_->Tell(words, {{Say(Text::OK), [this] { notice_->hide(); }}});
}

void MainWindow::ShowVersions() {
  if (!document_) return;
  try {
    VersionsDialog dialog(safekeeping_.Versions(), *document_, this);
    if (dialog.exec() != QDialog::Accepted) return;
    const std::filesystem::path version = dialog.Chosen();
    document_->Become(StepKind::Restore, *PanelDocument::Of(ReadProject(version), version, Site()));
  } catch (const FileError& failure) {
    Tell(Text::CannotBecome, ToQt(std::string_view(failure.what())));
  }
}

bool MainWindow::OfferLostWork() {
  std::vector<std::string> damaged;
  std::vector<LostWork> found = safekeeping_.FindLost(damaged);
  bool brought = false;
  if (!found.empty()) show();
  for (LostWork& work : found) {
    if (brought) break;  // a window has one project; the others are offered at the next start
    const LostAnswer answer = AskAboutLost(work.content, Site(), this);
    if (answer == LostAnswer::Discard && Confirm(Say(Text::AskDiscard), Say(Text::Discard), this)) ForgetLost(work);
    if (answer != LostAnswer::BringBack) continue;
    try {
      BringBack(work);
      brought = true;
    } catch (const FileError& failure) {
      Tell(Text::CannotBecome, ToQt(std::string_view(failure.what())));
    }
  }
  if (!damaged.empty()) {
    QStringList lines;
    for (const std::string& one : damaged) lines.append(ToQt(one));
    Tell(Text::LostWorkDamaged, lines.join('\n'));
  }
  return brought;
}

void MainWindow::BringBack(LostWork& work) {
  const RecoveryFile& lost = work.content;
  const auto whole = PanelDocument::Of(lost.project, work.source, Site());
  std::unique_ptr<PanelDocument> document;
  try {
    if (!lost.head.file.empty()) {
      document = PanelDocument::Open(lost.head.file, Site());
      document->Become(StepKind::Recover, *whole);
    }
  } catch (const FileError&) {  // the file is gone or of another kind; the work stands without it
    document.reset();
  }
  if (!document) {
    document = PanelDocument::Of(lost.project, work.source, Site());
    document->FileIsLost(lost.head.file);
  }
  Take(std::move(document));
  if (safekeeping_.Keep()) ForgetLost(work);  // otherwise what was lost once stays where it is
}

void MainWindow::TellNotOpened(const QString& project) {
  if (project.isEmpty() || QFileInfo(project) == QFileInfo(ToQt(document_->File().string()))) return;
  notice_->Tell(Say(Text::NotOpenedForLostWork).arg(QFileInfo(project).fileName()),
                {{Say(Text::OK), [this] { notice_->hide(); }}});
}

void MainWindow::ForgetLost(LostWork& work) {
  try {
    Forget(work);
  } catch (const FileError& failure) {
    Tell(Text::Failed, ToQt(std::string_view(failure.what())));
  }
}

}  // namespace plexel
