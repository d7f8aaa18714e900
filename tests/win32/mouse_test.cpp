#include <gtest/gtest.h>

#include "element/ctlPlexelBaseElement.h"
#include "services/dialogs.h"
#include "win32/desk.h"
#include "win32/grid_view.h"
#include "win32/key_sender.h"
#include "win32/shown_form.h"
#include "win32/tab_view.h"

namespace plexel {

namespace {

std::string At(HWND window, int x, int y) {
  POINT point = {x, y};
  ClientToScreen(window, &point);
  return std::to_string(point.x) + " " + std::to_string(point.y);
}

std::string Middle(HWND window) {
  RECT area;
  GetClientRect(window, &area);
  return At(window, area.right / 2, area.bottom / 2);
}

std::string Click(const std::string& point) { return "press left " + point + "\nrelease left\n"; }

/// An open configuration dialog with a real mouse.
class Mouse {
 public:
  explicit Mouse(FormName form = dialogs::frmConfigurationDialog) {
    desk.Until("the dialog opens", [this, form] { return desk.IsOpen(form); });
    desk.Until("it is in front", [this] { return GetForegroundWindow() == desk.Top().Window(); });
  }
  /// Has lines sent, which are told when the dialog is open, and waits until something has come true.
  void Send(const std::function<std::string()>& lines, const std::string& what, std::function<bool()> comes) {
    desk.Then("the mouse: " + what, [this, lines] { sender.Send(lines()); });
    desk.Until(what, std::move(comes));
    desk.Then("the loop rests", [] {});
    desk.Then("the windows agree", [this, what] {
      if (desk.platform.Modal().Topmost() == nullptr || !desk.TopForm().IsShown()) return;
      for (const std::string& difference : DifferencesOf(desk.Top())) ADD_FAILURE() << what << ": " << difference;
    });
  }
  /// The point of a cell, a little inside its left upper corner.
  std::string Cell(int row, int col) {
    const auto& view = static_cast<const GridView&>(*desk.Top().ViewOf(&Grid()));
    const RECT place = view.CellRect(row, col);
    return At(view.Outer(), place.left + 8, place.top + 6);
  }
  plexel::Grid& Grid() { return desk.Find<plexel::Grid>("msgScanCodes"); }
  /// The close, by the button with which the dialog is left.
  void Leave(const std::string& button = "cmdCancel") {
    desk.Then("the way out", [this, button] { sender.Send(Click(Middle(desk.WindowOf(button)))); });
  }

