#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "files/data_directory.h"
#include "files/panel_file.h"
#include "files/project_file.h"
#include "host/host_user.h"
#include "win32/picture_file.h"

namespace plexel::host {

namespace {

/// A copy of the sample project in a folder that goes with the object.
class Copy {
 public:
  Copy() : folder_(std::filesystem::temp_directory_path() / ("plexel-host-" + std::to_string(GetCurrentProcessId()))) {
    std::filesystem::create_directories(folder_);
    std::filesystem::copy_file(DataDirectory() / "projects" / "sample.plexel", File(),
                               std::filesystem::copy_options::overwrite_existing);
  }
  ~Copy() { std::filesystem::remove_all(folder_); }
  std::filesystem::path File() const { return folder_ / L"Anlage \u2116 7.plexel"; }

 private:
  std::filesystem::path folder_;
};

void Keep(HWND window, const char* name) {
  const char* const folder = std::getenv("PLEXEL_PICTURES");
  constexpr DWORD UntilDrawn = 300;  // milliseconds
  if (folder == nullptr) return;
  Sleep(UntilDrawn);
  EXPECT_TRUE(WritePicture(window, std::filesystem::path(folder) / name));
}

POINT MiddleOf(const std::string& element) {
  const Panel panel = ReadPanel(DataDirectory() / "panels" / "Large.panel");
  const PanelBox& box = panel.Find(element)->box;
  return {box.left + box.width / 2, box.top + box.height / 2};
}

const ProjectElement& ElementOf(const Project& project, const std::string& place) {
  return *std::ranges::find_if(project.elements, [&](const auto& element) { return element.place == place; });
}

class Window : public testing::Test {
 protected:
  void Click(const std::string& element, int times) {
    HostUser::Click(HostUser::Find(user.Window(), L"PlexelHost.Ground"), MiddleOf(element), times);
  }
  bool Heard(const std::wstring& line) {
    return std::ranges::any_of(user.Events(), [&](const std::wstring& event) { return event.starts_with(line); });
  }
  HWND OpenByDoubleClick(const std::string& element) {
    Click(element, 2);
    HostUser::Until("the element hears the double click",
                    [&] { return Heard(std::wstring(element.begin(), element.end()) + L": MouseDblClicked()"); });
    HostUser::Until("the dialog opens", [this] { return user.Dialog() != nullptr; });
    const HWND dialog = user.Dialog();
    HostUser::Until("the dialog is in front", [=] { return GetForegroundWindow() == dialog; });
    return dialog;
  }
  void Press(HWND dialog, const wchar_t* button) {
    HostUser::Click(HostUser::Find(dialog, L"Button", button), {10, 10});
    HostUser::Until("the dialog closes", [this] { return user.Dialog() == nullptr; });
  }
  void Close() {
    PostMessageW(user.Window(), WM_CLOSE, 0, 0);
    EXPECT_EQ(user.Ended(), 0U);
  }

