#include <QAction>
#include <QDockWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include "editor/inspector.h"
#include "editor/overview_panel.h"
#include "editor/time_line_view.h"
#include "editor/trial_dock.h"
#include "editor/trial_layer.h"
#include "editor/trial_mode.h"
#include "editor_fixture.h"
#include "project/key_code_names.h"

namespace plexel::testing {
namespace {

using Bytes = std::initializer_list<std::uint8_t>;

/// The editor with some keys that send bytes, in the mode in which they are pressed.
class TryingElements : public Editor {
 protected:
  TryingElements() {
    Send("F1", 1, {0x1C}, {0xF0, 0x1C});
    Send("F1", 2, {0x32}, {0xF0, 0x32});
    Send("F2", 1, {0x12}, {});
    Send("F3", 1, {0xF1}, {});
    Send("F4", 1, {0x58, 0xF0, 0x58}, {});
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    before = window.Document()->Content();
    Action().trigger();
    EXPECT_TRUE(window.Trying().IsOn());
  }

  void Send(const std::string& id, std::int32_t layer, Bytes press, Bytes release) {
    udtTactisBaseElement_ScanCodeInfo record = Element(id).TactisBaseElementScanCodeBuffer();
    Put(*PressBuffer(record, layer), press);
    Put(*ReleaseBuffer(record, layer), release);
    Element(id).TactisBaseElementScanCodeBuffer(record);
  }
  static void Put(udtTactisBaseElement_TACTIS_SCANCODE& buffer, Bytes bytes) {
    buffer = InitialCodes();
    for (const std::uint8_t byte : bytes) buffer.Value[static_cast<std::size_t>(++buffer.NextValue)] = byte;
  }
  QAction& Action() { return *window.findChild<QAction*>("Try"); }
  TrialLayer& Layer() { return window.Trying().Layer(); }
  TrialDock& Dock() { return dynamic_cast<TrialDock&>(*window.findChild<QDockWidget*>("trial")); }
  const Trial& State() { return window.Trying().State(); }
  std::size_t Place(const std::string& id) { return static_cast<std::size_t>(PlaceOf(id)); }
  QPoint On(const std::string& id) { return Layer().PlaceRect(Place(id)).center(); }
  void Down(const std::string& id) { QTest::mousePress(&Layer(), Qt::LeftButton, {}, On(id)); }
  void Up(const std::string& id) { QTest::mouseRelease(&Layer(), Qt::LeftButton, {}, On(id)); }
  void Stroke(const std::string& id) {
    Down(id);
    Up(id);
  }
  QString Typed() { return Dock().findChild<QPlainTextEdit*>()->toPlainText(); }
  /// How the middle of the LED of a place is coloured.
  QColor LedColour(const std::string& id) {
    QCoreApplication::processEvents();
    const QImage picture = window.View().grab().toImage();
    const PanelBox& key = window.Document()->Places()[Place(id)].part->box;
    for (const PanelPart& part : window.Document()->ThePanel().parts) {
      const QRect led(part.box.left, part.box.top, part.box.width, part.box.height);
      if (part.kind == PanelPartKind::Led && QRect(key.left, key.top, key.width, key.height).contains(led)) {
        return picture.pixelColor(window.View().Origin() + led.center());
      }
    }
    throw std::logic_error("no LED on " + id);
  }

