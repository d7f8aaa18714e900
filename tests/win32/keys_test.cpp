#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "element/ctlPlexelBaseElement.h"
#include "services/dialogs.h"
#include "services/setting_table.h"
#include "win32/desk.h"
#include "win32/grid_view.h"
#include "win32/key_sender.h"

namespace plexel {

namespace {

const std::string ControlDown = "down 11 1D\n", ControlUp = "up 11 1D\n", ShiftDown = "down 10 2A\n",
                  ShiftUp = "up 10 2A\n", AltDown = "down 12 38\n", AltUp = "up 12 38\n";
const std::string EndOfCapture = ShiftDown + ControlDown + ControlUp + ShiftUp;

std::string Stroke(const std::string& key) { return "down " + key + "\nup " + key + "\n"; }

/// The configuration dialog with a cell in capture, into which another process sends keys.
class Capture {
 public:
  explicit Capture(bool lockTaskKeys = false) {
    desk.surroundings.Settings().Value(SettingOf(OptionLockTaskKeys), lockTaskKeys ? 1 : 0);
    element = desk.Element(RectLed);
    element->PressKeyDefLayer1("");
    desk.Until("the dialog opens", [this] { return desk.IsOpen(dialogs::frmConfigurationDialog); });
    desk.Until("it is in front", [this] { return GetForegroundWindow() == desk.Top().Window(); });
    desk.Then("a double click on the first cell", [this] {
      const auto& view = static_cast<const GridView&>(*desk.Top().ViewOf(&Cells()));
      const RECT cell = view.CellRect(1, 1);
      Desk::Press(view.Outer(), cell.left + 5, cell.top + 5, true);
      EXPECT_TRUE(desk.platform.Modal().Captures());
    });
  }

  Grid& Cells() { return desk.Find<Grid>("msgScanCodes"); }

  /// Has keys sent and waits for the text of the cell.
  void Send(const std::string& lines, const std::string& text) {
    desk.Then("keys: " + lines, [this, lines] { sender.Send(lines); });
    desk.Until("the cell reads " + text, [this, text] {
      wanted_ = text;
      read_ = Cells().CellAt(1, 1).text;
      return read_ == text;
    });
  }

  /// Ends capture by its keys, presses OK with the mouse, and gives the bytes of the cell.
  std::string Finish() {
    desk.Then("the end of capture", [this] { sender.Send(EndOfCapture); });
    desk.Until("capture has ended", [this] { return !desk.platform.Modal().Captures(); });
    desk.Then("OK", [this] { Desk::Press(desk.WindowOf("cmdOK"), 10, 10); });
    element->OpenConfigurationDialog();
    EXPECT_EQ(read_, wanted_);
    const auto record = element->TactisBaseElementScanCodeBuffer();
    const auto& buffer = *PressBuffer(record, 1);
    std::string bytes;
    for (int place = 0; place <= buffer.NextValue; ++place) {
      constexpr char Digits[] = "0123456789ABCDEF";
      const unsigned byte = buffer.Value[static_cast<std::size_t>(place)];
      bytes += std::string(bytes.empty() ? "" : " ") + Digits[byte >> 4U] + Digits[byte & 15U];
    }
    return bytes;
  }

  Desk desk;
  std::shared_ptr<ctlPlexelBaseElement> element;
  KeySender sender;

