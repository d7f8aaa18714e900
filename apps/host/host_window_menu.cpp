#include "host/host_window.h"

#include <array>

#include "files/data_directory.h"
#include "files/file_error.h"
#include "files/file_lists.h"
#include "win32/captions.h"
#include "win32/wide_text.h"

namespace plexel::host {

namespace {

enum : WORD {
  OpenCommand = 100,
  SaveCommand,
  SaveAsCommand,
  QuitCommand,
  ConfigureCommand,
  PropertiesCommand,
  AboutCommand,
  OtherPart
};
constexpr WORD FirstPanel = 1000, FirstLanguage = 2000;  ///< further ones follow them

struct Entry {
  Text text;
  WORD command;
  const wchar_t* key;  ///< as people read it
};

void Add(HMENU menu, const Texts& texts, const Entry& entry) {
  std::wstring caption = WithLetter(texts.Say(entry.text));
  if (*entry.key != L'\0') caption += L'\t' + std::wstring(entry.key);
  AppendMenuW(menu, MF_STRING, entry.command, caption.c_str());
}

void AddMenu(HMENU menu, const Texts& texts, Text text, HMENU below) {
  AppendMenuW(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(below), WithLetter(texts.Say(text)).c_str());
}

/// A menu of names; the chosen one is marked.
HMENU MenuOf(const std::vector<std::string>& names, WORD first, const std::string& chosen) {
  const HMENU menu = CreatePopupMenu();
  for (std::size_t index = 0; index < names.size(); ++index) {
    AppendMenuW(menu, MF_STRING | (names[index] == chosen ? MF_CHECKED : 0U), first + index,
                Wide(names[index]).c_str());
  }
  return menu;
}

HACCEL Shortcuts() {
  std::array keys = {ACCEL{FCONTROL | FVIRTKEY, 'O', OpenCommand}, ACCEL{FCONTROL | FVIRTKEY, 'S', SaveCommand},
                     ACCEL{FCONTROL | FSHIFT | FVIRTKEY, 'S', SaveAsCommand}, ACCEL{FVIRTKEY, VK_F6, OtherPart}};
  return CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size()));
}

}  // namespace

void HostWindow::MakeMenus() {
  panels_ = PanelNames(DataDirectory() / "panels");
  languages_ = surroundings_.Language().Available();
  if (shortcuts_ == nullptr) shortcuts_ = Shortcuts();

  const HMENU file = CreatePopupMenu();
  AddMenu(file, texts_, Text::MenuNew, MenuOf(panels_, FirstPanel, {}));
  Add(file, texts_, {Text::Open, OpenCommand, L"Ctrl+O"});
  Add(file, texts_, {Text::Save, SaveCommand, L"Ctrl+S"});
  Add(file, texts_, {Text::SaveAs, SaveAsCommand, L"Ctrl+Shift+S"});
  AppendMenuW(file, MF_SEPARATOR, 0, nullptr);
  Add(file, texts_, {Text::Quit, QuitCommand, L"Alt+F4"});
  const HMENU element = CreatePopupMenu();
  Add(element, texts_, {Text::Configure, ConfigureCommand, L""});
  Add(element, texts_, {Text::Properties, PropertiesCommand, L""});
  const HMENU help = CreatePopupMenu();
  Add(help, texts_, {Text::About, AboutCommand, L""});

  const HMENU bar = CreateMenu();
  AddMenu(bar, texts_, Text::MenuFile, file);
  AddMenu(bar, texts_, Text::MenuElement, element);
  AddMenu(bar, texts_, Text::MenuLanguage, MenuOf(languages_, FirstLanguage, surroundings_.Language().Chosen()));
  AddMenu(bar, texts_, Text::MenuHelp, help);
  const HMENU before = GetMenu(Handle());
  SetMenu(Handle(), bar);
  if (before != nullptr) DestroyMenu(before);
  SetWindowTextW(events_->Handle(), texts_.SayWide(Text::Events).c_str());
  ShowTitle();
}

void HostWindow::Command(WORD command) {
  if (IsBusy()) return;
  if (command >= FirstLanguage && command - FirstLanguage < static_cast<int>(languages_.size())) {
    return ChooseLanguage(languages_[command - FirstLanguage]);
  }
  if (command >= FirstPanel && command - FirstPanel < static_cast<int>(panels_.size())) {
    if (MayLeave()) NewProject(panels_[command - FirstPanel]);
    return;
  }
  switch (command) {
    case OpenCommand:
      return AskAndOpen();
    case SaveCommand:
      return static_cast<void>(Save());
    case SaveAsCommand:
      return static_cast<void>(AskAndSave());
    case QuitCommand:
      return static_cast<void>(PostMessageW(Handle(), WM_CLOSE, 0, 0));
    case ConfigureCommand:
      return OpenDialog(current_, false);
    case PropertiesCommand:
      return OpenDialog(current_, true);
    case AboutCommand:
      return TellAbout();
    case OtherPart:
      if (GetFocus() == events_->Handle()) return TakeKeys(current_);
      SetFocus(events_->Handle());
      return;
    default:
      return;
  }
}

/// The user's setting, which the editor has too.
void HostWindow::ChooseLanguage(const std::string& name) {
  try {
    surroundings_.ChooseLanguage(name);
    surroundings_.Settings().Save();
  } catch (const FileError& failure) {
    Tell(Text::SettingsFailed, failure.what());
  }
  MakeMenus();
}

void HostWindow::TellAbout() {
  MessageBoxW(Handle(), Wide(texts_.Say(Text::AboutHost, PLEXEL_VERSION)).c_str(), texts_.SayWide(Text::About).c_str(),
              MB_OK | MB_ICONINFORMATION);
}

}  // namespace plexel::host