  Project before;
};

TEST_F(TryingElements, TheMouseHoldsAnElementAsLongAsItsButton) {
  Down("F1");
  EXPECT_TRUE(State().IsHeld(Place("F1")));
  EXPECT_EQ(window.View().Selected()->Name(), "F1");
  EXPECT_EQ(Dock().DownText(), QString());
  Up("F1");
  EXPECT_FALSE(State().AnyHeld());
  EXPECT_EQ(Dock().Content(), "F1 | pressed, layer 1 | 1C | \nF1 | let go, layer 1 | F0 1C | ");
  EXPECT_EQ(Typed(), "a");
}

TEST_F(TryingElements, TheEventsAreThoseOfTheReading) {
  Stroke("F2");
  const auto record = Element("F2").TactisBaseElementScanCodeBuffer();
  EXPECT_EQ(State().Reports(), ReadLayer(record, 1).reports);
}

TEST_F(TryingElements, SpaceAndReturnHoldTheCurrentElement) {
  window.View().Select(PlaceOf("F1"));
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
    QTest::keyPress(&Layer(), key);
    EXPECT_TRUE(State().IsHeld(Place("F1")));
    QTest::keyRelease(&Layer(), key);
    EXPECT_FALSE(State().AnyHeld());
  }
  EXPECT_EQ(Typed(), "aa");
}

TEST_F(TryingElements, ArrowsAndTabMoveTheCurrentElement) {
  window.View().Select(PlaceOf("F1"));
  QTest::keyClick(&Layer(), Qt::Key_Right);
  EXPECT_EQ(window.View().Selected()->Name(), "F2");
  QTest::keyClick(&Layer(), Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(window.View().Selected()->Name(), "F1");
}

TEST_F(TryingElements, TheRightButtonHoldsALayerKeyForTheOthers) {
  QTest::mouseClick(&Layer(), Qt::RightButton, {}, On("F3"));
  EXPECT_EQ(State().Layer(), 2);
  EXPECT_EQ(window.View().Layer(), 2);
  Stroke("F1");
  QTest::mouseClick(&Layer(), Qt::RightButton, {}, On("F3"));
  EXPECT_EQ(State().Layer(), 1);
  Stroke("F1");
  EXPECT_EQ(Typed(), "ba");
}

TEST_F(TryingElements, PanelCommandsAreNamed) {
  Stroke("F3");
  EXPECT_TRUE(Dock().Content().startsWith("F3 | pressed, layer 1 | F1 | " + PanelFunctionText(0xF1)))
      << Dock().Content().toStdString();
  EXPECT_FALSE(PanelFunctionText(0xF1).isEmpty());
  EXPECT_EQ(Dock().TimeLine().Rows().front().name, PanelFunctionText(0xF1));
}

TEST_F(TryingElements, TheTimeLineNamesTheElementOfEachAct) {
  Stroke("F1");
  Stroke("F2");
  EXPECT_EQ(Dock().TimeLine().Words(), (std::vector{QString::fromUtf8("\u25BC F1"), QString::fromUtf8("\u25B2 F1"),
                                                    QString::fromUtf8("\u25BC F2")}));
}

TEST_F(TryingElements, WhatStaysDownIsToldAndLetGoOf) {
  Stroke("F2");
  EXPECT_EQ(Dock().DownText(), "Stays down: Shift Left");
  ASSERT_EQ(Dock().TimeLine().Rows().size(), 1U);
  EXPECT_TRUE(Dock().TimeLine().Rows().front().stays);
  EXPECT_TRUE(State().HasLeftDown(Place("F2")));
  Stroke("F1");
  EXPECT_EQ(Typed(), "A");
  Dock().findChild<QPushButton*>("LetGoOfAll")->click();
  EXPECT_TRUE(State().Down().empty());
  EXPECT_EQ(Dock().DownText(), QString());
  EXPECT_FALSE(Dock().findChild<QPushButton*>("LetGoOfAll")->isEnabled());
}

TEST_F(TryingElements, LedsLightUpWithTheirFunction) {
  const std::string id = "F1";
  ASSERT_EQ(Element(id).ElementType(), RectLed);
  const QColor dark = LedColour(id);
  Element(id).LEDTypeLayer1(CapsLockLed);
  EXPECT_EQ(LedColour(id), dark);
  Stroke("F4");
  const QColor lit = LedColour(id);
  EXPECT_NE(lit, dark);
  EXPECT_GT(lit.green(), dark.green() + 50);
  Stroke("F4");
  EXPECT_EQ(LedColour(id), dark);
}

TEST_F(TryingElements, TheChosenLayerIsTried) {
  window.ShowLayer(2);
  Stroke("F1");
  EXPECT_EQ(Typed(), "b");
  QTest::keyClick(&Layer(), Qt::Key_Escape);
  EXPECT_EQ(window.View().Layer(), 2);
}

TEST_F(TryingElements, NothingOfTheProjectChanges) {
  bool opened = false;
  QTimer::singleShot(0, &context, [&] { opened = platform.Modal().Topmost() != nullptr; });
  QTest::mouseDClick(&Layer(), Qt::LeftButton, {}, On("F1"));
  Up("F1");
  QTest::keyClick(&window.View(), Qt::Key_Z, Qt::ControlModifier);
  QCoreApplication::processEvents();
  EXPECT_FALSE(opened);
  EXPECT_FALSE(window.findChild<QAction*>("Configure")->isEnabled());
  EXPECT_FALSE(window.findChild<QAction*>("Undo")->isEnabled());
  EXPECT_EQ(window.Document()->Content(), before);
  EXPECT_FALSE(window.Document()->Steps().CanUndo());
}

TEST_F(TryingElements, WhatChangesNothingStaysAvailable) {
  EXPECT_TRUE(window.findChild<QAction*>("Find")->isEnabled());
  EXPECT_TRUE(window.findChild<QAction*>("FindByPressing")->isEnabled());
  EXPECT_TRUE(window.findChild<QAction*>("Copy")->isEnabled());
  window.findChild<QAction*>("Find")->trigger();
  EXPECT_TRUE(window.Overview().isVisible());
  EXPECT_TRUE(window.Trying().IsOn());
}

TEST_F(TryingElements, TheKeyboardComesBackToWhatIsPressed) {
  window.View().Select(PlaceOf("F1"));
  window.TheInspector().Enter();
  window.findChild<QAction*>("NextArea")->trigger();
  window.findChild<QAction*>("NextArea")->trigger();
  ASSERT_EQ(QApplication::focusWidget(), &Layer());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_EQ(Typed(), "a");
}

TEST_F(TryingElements, EscapeLeavesAndTheElementsCanBeConfiguredAgain) {
  Down("F2");
  QTest::keyClick(&Layer(), Qt::Key_Escape);
  EXPECT_FALSE(window.Trying().IsOn());
  EXPECT_FALSE(Action().isChecked());
  EXPECT_FALSE(Layer().isVisible());
  EXPECT_FALSE(Dock().isVisible());
  EXPECT_TRUE(State().Down().empty());
  EXPECT_TRUE(window.findChild<QAction*>("Configure")->isEnabled());
}

TEST_F(TryingElements, LeavingKeepsTheSelection) {
  window.View().Select(PlaceOf("F3"));
  ASSERT_EQ(QApplication::focusWidget(), &Layer());
  QTest::keyClick(&Layer(), Qt::Key_Escape);
  EXPECT_EQ(window.View().Selected()->Name(), "F3");
  EXPECT_EQ(QApplication::focusWidget(), &window.View());
}

TEST_F(TryingElements, AStepAndAnotherProjectEndTheMode) {
  ChangeNotes("F1", "a note");
  EXPECT_FALSE(window.Trying().IsOn());
  Action().trigger();
  EXPECT_TRUE(window.Trying().IsOn());
  window.NewProject("Small");
  EXPECT_FALSE(window.Trying().IsOn());
}

TEST_F(TryingElements, LedsAloneAndKeySwitchesAreNotPressed) {
  for (const PanelDocument::Place& place : window.Document()->Places()) {
    if (place.element->ElementType() == Led || place.element->ElementType() == Key) Down(place.element->Name());
  }
  EXPECT_FALSE(State().AnyHeld());
}

TEST_F(TryingElements, EveryTextIsThereInGermanToo) {
  Stroke("F2");
  surroundings.ChooseLanguage("German");
  window.SettingsChanged();
  EXPECT_EQ(Dock().windowTitle(), "Was die Tasten senden");
  EXPECT_TRUE(Dock().DownText().startsWith("Bleibt gedr\u00FCckt: ")) << Dock().DownText().toStdString();
  EXPECT_FALSE(Dock().Content().contains('@'));
}

}  // namespace
}  // namespace plexel::testing
