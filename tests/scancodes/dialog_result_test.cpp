#include "scancodes/dialog_result.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "scancodes/scancode_session.h"

namespace plexel {
namespace {

using Texts = std::vector<std::string>;

/// The press texts of the four layers, then the release texts.
Texts DefinitionsOf(const ctlPlexelBaseElement& element) {
  Texts texts;
  for (int layer = 1; layer <= LayerCount; ++layer) texts.push_back(element.PressKeyDefLayer(layer));
  for (int layer = 1; layer <= LayerCount; ++layer) texts.push_back(element.ReleaseKeyDefLayer(layer));
  return texts;
}

Texts Alike(const std::string& press, const std::string& release) {
  return {press, press, press, press, release, release, release, release};
}

void Define(ctlPlexelBaseElement& element, const std::string& press, const std::string& release) {
  for (int layer = 1; layer <= LayerCount; ++layer) {
    element.PressKeyDefLayer(layer, press);
    element.ReleaseKeyDefLayer(layer, release);
  }
}

void FillGrid(StandInConfigurationDialog& dialog) {
  for (int row = 1; row <= 4; ++row) {
    dialog.msgScanCodes.Current(row, 1);
    dialog.msgScanCodes.Text("press " + std::to_string(row));
    dialog.msgScanCodes.Current(row, 2);
    dialog.msgScanCodes.Text("release " + std::to_string(row));
  }
}
const Texts gridTexts = {"press 1",   "press 2",   "press 3",   "press 4",
                         "release 1", "release 2", "release 3", "release 4"};

void PickLeds(StandInConfigurationDialog& dialog) {
  dialog.cmbLEDTypes[0].Text("text 10400");
  dialog.cmbLEDTypes[1].Text("text 10401");
  dialog.cmbLEDTypes[2].Text("text 10961");
  dialog.cmbLEDTypes[3].Text("no function at all");
}

std::vector<int> LedsOf(const ctlPlexelBaseElement& element) {
  return {element.LEDTypeLayer1(), element.LEDTypeLayer2(), element.LEDTypeLayer3(), element.LEDTypeLayer4()};
}
const std::vector<int> pickedLeds = {UserLed, HarddiskLed, RunLed, LedNotEnabled};
const std::vector<int> noLeds = {LedNotEnabled, LedNotEnabled, LedNotEnabled, LedNotEnabled};

TEST(DialogResult, TheGridGoesIntoTheElementAndIsLeftOnItsLastCell) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    FillGrid(dialog);
    dialog.msgScanCodes.Current(1, 1);
    ReadGridIntoElement();
    EXPECT_EQ(DefinitionsOf(*session.element), gridTexts);
    EXPECT_EQ(dialog.msgScanCodes.Row(), 4);
    EXPECT_EQ(dialog.msgScanCodes.Col(), 2);
  });
}

TEST(DialogResult, TheGridReaderHasNoGuard) {
  ScanCodeSession session;
  EXPECT_THROW(ReadGridIntoElement(), Failure);
  EXPECT_THROW(ReadLedCombosIntoElement(), Failure);
}

TEST(DialogResult, LedTextsBecomeLedFunctions) {
  ScanCodeSession session;
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    PickLeds(dialog);
    ReadLedCombosIntoElement();
    EXPECT_EQ(LedsOf(*session.element), pickedLeds);
  });
}

struct Stored {
  enumTactisBaseElementType type;
  bool grid, leds;
};

TEST(DialogResult, TheElementTypeTellsWhatTheConfigurationDialogStores) {
  constexpr Stored rows[] = {{Oval, true, false}, {OvalLed, true, true},
                             {Rect, true, false}, {RectLed, true, true},
                             {Key, false, false}, {static_cast<enumTactisBaseElementType>(0), false, false}};
  for (const Stored& row : rows) {
    ScanCodeSession session;
    session.element->ElementType(row.type);
    Define(*session.element, "old", "old");
    session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
      FillGrid(dialog);
      PickLeds(dialog);
      dialog.txtButtonNotes.Text("a note");
      ApplyDialogResult(0);
    });
    EXPECT_EQ(session.element->ButtonNotes(), "a note") << row.type;
    EXPECT_EQ(DefinitionsOf(*session.element), row.grid ? gridTexts : Alike("old", "old")) << row.type;
    EXPECT_EQ(LedsOf(*session.element), row.leds ? pickedLeds : noLeds) << row.type;
  }
}

TEST(DialogResult, AnLedLosesAllDefinitionsWhateverTheGridShows) {
  ScanCodeSession session;
  session.element->ElementType(Led);
  Define(*session.element, "old", "old");
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    FillGrid(dialog);
    PickLeds(dialog);
    ApplyDialogResult(0);
  });
  EXPECT_EQ(DefinitionsOf(*session.element), Alike("", ""));
  EXPECT_EQ(LedsOf(*session.element), pickedLeds);
}

