#include "editor/virtual_panel.h"

#include <QAction>
#include <QPushButton>

#include "editor_fixture.h"

namespace plexel::testing {
namespace {

using Bytes = std::initializer_list<std::uint8_t>;

/// A virtual panel whose keys go into a list.
class PanelOnTheDesktop : public Editor {
 protected:
  PanelOnTheDesktop() {
    Send("F1", {0x1C}, {0xF0, 0x1C});
    Send("F2", {0x14}, {});
    Send("F3", {0xF1}, {});
    Send("F4", {0x02, 0x00}, {});
    panel.show();
  }
  void Send(const std::string& id, Bytes press, Bytes release) {
    udtTactisBaseElement_ScanCodeInfo record = Element(id).TactisBaseElementScanCodeBuffer();
    record.strLayer1PressScanCode = record.strLayer1ReleaseScanCode = InitialCodes();
    for (const std::uint8_t byte : press) Append(record.strLayer1PressScanCode, byte);
    for (const std::uint8_t byte : release) Append(record.strLayer1ReleaseScanCode, byte);
    Element(id).TactisBaseElementScanCodeBuffer(record);
  }
  static void Append(udtTactisBaseElement_TACTIS_SCANCODE& codes, std::uint8_t byte) {
    codes.Value[static_cast<std::size_t>(++codes.NextValue)] = byte;
  }
  void Click(const std::string& id) {
    const QPoint at = panel.Layer().PlaceRect(static_cast<std::size_t>(PlaceOf(id))).center();
    QTest::mouseClick(&panel.Layer(), Qt::LeftButton, {}, at);
  }

  QStringList sent;
  VirtualPanel panel{*window.Document(), 1,
                     [this](int evdev, bool down) { sent.append(QString(down ? "down %1" : "up %1").arg(evdev)); }};
};

TEST_F(PanelOnTheDesktop, PressAndReleaseGoToTheDesktop) {
  Click("F1");
  EXPECT_EQ(sent, QStringList({"down 30", "up 30"}));
}

TEST_F(PanelOnTheDesktop, AKeyThatIsLeftDownStaysDownUntilItIsLetGoOf) {
  Click("F2");
  EXPECT_EQ(sent, QStringList({"down 29"}));
  panel.findChild<QPushButton*>()->click();
  EXPECT_EQ(sent, QStringList({"down 29", "up 29"}));
  EXPECT_TRUE(panel.State().Down().empty());
}

TEST_F(PanelOnTheDesktop, ClosingLetsGoOfAll) {
  bool closed = false;
  panel.onClose = [&closed] { closed = true; };
  Click("F2");
  panel.close();
  EXPECT_EQ(sent, QStringList({"down 29", "up 29"}));
  EXPECT_TRUE(closed);
}

TEST_F(PanelOnTheDesktop, WhatTheDesktopCannotCarryIsTold) {
  Click("F3");
  EXPECT_TRUE(sent.isEmpty());
  QTest::mousePress(&panel.Layer(), Qt::LeftButton, {},
                    panel.Layer().PlaceRect(static_cast<std::size_t>(PlaceOf("F3"))).center());
  EXPECT_TRUE(panel.Words().contains("command to the panel")) << panel.Words().toStdString();
  QTest::mouseRelease(&panel.Layer(), Qt::LeftButton);
  QTest::mousePress(&panel.Layer(), Qt::LeftButton, {},
                    panel.Layer().PlaceRect(static_cast<std::size_t>(PlaceOf("F4"))).center());
  EXPECT_EQ(
      panel.Words(),
      "No key has the code 02: the desktop does not get it. No key has the code 00: the desktop does not get it.");
  EXPECT_TRUE(sent.isEmpty());
}

TEST_F(PanelOnTheDesktop, ItTakesNoFocusAndStaysOnTop) {
  EXPECT_TRUE(panel.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
  EXPECT_TRUE(panel.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(panel.Layer().focusPolicy(), Qt::NoFocus);
}

TEST_F(PanelOnTheDesktop, WithoutADesktopThatTakesKeysNothingIsPressed) {
  panel.Lost();
  Click("F1");
  EXPECT_TRUE(sent.isEmpty());
  EXPECT_EQ(panel.Words(), "The desktop takes no keys from programs.");
}

TEST_F(PanelOnTheDesktop, WithoutAnXServerTheEntryIsOffAndSaysWhy) {
  const QAction& entry = *window.findChild<QAction*>("VirtualPanel");
  EXPECT_FALSE(entry.isEnabled());
  EXPECT_TRUE(entry.text().contains("X server")) << entry.text().toStdString();
}

}  // namespace
}  // namespace plexel::testing