  Desk desk;
  KeySender sender;
};

}  // namespace

TEST(RealMouse, ChoosesCellsOptionsPagesAndButtons) {
  Mouse mouse;
  Desk& desk = mouse.desk;
  const auto element = desk.Element(RectLed);
  mouse.Send([&] { return Click(mouse.Cell(3, 2)); }, "the cell is current",
             [&] { return mouse.Grid().Row() == 3 && mouse.Grid().Col() == 2; });
  mouse.Send([&] { return Click(Middle(desk.WindowOf("optCodeType(1)"))); }, "the option is set",
             [&] { return desk.Find<OptionButton>("optCodeType(1)").Value(); });
  mouse.Send(
      [&] {
        const auto& strip = static_cast<const TabView&>(*desk.Top().ViewOf(desk.TopForm().Find("sstScanCode")));
        const RECT tab = PlaceOfTab(strip.Strip(), 2);
        return Click(At(strip.Strip(), (tab.left + tab.right) / 2, (tab.top + tab.bottom) / 2));
      },
      "the notes are in front", [&] { return desk.Find<TabStrip>("sstScanCode").Tab() == 2; });
  mouse.Send([&] { return Click(Middle(desk.WindowOf("txtButtonNotes"))); }, "the focus is in the notes",
             [&] { return desk.TopForm().Focus() == desk.TopForm().Find("txtButtonNotes"); });
  mouse.Leave("cmdOK");
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
  EXPECT_EQ(element->WizardOptions(), ManuallyDefined);
}

TEST(RealMouse, APressThatIsLetGoElsewherePressesNothing) {
  Mouse mouse;
  Desk& desk = mouse.desk;
  const auto element = desk.Element(RectLed);
  mouse.Send([&] { return "press left " + Middle(desk.WindowOf("cmdCancel")) + "\n"; }, "the button has the focus",
             [&] { return desk.TopForm().Focus() == desk.TopForm().Find("cmdCancel"); });
  mouse.Send([&] { return "drag " + mouse.Cell(2, 1) + "\nrelease left\n" + Click(mouse.Cell(2, 1)); },
             "the dialog is still there", [&] { return mouse.Grid().Row() == 2; });
  mouse.Leave();
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
}

TEST(RealMouse, TheRightButtonOpensTheMenuOfACell) {
  Mouse mouse;
  Desk& desk = mouse.desk;
  const auto element = desk.Element(RectLed);
  const auto open = [] { return FindWindowW(L"#32768", nullptr) != nullptr; };
  const auto press = [&] { return "press right " + mouse.Cell(2, 1) + "\nrelease right\n"; };
  desk.Then("the menu", [&] { mouse.sender.Send(press()); });
  desk.Until("it is open", open);
  desk.Then("Escape", [&] { mouse.sender.Send("down 1B 01\nup 1B 01\n"); });
  mouse.Send([] { return std::string(); }, "it is closed",
             [&] { return !open() && desk.TopForm().OpenPopup() == nullptr; });
  desk.Then("the menu again", [&] { mouse.sender.Send(press()); });
  desk.Until("it is open", open);
  desk.Then("the panel functions",
            [&] { mouse.sender.Send("down 28 50 e\nup 28 50 e\ndown 28 50 e\nup 28 50 e\ndown 0D 1C\nup 0D 1C\n"); });
  desk.Until("they are open", [&] { return desk.IsOpen(dialogs::frmSpecialIPCKey); });
  desk.Until("in front", [&] { return GetForegroundWindow() == desk.Top().Window(); });
  mouse.Leave();
  desk.Until("back", [&] { return desk.IsOpen(dialogs::frmConfigurationDialog); });
  mouse.Leave();
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
}

TEST(RealMouse, ColumnsAreDrawnWider) {
  Mouse mouse;
  Desk& desk = mouse.desk;
  const auto element = desk.Element(RectLed);
  int before = 0;
  desk.Then("the width", [&] { before = mouse.Grid().ColWidth(1); });
  mouse.Send(
      [&] {
        const auto& view = static_cast<const GridView&>(*desk.Top().ViewOf(&mouse.Grid()));
        const RECT cell = view.CellRect(0, 1);
        return "press left " + At(view.Outer(), cell.right, cell.top + 5) + "\ndrag " +
               At(view.Outer(), cell.right - 40, cell.top + 5) + "\nrelease left\n";
      },
      "the column is narrower", [&] { return mouse.Grid().ColWidth(1) < before - 100; });
  mouse.Leave();
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
}

TEST(RealMouse, AnEntryIsPickedFromAList) {
  Mouse mouse;
  Desk& desk = mouse.desk;
  const auto element = desk.Element(Led);
  const auto box = [&]() -> ComboBox& { return desk.Find<ComboBox>("cmbLEDTypes(0)"); };
  std::string before;
  desk.Then("what is there", [&] { before = box().Text(); });
  mouse.Send([&] { return Click(Middle(desk.WindowOf("cmbLEDTypes(0)"))); }, "the list is open",
             [&] { return desk.Top().ViewOf(&box())->IsUnfolded(); });
  mouse.Send(
      [&] {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        GetComboBoxInfo(desk.WindowOf("cmbLEDTypes(0)"), &info);
        RECT entry;
        SendMessageW(info.hwndList, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&entry));
        return Click(At(info.hwndList, entry.left + 10, (entry.top + entry.bottom) / 2));
      },
      "the second entry", [&] { return box().ListIndex() == 1 && box().Text() != before; });
  mouse.Send([&] { return "press turn " + Middle(desk.WindowOf("cmbLEDTypes(0)")) + "\n"; },
             "the wheel turns to the third", [&] { return box().ListIndex() == 2; });
  mouse.Leave();
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
}

TEST(RealMouse, TheCloseBoxCancels) {
  Mouse mouse;
  Desk& desk = mouse.desk;
  const auto element = desk.Element(RectLed);
  desk.Then("the close box", [&] {
    RECT place;
    GetWindowRect(desk.Top().Window(), &place);
    mouse.sender.Send(Click(std::to_string(place.right - 14) + " " + std::to_string(place.top + 12)));
  });
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
  EXPECT_NE(element->WizardOptions(), ManuallyDefined);
}

}  // namespace plexel
