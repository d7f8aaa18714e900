#include <gtest/gtest.h>

#include "element/ctlPlexelBaseElement.h"
#include "services/dialogs.h"
#include "win32/desk.h"
#include "win32/key_sender.h"
#include "win32/shown_form.h"

namespace plexel {

namespace {

std::string Stroke(const std::string& key) { return "down " + key + "\nup " + key + "\n"; }
std::string With(const std::string& modifier, const std::string& key) {
  return "down " + modifier + "\n" + Stroke(key) + "up " + modifier + "\n";
}
const std::string Shift = "10 2A", Ctrl = "11 1D", Alt = "12 38", Tab = "09 0F", Return = "0D 1C", Escape = "1B 01",
                  Space = "20 39", Left = "25 4B e", Up = "26 48 e", Right = "27 4D e", Down = "28 50 e",
                  Home = "24 47 e", Delete = "2E 53 e", Back = "08 0E", F4 = "73 3E", F10 = "79 44",
                  PageDown = "22 51 e", A = "41 1E", B = "42 30", C = "43 2E", L = "4C 26", P = "50 19";

/// An open dialog with real keys.
class Keys {
 public:
  explicit Keys(FormName form = dialogs::frmConfigurationDialog) {
    desk.Until("the dialog opens", [this, form] { return desk.IsOpen(form); });
    desk.Until("it is in front", [this] { return GetForegroundWindow() == desk.Top().Window(); });
  }
  /// Has keys sent and waits until something has come true. The windows then show what the model says.
  void Send(const std::string& lines, const std::string& what, std::function<bool()> comes) {
    desk.Then("keys: " + lines, [this, lines] { sender.Send(lines); });
    desk.Until(what, std::move(comes));
    desk.Then("the loop rests", [] {});
    desk.Then("the windows agree", [this, what] {
      if (desk.platform.Modal().Topmost() == nullptr || !desk.TopForm().IsShown()) return;
      for (const std::string& difference : DifferencesOf(desk.Top())) ADD_FAILURE() << what << ": " << difference;
    });
  }
  void FocusGoesTo(const std::string& lines, const std::string& name) {
    Send(lines, "the focus is on " + name,
         [this, name] { return desk.TopForm().Focus() != nullptr && desk.TopForm().Focus()->FullName() == name; });
  }
  void Closes(const std::string& lines) {
    desk.Then("keys: " + lines, [this, lines] { sender.Send(lines); });
  }

