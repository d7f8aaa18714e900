#pragma once

#include <QMainWindow>
#include <QTranslator>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "editor/editor_host.h"
#include "editor/editor_store.h"
#include "editor/form_notes.h"
#include "editor/live_problems.h"
#include "editor/safekeeping.h"
#include "editor/selection.h"
#include "editor/texts.h"
#include "files/file_surroundings.h"
#include "project/panel_document.h"
#include "project/pasting.h"
#include "qt/help_window.h"
#include "qt/qt_platform.h"

class QLabel;
class QMenu;
class QActionGroup;
class QComboBox;
class QToolBar;
class QToolButton;

namespace plexel {

class ElidedLabel;
class Inspector;
class FileWarning;
class LogPanel;
class OverviewPanel;
class NoticeBar;
class PanelScroll;
class PanelView;
class ProblemPanel;
class RecentMenu;
class TrialDock;
class TrialMode;
class KeyGuard;
class VirtualPanel;

/// The editor's window: one project, its panel, and everything that the user does with them.
class MainWindow : public QMainWindow {
 public:
  /// `state` is the directory in which unsaved work and saved versions are kept.
  MainWindow(Component& component, FileSurroundings& surroundings, QtPlatform& platform, HelpWindow& help,
             const std::filesystem::path& state);
  ~MainWindow() override;

  /// A new project on the first panel; false when there is none that can be read.
  bool StartEmpty();
  /// Opens a project. On a failure the user is told and the open project stays; false then.
  bool OpenProject(const std::filesystem::path& file);
  bool SaveProject(const std::filesystem::path& file);
  bool NewProject(const std::string& panel);
  /// Takes over what a JSON document holds for the same panel, as one step. On a failure the user is told.
  bool Import(const std::filesystem::path& file);
  /// Writes the project for others: "json", "pdf", "html", "csv" or "svg". On a failure the user is told.
  bool Export(const QString& suffix, const std::filesystem::path& file);

  PanelDocument* Document() const { return document_.get(); }
  PanelView& View() const { return *view_; }
  LogPanel& Log() const { return *log_; }
  OverviewPanel& Overview() const { return *overview_; }
  ProblemPanel& ProblemList() const { return *problemList_; }
  Inspector& TheInspector() const { return *inspector_; }
  const LiveProblems& TheProblems() const { return problems_; }
  /// What the user means of the elements; shared by all that shows them.
  Selection& TheSelection() { return selection_; }
  QString StatusText() const;
  /// About the middle of what is to be seen of the panel, or another point of its picture.
  void SetZoom(int percent, std::optional<QPoint> about = std::nullopt);
  /// The layer that the picture tells of, 1 to 4, or AllLayersShown.
  void ShowLayer(std::int32_t layer);
  /// Begins or leaves the mode in which elements are pressed and let go, and nothing of the project changes.
  void Try(bool on);
  TrialMode& Trying() const { return *trial_; }
  /// Offers the work that earlier runs did not save. True when the user has brought some of it back.
  bool OfferLostWork();
  /// Tells that a project was not opened, when the window holds another one.
  void TellNotOpened(const QString& project);
  /// Brings unsaved work to the disk at once, for the next start to offer it. False when it cannot be kept there.
  bool KeepWork() { return safekeeping_.Keep(); }
  /// Brings elements and texts into line with the settings.
  void SettingsChanged();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  struct Named {
    QAction* action;
    Text text;
  };
  void MakeActions();
  void MakeContent();
  /// What lies below the picture shares one place, and what is asked for comes to the front.
  void GatherDocks();
  void MakeSelectMenu(QMenu& menu);
  void MakeViewMenu(QMenu& menu);
  void MakeToolBar();
  void MakeReading();
  void ConnectReading();
  void RetranslateReading();
  /// Counts the problems in the status bar.
  void ShowProblemCount();
  /// Opens where a problem of an element is mended.
  void OpenProblem(int place, const Problem& problem);
  /// Moves the keyboard from the picture to the panels beside it, and on.
  void GoToNextArea();
  void ConnectElements();
  void MakeTrial();
  void AddTrial(QMenu& menu);
  void AddVirtualPanel(QMenu& menu);
  void ShowVirtualPanel();
  void CloseVirtualPanel();
  /// Brings what acts on elements into line with the mode.
  void ShowEditing();
  void ConnectOverview();
  void MakeExchangeMenu(QMenu& menu);
  void AskImport();
  void AskExport(const QString& suffix);
  QAction* Add(QMenu& menu, Text text, const QKeySequence& keys, void (MainWindow::*act)());
  void Retranslate();
  void RetranslateView();
  void RetranslateTools();
  QAction* ActionOf(Text text) const;
  /// The toolkit's own dialogs speak the user's language too, where its texts are installed.
  void UseToolkitTexts();
  PanelDocument::Site Site();
  /// In words of the user where there are some, else as it was told.
  static QString WhyFailed(const std::exception& failure);
  QString WhyNotOpened(const std::filesystem::path& file, const std::exception& failure);
  void Take(std::unique_ptr<PanelDocument> document);
  /// The project has another panel now.
  void ShowOtherPanel();

