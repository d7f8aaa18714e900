#include <QApplication>
#include <QFileInfo>
#include <clocale>
#include <iostream>
#include <string_view>

#include "component/component.h"
#include "editor/call.h"
#include "editor/editor_style.h"
#include "editor/end_signals.h"
#include "editor/font_configuration.h"
#include "editor/key_guard.h"
#include "editor/log_panel.h"
#include "editor/main_window.h"
#include "editor/report_pdf.h"
#include "editor/version.h"
#include "files/data_directory.h"
#include "files/replacing.h"
#include "files/system_files.h"
#include "qt/fonts.h"
#include "qt/pictures.h"
#include "qt/plain_box.h"
#include "qt/units.h"

namespace plexel {

namespace {

constexpr QSize IconSize(64, 64);

void TellInBox(QMessageBox::Icon icon, const QString& text, QWidget* parent) {
  PlainBox box(parent);
  box.setIcon(icon);
  box.setWindowTitle("Plexel");
  box.setText(text);
  box.exec();
}

/// Tells what could not be read of the user's own files.
void TellProblems(const FileSurroundings& surroundings, const FileRegistry& registry, const FileSettings& settings,
                  QWidget& window) {
  QStringList problems;
  for (const FileError& problem : settings.Problems()) problems.append(ToQt(std::string_view(problem.what())));
  if (registry.Problem()) problems.append(ToQt(std::string_view(registry.Problem()->what())));
  if (surroundings.LanguageProblem()) problems.append(ToQt(std::string_view(surroundings.LanguageProblem()->what())));
  if (problems.isEmpty()) return;
  window.show();
  for (const QString& problem : problems) qWarning("%s", qUtf8Printable(problem));
  TellInBox(QMessageBox::Warning, Say(Text::FilesDamaged) + "\n\n" + problems.join('\n'), &window);
}

int Run(const QString& project) {
  FileSurroundings surroundings(DataDirectory(), ConfigurationDirectory());
  HelpWindow help;
  QtPlatform platform(surroundings.UserRegistry(), help);
  Component component(platform, surroundings);

  MainWindow window(component, surroundings, platform, help, StateDirectory());
  const EndSignals ends([&window] { return window.KeepWork(); }, [&window] { return window.close(); });
  TellProblems(surroundings, surroundings.UserRegistry(), surroundings.Settings(), window);
  if (window.OfferLostWork()) {
    window.TellNotOpened(project);
  } else if ((project.isEmpty() || !window.OpenProject(project.toStdString())) && !window.StartEmpty()) {
    return 1;
  }
  window.show();
  return ends.Heard() ? 0 : QApplication::exec();
}

/// Writes a report of a project, without a window.
int WritePdf(const Call& call) {
  FileSurroundings surroundings(DataDirectory(), ConfigurationDirectory());
  HelpWindow help;
  QtPlatform platform(surroundings.UserRegistry(), help);
  Component component(platform, surroundings);
  EditorHost host;
  const PanelDocument::Site site{component, host, std::make_shared<EditorWindowObject>(), DataDirectory() / "panels"};
  const auto document = PanelDocument::Open(call.project.toStdString(), site);
  const std::string report = ReportPdf(*document, QFileInfo(call.project).fileName());
  const std::filesystem::path file = call.pdf.toStdString();
  TellReplacing(file, [&] { WriteWholeFile(file, report); }, std::cerr);
  return 0;
}

}  // namespace

}  // namespace plexel

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == plexel::KeyGuard::Word) return plexel::RunKeyGuard();
  const plexel::Call call = plexel::Understand(argc, argv);
  if (call.status) {
    (*call.status == 0 ? std::cout : std::cerr) << call.answer.toStdString();
    return *call.status;
  }
  if (!call.pdf.isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Of a desktop that has both, the X server is taken: it tells more of the keyboard.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && !qEnvironmentVariableIsEmpty("DISPLAY")) {
    qputenv("QT_QPA_PLATFORM", "xcb;wayland");
  }
  std::setlocale(LC_ALL, "");  // the toolkit's own setting of it changes nothing then
  plexel::FontConfiguration fonts;
  QApplication application(argc, argv);
  QApplication::setApplicationName("Plexel");
  QApplication::setApplicationVersion(plexel::ProgramVersion);
  QApplication::setStyle(new plexel::EditorStyle);
  QApplication::setWindowIcon(plexel::PicturePixmap("plexel", plexel::IconSize, 2));
  fonts.Await();
  QApplication::setFont(plexel::DialogFont());
  try {
    return call.pdf.isEmpty() ? plexel::Run(call.project) : plexel::WritePdf(call);
  } catch (const std::exception& failure) {
    std::cerr << "plexel-editor: " << failure.what() << '\n';
    if (!call.pdf.isEmpty()) return 2;
    plexel::TellInBox(QMessageBox::Critical, QString::fromUtf8(failure.what()), nullptr);
    return 1;
  }
}
