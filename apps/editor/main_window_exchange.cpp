#include "editor/main_window.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <array>

#include "editor/report_pdf.h"
#include "files/file_error.h"
#include "files/system_files.h"
#include "project/exchange_words.h"
#include "project/panel_svg.h"
#include "project/project_export.h"
#include "project/project_import.h"
#include "project/report_csv.h"
#include "project/report_html.h"

namespace plexel {

namespace {

struct ExportKind {
  Text text;
  const char* suffix;
  std::string (*make)(const PanelDocument& document, const QString& name);
};
constexpr std::array kinds = {
    ExportKind{Text::ExportJson, "json",
               [](const PanelDocument& document, const QString&) {
                 return ProjectDocument(document.File(), document.Content());
               }},
    ExportKind{Text::ExportPdf, "pdf", ReportPdf},
    ExportKind{Text::ExportHtml, "html",
               [](const PanelDocument& document, const QString& name) {
                 return ReportHtml(ReportOf(document, name.toStdString(), ReportWordsInForce()));
               }},
    ExportKind{Text::ExportCsv, "csv",
               [](const PanelDocument& document, const QString& name) {
                 return ReportCsv(ReportOf(document, name.toStdString(), ReportWordsInForce()));
               }},
    ExportKind{Text::ExportSvg, "svg",
               [](const PanelDocument& document, const QString&) { return PanelSvg(document.ThePanel()); }}};

}  // namespace

void MainWindow::MakeExchangeMenu(QMenu& menu) {
  Add(menu, Text::Import, QKeySequence(), &MainWindow::AskImport);
  QMenu* const exports = menu.addMenu(QString());
  menus_.emplace_back(exports, Text::MenuExport);
  for (const ExportKind& kind : kinds) {
    QAction* const action = exports->addAction(QString());
    named_.push_back({action, kind.text});
    connect(action, &QAction::triggered, this, [this, suffix = kind.suffix] { Guarded([&] { AskExport(suffix); }); });
  }
}

void MainWindow::AskImport() {
  const QString file =
      QFileDialog::getOpenFileName(this, Say(Text::ImportTitle), store_.Folder(), Say(Text::JsonFilter));
  if (!file.isEmpty()) Import(file.toStdString());
}

void MainWindow::AskExport(const QString& suffix) {
  if (!document_) return;
  QFileDialog dialog(this, Say(Text::ExportTitle), store_.Folder(), "*." + suffix);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(suffix);
  dialog.selectFile(QFileInfo(ProjectName()).completeBaseName() + '.' + suffix);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  Export(suffix, dialog.selectedFiles().front().toStdString());
}

bool MainWindow::Import(const std::filesystem::path& file) {
  try {
    const Project project = ImportProject(file, ReadWholeFile(file, exchange_words::DocumentLimit));
    if (project.panel != document_->PanelName()) {
      Tell(Text::ImportFailed,
           Say(Text::ImportOtherPanel)
               .arg(QString::fromStdString(project.panel), QString::fromStdString(document_->PanelName())));
      return false;
    }
    document_->Become(StepKind::Import, *PanelDocument::Of(project, file, Site()));
    return true;
  } catch (const std::exception& failure) {
    Tell(Text::ImportFailed, WhyFailed(failure));
    return false;
  }
}

bool MainWindow::Export(const QString& suffix, const std::filesystem::path& file) {
  try {
    if (!MayReplace(file)) return false;
    for (const ExportKind& kind : kinds) {
      if (suffix == kind.suffix) WriteWholeFile(file, kind.make(*document_, ProjectName()));
    }
    return true;
  } catch (const FileWarning& warning) {
    TellSaved(warning);
    return true;
  } catch (const std::exception& failure) {
    Tell(Text::ExportFailed, WhyFailed(failure));
    return false;
  }
}

}  // namespace plexel