TEST(DialogResult, ApplyingUpdatesTheDefinedMark) {
  ScanCodeSession session;
  session.element->ShowDefined(True);
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    ApplyDialogResult(0);
    EXPECT_FALSE(session.element->SurfaceObjects().linOK1.Visible);
    FillGrid(dialog);
    ApplyDialogResult(0);
    EXPECT_TRUE(session.element->SurfaceObjects().linOK1.Visible);
  });
}

TEST(DialogResult, AKeyIsNeverMarkedAsDefined) {
  ScanCodeSession session;
  session.element->ShowDefined(True);
  session.element->ElementType(Key);
  Define(*session.element, "[a" + M + "]", "");
  session.element->LEDTypeLayer1(PowerLed);
  session.InConfigurationDialog([](StandInConfigurationDialog&) { ApplyDialogResult(0); });
  EXPECT_FALSE(session.element->SurfaceObjects().linOK1.Visible);
}

TEST(DialogResult, AnotherTargetMovesNothingAndUpdatesTheMark) {
  ScanCodeSession session;
  session.element->ShowDefined(True);
  Define(*session.element, "old", "old");
  session.element->ShowDefinedObject(False);
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    FillGrid(dialog);
    ApplyDialogResult(1);
  });
  EXPECT_EQ(DefinitionsOf(*session.element), Alike("old", "old"));
  EXPECT_TRUE(session.element->SurfaceObjects().linOK1.Visible);
}

TEST(DialogResult, AFailingLedTextEndsQuietlyAndKeepsTheNote) {
  ScanCodeSession session;
  session.element->ElementType(RectLed);
  session.InConfigurationDialog([&](StandInConfigurationDialog& dialog) {
    FillGrid(dialog);
    dialog.txtButtonNotes.Text("a note");
    session.platform.faults.Turn(Fault::Language, true);
    ApplyDialogResult(0);
  });
  EXPECT_EQ(session.element->ButtonNotes(), "a note");
  EXPECT_EQ(DefinitionsOf(*session.element), Alike("", ""));
}

TEST(DialogResult, WithoutADialogNothingHappens) {
  ScanCodeSession session;
  Define(*session.element, "old", "old");
  ApplyDialogResult(0);
  ApplyDialogResult(2);
  EXPECT_EQ(DefinitionsOf(*session.element), Alike("old", "old"));
}

/// The definitions after the wizard has been applied with this key type and text, on an element that held "old".
Texts Applied(int keyType, const std::string& text) {
  ScanCodeSession session;
  Define(*session.element, "old", "old");
  session.InWizard([&](StandInWizardPage& page) {
    if (keyType >= 0) page.optKeyType[static_cast<std::size_t>(keyType)].Value(true);
    page.txtScanCodes.Text(keyType == 0 || keyType == 1 ? text : "other");
    page.cmdSpecialIPCFunction.Text(keyType == 2 ? text : "other");
    page.cmbWindowsShortCuts.Text(keyType == 3 || keyType == -1 ? text : "other");
    ApplyDialogResult(2);
  });
  return DefinitionsOf(*session.element);
}

TEST(DialogResult, ANormalKeySendsAllOnPressAndKeepsTheReleaseText) {
  EXPECT_EQ(Applied(0, "a"), Alike("[a" + M + B + "]", "old"));
  EXPECT_EQ(Applied(0, ""), Alike("", "old"));
}

TEST(DialogResult, ATipKeySendsMakeOnPressAndBreakOnRelease) {
  EXPECT_EQ(Applied(1, "a"), Alike("[a" + M + "]", "[a" + B + "]"));
  EXPECT_EQ(Applied(1, ""), Alike("", ""));
}

TEST(DialogResult, APanelFunctionEmptiesTheReleaseText) {
  EXPECT_EQ(Applied(2, "Reset"), Alike("[Reset" + M + B + "]", ""));
  EXPECT_EQ(Applied(2, ""), Alike("[" + M + B + "]", ""));
}

TEST(DialogResult, ABodyWithAnOpeningBracketKeepsTheOldTexts) {
  EXPECT_EQ(Applied(0, "a["), Alike("old", "old"));
  EXPECT_EQ(Applied(1, "a["), Alike("old", "old"));
  EXPECT_EQ(Applied(2, "a["), Alike("old", "old"));
}

TEST(DialogResult, AClosingBracketIsNoReasonToKeepTheOldTexts) {
  EXPECT_EQ(Applied(0, "a]"), Alike("[a]" + M + B + "]", "old"));
}

TEST(DialogResult, AShortCutIsNeverRefusedAndGetsRoundBrackets) {
  EXPECT_EQ(Applied(3, "Alt [left]"), Alike("[Alt (left)" + M + "]", "[Alt (left)" + B + "]"));
  EXPECT_EQ(Applied(3, ""), Alike("[" + M + "]", "[" + B + "]"));
}

TEST(DialogResult, WithoutAKeyTypeTheShortCutIsTaken) {
  EXPECT_EQ(Applied(-1, "Tab"), Alike("[Tab" + M + "]", "[Tab" + B + "]"));
}

}  // namespace
}  // namespace plexel
