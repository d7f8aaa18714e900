#include "editor/problem_panel.h"

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QTableView>
#include <QToolButton>
#include <QToolTip>
#include <fstream>

#include "editor/texts.h"
#include "editor_fixture.h"
#include "qt/units.h"

namespace plexel::testing {
namespace {

using ::testing::HasSubstr;

/// The editor beside its list of problems.
class ProblemList : public Editor {
 protected:
  void ChangeElement(const std::string& id, const std::function<void(ctlPlexelBaseElement&)>& act) {
    const std::array place = {static_cast<std::size_t>(PlaceOf(id))};
    window.Document()->Change(StepKind::Configure, place, [&] { act(Element(id)); });
  }
  /// An error: a text without bytes.
  void GiveError(const std::string& id, const std::string& text = "[a\u2039\u203A]") {
    ChangeElement(id, [&](ctlPlexelBaseElement& element) { element.PressKeyDefLayer1(text); });
  }
  /// A warning: a LED function of a key that has no LED.
  void GiveWarning(const std::string& id) {
    ChangeElement(id, [](ctlPlexelBaseElement& element) { element.LEDTypeLayer2(UserLed); });
  }
  /// A document of keys with these names, without a window.
  std::unique_ptr<PanelDocument> DocumentOf(const std::vector<std::string>& names) {
    std::ofstream panel(File("Keys.panel"));
    panel << "[PANEL]\nTitle=Keys\nWidth=9000\nHeight=9000\nTargetSystem=Extended\nDeviceType=1\n";
    for (std::size_t key = 0; key < names.size(); ++key) {
      panel << "[KEY]\nPlace=" << key % 80 * 100 << ' ' << key / 80 * 100 << " 60 60\nElement=" << names[key]
            << "\nElementType=4\nHardwareNumberButton=" << key + 1 << "\n";
    }
    panel << "[END]\n";
    panel.close();
    return PanelDocument::New("Keys", {component, host, windowObject, files.path().toStdString()});
  }
  std::string NameOf(enumTactisBaseElementType type, int number = 0) {
    for (const PanelDocument::Place& place : window.Document()->Places()) {
      if (place.element->ElementType() == type && number-- == 0) return place.element->Name();
    }
    throw std::logic_error("no such element");
  }
  QTableView& List() { return window.ProblemList().List(); }
  int Rows() { return List().model()->rowCount(); }
  std::string Cell(int row, int column) { return List().model()->index(row, column).data().toString().toStdString(); }
  std::string Row(int row) { return Cell(row, 0) + "|" + Cell(row, 1) + "|" + Cell(row, 2) + "|" + Cell(row, 3); }
  std::string Title() { return window.ProblemList().windowTitle().toStdString(); }
  std::string CountInStatusBar() { return window.findChild<QToolButton*>("ProblemCount")->text().toStdString(); }
  std::string Current() { return window.View().Selected()->Name(); }
  EditorHost host;
  std::shared_ptr<EditorWindowObject> windowObject = std::make_shared<EditorWindowObject>();
  void GoTo(int row) { List().setCurrentIndex(List().model()->index(row, 0)); }
};

TEST_F(ProblemList, ANewProjectHasNoneAndSaysSo) {
  EXPECT_EQ(Rows(), 0);
  EXPECT_EQ(window.ProblemList().EmptyText().toStdString(), "There are no problems.");
  EXPECT_EQ(Title(), "Problems \u2013 no problems");
  EXPECT_EQ(CountInStatusBar(), "no problems");
}

TEST_F(ProblemList, AChangeAddsAndUndoTakesAway) {
  const std::string name = NameOf(Rect);
  GiveError(name);
  ASSERT_EQ(Rows(), 1);
  EXPECT_EQ(Row(0), "Error|" + name + "|1|a text stands, but on press the machine gets nothing");
  EXPECT_EQ(Title(), "Problems \u2013 1 error");
  EXPECT_EQ(CountInStatusBar(), "1 error");
  window.Document()->Undo();
  EXPECT_EQ(Rows(), 0);
  EXPECT_EQ(CountInStatusBar(), "no problems");
}

TEST_F(ProblemList, SpeaksTheLanguageOfTheUserAtOnce) {
  const std::string name = NameOf(Rect);
  GiveError(name);
  surroundings.ChooseLanguage("German");
  window.SettingsChanged();
  EXPECT_EQ(Row(0), "Fehler|" + name + "|1|ein Text steht da, aber beim Drücken erhält die Maschine nichts");
  EXPECT_EQ(Title(), "Probleme \u2013 1 Fehler");
}

TEST_F(ProblemList, RowsStandInTheOrderOfTheElementsHoweverTheyCome) {
  const std::string first = NameOf(Rect, 0), second = NameOf(Rect, 1), third = NameOf(Rect, 2);
  for (const std::string& name : {third, first, second}) GiveError(name);
  ASSERT_EQ(Rows(), 3);
  EXPECT_EQ(Cell(0, 1) + Cell(1, 1) + Cell(2, 1), first + second + third);
  ChangeElement(second, [](ctlPlexelBaseElement& element) {
    element.PressKeyDefLayer1("");
    element.ReleaseKeyDefLayer3("[a\u203A]");
    element.ReleaseKeyDefLayer4("[a\u203A]");
  });
  ASSERT_EQ(Rows(), 4);
  EXPECT_EQ(Cell(1, 2) + Cell(2, 2), "34");
  EXPECT_EQ(Cell(3, 1), third);
}

TEST_F(ProblemList, ErrorsAloneCanBeShown) {
  GiveWarning(NameOf(Rect, 0));
  window.ProblemList().ErrorsOnly().setChecked(true);
  EXPECT_EQ(Rows(), 0);
  EXPECT_EQ(window.ProblemList().EmptyText().toStdString(), "There are no errors. Warnings are not shown.");
  GiveError(NameOf(Rect, 1));
  EXPECT_EQ(Rows(), 1);
  EXPECT_EQ(Title(), "Problems \u2013 1 error, 1 warning");
  window.ProblemList().ErrorsOnly().setChecked(false);
  EXPECT_EQ(Rows(), 2);
}

TEST_F(ProblemList, ARowSelectsItsElementAndTheElementItsRow) {
  const std::string one = NameOf(Rect, 2), other = NameOf(Rect, 4);
  GiveError(one);
  GiveError(other);
  GoTo(1);
  EXPECT_EQ(Current(), other);
  window.View().Select(PlaceOf(one));
  EXPECT_EQ(List().currentIndex().row(), 0);
  window.View().Select(PlaceOf(NameOf(Rect, 3)));
  EXPECT_FALSE(List().currentIndex().isValid());
}

TEST_F(ProblemList, AChangeInTheListIsNoMoveOfTheUser) {
  const std::string one = NameOf(Rect, 2), other = NameOf(Rect, 4);
  GiveError(one);
  GiveError(other);
  GoTo(1);
  window.Document()->Undo();
  EXPECT_EQ(Current(), other);
  EXPECT_EQ(Rows(), 1);
}

TEST_F(ProblemList, AClickOnTheCurrentRowEndsAChoiceOfMany) {
  GiveError(NameOf(Rect, 2));
  GoTo(0);
  window.TheSelection().ChooseAll();
  QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier,
                    List().visualRect(List().currentIndex()).center());
  EXPECT_FALSE(window.TheSelection().IsMany());
}

TEST_F(ProblemList, ReturnOpensTheConfigurationOfTheElement) {
  const std::string name = NameOf(Rect, 2);
  GiveError(name);
  GoTo(0);
  std::string opened;
  ActOnNextForm([&](Hand&, Form& form) { opened = std::string(std::string_view(form.Name())); });
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  List().setFocus();
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_EQ(opened, "frmConfigurationDialog");
}

TEST_F(ProblemList, ADoubleClickOnANumberThatIsThereTwiceOpensTheProperties) {
  ChangeElement(NameOf(Rect, 1), [this](ctlPlexelBaseElement& element) {
    Element(NameOf(Rect, 0)).HardwareNumberButton(99);
    element.HardwareNumberButton(99);
  });
  window.SettingsChanged();
  ASSERT_EQ(Rows(), 1);
  std::string opened;
  ActOnNextForm([&](Hand&, Form& form) { opened = std::string(std::string_view(form.Name())); });
  const QPoint at = List().visualRect(List().model()->index(0, 1)).center();
  QTest::mouseClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, at);
  QTest::mouseDClick(List().viewport(), Qt::LeftButton, Qt::NoModifier, at);
  EXPECT_EQ(opened, "frmPropertiesButton");
}

