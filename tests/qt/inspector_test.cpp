#include "editor/inspector.h"

#include <gmock/gmock.h>

#include <QPlainTextEdit>

#include "editor/text_line.h"
#include "editor_fixture.h"
#include "qt/units.h"

namespace plexel::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

/// The editor beside its inspector.
class InspectorTest : public Editor {
 protected:
  void Configure(const std::string& id, const std::function<void(ctlPlexelBaseElement&)>& act) {
    const std::array place = {static_cast<std::size_t>(PlaceOf(id))};
    window.Document()->Change(StepKind::Configure, place, [&] { act(Element(id)); });
  }
  std::string Told() { return window.TheInspector().Content().toStdString(); }
  QPlainTextEdit& Notes() { return window.TheInspector().Notes(); }
  /// The link that says this.
  TextLine& Link(const std::string& text) {
    for (QWidget* const child : window.TheInspector().findChildren<QWidget*>()) {
      auto* const line = dynamic_cast<TextLine*>(child);
      if (line != nullptr && line->Content().contains(ToQt(text)) && line->isVisible()) return *line;
    }
    throw std::logic_error("no link " + text);
  }
  std::string OpenedBy(const std::function<void()>& act) {
    const auto opened = std::make_shared<std::string>();
    ActOnNextForm([opened](Hand&, Form& form) { *opened = std::string(std::string_view(form.Name())); });
    act();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !opened->empty(); }, 2000));
    return *opened;
  }
};

TEST_F(InspectorTest, TellsKindNumbersLayersAndRoomOfTheSelectedElement) {
  Configure("F5", [](ctlPlexelBaseElement& element) {
    element.PressKeyDefLayer1("[a\u2039\u203A]");
    element.LEDTypeLayer3(PowerLed);
    udtTactisBaseElement_ScanCodeInfo record = element.TactisBaseElementScanCodeBuffer();
    udtTactisBaseElement_TACTIS_SCANCODE& press = *PressBuffer(record, 1);
    std::ranges::copy(std::array<std::uint8_t, 5>{0xFF, 0x1C, 0xF0, 0x1C, 0xFF}, press.Value.begin());
    press.NextValue = 4;
    element.TactisBaseElementScanCodeBuffer(record);
  });
  window.View().Select(PlaceOf("F5"));
  EXPECT_THAT(Told(), HasSubstr("F5\nRectangular key with LED\n"));
  EXPECT_THAT(Told(),
              HasSubstr("Layer 1 | bytes: 3 used, 20 free\nPress | [a\u2039\u203A]\nRelease | \u2013\nLED | \u2013\n"));
  EXPECT_THAT(Told(), HasSubstr("Layer 2 | bytes: 0 used, 23 free\n"));
  EXPECT_THAT(Told(), Not(HasSubstr("nothing to configure")));
}

TEST_F(InspectorTest, RoomIsThatOfTheElementWhateverLimitIsInForce) {
  window.View().Select(PlaceOf("F5"));
  Configure("F5", [](ctlPlexelBaseElement& element) { element.VantaEnabled(False); });
  window.TheInspector().Refresh();
  EXPECT_THAT(Told(), HasSubstr("bytes: 0 used, 44 free"));
}

TEST_F(InspectorTest, TellsOfKeysAndLedsOnlyWhereThereAreAny) {
  window.View().Select(PlaceOf("S1"));
  EXPECT_THAT(Told(), HasSubstr("Press"));
  EXPECT_THAT(Told(), Not(HasSubstr("LED")));
  window.View().Select(PlaceOf("K2"));
  EXPECT_THAT(Told(), HasSubstr("nothing to configure"));
  EXPECT_THAT(Told(), Not(HasSubstr("Layer")));
}

TEST_F(InspectorTest, OfManyItTellsWhatTheyShare) {
  Configure("F1", [](ctlPlexelBaseElement& element) { element.PressKeyDefLayer2("[x]"); });
  window.TheSelection().Choose({PlaceOf("F1"), PlaceOf("F2")}, PlaceOf("F1"));
  EXPECT_THAT(Told(), HasSubstr("2 elements selected\nRectangular key with LED\n"));
  EXPECT_THAT(Told(), HasSubstr("Press | differs"));
  EXPECT_THAT(Told(), HasSubstr("Problems: 1 error"));
  window.TheSelection().Choose({PlaceOf("F1"), PlaceOf("S1")}, PlaceOf("F1"));
  EXPECT_THAT(Told(), HasSubstr("2 elements selected\ndiffers\n"));
  EXPECT_TRUE(Notes().isReadOnly());
}