  Copy copy;
  HostUser user{copy.File()};
};

}  // namespace

TEST_F(Window, ShowsThePanelWithItsControls) {
  HostUser::Until("the first element has the keys", [this] { return Heard(L"L1: SendKeyDefinition("); });
  Keep(user.Window(), "host-window.png");
  Close();
}

TEST_F(Window, KeysOfAnotherProcessBecomeADefinitionThatIsSaved) {
  const HWND dialog = OpenByDoubleClick("F2");
  const HWND grid = HostUser::Find(dialog, L"PlexelGrid");
  ASSERT_NE(grid, nullptr);
  RECT inside{};
  GetClientRect(grid, &inside);
  HostUser::Click(grid, {inside.right / 4, inside.bottom * 3 / 10}, 2);
  HostUser::Until("recording begins", [this] { return Heard(L"F2: DirectInputStatusChanged(-1)"); });
  HostUser::Keys({VK_CONTROL, 'A', -'A', -VK_CONTROL});
  Keep(dialog, "host-recording.png");
  HostUser::Keys({VK_SHIFT, VK_CONTROL, -VK_CONTROL, -VK_SHIFT});
  HostUser::Until("recording ends", [this] { return Heard(L"F2: DirectInputStatusChanged(0)"); });
  Press(dialog, L"OK");
  HostUser::Until("the project is modified", [this] { return Heard(L"F2: ProjectModified()"); });
  EXPECT_TRUE(user.Title().starts_with(L"Anlage \u2116 7.plexel*"));
  HostUser::Keys({VK_TAB, -VK_TAB, VK_SHIFT, VK_TAB, -VK_TAB, -VK_SHIFT});
  HostUser::Until("the definition is handed over", [this] {
    return std::ranges::any_of(user.Events(), [](const std::wstring& event) {
      return event.starts_with(L"F2: SendKeyDefinition(") &&
             event.find(L"[Ctrl Left+a\u2039\u203A]") != std::wstring::npos;
    });
  });
  Keep(user.Window(), "host-modified.png");
  HostUser::Keys({VK_CONTROL, 'S', -'S', -VK_CONTROL});
  HostUser::Until("it is saved", [this] { return user.Title().starts_with(L"Anlage \u2116 7.plexel \u2013"); });

  const Project saved = ReadProject(copy.File());
  const ProjectElement& element = ElementOf(saved, "F2");
  const auto* const text = std::get_if<std::string>(element.bag.Find("PressKeyDefLayer1"));
  ASSERT_NE(text, nullptr);
  EXPECT_NE(text->find("[Ctrl Left+a\u2039\u203A]"), std::string::npos) << *text;
  EXPECT_EQ(*element.bag.Find("FocusVisible"), BagValue(False));
  ASSERT_FALSE(element.codes.empty());
  EXPECT_EQ(saved.panelText, ReadPanelText(DataDirectory() / "panels" / "Large.panel"));
  Close();
}

TEST_F(Window, KeysWalkOverTheElementsAndReturnOpensTheDialog) {
  Click("F3", 1);
  HostUser::Until("it has the keys", [this] { return Heard(L"F3: SendKeyDefinition("); });
  HostUser::Keys({VK_RIGHT, -VK_RIGHT});
  HostUser::Until("the next has them", [this] { return Heard(L"F4: SendKeyDefinition("); });
  HostUser::Keys({VK_DOWN, -VK_DOWN});
  HostUser::Until("the one below has them", [this] { return Heard(L"F16: SendKeyDefinition("); });
  HostUser::Keys({VK_RETURN, -VK_RETURN});
  HostUser::Until("the dialog opens", [this] { return user.Dialog() != nullptr; });
  HostUser::Keys({VK_ESCAPE, -VK_ESCAPE});
  HostUser::Until("the dialog closes", [this] { return user.Dialog() == nullptr; });
  Close();
}

TEST_F(Window, TheLanguageOfItsMenusIsThatOfTheDialogsToo) {
  const auto choose = [this](int places) {
    HostUser::Keys({VK_F10, -VK_F10, VK_RIGHT, -VK_RIGHT, VK_RIGHT, -VK_RIGHT, VK_DOWN, -VK_DOWN});
    for (int place = 0; place < places; ++place) HostUser::Keys({VK_DOWN, -VK_DOWN});
    HostUser::Keys({VK_RETURN, -VK_RETURN});
  };
  const auto list = [this] { return HostUser::TextOf(HostUser::Find(user.Window(), L"ListBox")); };
  choose(1);
  HostUser::Until("German is spoken", [&] { return list() == L"Ereignisse"; });
  const HWND dialog = OpenByDoubleClick("F1");
  Keep(dialog, "host-german.png");
  EXPECT_NE(HostUser::Find(dialog, L"Button", L"Abbrechen"), nullptr);
  Press(dialog, L"Abbrechen");
  choose(0);
  HostUser::Until("English is spoken", [&] { return list() == L"Events"; });
  Close();
}

TEST_F(Window, ChangesThatAreNotSavedAreAskedAbout) {
  const HWND dialog = OpenByDoubleClick("F1");
  Press(dialog, L"OK");
  HostUser::Until("the project is modified", [this] { return Heard(L"F1: ProjectModified()"); });
  PostMessageW(user.Window(), WM_CLOSE, 0, 0);
  HostUser::Until("it asks", [this] { return user.Dialog() != nullptr; });
  Keep(user.Dialog(), "host-question.png");
  HostUser::Keys({VK_ESCAPE, -VK_ESCAPE});
  HostUser::Until("it stays", [this] { return user.Dialog() == nullptr && IsWindowVisible(user.Window()) != FALSE; });
  PostMessageW(user.Window(), WM_CLOSE, 0, 0);
  HostUser::Until("it asks again", [this] { return user.Dialog() != nullptr; });
  SendMessageW(user.Dialog(), WM_COMMAND, IDNO, 0);
  EXPECT_EQ(user.Ended(), 0U);
  EXPECT_TRUE(ReadProject(copy.File()) == ReadProject(DataDirectory() / "projects" / "sample.plexel"));
}

TEST_F(Window, AProjectThatCannotBeWrittenIsToldAndStaysModified) {
  const HWND dialog = OpenByDoubleClick("F1");
  Press(dialog, L"OK");
  HostUser::Until("the project is modified", [this] { return Heard(L"F1: ProjectModified()"); });
  SetFileAttributesW(copy.File().c_str(), FILE_ATTRIBUTE_READONLY);
  HostUser::Keys({VK_CONTROL, 'S', -'S', -VK_CONTROL});
  HostUser::Until("it tells", [this] { return user.Dialog() != nullptr; });
  Keep(user.Dialog(), "host-failure.png");
  const HWND box = user.Dialog();
  const HWND words = GetDlgItem(box, 0xFFFF) != nullptr ? GetDlgItem(box, 0xFFFF) : HostUser::Find(box, L"Static");
  EXPECT_NE(HostUser::TextOf(words).find(L"7.plexel"), std::wstring::npos) << "the box names the file";
  HostUser::Keys({VK_RETURN, -VK_RETURN});
  HostUser::Until("it goes on", [this] { return user.Dialog() == nullptr; });
  EXPECT_TRUE(user.Title().starts_with(L"Anlage \u2116 7.plexel*"));
  SetFileAttributesW(copy.File().c_str(), FILE_ATTRIBUTE_NORMAL);
}

}  // namespace plexel::host
