#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "editor/overview_panel.h"
#include "editor/overview_table.h"
#include "editor/texts.h"
#include "editor_fixture.h"
#include "services/led_functions.h"
#include "services/led_offer.h"
#include "services/shared_services.h"

namespace plexel::testing {
namespace {

using Column = OverviewModel::Column;

TEST_F(Editor, TheOverviewHoldsNothingBeforeItIsShown) {
  EXPECT_EQ(window.Overview().widget(), nullptr);
  window.SettingsChanged();
  ChangeNotes("F1", "changed");
  window.Overview().hide();
  EXPECT_EQ(window.Overview().widget(), nullptr);
  window.Overview().Find();
  ASSERT_NE(window.Overview().widget(), nullptr);
  EXPECT_FALSE(window.Overview().findChild<QLineEdit*>("FindWords")->placeholderText().isEmpty());
  EXPECT_GT(window.Overview().Model().rowCount(), 46);
}

class Overview : public Editor {
 protected:
  Overview() { window.Overview().show(); }
  OverviewModel& Model() { return window.Overview().Model(); }
  OverviewTable& Table() { return window.Overview().Table(); }
  QModelIndex Cell(const std::string& id, std::int32_t layer, Column column) {
    return Model().index(Model().RowOf(PlaceOf(id), layer), column);
  }
  QString TextOf(const std::string& id, std::int32_t layer, Column column) {
    return Cell(id, layer, column).data().toString();
  }
  /// The elements of all rows, each once, in the order of the rows.
  std::vector<std::string> Shown() {
    std::vector<std::string> shown;
    for (int row = 0; row < Model().rowCount(); ++row) {
      const std::string name = Model().ElementOf(row).Name();
      if (shown.empty() || shown.back() != name) shown.push_back(name);
    }
    return shown;
  }
  QLineEdit& Words() { return *window.Overview().findChild<QLineEdit*>("FindWords"); }
  void ClickRow(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    Table().scrollTo(Model().index(row, 0));
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, modifiers,
                      Table().visualRect(Model().index(row, 0)).center());
  }
  /// Edits a cell as the delegate does, and lets what follows happen.
  void Put(const QModelIndex& cell, const QVariant& value) {
    Model().setData(cell, value, Qt::EditRole);
    QCoreApplication::processEvents();
  }
  void DefineByBytes(const std::string& id, std::initializer_list<std::uint8_t> bytes) {
    udtTactisBaseElement_ScanCodeInfo record = Element(id).TactisBaseElementScanCodeBuffer();
    for (const std::uint8_t byte : bytes) {
      record.strLayer1PressScanCode.Value[static_cast<std::size_t>(++record.strLayer1PressScanCode.NextValue)] = byte;
    }
    const std::array place = {static_cast<std::size_t>(PlaceOf(id))};
    window.Document()->Change(StepKind::Configure, place, [&] { Element(id).TactisBaseElementScanCodeBuffer(record); });
  }
  /// Sends a key to a widget as an X server tells it.
  void SendKey(QWidget& to, int evdev, bool down) {
    QKeyEvent event(down ? QEvent::KeyPress : QEvent::KeyRelease, Qt::Key_unknown, Qt::NoModifier,
                    static_cast<quint32>(evdev + 8), 0, 0);
    QCoreApplication::sendEvent(&to, &event);
  }
  QToolButton& PressButton() { return *window.Overview().findChild<QToolButton*>("PressKeys"); }
};

TEST_F(Overview, HasARowForEachElementAndLayer) {
  EXPECT_EQ(Model().rowCount(), static_cast<int>(window.Document()->Places().size()) * LayerCount);
  EXPECT_EQ(TextOf("F2", 3, Column::ElementColumn), "F2");
  EXPECT_EQ(TextOf("F2", 3, Column::LayerColumn), "3");
}

TEST_F(Overview, TellsWhatTheReportTells) {
  Element("F1").PressKeyDefLayer(2, "[a\u2039\u203A]");
  ChangeNotes("F1", "a note");
  const Report report = ReportOf(*window.Document(), "");
  for (std::size_t line = 0; line < report.rows.size(); ++line) {
    const ReportRow& row = report.rows[line];
    EXPECT_EQ(TextOf(row.element, row.layer, Column::PressColumn).toStdString(), row.press);
    EXPECT_EQ(TextOf(row.element, row.layer, Column::NoteColumn).toStdString(), row.note);
  }
}

TEST_F(Overview, FollowsEveryStepAndItsUndoing) {
  ChangeNotes("F2", "first");
  EXPECT_EQ(TextOf("F2", 4, Column::NoteColumn), "first");
  window.Document()->Undo();
  EXPECT_EQ(TextOf("F2", 4, Column::NoteColumn), "");
}

TEST_F(Overview, AHiddenOneTakesUpWhatHasChangedWhenItIsShown) {
  window.Overview().hide();
  window.NewProject("Large");
  EXPECT_EQ(Model().rowCount(), 0) << "nothing is made for nobody";
  ChangeNotes("F2", "meanwhile");
  window.Overview().show();
  EXPECT_EQ(TextOf("F2", 1, Column::NoteColumn), "meanwhile");
}

TEST_F(Overview, TellsProblemsOfTheElementAndOfThoseThatShareThem) {
  EXPECT_EQ(TextOf("F2", 1, Column::ProblemColumn), "");
  const std::array place = {static_cast<std::size_t>(PlaceOf("F2"))};
  window.Document()->Change(StepKind::Properties, place,
                            [&] { Element("F2").HardwareNumberButton(Element("F1").HardwareNumberButton()); });
  EXPECT_TRUE(TextOf("F2", 1, Column::ProblemColumn).contains("F1"));
  EXPECT_EQ(TextOf("F2", 2, Column::ProblemColumn), "") << "a problem of no layer stands once";
  window.Document()->Undo();
  EXPECT_EQ(TextOf("F2", 1, Column::ProblemColumn), "");
}

TEST_F(Overview, NumbersInNamesAreSortedByTheirValue) {
  Model().sort(Column::ElementColumn, Qt::AscendingOrder);
  const std::vector<std::string> shown = Shown();
  const auto at = [&](const char* id) { return std::find(shown.begin(), shown.end(), id) - shown.begin(); };
  EXPECT_LT(at("F2"), at("F10"));
  EXPECT_EQ(at("F2"), at("F1") + 1);
}

TEST_F(Overview, EmptyCellsStandLastInBothDirections) {
  ChangeNotes("F5", "b");
  ChangeNotes("F3", "a");
  Model().sort(Column::NoteColumn, Qt::AscendingOrder);
  EXPECT_EQ(Shown().front(), "F3");
  EXPECT_EQ(Shown().at(1), "F5");
  Model().sort(Column::NoteColumn, Qt::DescendingOrder);
  EXPECT_EQ(Shown().front(), "F5");
  EXPECT_EQ(Shown().at(1), "F3");
}

TEST_F(Overview, WordsLeaveTheLinesInWhichTheyStandAndMarkThem) {
  ChangeNotes("F5", "Pumpe links");
  QTest::keyClicks(&Words(), "PUMPE");
  EXPECT_EQ(Shown(), std::vector<std::string>{"F5"});
  EXPECT_EQ(Model().rowCount(), 4);
  EXPECT_TRUE(Cell("F5", 1, Column::NoteColumn).data(Qt::BackgroundRole).isValid());
  EXPECT_FALSE(Cell("F5", 1, Column::ElementColumn).data(Qt::BackgroundRole).isValid());
  Words().clear();
  EXPECT_EQ(Model().rowCount(), Model().LineCount());
}

TEST_F(Overview, AStepThatMakesALineFoundBringsIt) {
  Words().setText("valve");
  EXPECT_EQ(Model().rowCount(), 0);
  ChangeNotes("F7", "valve");
  EXPECT_EQ(Shown(), std::vector<std::string>{"F7"});
  window.Document()->Undo();
  EXPECT_EQ(Model().rowCount(), 0);
}

TEST_F(Overview, WhatIsFoundIsMarkedOnThePictureWhileTheOverviewIsThere) {
  const auto painted = [&] { return window.View().grab(window.View().PlaceRect(PlaceOf("F9"))).toImage(); };
  const QImage plain = painted();
  ChangeNotes("F9", "valve");
  Words().setText("valve");
  EXPECT_NE(painted(), plain);
  window.Overview().hide();
  EXPECT_EQ(painted(), plain);
  window.Overview().show();
  EXPECT_NE(painted(), plain);
  Words().clear();
  EXPECT_EQ(painted(), plain);
}

TEST_F(Overview, CtrlFIsReadyForWords) {
  window.Overview().hide();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(window.Overview().isVisible());
  EXPECT_EQ(QApplication::focusWidget(), &Words());
}

TEST_F(Overview, ReturnGoesFromFindToFind) {
  ChangeNotes("F9", "valve");
  ChangeNotes("F4", "valve");
  Words().setText("valve");
  QTest::keyClick(&Words(), Qt::Key_Return);
  EXPECT_EQ(window.View().Selected()->Name(), "F4");
  for (int layer = 1; layer <= LayerCount; ++layer) QTest::keyClick(&Words(), Qt::Key_Return);
  EXPECT_EQ(window.View().Selected()->Name(), "F9");
  QTest::keyClick(&Words(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(window.View().Selected()->Name(), "F4");
}

TEST_F(Overview, ARowThatIsClickedIsTheCurrentElementOfThePicture) {
  ClickRow(Model().RowOf(PlaceOf("F3"), 2));
  EXPECT_EQ(window.View().Selected()->Name(), "F3");
  ClickRow(Model().RowOf(PlaceOf("F5"), 1), Qt::ControlModifier);
  EXPECT_EQ(window.TheSelection().Chosen(), (std::vector<int>{PlaceOf("F3"), PlaceOf("F5")}));
  ClickRow(Model().RowOf(PlaceOf("F5"), 3), Qt::ControlModifier);
  EXPECT_EQ(window.TheSelection().Chosen(), std::vector<int>{PlaceOf("F3")});
}

TEST_F(Overview, ShiftChoosesARangeOfRows) {
  ClickRow(Model().RowOf(PlaceOf("F2"), 1));
  ClickRow(Model().RowOf(PlaceOf("F4"), 1), Qt::ShiftModifier);
  EXPECT_EQ(window.TheSelection().Chosen(), (std::vector<int>{PlaceOf("F2"), PlaceOf("F3"), PlaceOf("F4")}));
  EXPECT_EQ(window.TheSelection().Current(), PlaceOf("F4"));
}

TEST_F(Overview, TheArrowKeysWalkThroughTheRows) {
  ClickRow(Model().RowOf(PlaceOf("F2"), 4));
  QTest::keyClick(&Table(), Qt::Key_Down);
  EXPECT_EQ(Table().currentIndex().row(), Model().RowOf(PlaceOf("F2"), 4) + 1);
  EXPECT_EQ(window.TheSelection().Current(), Model().PlaceOf(Table().currentIndex().row()));
}

TEST_F(Overview, TheCurrentRowIsTheOneOfThePicturesElement) {
  ClickRow(Model().RowOf(PlaceOf("F2"), 3));
  window.View().Select(PlaceOf("F8"));
  EXPECT_EQ(Table().currentIndex().row(), Model().RowOf(PlaceOf("F8"), 3));
  Words().setText("no such words");
  window.View().Select(PlaceOf("F9"));
  EXPECT_FALSE(Table().currentIndex().isValid());
  Words().clear();
  EXPECT_EQ(Model().PlaceOf(Table().currentIndex().row()), PlaceOf("F9"));
}

TEST_F(Overview, SelectAllChoosesWhatIsFound) {
  ChangeNotes("F9", "valve");
  ChangeNotes("F4", "valve");
  Words().setText("valve");
  QTest::keyClick(&Table(), Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(window.TheSelection().Chosen(), (std::vector<int>{PlaceOf("F4"), PlaceOf("F9")}));
}

TEST_F(Overview, ANoteIsEditedInItsCellAsAStep) {
  Put(Cell("F2", 2, Column::NoteColumn), "Ventil 7");
  EXPECT_EQ(Element("F2").ButtonNotes(), "Ventil 7");
  EXPECT_EQ(window.Document()->Steps().ToUndo().name, (StepName{StepKind::Notes, "F2", 1}));
  window.Document()->Undo();
  EXPECT_EQ(Element("F2").ButtonNotes(), "");
  EXPECT_EQ(TextOf("F2", 2, Column::NoteColumn), "");
}

TEST_F(Overview, AnEditorInTheCellStoresWhatIsTyped) {
  const QModelIndex cell = Cell("F2", 1, Column::NoteColumn);
  Table().setCurrentIndex(cell);
  Table().edit(cell);
  auto* const line = Table().viewport()->findChild<QLineEdit*>();
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(line->maxLength(), 1000);
  QTest::keyClicks(line, "typed");
  QTest::keyClick(line, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(Element("F2").ButtonNotes(), "typed");
}

TEST_F(Overview, AnLedFunctionIsEditedInItsCellAsAStepAndTheTickFollows) {
  Put(Cell("F2", 1, Column::LedColumn), static_cast<int>(HarddiskLed));
  EXPECT_EQ(Element("F2").LEDTypeLayer1(), HarddiskLed);
  EXPECT_EQ(window.Document()->Steps().ToUndo().name, (StepName{StepKind::LedFunction, "F2", 1}));
  EXPECT_EQ(TextOf("F2", 1, Column::LedColumn).toStdString(), LedTypeToText(HarddiskLed));
  EXPECT_TRUE(Element("F2").SurfaceObjects().linOK1.Visible);
  window.Document()->Undo();
  EXPECT_EQ(Element("F2").LEDTypeLayer1(), LedNotEnabled);
  EXPECT_FALSE(Element("F2").SurfaceObjects().linOK1.Visible);
}

TEST_F(Overview, TheListOfAnLedHasWhatTheDialogOffersAndNone) {
  const QModelIndex cell = Cell("F2", 1, Column::LedColumn);
  Table().setCurrentIndex(cell);
  Table().edit(cell);
  const auto* const box = Table().viewport()->findChild<QComboBox*>();
  ASSERT_NE(box, nullptr);
  int offered = 1;
  for (const LedFunction& one : LedFunctions) {
    if (one.type == LedNotEnabled) continue;
    const bool has = LedIsOffered(one.type, Element("F2").VantaEnabled(), Element("F2").TargetSystem());
    EXPECT_EQ(box->findData(static_cast<int>(one.type)) >= 0, has) << one.textId;
    offered += has ? 1 : 0;
  }
  EXPECT_EQ(box->count(), offered);
  EXPECT_GT(offered, 2);
}

TEST_F(Overview, AnLedFunctionThatWouldStandTwiceIsAskedAbout) {
  Put(Cell("F2", 1, Column::LedColumn), static_cast<int>(HarddiskLed));
  const auto putAndAnswer = [&](const std::function<void(QMessageBox&)>& act) {
    Model().setData(Cell("F3", 1, Column::LedColumn), static_cast<int>(HarddiskLed), Qt::EditRole);
    AnswerNextBox(act);
    QCoreApplication::processEvents();
  };
  QString asked;
  putAndAnswer([&](QMessageBox& box) {
    asked = box.text();
    box.escapeButton()->click();
  });
  EXPECT_TRUE(asked.contains("F2"));
  EXPECT_EQ(Element("F3").LEDTypeLayer1(), LedNotEnabled);
  putAndAnswer([&](QMessageBox& box) {
    for (QAbstractButton* const button : box.buttons()) {
      if (button->text() == Say(Text::LedTwiceSet)) button->click();
    }
  });
  EXPECT_EQ(Element("F3").LEDTypeLayer1(), HarddiskLed);
}

TEST_F(Overview, OnlyNotesAndLedsThatAreThereCanBeEdited) {
  const auto editable = [&](const std::string& id, std::int32_t layer, Column column) {
    return Model().flags(Cell(id, layer, column)).testFlag(Qt::ItemIsEditable);
  };
  EXPECT_TRUE(editable("F2", 1, Column::NoteColumn));
  EXPECT_TRUE(editable("F2", 1, Column::LedColumn));
  EXPECT_FALSE(editable("F2", 1, Column::PressColumn));
  for (const PanelDocument::Place& place : window.Document()->Places()) {
    const enumTactisBaseElementType type = place.element->ElementType();
    const bool hasLed = type == Led || type == OvalLed || type == RectLed;
    EXPECT_EQ(editable(place.element->Name(), 1, Column::NoteColumn), type != Key);
    EXPECT_EQ(editable(place.element->Name(), 1, Column::LedColumn), hasLed);
  }
}

TEST_F(Overview, AKeyThatIsPressedFindsThePlacesThatSendIt) {
  constexpr int KeyF13 = 183;
  DefineByBytes("F6", {0x08, 0xF0, 0x08, 0xFF});
  PressButton().click();
  SendKey(PressButton(), KeyF13, true);
  EXPECT_EQ(Model().rowCount(), Model().LineCount()) << "the stroke is not over";
  SendKey(PressButton(), KeyF13, false);
  EXPECT_EQ(Shown(), std::vector<std::string>{"F6"});
  EXPECT_EQ(Model().rowCount(), 1);
  EXPECT_TRUE(Cell("F6", 1, Column::PressColumn).data(Qt::BackgroundRole).isValid());
  EXPECT_FALSE(Cell("F6", 1, Column::ReleaseColumn).data(Qt::BackgroundRole).isValid());
  EXPECT_FALSE(PressButton().isChecked());
}

TEST_F(Overview, AChordFindsThePlacesWhereItsKeysAreDownTogether) {
  constexpr int KeyA = 30, LeftCtrl = 29;
  DefineByBytes("F6", {0x14, 0x1C, 0xF0, 0x1C, 0xF0, 0x14, 0xFF});
  DefineByBytes("F7", {0x1C, 0xF0, 0x1C, 0xFF});
  PressButton().click();
  for (const bool down : {true, false}) {
    SendKey(PressButton(), LeftCtrl, down);
    SendKey(PressButton(), KeyA, down);
  }
  EXPECT_EQ(Shown(), std::vector<std::string>{"F6"});
}

TEST_F(Overview, TheKeysOfShortcutsAndFocusMovesAreHeardToo) {
  PressButton().click();
  QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_S, Qt::ControlModifier, 39, 0, 0);
  shortcut.ignore();
  QCoreApplication::sendEvent(&PressButton(), &shortcut);
  EXPECT_TRUE(shortcut.isAccepted());
  DefineByBytes("F6", {0x0D, 0xF0, 0x0D, 0xFF});
  QTest::keyClick(&PressButton(), Qt::Key_Tab);
  EXPECT_EQ(Shown(), std::vector<std::string>{"F6"});
}

TEST_F(Overview, AKeyThatIsPickedFindsWhatAPressedOneFinds) {
  DefineByBytes("F6", {0xE0, 0x1F, 0xE0, 0xF0, 0x1F, 0xFF});
  auto& pick = *window.Overview().findChild<QComboBox*>("PickKey");
  pick.setCurrentIndex(pick.findData(0xE01F));
  emit pick.activated(pick.currentIndex());
  EXPECT_EQ(Shown(), std::vector<std::string>{"F6"});
  Words().setText("F");
  EXPECT_EQ(pick.currentIndex(), -1) << "words take the place of the key";
}

TEST_F(Overview, LosingTheFocusEndsTheHearing) {
  PressButton().click();
  QFocusEvent out(QEvent::FocusOut);
  QCoreApplication::sendEvent(&PressButton(), &out);
  EXPECT_FALSE(PressButton().isChecked());
  SendKey(PressButton(), 30, true);
  SendKey(PressButton(), 30, false);
  EXPECT_EQ(Model().rowCount(), Model().LineCount());
}

TEST_F(Overview, SpeaksTheUsersLanguage) {
  EXPECT_EQ(Model().headerData(Column::NoteColumn, Qt::Horizontal, Qt::DisplayRole).toString(), "Note");
  surroundings.ChooseLanguage("German");
  window.SettingsChanged();
  EXPECT_EQ(Model().headerData(Column::NoteColumn, Qt::Horizontal, Qt::DisplayRole).toString(), "Notiz");
  EXPECT_EQ(TextOf("F2", 1, Column::KindColumn), Say(Text::KindRectLed));
}

}  // namespace
}  // namespace plexel::testing