TEST_F(InspectorTest, SpeaksTheLanguageOfTheUserAtOnce) {
  surroundings.ChooseLanguage("German");
  window.SettingsChanged();
  window.View().Select(PlaceOf("F5"));
  EXPECT_THAT(Told(), HasSubstr("Ebene 1 | Bytes: 0 belegt, 23 frei\nDrücken | "));
}

TEST_F(InspectorTest, NotesAreEditedInPlaceAsOneStep) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  window.View().Select(PlaceOf("F5"));
  Notes().setFocus();
  QTest::keyClicks(&Notes(), "opens valve");
  EXPECT_EQ(Element("F5").ButtonNotes(), "") << "while it is being typed";
  window.View().setFocus();
  EXPECT_EQ(Element("F5").ButtonNotes(), "opens valve");
  EXPECT_EQ(window.Document()->Steps().ToUndo().name.kind, StepKind::Notes);
  window.Document()->Undo();
  EXPECT_EQ(Element("F5").ButtonNotes(), "");
  EXPECT_EQ(Notes().toPlainText(), "");
  EXPECT_FALSE(window.Document()->Steps().CanUndo());
}

TEST_F(InspectorTest, NotesThatAreTypedGoToTheirElementWhenAnotherIsSelected) {
  window.View().Select(PlaceOf("F5"));
  Notes().setPlainText("mine");
  window.View().Select(PlaceOf("F6"));
  EXPECT_EQ(Element("F5").ButtonNotes(), "mine");
  EXPECT_EQ(Element("F6").ButtonNotes(), "");
  EXPECT_EQ(Notes().toPlainText(), "");
}

TEST_F(InspectorTest, EscapeGivesTypedNotesUp) {
  ChangeNotes("F5", "before");
  window.View().Select(PlaceOf("F5"));
  Notes().setPlainText("other");
  QTest::keyClick(&Notes(), Qt::Key_Escape);
  EXPECT_EQ(Notes().toPlainText(), "before");
}

TEST_F(InspectorTest, NotesEndAtTheirLimit) {
  window.View().Select(PlaceOf("F5"));
  Notes().setPlainText(QString(Inspector::MostNotes, 'x'));
  Notes().insertPlainText("y");
  EXPECT_EQ(Notes().toPlainText(), QString(Inspector::MostNotes, 'x'));
}

TEST_F(InspectorTest, LineEndsOfNotesStay) {
  ChangeNotes("F5", "a\r\nb");
  window.View().Select(PlaceOf("F5"));
  EXPECT_EQ(Notes().toPlainText(), "a\nb");
  Notes().setPlainText("a\nc");
  window.TheInspector().Commit();
  EXPECT_EQ(Element("F5").ButtonNotes(), "a\r\nc");
}

TEST_F(InspectorTest, EntriesOpenWhereTheyAreChanged) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  Configure("F5", [](ctlPlexelBaseElement& element) { element.PressKeyDefLayer2("[x]"); });
  window.View().Select(PlaceOf("F5"));
  QApplication::processEvents();
  EXPECT_EQ(OpenedBy([&] { QTest::keyClick(&Link("Layer 2"), Qt::Key_Return); }), "frmConfigurationDialog");
  EXPECT_EQ(OpenedBy([&] { Link("Key ").click(); }), "frmPropertiesButton");
  EXPECT_EQ(OpenedBy([&] { Link("a text stands").click(); }), "frmConfigurationDialog");
}

TEST_F(InspectorTest, ALongTextWithoutBlanksIsNoWiderThanItsPlace) {
  window.View().Select(PlaceOf("F5"));
  const int width = window.TheInspector().width();
  Configure("F5", [](ctlPlexelBaseElement& element) { element.PressKeyDefLayer1("<b>" + std::string(500, 'w')); });
  QApplication::processEvents();
  EXPECT_EQ(window.TheInspector().width(), width);
  EXPECT_THAT(Told(), HasSubstr("<b>www"));
}

}  // namespace
}  // namespace plexel::testing
