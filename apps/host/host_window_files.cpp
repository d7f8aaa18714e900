#include "host/host_window.h"

#include <commdlg.h>

#include <algorithm>

#include "files/data_directory.h"
#include "files/path_text.h"
#include "host/com_error.h"
#include "win32/wide_text.h"

namespace plexel::host {

namespace {

std::filesystem::path PanelDirectory() { return DataDirectory() / "panels"; }

using Dialog = BOOL(WINAPI*)(OPENFILENAMEW*);

/// Asks for a file by a dialog of the system; nothing when the user thinks better of it.
std::filesystem::path AskForFile(HWND owner, Dialog dialog, const Texts& texts, Text title, DWORD flags,
                                 const std::filesystem::path& suggested) {
  constexpr std::size_t Longest = 32768;
  std::wstring name = suggested.native(), heading = texts.SayWide(title);
  name.resize(Longest);
  const std::wstring filter = FilterOf(texts.Say(Text::FileFilter));
  OPENFILENAMEW asked = {};
  asked.lStructSize = sizeof asked;
  asked.hwndOwner = owner;
  asked.lpstrFilter = filter.c_str();
  asked.lpstrFile = name.data();
  asked.nMaxFile = static_cast<DWORD>(name.size());
  asked.lpstrTitle = heading.c_str();
  asked.lpstrDefExt = L"plexel";
  asked.Flags = flags | OFN_EXPLORER | OFN_NOCHANGEDIR | OFN_HIDEREADONLY;
  return dialog(&asked) == FALSE ? std::filesystem::path() : std::filesystem::path(name.c_str());
}

}  // namespace

void HostWindow::StartEmpty() {
  if (!panels_.empty()) NewProject(panels_.front());
}

void HostWindow::Leave() {
  current_ = NoPlace;
  project_.reset();
  if (panel_ != nullptr && Handle() != nullptr) panel_->Show(nullptr);
}

void HostWindow::Take(std::unique_ptr<ElementProject> project) {
  Leave();
  project_ = std::move(project);
  PlaceControls();
  Modified(false);
  TakeKeys(0);
}

void HostWindow::NewProject(const std::string& panel) {
  try {
    Take(ElementProject::New(panel, PanelDirectory(), *container_.Get()));
  } catch (const ComError& failure) {
    Tell(Text::NoControl, failure.what());
  } catch (const std::exception& failure) {
    Tell(Text::OpenFailed, failure.what());
  }
}

bool HostWindow::OpenProject(const std::filesystem::path& file) {
  try {
    auto project = ElementProject::Open(file, PanelDirectory(), *container_.Get());
    project->Refresh();
    Take(std::move(project));
  } catch (const ComError& failure) {
    Tell(Text::NoControl, failure.what());
    return false;
  } catch (const std::exception& failure) {
    Tell(Text::OpenFailed, failure.what());
    return false;
  }
  std::string unread;
  for (const std::string& value : project_->Unread()) unread += value + '\n';
  if (!unread.empty()) Tell(Text::ValuesUnread, unread);
  return true;
}

void HostWindow::AskAndOpen() {
  if (!MayLeave()) return;
  const std::filesystem::path file =
      AskForFile(Handle(), GetOpenFileNameW, texts_, Text::OpenTitle, OFN_FILEMUSTEXIST, {});
  if (!file.empty()) OpenProject(file);
}

bool HostWindow::Save() {
  if (project_ == nullptr) return false;
  return project_->File().empty() ? AskAndSave() : SaveAs(project_->File());
}

bool HostWindow::AskAndSave() {
  if (project_ == nullptr) return false;
  const std::filesystem::path file =
      AskForFile(Handle(), GetSaveFileNameW, texts_, Text::SaveTitle, OFN_OVERWRITEPROMPT, project_->File());
  return !file.empty() && SaveAs(file);
}

bool HostWindow::SaveAs(const std::filesystem::path& file) {
  try {
    // What is saved unchanged keeps every byte of its file.
    if (modified_ || project_->File().empty()) project_->CarriesPanel(true);
    project_->Save(file);
  } catch (const std::exception& failure) {
    Tell(Text::SaveFailed, failure.what());
    return false;
  }
  Modified(false);
  return true;
}

bool HostWindow::MayLeave() {
  if (project_ == nullptr || !modified_) return true;
  switch (MessageBoxW(Handle(), Wide(texts_.Say(Text::AskSave, ProjectName())).c_str(), L"Plexel",
                      MB_YESNOCANCEL | MB_ICONQUESTION)) {
    case IDYES:
      return Save();
    case IDNO:
      return true;
    default:
      return false;
  }
}

void HostWindow::Tell(Text what, const std::string& reason) {
  TellFailure(Handle(), texts_.Say(what) + "\n\n" + reason);
}

/// What of the user's own files could not be read.
void HostWindow::TellFilesDamaged() {
  std::string problems;
  for (const FileError& problem : surroundings_.Settings().Problems()) problems += problem.what() + std::string("\n");
  if (const auto& problem = surroundings_.UserRegistry().Problem()) problems += problem->what() + std::string("\n");
  if (const auto& problem = surroundings_.LanguageProblem()) problems += problem->what() + std::string("\n");
  if (!problems.empty()) Tell(Text::FilesDamaged, problems);
}

std::string HostWindow::ProjectName() const {
  if (project_ == nullptr || project_->File().empty()) return texts_.Say(Text::Untitled);
  return TextOf(project_->File().filename());
}

void HostWindow::ShowTitle() {
  SetWindowTextW(Handle(), Wide(ProjectName() + (modified_ ? "*" : "") + " \u2013 Plexel").c_str());
}

void HostWindow::Modified(bool modified) {
  modified_ = modified;
  ShowTitle();
}

}  // namespace plexel::host