TEST_F(ProblemList, ABadgeStandsAtTheElementInTheColourOfTheLevel) {
  const std::string error = NameOf(Rect, 2), warning = NameOf(Rect, 3), fine = NameOf(Rect, 4);
  GiveError(error);
  GiveWarning(warning);
  const QImage picture = window.View().grab().toImage();
  const auto middle = [&](const std::string& name, double down) {
    const QRect badge = window.View().BadgeRect(PlaceOf(name));
    const qreal ratio = picture.devicePixelRatio();
    return picture.pixelColor(QPoint(static_cast<int>((badge.left() + badge.width() * 0.3) * ratio),
                                     static_cast<int>((badge.top() + badge.height() * down) * ratio)));
  };
  EXPECT_GT(middle(error, 0.5).red(), 2 * middle(error, 0.5).green());
  EXPECT_GT(middle(warning, 0.8).green(), 2 * middle(warning, 0.8).blue());
  EXPECT_GT(middle(warning, 0.8).red(), 200);
  EXPECT_NEAR(middle(fine, 0.5).red(), middle(fine, 0.5).green(), 40);
}

TEST_F(ProblemList, TheToolTipOfAnElementSaysItsProblems) {
  const std::string name = NameOf(Rect, 2);
  GiveError(name);
  const QPoint at = Middle(name);
  QHelpEvent ask(QEvent::ToolTip, at, window.View().mapToGlobal(at));
  QApplication::sendEvent(&window.View(), &ask);
  EXPECT_THAT(QToolTip::text().toStdString(),
              HasSubstr("Error, layer 1: a text stands, but on press the machine gets nothing"));
  QToolTip::hideText();
}