  /// The places that an act of the user is for.
  std::vector<std::size_t> MeantPlaces() const;
  void Copy();
  void Paste();
  void PasteText(const QString& text, const std::vector<std::size_t>& places);
  void SwapChosen();
  void Clear();
  void CopyLayers();
  /// Asks about what would be lost, and does the rest.
  void DoPasting(Pasting pasting, StepKind kind);
  void BeginDrag(int place);
  void Drop(int from, int onto, const QString& text, bool swap);
  /// How long a hint stands in the status bar, milliseconds.
  static constexpr int MessageTime = 5000;

  void Undo();
  void Redo();
  /// Names the steps that can be taken back and done again.
  void ShowHistory();
  /// Runs a dialog that may change an element, as one step.
  void Change(StepKind kind, ctlPlexelBaseElement& element, const std::function<void()>& act);

  void ConnectSafekeeping();
  /// What the user may do about a file that somebody else has changed.
  void TellFileChanged(const PanelDocument::FileState& state);
  void KeepMine();
  void TakeTheirs();
  void ShowFileDifference();
  /// False when the user does not want to write over a file that somebody else has changed.
  bool MayOverwrite(const std::filesystem::path& file);
  /// False when the user does not want a file replaced that loses something by it. FileError when it cannot be written.
  bool MayReplace(const std::filesystem::path& file);
  /// Tells of a file that is saved.
  void TellSaved(const FileWarning& warning);
  void ShowVersions();
  /// Tells what of the file's values no element could read.
  void TellUnread();
  /// Tells when the installed panel is not the one that the project carries.
  void TellPanelChanged();
  void UseInstalledPanel();
  void BringBack(LostWork& work);
  void ForgetLost(LostWork& work);

  void AskNew();
  void AskOpen();
  void Save();
  void SaveAs();
  bool SaveOrAsk();
  bool SaveAsked();
  /// False when the user wants to go on with the open project.
  bool MayLeaveProject();
  void Configure();
  void ShowProperties();
  void ZoomIn();
  void ZoomOut();
  void ZoomNormal();
  void ZoomFit();
  /// The next step of the zoom, up or down.
  int ZoomStep(int steps) const;
  void ShowZoom();
  void SelectAll();
  void SelectNone();
  void SelectKinds(const std::vector<enumTactisBaseElementType>& kinds);
  void Find();
  void FindByPressing();
  void EditSettings();
  void ShowContents();
  void ShowHelpHere();
  void ShowAbout();
  void ShowElementMenu(const QPoint& globalPlace);

  void OpenConfiguration(ctlPlexelBaseElement& element);
  /// Behind every step: picture, status line, title and the names of the steps.
  void ShowChange();
  /// Opens a file that the user picked elsewhere than in the dialog for it, when he wants to leave the open project.
  void OpenPicked(const QString& file);
  /// Keeps in mind a file that was opened or saved.
  void WasUsed(const std::filesystem::path& file);
  /// Tells in the events why the editor's own values cannot be kept.
  void TellStore();
  /// The number of docks. A layout that knows fewer would put the others one below the other, and is passed over.
  int LayoutVersion() const;
  void RememberWindow();
  void RestoreWindow();
  FormSubject SubjectOf(const Form& form) const;
  void ShowStatus();
  /// Configuring is for elements that have something to configure.
  void ShowConfigure();
  void ShowTitle();
  /// Runs what the user set off; an exception is told to him and ends there.
  void Guarded(const std::function<void()>& act);
  void Tell(Text what, const QString& reason);
  QString ProjectName() const;

  Component& component_;
  FileSurroundings& surroundings_;
  QtPlatform& platform_;
  HelpWindow& help_;
  EditorStore store_;
  Selection selection_;
  EditorHost host_;
  std::shared_ptr<EditorWindowObject> windowObject_ = std::make_shared<EditorWindowObject>();
  Safekeeping safekeeping_;
  std::unique_ptr<PanelDocument> document_;
  const Panel* shownPanel_ = nullptr;
  LiveProblems problems_;
  NoticeBar* notice_ = nullptr;
  PanelView* view_ = nullptr;
  PanelScroll* scroll_ = nullptr;
  LogPanel* log_ = nullptr;
  OverviewPanel* overview_ = nullptr;
  ProblemPanel* problemList_ = nullptr;
  Inspector* inspector_ = nullptr;
  QToolButton* problemCount_ = nullptr;
  ElidedLabel* status_ = nullptr;
  QLabel* limits_ = nullptr;
  QToolButton* zoomFigure_ = nullptr;
  QToolBar* tools_ = nullptr;
  QActionGroup* layers_ = nullptr;
  QComboBox* layerBox_ = nullptr;
  QAction* labels_ = nullptr;
  RecentMenu* recent_ = nullptr;
  TrialDock* trialDock_ = nullptr;
  std::unique_ptr<TrialMode> trial_;
  std::vector<QAction*> seekingActions_;  ///< entries of the editing menus that change nothing
  std::vector<QAction*> restingActions_;  ///< entries that do not act while elements are tried
  QAction* try_ = nullptr;
  std::unique_ptr<KeyGuard> keyGuard_;
  std::unique_ptr<VirtualPanel> virtualPanel_;
  FormNotes notes_;
  QAction *configure_ = nullptr, *undo_ = nullptr, *redo_ = nullptr;
  std::vector<Named> named_;
  std::vector<std::pair<QMenu*, Text>> menus_;
  QMenu* elementMenu_ = nullptr;
  QTranslator toolkitTexts_;
};

}  // namespace plexel
