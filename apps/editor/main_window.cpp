#include "editor/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>
#include <new>

#include "editor/box_room.h"
#include "editor/element_text.h"
#include "editor/elided_label.h"
#include "editor/inspector.h"
#include "editor/key_guard.h"
#include "editor/log_panel.h"
#include "editor/notice_bar.h"
#include "editor/overview_panel.h"
#include "editor/panel_scroll.h"
#include "editor/panel_view.h"
#include "editor/trial_dock.h"
#include "editor/trial_mode.h"
#include "editor/virtual_panel.h"
#include "editor/wait_cursor.h"
#include "files/data_directory.h"
#include "files/file_error.h"
#include "qt/captions.h"
#include "qt/plain_box.h"
#include "qt/units.h"

namespace plexel {

MainWindow::MainWindow(Component& component, FileSurroundings& surroundings, QtPlatform& platform, HelpWindow& help,
                       const std::filesystem::path& state)
    : component_(component),
      surroundings_(surroundings),
      platform_(platform),
      help_(help),
      store_(surroundings.Configuration()),
      safekeeping_(state) {
  MakeContent();
  MakeTrial();
  MakeActions();
  ConnectElements();
  ConnectOverview();
  ConnectReading();
  ConnectSafekeeping();
  platform_.Register(*windowObject_, *this);
  platform_.OnFailure([this](const std::string& what) { Tell(Text::Failed, ToQt(what)); });
  platform_.Notes([this](Form& form) { return notes_.Of(form); });
  platform_.Subjects([this](Form& form) { return SubjectOf(form); });
  help_.title = [] { return Say(Text::HelpTitle); };
  platform_.ButtonTexts([](MessageAnswer answer) {
    if (answer == MessageAnswer::Yes) return Say(Text::Yes);
    if (answer == MessageAnswer::No) return Say(Text::No);
    return Say(answer == MessageAnswer::Cancel ? Text::Cancel : Text::OK);
  });
  Retranslate();
  constexpr QSize FirstSize(1360, 940);
  constexpr int Decoration = 60;
  resize(FirstSize.boundedTo(screen()->availableSize() - QSize(Decoration, Decoration)));
  RestoreWindow();
  trialDock_->hide();
  setAcceptDrops(true);
}

MainWindow::~MainWindow() {
  CloseVirtualPanel();
  Try(false);
  safekeeping_.Leave();
  overview_->Show(nullptr);
  overview_->onFound = nullptr;  // it hides when the window takes its children along
  view_->Show(nullptr);
  inspector_->Show(nullptr);
  problems_.Show(nullptr);
  document_.reset();
  platform_.OnFailure(nullptr);
  platform_.Notes(nullptr);
  platform_.Subjects(nullptr);
  platform_.ButtonTexts(nullptr);
}

void MainWindow::MakeContent() {
  auto* content = new QWidget;
  auto* layout = new QVBoxLayout(content);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  notice_ = new NoticeBar;
  layout->addWidget(notice_);
  view_ = new PanelView(selection_);
  scroll_ = new PanelScroll(view_);
  layout->addWidget(scroll_);
  limits_ = new QLabel;
  limits_->setContentsMargins(8, 4, 8, 4);
  limits_->setWordWrap(true);
  limits_->setVisible(!platform_.HasFullCapture());
  layout->addWidget(limits_);
  setCentralWidget(content);
  MakeReading();
  log_ = new LogPanel(this);
  addDockWidget(Qt::BottomDockWidgetArea, log_);
  constexpr int LogHeight = 120;
  resizeDocks({log_}, {LogHeight}, Qt::Vertical);
  log_->hide();
  overview_ = new OverviewPanel(selection_, problems_, this);
  addDockWidget(Qt::BottomDockWidgetArea, overview_);
  overview_->hide();
  status_ = new ElidedLabel;
  statusBar()->addWidget(status_, 1);
  statusBar()->addPermanentWidget(problemCount_);
  zoomFigure_ = new QToolButton;
  zoomFigure_->setObjectName("ZoomFigure");
  zoomFigure_->setAutoRaise(true);
  zoomFigure_->setFocusPolicy(Qt::NoFocus);
  connect(zoomFigure_, &QToolButton::clicked, this, [this] { Guarded([this] { ZoomNormal(); }); });
  statusBar()->addPermanentWidget(zoomFigure_);
  statusBar()->setSizeGripEnabled(false);
}

void MainWindow::ConnectElements() {
  host_.onChanged = [this](ctlPlexelBaseElement& element) { view_->ElementChanged(element); };
  host_.ledIsDefined = [this](std::int32_t type, std::int32_t layer) {
    return document_ && document_->LedIsDefined(type, layer);
  };
  host_.onDoubleClick = [this](ctlPlexelBaseElement& element) { OpenConfiguration(element); };
  host_.onEvent = [this](const QString& words, const QString& call) { log_->Append(words, call); };
  view_->run = [this](const std::function<void()>& act) { Guarded(act); };
  selection_.Listen(*this, [this] {
    ShowStatus();
    if (view_->Selected() != nullptr) scroll_->Reveal(selection_.Current());
  });
  view_->onDrag = [this](int place) { Guarded([&] { BeginDrag(place); }); };
  view_->onDrop = [this](int from, int onto, const QString& text, bool swap) {
    Guarded([&] { Drop(from, onto, text, swap); });
  };
  view_->onMenu = [this](const QPoint& place) { ShowElementMenu(place); };
  view_->onProperties = [this] { ShowProperties(); };
  view_->onReturn = [this](ctlPlexelBaseElement& element, const std::function<void()>& act) {
    Change(StepKind::Configure, element, act);
  };
  view_->onZoom = [this](int steps, const QPoint& about) { SetZoom(ZoomStep(steps), about); };
}

PanelDocument::Site MainWindow::Site() { return {component_, host_, windowObject_, DataDirectory() / "panels"}; }

void MainWindow::Take(std::unique_ptr<PanelDocument> document) {
  CloseVirtualPanel();
  Try(false);
  safekeeping_.Watch(nullptr);
  overview_->Show(nullptr);
  view_->Show(nullptr);
  inspector_->Show(nullptr);
  problems_.Show(nullptr);
  document_ = std::move(document);
  document_->Listen([this](std::span<const std::size_t> places) {
    Try(false);  // what was tried is no longer what stands there
    problems_.Changed(places);
    if (&document_->ThePanel() != shownPanel_) ShowOtherPanel();
    ShowChange();
  });
  shownPanel_ = &document_->ThePanel();
  view_->Show(document_.get());
  problems_.Show(document_.get());
  overview_->Show(document_.get());
  inspector_->Show(document_.get());
  view_->setFocus();
  ShowZoom();
  ShowChange();
  notice_->hide();
  safekeeping_.Watch(document_.get());
  TellPanelChanged();
}

void MainWindow::ShowOtherPanel() {
  CloseVirtualPanel();
  shownPanel_ = &document_->ThePanel();
  view_->Show(document_.get());
  overview_->Show(document_.get());
  inspector_->Show(document_.get());
}

bool MainWindow::StartEmpty() {
  const std::vector<std::string> panels = PanelNames(Site().panelDirectory);
  return !panels.empty() && NewProject(panels.front());
}

bool MainWindow::NewProject(const std::string& panel) {
  try {
    Take(PanelDocument::New(panel, Site()));
    return true;
  } catch (const std::exception& failure) {
    Tell(Text::OpenFailed, WhyFailed(failure));
    return false;
  }
}

QString MainWindow::WhyFailed(const std::exception& failure) {
  return dynamic_cast<const std::bad_alloc*>(&failure) != nullptr ? Say(Text::MemoryShort) : failure.what();
}

/// Why a project cannot be opened: that it is newer or that its panel is missing in words of the user, all else as it
/// was told.
QString MainWindow::WhyNotOpened(const std::filesystem::path& file, const std::exception& failure) {
  if (const auto* const newer = dynamic_cast<const NewerFormat*>(&failure)) {
    return Say(Text::FormatNewer).arg(ToQt(file.filename().string())).arg(newer->Format());
  }
  try {
    const Project project = ReadProject(file);
    if (project.panelText.empty() && !std::filesystem::exists(PanelFile(Site().panelDirectory, project.panel))) {
      return Say(Text::PanelMissing).arg(ToQt(project.panel));
    }
  } catch (const std::exception&) {  // told already
  }
  return WhyFailed(failure);
}

bool MainWindow::OpenProject(const std::filesystem::path& file) {
  try {
    WaitCursor waits;
    Take(PanelDocument::Open(file, Site()));
    WasUsed(file);
    waits.End();
    TellUnread();
    return true;
  } catch (const std::exception& failure) {
    Tell(Text::OpenFailed, WhyNotOpened(file, failure));
    return false;
  }
}

bool MainWindow::SaveProject(const std::filesystem::path& file) {
  std::optional<FileWarning> told;
  const bool carried = document_->CarriesPanel();
  try {
    if (!MayOverwrite(file) || !MayReplace(file)) return false;
    const WaitCursor waits;
    safekeeping_.BeforeSave(file);
    // What is saved unchanged keeps every byte of its file.
    if (document_->Modified() || document_->File().empty()) document_->CarriesPanel(true);
    try {
      document_->Save(file);
    } catch (const FileWarning& warning) {
      told = warning;
    }
  } catch (const std::exception& failure) {
    document_->CarriesPanel(carried);
    Tell(Text::SaveFailed, WhyFailed(failure));
    return false;
  }
  try {
    const WaitCursor waits;
    notice_->hide();
    safekeeping_.Saved();
    WasUsed(file);
    ShowTitle();
    if (told) TellSaved(*told);
  } catch (const std::exception& failure) {
    Tell(Text::Failed, WhyFailed(failure));
  }
  return true;
}

void MainWindow::ShowChange() {
  view_->update();
  ShowStatus();
  ShowTitle();
  ShowHistory();
}

void MainWindow::Change(StepKind kind, ctlPlexelBaseElement& element, const std::function<void()>& act) {
  const std::array place = {static_cast<std::size_t>(document_->PlaceOf(element))};
  document_->Change(kind, place, act);
}

void MainWindow::OpenConfiguration(ctlPlexelBaseElement& element) {
  Change(StepKind::Configure, element, [hold = element.shared_from_this()] { hold->OpenConfigurationDialog(); });
}

void MainWindow::SettingsChanged() {
  if (document_) document_->Refresh();
  Retranslate();
  view_->update();
}

QString MainWindow::StatusText() const { return status_->Content(); }

void MainWindow::ShowStatus() {
  const ctlPlexelBaseElement* const element = view_->Selected();
  QStringList text = element == nullptr ? QStringList(Say(Text::NothingSelected)) : ElementText(*element);
  if (selection_.IsMany()) text.prepend(Say(Text::ChosenCount).arg(selection_.ChosenCount()));
  status_->SetText("  " + text.join("   \u00B7   "));
  status_->setToolTip(ToolTipOf(text.join('\n')));
  ShowConfigure();
}

void MainWindow::ShowConfigure() {
  const ctlPlexelBaseElement* const element = view_->Selected();
  const bool keySwitch = element != nullptr && element->ElementType() == Key;
  configure_->setEnabled(element != nullptr && !keySwitch && !trial_->IsOn());
  configure_->setText(Say(keySwitch ? Text::ConfigureKeySwitch : Text::Configure));
}

QString MainWindow::ProjectName() const {
  if (!document_ || document_->File().empty()) return Say(Text::Untitled);
  return QString::fromStdString(document_->File().filename().string());
}

void MainWindow::ShowTitle() {
  setWindowModified(document_ && document_->Modified());
  // The sign stands once for the mark of a changed project, and twice for itself.
  setWindowTitle(ProjectName().replace("[*]", "[*][*]") + "[*] \u2013 Plexel");
}

void MainWindow::Guarded(const std::function<void()>& act) {
  try {
    act();
  } catch (const std::exception& failure) {
    Tell(Text::Failed, WhyFailed(failure));
  } catch (...) {
    Tell(Text::Failed, "a handler has thrown what is no std::exception");
  }
}

void MainWindow::Tell(Text what, const QString& reason) {
  qWarning("%s %s", qUtf8Printable(Say(what)), qUtf8Printable(reason));
  log_->Append(reason);
  show();  // which it may not be yet when the program starts
  PlainBox box(QApplication::activeModalWidget() != nullptr ? QApplication::activeModalWidget() : this);
  box.setIcon(QMessageBox::Warning);
  box.setWindowTitle("Plexel");
  box.setText(Say(what));
  box.setInformativeText(reason);
  GiveRoom(box);
  box.addButton(Say(Text::OK), QMessageBox::AcceptRole);
  box.exec();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  bool leave = true;
  Guarded([&] { leave = MayLeaveProject(); });
  if (leave) {
    RememberWindow();
    TellStore();
    CloseVirtualPanel();
    safekeeping_.Watch(nullptr);
  }
  event->setAccepted(leave);
}

}  // namespace plexel
