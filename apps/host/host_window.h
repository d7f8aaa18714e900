#pragma once

#include <windows.h>
#include <wrl/client.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "files/file_surroundings.h"
#include "host/container.h"
#include "host/element_project.h"
#include "host/event_list.h"
#include "host/message_window.h"
#include "host/panel_window.h"
#include "host/texts.h"
#include "host/walk.h"

namespace plexel::host {

/// The program's window: a panel with a control on each of its elements, and below it what these tell.
class HostWindow : public MessageWindow {
 public:
  /// The surroundings outlive the window; their texts are those of the dialogs too.
  explicit HostWindow(FileSurroundings& surroundings);
  ~HostWindow() override;

  /// Shows the window with the project of a file, or else with an empty one, and runs until it is closed. Gives the
  /// exit status.
  int Run(const std::filesystem::path& file);

 protected:
  LRESULT Message(UINT message, WPARAM wide, LPARAM wider) override;

 private:
  /// Posted to itself: the dialog of a place is to open.
  static constexpr UINT OpenMessage = WM_APP + 1;

  // The menus, and what they call.
  void MakeMenus();
  void Command(WORD command);
  void ChooseLanguage(const std::string& name);
  void TellAbout();

  // Projects in files.
  void StartEmpty();
  bool OpenProject(const std::filesystem::path& file);
  void NewProject(const std::string& panel);
  void AskAndOpen();
  bool Save();
  bool AskAndSave();
  bool SaveAs(const std::filesystem::path& file);
  /// Asks about changes that are not saved; false when the project is to stay.
  bool MayLeave();
  void Take(std::unique_ptr<ElementProject> project);
  void Leave();
  void Tell(Text what, const std::string& reason);
  void TellFilesDamaged();
  std::string ProjectName() const;
  void ShowTitle();
  void Modified(bool modified);

  // The controls.
  void Connect();
  void Heard(const std::string& place, const ElementEvent& event);
  void GotKeys(const std::string& place);
  bool OfferedKey(const std::string& place, const MSG& message);
  void PlaceControls();
  void TakeKeys(std::size_t place);
  void OpenDialog(std::size_t place, bool properties);
  std::size_t PlaceOf(const std::string& name) const;

  /// Whether a dialog or a box is open over the window, which is disabled then.
  bool IsBusy() const { return IsWindowEnabled(Handle()) == FALSE; }
  void LayOut();
  void Rescale(int dpi, const RECT& place);
  bool TakesKey(MSG& message);

  FileSurroundings& surroundings_;
  Texts texts_;
  Microsoft::WRL::ComPtr<Container> container_;
  std::unique_ptr<PanelWindow> panel_;
  std::unique_ptr<EventList> events_;
  std::unique_ptr<ElementProject> project_;
  std::vector<std::string> panels_, languages_;  ///< in the order of their menus
  HACCEL shortcuts_ = nullptr;
  HFONT font_ = nullptr;
  HICON icon_ = nullptr;
  std::size_t current_ = NoPlace;  ///< the place that has the keys, or had them last
  int dpi_ = 0;
  bool modified_ = false;
};

}  // namespace plexel::host
