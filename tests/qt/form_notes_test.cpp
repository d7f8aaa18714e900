#include <QDialog>
#include <QLabel>
#include <algorithm>

#include "configdialog/frmConfigurationDialog.h"
#include "editor_fixture.h"
#include "services/dialogs.h"

namespace plexel::testing {
namespace {

/// What the editor says under its dialogs.
class FormNotes : public Editor {
 protected:
  FormNotes() {
    Element("F5").VantaEnabled(False);
    Element("F5").WizardOn(False);
  }

  const QLabel* Note() { return platform.Modal().Topmost()->Window().findChild<QLabel*>("FormNote"); }
  std::string Said() {
    return Note() == nullptr ? "" : Note()->text().replace("&nbsp;", " ").simplified().toStdString();
  }
  int WindowHeight() { return platform.Modal().Topmost()->Window().height(); }
  /// Opens the configuration of F5 and acts in its first form.
  void WhileConfiguring(const std::function<void(Hand&, Form&)>& act) {
    bool acted = false;
    ActOnNextForm([&](Hand& hand, Form& form) {
      acted = true;
      act(hand, form);
    });
    Element("F5").OpenConfigurationDialog();
    EXPECT_TRUE(acted);
  }
  void Key(std::int32_t virtualKey, std::int32_t scanCode, bool down) {
    platform.Hooks().Deliver({virtualKey, scanCode, false, down, 0}, false);
    platform.Modal().SyncAll();
  }
  void StrokeA() {
    Key(0x41, 0x1E, true);
    Key(0x41, 0x1E, false);
  }
  /// Gives the press buffer of layer 1 of F5 one group of so many code bytes.
  void Fill(std::int32_t count) {
    auto record = Element("F5").TactisBaseElementScanCodeBuffer();
    auto& buffer = record.strLayer1PressScanCode;
    std::fill_n(buffer.Value.begin() + 1, count, std::uint8_t{0x1C});
    buffer.Value.at(static_cast<std::size_t>(count) + 1) = 0xFF;
    buffer.NextValue = count + 1;
    Element("F5").TactisBaseElementScanCodeBuffer(record);
  }
};

Grid& GridOf(Form& form) { return static_cast<frmConfigurationDialog&>(form).msgScanCodes; }

constexpr const char* Rest = " · layer 2: 0 / 44 · layer 3: 0 / 44 · layer 4: 0 / 44";

TEST_F(FormNotes, TheRoomOfEachLayerStandsUnderTheConfigurationDialogAndFollowsTheRecording) {
  WhileConfiguring([&](Hand& hand, Form& form) {
    EXPECT_EQ(Said(), std::string("Code bytes used / free: layer 1: 0 / 44") + Rest);
    hand.DblClick(GridOf(form), 1, 1);
    StrokeA();
    EXPECT_EQ(Said(), std::string("Code bytes used / free: layer 1: 3 / 41") + Rest);
    StrokeA();
    EXPECT_EQ(Said(), std::string("Code bytes used / free: layer 1: 6 / 38") + Rest);
  });
}

TEST_F(FormNotes, ATargetWithLessRoomIsToldAsSuch) {
  Element("F5").VantaEnabled(True);
  WhileConfiguring(
      [&](Hand&, Form&) { EXPECT_EQ(Said().find("Code bytes used / free: layer 1: 0 / 23"), 0U) << Said(); });
}

TEST_F(FormNotes, ALayerThatRefusesKeysSaysSoUntilSomethingChangesAndTheWindowKeepsItsSize) {
  Fill(42);
  WhileConfiguring([&](Hand& hand, Form& form) {
    EXPECT_EQ(Said(), std::string("Code bytes used / free: <b>layer 1: 42 / 2</b>") + Rest);
    const int height = WindowHeight();
    const QColor calm = Note()->palette().color(QPalette::Window);
    hand.DblClick(GridOf(form), 1, 1);
    Key(0x41, 0x1E, true);
    EXPECT_EQ(Said().find("Code bytes"), 0U);
    Key(0x41, 0x1E, false);
    EXPECT_EQ(Said(), "Layer 1 has no room for the last keys (bytes free: 2). They were not stored.");
    EXPECT_NE(Note()->palette().color(QPalette::Window), calm);
    EXPECT_EQ(WindowHeight(), height);
    hand.Click(GridOf(form), 2, 1);
    platform.Modal().SyncAll();
    EXPECT_EQ(Said().find("Code bytes"), 0U);
    StrokeA();
    EXPECT_NE(Said().find("layer 2: 3 / 41"), std::string::npos);
    hand.Click(GridOf(form), 1, 2);
    StrokeA();
    EXPECT_EQ(Said().find("Layer 1 has no room"), 0U);
    hand.DblClick(GridOf(form), 1, 2);
    platform.Modal().SyncAll();
    EXPECT_EQ(Said().find("Code bytes"), 0U);
    EXPECT_EQ(Note()->palette().color(QPalette::Window), calm);
  });
}

TEST_F(FormNotes, NothingStandsUnderTheDialogOfAnLedAndUnderOtherForms) {
  Element("F5").ElementType(Led);
  WhileConfiguring([&](Hand&, Form&) { EXPECT_EQ(Note(), nullptr); });
  ActOnNextForm([&](Hand&, Form&) { EXPECT_EQ(Note(), nullptr); });
  Element("F5").OpenPropertiesDialog();
}

TEST_F(FormNotes, TheLastPageOfTheWizardTellsWhatTheElementHolds) {
  Element("F5").ElementType(Rect);
  Element("F5").WizardOn(True);
  const auto finish = [&](const std::function<void(Hand&, Form&)>& first) {
    std::string said;
    WhileConfiguring([&](Hand& hand, Form& form) {
      EXPECT_EQ(form.Name(), dialogs::frmButtonWizardPage1);
      EXPECT_EQ(Note(), nullptr);
      first(hand, form);
      ActOnNextForm([&](Hand& last, Form& page) {
        EXPECT_EQ(page.Name(), dialogs::frmButtonWizardPage3);
        said = Said();
        last.Click(*page.Find("cmdOK"));
      });
      hand.Click(*form.Find("cmdForward"));
    });
    return said;
  };
  EXPECT_EQ(finish([](Hand&, Form&) {}), "Nothing is stored in the element: no key codes and no LED function.");
  const std::string stored = finish([&](Hand& hand, Form& form) {
    hand.DblClick(*form.Find("txtScanCodes"));
    StrokeA();
  });
  EXPECT_EQ(stored, "Stored in the element. All layers: [a\u2039\u203A]");
}

}  // namespace
}  // namespace plexel::testing
