#include "editor/main_window.h"

#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <algorithm>

#include "editor/log_panel.h"
#include "editor/panel_view.h"
#include "qt/units.h"
#include "services/dialogs.h"
#include "services/module_state.h"

namespace plexel {

namespace {

/// The first file of the machine that is carried; empty for none.
QString FileOf(const QMimeData& carried) {
  const QList<QUrl> urls = carried.urls();
  const auto file = std::find_if(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
  return file == urls.end() ? QString() : file->toLocalFile();
}

/// The dialogs on an element itself; others open over them.
constexpr std::array ownDialogs = {dialogs::frmConfigurationDialog, dialogs::frmButtonWizardPage1,
                                   dialogs::frmButtonWizardPage2, dialogs::frmButtonWizardPage3,
                                   dialogs::frmPropertiesButton};

}  // namespace

void MainWindow::OpenPicked(const QString& file) {
  if (!MayLeaveProject()) return;
  if (!OpenProject(file.toStdString())) store_.DropRecent(file);
}

void MainWindow::WasUsed(const std::filesystem::path& file) {
  const QFileInfo info(QString::fromStdString(file.string()));
  store_.AddRecent(info.absoluteFilePath());
  store_.Folder(info.absolutePath());
  TellStore();
}

void MainWindow::TellStore() {
  const QString problem = store_.Keep();
  if (problem.isEmpty()) return;
  qWarning("%s", qUtf8Printable(problem));
  log_->Append(problem);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!FileOf(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QString file = FileOf(*event->mimeData());
  if (file.isEmpty()) return;
  event->acceptProposedAction();
  // Whoever carried it here waits for the end of this event, and must not wait for answers to questions.
  QTimer::singleShot(0, this, [this, file] { Guarded([&] { OpenPicked(file); }); });
}

int MainWindow::LayoutVersion() const { return static_cast<int>(findChildren<QDockWidget*>().size()); }

void MainWindow::RememberWindow() {
  store_.Geometry(saveGeometry());
  store_.Layout(saveState(LayoutVersion()));
}

void MainWindow::RestoreWindow() {
  restoreGeometry(store_.Geometry());
  restoreState(store_.Layout(), LayoutVersion());
}

FormSubject MainWindow::SubjectOf(const Form& form) const {
  const bool own =
      std::any_of(ownDialogs.begin(), ownDialogs.end(), [&form](const FormName& name) { return form.Name() == name; });
  const auto element = Module().ctlCurrentElement;
  if (!own || !element || !document_) return {};
  const int place = document_->PlaceOf(*element);
  const QRect box = place < 0 ? QRect() : view_->PlaceRect(place) & view_->visibleRegion().boundingRect();
  return {ToQt(element->Name()), box.isEmpty() ? QRect() : QRect(view_->mapToGlobal(box.topLeft()), box.size())};
}

}  // namespace plexel