  Desk desk;
  KeySender sender;
};

}  // namespace

TEST(DialogKeys, TabWalksTheTabOrderRoundAndBack) {
  Keys keys;
  const auto element = keys.desk.Element(RectLed);
  keys.FocusGoesTo(Stroke(Tab), "optCodeType(0)");
  keys.FocusGoesTo(Stroke(Tab), "cmdOK");
  keys.FocusGoesTo(Stroke(Tab), "cmdCancel");
  keys.FocusGoesTo(Stroke(Tab), "cmdHelp");
  keys.FocusGoesTo(Stroke(Tab), "sstScanCode");
  keys.FocusGoesTo(Stroke(Tab), "msgScanCodes");
  keys.FocusGoesTo(With(Shift, Tab), "sstScanCode");
  keys.FocusGoesTo(With(Shift, Tab) + With(Shift, Tab), "cmdCancel");
  keys.Closes(Stroke(Space));
  element->OpenConfigurationDialog();
  EXPECT_TRUE(keys.desk.Done());
}

TEST(DialogKeys, ArrowsMoveWithinGridOptionsAndButtons) {
  Keys keys;
  const auto element = keys.desk.Element(RectLed);
  const auto cell = [&](int row, int col) {
    return [&keys, row, col] {
      auto& grid = keys.desk.Find<Grid>("msgScanCodes");
      return grid.Row() == row && grid.Col() == col;
    };
  };
  keys.Send(Stroke(Right) + Stroke(Down) + Stroke(Down), "cell 3, 2", cell(3, 2));
  keys.Send(Stroke(Left) + Stroke(Up), "cell 2, 1", cell(2, 1));
  keys.FocusGoesTo(Stroke(Tab) + Stroke(Down), "optCodeType(1)");
  keys.Send(Stroke(Up), "the first is set",
            [&] { return static_cast<OptionButton&>(*keys.desk.TopForm().Find("optCodeType(0)")).Value(); });
  keys.FocusGoesTo(Stroke(Tab) + Stroke(Down), "cmdCancel");
  keys.Closes(Stroke(Return));
  element->OpenConfigurationDialog();
  EXPECT_TRUE(keys.desk.Done());
}

TEST(DialogKeys, GroupsOfACellAreDeletedAndCopied) {
  Keys keys;
  const auto element = keys.desk.Element(RectLed);
  const auto reads = [&](int row, const std::string& text) {
    return [&keys, row, text] { return keys.desk.Find<Grid>("msgScanCodes").CellAt(row, 1).text == text; };
  };
  keys.Send(Stroke(Down) + Stroke(Delete), "the first has gone", reads(2, "[Enter\u2039\u203A]"));
  keys.Send(With(Ctrl, C) + Stroke(Down) + With(Ctrl, "56 2F"), "a copy", reads(3, "[Enter\u2039\u203A]"));
  keys.Send(Stroke(Back), "the last has gone", reads(3, ""));
  keys.Closes(With(Alt, F4));
  element->OpenConfigurationDialog();
  EXPECT_TRUE(keys.desk.Done());
  EXPECT_EQ(element->PressKeyDefLayer2(), "[F1\u2039\u203A][Enter\u2039\u203A]") << "Alt and F4 cancel";
}

TEST(DialogKeys, ControlWithPageDownTurnsPagesAndNotesAreTyped) {
  Keys keys;
  const auto element = keys.desk.Element(RectLed);
  const auto note = [&](const std::string& text) {
    return [&keys, text] { return keys.desk.Find<TextBox>("txtButtonNotes").Text() == text; };
  };
  keys.Send(With(Ctrl, PageDown) + With(Ctrl, PageDown), "the notes",
            [&] { return keys.desk.Find<TabStrip>("sstScanCode").Tab() == 2; });
  keys.FocusGoesTo(With(Shift, Tab) + With(Shift, Tab) + With(Shift, Tab) + With(Shift, Tab), "txtButtonNotes");
  keys.Send(With(Shift, A) + Stroke(B) + Stroke(Return) + Stroke(C), "a note", note("Ab\r\nc"));
  keys.Send(Stroke(Left) + Stroke(Back) + Stroke(Back), "less of it", note("Ac"));
  keys.Send(Stroke(Home) + Stroke(B) + Stroke(Delete), "other letters", note("bc"));
  keys.Closes(Stroke(Tab) + Stroke(Return));
  element->OpenConfigurationDialog();
  EXPECT_TRUE(keys.desk.Done());
  EXPECT_EQ(element->ButtonNotes(), "bc");
}

TEST(DialogKeys, AListIsUnfoldedAndAnEntryPicked) {
  Keys keys;
  const auto element = keys.desk.Element(Led);
  std::string first, second;
  keys.desk.Then("what is there", [&] { first = keys.desk.Find<ComboBox>("cmbLEDTypes(0)").Text(); });
  const auto unfolded = [&](bool open) {
    return [&keys, open] {
      return keys.desk.Top().ViewOf(keys.desk.TopForm().Find("cmbLEDTypes(0)"))->IsUnfolded() == open;
    };
  };
  keys.FocusGoesTo("", "cmbLEDTypes(0)");
  keys.Send(With(Alt, Down), "the list is open", unfolded(true));
  keys.Send(Stroke(Up), "the model waits", [&] { return keys.desk.Find<ComboBox>("cmbLEDTypes(0)").Text() == first; });
  keys.Send(Stroke(Escape), "the list is closed", unfolded(false));
  keys.Send(With(Alt, Down), "the list is open", unfolded(true));
  keys.Send(Stroke(Up) + Stroke(Return), "another entry", [&] {
    second = keys.desk.Find<ComboBox>("cmbLEDTypes(0)").Text();
    return second != first;
  });
  keys.Send(Stroke(Down), "the first one", [&] { return keys.desk.Find<ComboBox>("cmbLEDTypes(0)").Text() == first; });
  keys.Closes(Stroke(Escape));
  element->OpenConfigurationDialog();
  EXPECT_TRUE(keys.desk.Done());
}

TEST(DialogKeys, ReturnPressesTheDefaultButtonAndEscapeCancels) {
  Keys keys;
  const auto element = keys.desk.Element(RectLed);
  // The popup menu of the cell: its third entry is the shortcuts.
  keys.desk.Then("the menu", [&] { keys.sender.Send(With(Shift, F10)); });
  keys.desk.Until("it is open", [&] { return FindWindowW(L"#32768", nullptr) != nullptr; });
  keys.desk.Then("an entry", [&] { keys.sender.Send(Stroke(Down) + Stroke(Down) + Stroke(Down) + Stroke(Return)); });
  keys.desk.Until("the shortcuts", [&] { return keys.desk.IsOpen(dialogs::frmSpecialWindowsKey); });
  keys.desk.Until("in front", [&] { return GetForegroundWindow() == keys.desk.Top().Window(); });
  keys.desk.Then("Return", [&] { keys.sender.Send(Stroke(Return)); });
  keys.Send("", "the shortcut stands in the cell", [&] {
    return keys.desk.IsOpen(dialogs::frmConfigurationDialog) &&
           keys.desk.Find<Grid>("msgScanCodes").CellAt(1, 1).text != "[Ctrl Left+a\u2039\u203A]";
  });
  keys.desk.Until("in front", [&] { return GetForegroundWindow() == keys.desk.Top().Window(); });
  keys.Closes(Stroke(Escape));
  element->OpenConfigurationDialog();
  EXPECT_TRUE(keys.desk.Done());
}

}  // namespace plexel