TEST_F(ProblemList, TheKeyboardGoesRoundTheAreasAndTheCountLeadsToTheList) {
  GiveError(NameOf(Rect, 2));
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  window.findChild<QToolButton*>("ProblemCount")->click();
  EXPECT_TRUE(List().hasFocus());
  QTest::keyClick(&List(), Qt::Key_F6);
  EXPECT_TRUE(window.View().hasFocus());
  window.ProblemList().hide();
  QTest::keyClick(&window.View(), Qt::Key_F6);
  EXPECT_FALSE(window.ProblemList().isVisible());
}

TEST_F(ProblemList, OtherProjectsBringTheirOwn) {
  GiveError(NameOf(Rect, 2));
  ASSERT_TRUE(window.SaveProject(File("one.plexel")));
  window.NewProject("Large");
  EXPECT_EQ(Rows(), 0);
  ASSERT_TRUE(window.OpenProject(File("one.plexel")));
  EXPECT_EQ(Rows(), 1);
}

TEST_F(ProblemList, OneChangeAmongManyElementsMovesTheRowsOfItsElementAlone) {
  constexpr int Count = 2000;
  std::vector<std::string> names;
  for (int key = 0; key < Count; ++key) names.push_back("K" + std::to_string(key));
  const auto document = DocumentOf(names);
  for (const PanelDocument::Place& place : document->Places()) place.element->PressKeyDefLayer1("[a]");
  LiveProblems problems;
  problems.Show(document.get());
  ProblemModel model(problems);
  model.Reset();
  ASSERT_EQ(model.rowCount(), Count);
  int resets = 0;
  std::vector<int> removed;
  QObject::connect(&model, &ProblemModel::modelReset, &context, [&] { ++resets; });
  QObject::connect(&model, &ProblemModel::rowsRemoved, &context,
                   [&](const QModelIndex&, int first, int last) { removed = {first, last}; });
  problems.onChanged = [&](std::span<const std::size_t> places) { model.Update(places); };
  document->Places()[700].element->PressKeyDefLayer1("");
  problems.Changed(std::array<std::size_t, 1>{700});
  EXPECT_EQ(resets, 0);
  EXPECT_EQ(removed, (std::vector<int>{700, 700}));
  EXPECT_EQ(model.rowCount(), Count - 1);
}

}  // namespace
}  // namespace plexel::testing