 private:
  std::string read_, wanted_;
};

/// A key by its scan code, with the virtual key that types a character in the layout in force.
std::string Typing(Desk& desk, char16_t character, const std::string& scanCode) {
  KeyboardLayout& layout = desk.platform.Layout();
  for (std::int32_t virtualKey = 1; virtualKey < 255; ++virtualKey) {
    char16_t text[8] = {};
    if (layout.ToUnicode(virtualKey, 0, text, 8, layout.Current()) != 1 || text[0] != character) continue;
    std::ostringstream line;
    line << std::hex << virtualKey << ' ' << scanCode;
    return Stroke(line.str());
  }
  throw std::runtime_error("the layout in force has no such character");
}

bool German() {
  const char* const layout = std::getenv("PLEXEL_LAYOUT");
  return layout != nullptr && std::string(layout) == "de";
}

}  // namespace

TEST(RealKeys, GoThroughTheHookIntoTheCellAndTheRecord) {
  Capture capture;
  capture.Send(ControlDown + Stroke("41 1E") + ControlUp, "[Ctrl Left+a\u2039\u203A]");
  EXPECT_EQ(capture.Finish(), "FF 14 1C F0 1C F0 14 FF");
  EXPECT_EQ(capture.element->PressKeyDefLayer1(), "[Ctrl Left+a\u2039\u203A]");
  EXPECT_EQ(capture.desk.failures, std::vector<std::string>());
}

TEST(RealKeys, EveryKeyThatADialogKnowsIsCaptured) {
  Capture capture;
  std::string text;
  const auto next = [&](const std::string& key, const std::string& name) {
    text += "[" + name + "\u2039\u203A]";
    capture.Send(Stroke(key), text);
  };
  next("1B 01", "Esc");
  next("0D 1C", "Return");
  next("09 0F", "Tab");
  next("26 48 e", "Cursor Up");
  next("73 3E", "F4");
  next("70 3B", "F1");
  text += "[Alt+F4\u2039\u203A]";
  capture.Send(AltDown + Stroke("73 3E") + AltUp, text);
  capture.Finish();
}

TEST(RealKeys, AltGrIsOneKey) {
  Capture capture;
  // A layout with Alt Gr sends a left Ctrl ahead of it, and its release ahead of the other.
  capture.Send("down 11 1D\ndown 12 38 e\nup 11 1D\nup 12 38 e\n", "[Alt Gr\u2039\u203A]");
  EXPECT_EQ(capture.Finish(), "FF E0 11 E0 F0 11 FF");
}

TEST(RealKeys, NamesComeFromTheLayoutInForce) {
  Capture capture;
  // The key right of P, and that between T and U.
  if (German()) {
    capture.Send(Typing(capture.desk, u'\u00FC', "1A") + Typing(capture.desk, u'z', "15"),
                 "[\u00FC\u2039\u203A][z\u2039\u203A]");
  } else {
    capture.Send(Typing(capture.desk, u'[', "1A") + Typing(capture.desk, u'y', "15"),
                 "[Squared Bracket Open\u2039\u203A][y\u2039\u203A]");
  }
  EXPECT_EQ(capture.Finish(), "FF 54 F0 54 FF 35 F0 35 FF");
}

TEST(RealKeys, LockedTaskKeysReachNeitherTheSystemNorTheCell) {
  Capture capture(true);
  capture.Send(AltDown + Stroke("09 0F") + Stroke("1B 01") + AltUp, "[Alt\u2039\u203A]");
  capture.Send(Stroke("5B 5B e") + Stroke("5C 5C e") + Stroke("42 30"), "[Alt\u2039\u203A][b\u2039\u203A]");
  // The hook asks for Ctrl as of the last key that the dialog has taken.
  capture.desk.Then("Ctrl", [&] { capture.sender.Send(ControlDown); });
  capture.desk.Until("the dialog knows of Ctrl", [] { return GetKeyState(VK_CONTROL) < 0; });
  capture.Send(Stroke("1B 01") + ControlUp, "[Alt\u2039\u203A][b\u2039\u203A][Ctrl Left\u2039\u203A]");
  EXPECT_EQ(capture.Finish(), "FF 11 F0 11 FF 32 F0 32 FF 14 F0 14 FF");
}

TEST(RealKeys, TaskKeysThatAreNotLockedAreCaptured) {
  Capture capture(false);
  capture.Send(Stroke("5B 5B e"), "[Windows Left\u2039\u203A]");
  EXPECT_EQ(capture.Finish(), "FF E0 1F E0 F0 1F FF");
}

TEST(RealKeys, NothingIsHookedWhenTheDialogHasClosed) {
  Capture capture(true);
  capture.Send(Stroke("41 1E"), "[a\u2039\u203A]");
  capture.desk.Then("the close box", [&] { PostMessageW(capture.desk.Top().Window(), WM_CLOSE, 0, 0); });
  capture.element->OpenConfigurationDialog();
  EXPECT_TRUE(capture.desk.Done());
  EXPECT_FALSE(capture.desk.platform.Modal().Captures());
  EXPECT_EQ(capture.element->PressKeyDefLayer1(), "");
}

}  // namespace plexel
