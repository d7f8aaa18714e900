#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTextBrowser>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "editor/inspector.h"
#include "editor/layers_dialog.h"
#include "editor/log_panel.h"
#include "editor/overview_panel.h"
#include "editor/problem_panel.h"
#include "editor/settings_dialog.h"
#include "editor/texts.h"
#include "editor_fixture.h"
#include "files/file_error.h"
#include "files/language_file.h"
#include "services/dialogs.h"
#include "services/shared_services.h"

namespace plexel::testing {
namespace {

constexpr const char* Definition = "[Ctrl Left+a\u2039\u203A]";

std::string BytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// Every number of the editor's own texts in a language file.
std::vector<std::int32_t> OwnNumbers(const LanguageTexts& texts) {
  std::vector<std::int32_t> numbers;
  for (const auto& [number, text] : texts) {
    if (number >= 20000) numbers.push_back(number);
  }
  return numbers;
}

TEST(EditorTexts, BothLanguagesHaveTheSameOfThem) {
  const auto english = ReadLanguageFile(DataDirectory() / "languages" / "English.lang");
  const auto german = ReadLanguageFile(DataDirectory() / "languages" / "German.lang");
  EXPECT_EQ(OwnNumbers(english), OwnNumbers(german));
  EXPECT_GT(OwnNumbers(english).size(), 60U);
}

TEST_F(Editor, WhatIsToldAtTheStartStandsOverItsWindow) {
  window.hide();
  bool shown = false;
  AnswerNextBox([&](QMessageBox& box) { shown = window.isVisible() && box.parentWidget() == &window; });
  EXPECT_FALSE(window.OpenProject(File("missing.plexel")));
  EXPECT_TRUE(shown);
}

TEST_F(Editor, AClickMovesTheFocusAndRaisesItsEvents) {
  QTest::mouseClick(&window.View(), Qt::LeftButton, Qt::NoModifier, Middle("F5"));
  EXPECT_EQ(window.View().Selected(), &Element("F5"));
  EXPECT_EQ(Element("F5").FocusVisible(), True);
  EXPECT_TRUE(Element("F5").SurfaceObjects().shpRect.Visible);
  EXPECT_TRUE(window.Log().Calls().contains("F5: SendKeyDefinition("));
  EXPECT_TRUE(window.Log().Calls().contains("F5: MouseClicked(1, 0, "));
}

TEST_F(Editor, OnlyOneElementShowsTheFocus) {
  window.View().Select(PlaceOf("F1"));
  window.View().Select(PlaceOf("F2"));
  EXPECT_EQ(Element("F1").FocusVisible(), False);
  EXPECT_FALSE(Element("F1").SurfaceObjects().shpRect.Visible);
  EXPECT_TRUE(Element("F2").SurfaceObjects().shpRect.Visible);
}

TEST_F(Editor, TabGoesFromElementToElementAndRound) {
  const int count = static_cast<int>(window.Document()->Places().size());
  window.View().Select(count - 1);
  Press(Qt::Key_Tab);
  EXPECT_EQ(window.Document()->PlaceOf(*window.View().Selected()), 0);
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(window.Document()->PlaceOf(*window.View().Selected()), count - 1);
}

TEST_F(Editor, TheArrowKeysGoToTheNearestElement) {
  window.View().Select(PlaceOf("F5"));
  Press(Qt::Key_Right);
  EXPECT_EQ(window.View().Selected()->Name(), "F6");
  Press(Qt::Key_Down);
  EXPECT_EQ(window.View().Selected()->Name(), "F18");
  Press(Qt::Key_Left);
  EXPECT_EQ(window.View().Selected()->Name(), "F17");
  Press(Qt::Key_Up);
  EXPECT_EQ(window.View().Selected()->Name(), "F5");
}

TEST_F(Editor, ReturnOpensTheConfigurationDialog) {
  window.View().Select(PlaceOf("F5"));
  std::string shown;
  ActOnNextForm([&](Hand&, Form& form) { shown = form.Name(); });
  Press(Qt::Key_Return);
  EXPECT_EQ(shown, dialogs::frmConfigurationDialog);
}

TEST_F(Editor, ADoubleClickOpensTheConfigurationDialog) {
  std::string shown;
  ActOnNextForm([&](Hand&, Form& form) { shown = form.Name(); });
  QTest::mouseDClick(&window.View(), Qt::LeftButton, Qt::NoModifier, Middle("F5"));
  EXPECT_EQ(shown, dialogs::frmConfigurationDialog);
  EXPECT_TRUE(window.Log().Calls().contains("F5: MouseDblClicked()"));
}

TEST_F(Editor, AltReturnOpensTheProperties) {
  window.View().Select(PlaceOf("F5"));
  std::string shown;
  ActOnNextForm([&](Hand&, Form& form) { shown = form.Name(); });
  Press(Qt::Key_Return, Qt::AltModifier);
  EXPECT_EQ(shown, dialogs::frmPropertiesButton);
}

TEST_F(Editor, OkOfADialogMakesTheProjectModified) {
  EXPECT_FALSE(window.isWindowModified());
  ActOnNextForm([](Hand& hand, Form& form) { hand.Click(*form.Find("cmdOK")); });
  QTest::mouseDClick(&window.View(), Qt::LeftButton, Qt::NoModifier, Middle("F5"));
  EXPECT_TRUE(window.Document()->Modified());
  EXPECT_TRUE(window.isWindowModified());
}

TEST_F(Editor, AConfigurationIsTakenBackAndDoneAgainByKeys) {
  const udtTactisBaseElement_ScanCodeInfo before = Element("F5").TactisBaseElementScanCodeBuffer();
  ActOnNextForm([](Hand& hand, Form& form) { hand.Click(*form.Find("cmdOK")); });
  QTest::mouseDClick(&window.View(), Qt::LeftButton, Qt::NoModifier, Middle("F5"));
  const udtTactisBaseElement_ScanCodeInfo after = Element("F5").TactisBaseElementScanCodeBuffer();
  ASSERT_NE(after, before);
  QAction* const undo = window.findChild<QAction*>("Undo");
  ASSERT_NE(undo, nullptr);
  EXPECT_EQ(undo->text(), "&Undo: configure F5");
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Element("F5").TactisBaseElementScanCodeBuffer(), before);
  EXPECT_FALSE(window.isWindowModified());
  EXPECT_FALSE(undo->isEnabled());
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Element("F5").TactisBaseElementScanCodeBuffer(), after);
  Press(Qt::Key_Z, Qt::ControlModifier);
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Element("F5").TactisBaseElementScanCodeBuffer(), after);
}

TEST_F(Editor, ADialogThatIsCancelledIsNoStep) {
  ActOnNextForm([](Hand& hand, Form& form) { hand.Click(*form.Find("cmdCancel")); });
  QTest::mouseDClick(&window.View(), Qt::LeftButton, Qt::NoModifier, Middle("F5"));
  EXPECT_FALSE(window.Document()->Steps().CanUndo());
}

TEST_F(Editor, CancelOfADialogLeavesTheProjectUnmodified) {
  ActOnNextForm([](Hand& hand, Form& form) { hand.Click(*form.Find("cmdCancel")); });
  QTest::mouseDClick(&window.View(), Qt::LeftButton, Qt::NoModifier, Middle("F5"));
  EXPECT_FALSE(window.Document()->Modified());
}

TEST_F(Editor, TheContainerKnowsTheLedFunctionsOfAllElements) {
  Element("F5").LEDTypeLayer2(AlarmLed);
  EXPECT_EQ(Element("F1").CheckIfLedIsAlreadyDefined(AlarmLed, 2), True);
  EXPECT_EQ(Element("F1").CheckIfLedIsAlreadyDefined(AlarmLed, 1), False);
  EXPECT_EQ(Element("F1").CheckIfLedIsAlreadyDefined(RunLed, 2), False);
}

TEST_F(Editor, ZoomGoesToAllElementsAndStaysInItsBounds) {
  const PanelView& view = window.View();
  window.SetZoom(200);
  for (const char* const place : {"F1", "F18"}) {
    EXPECT_EQ(view.PlaceRect(PlaceOf(place)).width(), 2 * Element(place).SizeX());
    EXPECT_EQ(Element(place).ZoomFactor(), 200);
  }
  window.SetZoom(100000);
  EXPECT_EQ(view.PlaceRect(PlaceOf("F1")).width(), 4 * Element("F1").SizeX());
  EXPECT_EQ(Element("F1").ZoomFactor(), 400);
  window.SetZoom(1);
  EXPECT_EQ(view.PlaceRect(PlaceOf("F1")).width(), Element("F1").SizeX() / 4);
  EXPECT_EQ(Element("F1").ZoomFactor(), 25);
}

TEST_F(Editor, TheStatusLineTellsKindNumbersAndDefinitions) {
  Element("F5").PressKeyDefLayer1(Definition);
  window.View().Select(PlaceOf("F5"));
  const QString status = window.StatusText();
  EXPECT_TRUE(status.contains("Rectangular key with LED")) << status.toStdString();
  EXPECT_TRUE(status.contains("Key " + QString::number(Element("F5").HardwareNumberButton())));
  EXPECT_TRUE(status.contains(QString("Layer 1: ") + Definition)) << status.toStdString();
}

TEST_F(Editor, TheStatusLineNamesLedFunctionsAsSuchAndEqualLayersOnce) {
  Element("F5").PressKeyDefLayer1(Definition);
  Element("F5").LEDTypeLayer1(PowerLed);
  window.View().Select(PlaceOf("F5"));
  EXPECT_TRUE(window.StatusText().endsWith(QString("Layer 1: ") + Definition + "  LED Power"))
      << window.StatusText().toStdString();
  window.View().Select(PlaceOf("F6"));
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) Element("F5").LEDTypeLayer(layer, PowerLed);
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) Element("F5").PressKeyDefLayer(layer, Definition);
  window.View().Select(PlaceOf("F5"));
  EXPECT_TRUE(window.StatusText().endsWith(QString("All layers: ") + Definition + "  LED Power"))
      << window.StatusText().toStdString();
}

TEST_F(Editor, ConfigureIsOffForAKeySwitchAndSaysWhy) {
  const QAction* const configure = window.findChild<QAction*>("Configure");
  Element("F6").ElementType(Key);
  window.View().Select(PlaceOf("F6"));
  EXPECT_FALSE(configure->isEnabled());
  EXPECT_EQ(configure->text(), "&Configure: a key switch has nothing to configure");
  EXPECT_TRUE(window.StatusText().endsWith("nothing to configure")) << window.StatusText().toStdString();
  window.View().Select(PlaceOf("F5"));
  EXPECT_TRUE(configure->isEnabled());
  EXPECT_EQ(configure->text(), "&Configure...");
}

TEST_F(Editor, AProjectComesBackWithTextsCodesAndKinds) {
  Element("F5").PressKeyDefLayer1(Definition);
  Element("F5").ButtonNotes("note");
  auto record = Element("F5").TactisBaseElementScanCodeBuffer();
  record.strLayer1PressScanCode.Value[0] = 0x14;
  record.strLayer1PressScanCode.Value[1] = 0xFF;
  record.strLayer1PressScanCode.NextValue = 1;
  Element("F5").TactisBaseElementScanCodeBuffer(record);
  const auto saved = Element("F5").TactisBaseElementScanCodeBuffer();
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  ASSERT_TRUE(window.NewProject("Large"));
  ASSERT_TRUE(window.OpenProject(File("a.plexel")));
  EXPECT_EQ(Element("F5").TactisBaseElementScanCodeBuffer(), saved);
  EXPECT_EQ(Element("L1").ElementType(), Led);
  EXPECT_EQ(Element("F5").SizeY(), window.Document()->ThePanel().Find("F5")->element->sizeY);
  EXPECT_EQ(Element("F5").OriginalPosY(), window.Document()->ThePanel().Find("F5")->box.top);
  EXPECT_EQ(Element("F5").VantaEnabled(), window.Document()->ThePanel().vantaEnabled);
  EXPECT_EQ(Element("F5").DeviceType(), window.Document()->ThePanel().deviceType);
  EXPECT_NE(Element("F5").ParentWindow(), nullptr);
  EXPECT_FALSE(window.Document()->Modified());
}

TEST_F(Editor, AProjectIsOpenedAtItsOriginalSize) {
  window.SetZoom(150);
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  ASSERT_TRUE(window.OpenProject(File("a.plexel")));
  EXPECT_EQ(window.Document()->Zoom(), 100);
  EXPECT_EQ(Element("F1").ZoomFactor(), 100);
}

TEST_F(Editor, OpeningAndSavingTheSampleChangesNoByte) {
  const std::filesystem::path sample = DataDirectory() / "projects" / "sample.plexel";
  ASSERT_TRUE(window.OpenProject(sample));
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  EXPECT_EQ(BytesOf(File("a.plexel")), BytesOf(sample));
}

TEST_F(Editor, SelectingAndZoomingChangeNoByteOfTheFileAndSavingNothingOnTheScreen) {
  const auto showX =
      std::find_if(SettingTable.begin(), SettingTable.end(), [](const SettingRow& row) { return row.name == "ShowX"; });
  surroundings.Settings().Value(*showX, 1);
  window.SettingsChanged();
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  const std::string before = BytesOf(File("a.plexel"));
  window.View().Select(PlaceOf("F5"));
  window.SetZoom(250);
  window.View().Select(PlaceOf("F18"));
  const QSize size = window.View().PlaceRect(PlaceOf("F18")).size();
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  EXPECT_EQ(BytesOf(File("a.plexel")), before);
  EXPECT_EQ(window.View().PlaceRect(PlaceOf("F18")).size(), size);
  EXPECT_TRUE(Element("F18").SurfaceObjects().shpRect.Visible);
  EXPECT_TRUE(Element("F18").SurfaceObjects().linX1.Visible);
  EXPECT_EQ(Element("F18").FocusVisible(), True);
  EXPECT_EQ(Element("F18").ZoomFactor(), 250);
  EXPECT_EQ(window.Document()->Zoom(), 250);
  EXPECT_EQ(window.View().Selected(), &Element("F18"));
}

/// Hears of kinds that go.
class EndingHost : public EditorHost {
 public:
  void PropertyChanged(ctlPlexelBaseElement& element, const Notice& notice) override {
    if (notice.text == "ElementType") ended.insert(element.Name());
  }
  std::set<std::string> ended;
};

TEST_F(Editor, TheContainerHearsTheEndOfEveryElementOfAProject) {
  EndingHost host;
  auto document = PanelDocument::New("Large", {component, host, nullptr, DataDirectory() / "panels"});
  const std::shared_ptr<ctlPlexelBaseElement> kept = document->Places().front().element;
  host.ended.clear();
  document.reset();
  EXPECT_EQ(host.ended.size(), 46U);
  EXPECT_EQ(static_cast<std::int32_t>(kept->ElementType()), 0);
  host.ended.clear();
  kept->ElementType(Rect);
  EXPECT_TRUE(host.ended.empty());
}

TEST_F(Editor, AFileThatCannotBeReadTellsItsLineAndLosesNothing) {
  std::ofstream(File("broken.plexel")) << "this is no project\n";
  Element("F5").PressKeyDefLayer1(Definition);
  QString told;
  AnswerNextBox([&](QMessageBox& box) { told = box.informativeText(); });
  EXPECT_FALSE(window.OpenProject(File("broken.plexel")));
  EXPECT_TRUE(told.contains("broken.plexel:1:")) << told.toStdString();
  EXPECT_EQ(Element("F5").PressKeyDefLayer1(), Definition);
}

TEST_F(Editor, AProjectWithAPlaceThatThePanelLacksIsRefused) {
  Project project;
  project.panel = "Small";
  project.elements.push_back({"nowhere", {}, {}});
  WriteProject(File("other.plexel"), project);
  QString told;
  AnswerNextBox([&](QMessageBox& box) { told = box.informativeText(); });
  EXPECT_FALSE(window.OpenProject(File("other.plexel")));
  EXPECT_TRUE(told.contains("nowhere")) << told.toStdString();
  EXPECT_EQ(window.Document()->Places().size(), 46U);
}

TEST_F(Editor, AFileThatCannotBeWrittenLeavesTheProjectModified) {
  ChangeNotes("F5", "changed");
  QString told;
  AnswerNextBox([&](QMessageBox& box) { told = box.informativeText(); });
  EXPECT_FALSE(window.SaveProject(File("missing/a.plexel")));
  EXPECT_FALSE(told.isEmpty());
  EXPECT_TRUE(window.Document()->Modified());
}

TEST_F(Editor, ClosingAModifiedProjectAsksAndCancelKeepsTheWindow) {
  ChangeNotes("F5", "changed");
  int asked = 0;
  AnswerNextBox([&](QMessageBox& box) {
    ++asked;
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  EXPECT_FALSE(window.close());
  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(Editor, ClosingAnUnmodifiedProjectAsksNothing) { EXPECT_TRUE(window.close()); }

TEST_F(Editor, TheSettingsReachFileAndElements) {
  {
    SettingsDialog dialog(surroundings, &window);
    auto* const wizard = dialog.findChild<QAbstractButton*>("UseWizard");
    ASSERT_NE(wizard, nullptr);
    wizard->setChecked(true);
    dialog.Apply();
  }
  window.SettingsChanged();
  EXPECT_EQ(Element("F5").WizardOn(), True);
  FileSurroundings again(DataDirectory(), files.path().toStdString());
  Boolean useWizard = False;
  again.Settings().GetOption(2, useWizard);
  EXPECT_EQ(useWizard, True);
}

TEST_F(Editor, TheLanguageIsChosenByTheNameThatItHasInItself) {
  SettingsDialog dialog(surroundings, &window);
  auto* const list = dialog.findChild<QComboBox*>("Language");
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->currentText(), "English");
  list->setCurrentText("Deutsch");
  dialog.Apply();
  EXPECT_EQ(surroundings.Language().Chosen(), "German");
  EXPECT_EQ(LanguageTitle("Klingonish"), "Klingonish");
}

TEST_F(Editor, TheFieldsOfAllSettingsStandInOneColumn) {
  SettingsDialog dialog(surroundings, &window);
  dialog.show();
  std::set<int> edges;
  for (const char* const name : {"Language", "FocusWidth", "XSize", "FocusColor", "CaptureColor", "DefinedColor"}) {
    const auto* const field = dialog.findChild<QWidget*>(name);
    ASSERT_NE(field, nullptr) << name;
    edges.insert(field->mapTo(&dialog, QPoint()).x());
  }
  EXPECT_EQ(edges.size(), 1U);
}

TEST_F(Editor, EverySettingHasAFieldThatKeepsItsValue) {
  std::vector<std::int32_t> before, after;
  for (const SettingRow& row : SettingTable) before.push_back(surroundings.Settings().Value(row));
  SettingsDialog dialog(surroundings, &window);
  for (const SettingRow& row : SettingTable) {
    EXPECT_NE(dialog.findChild<QWidget*>(QString::fromUtf8(row.name.data(), static_cast<qsizetype>(row.name.size()))),
              nullptr)
        << row.name;
  }
  dialog.Apply();
  for (const SettingRow& row : SettingTable) after.push_back(surroundings.Settings().Value(row));
  EXPECT_EQ(before, after);
}

TEST_F(Editor, AllTextsFollowTheLanguage) {
  surroundings.ChooseLanguage("German");
  window.SettingsChanged();
  window.View().Select(PlaceOf("F5"));
  EXPECT_TRUE(window.StatusText().contains("Rechteckige Taste mit LED"));
  EXPECT_EQ(window.Log().windowTitle(), "Ereignisse");
}

TEST_F(Editor, EveryMenuAndEntryHasALetterOfItsOwnInBothLanguages) {
  const auto expectOwnLetters = [](const QList<QAction*>& actions) {
    QString letters;
    for (const QAction* const action : actions) {
      if (action->isSeparator()) continue;
      const qsizetype mark = action->text().indexOf('&');
      ASSERT_GE(mark, 0) << action->text().toStdString();
      const QChar letter = action->text().at(mark + 1).toLower();
      EXPECT_FALSE(letters.contains(letter)) << action->text().toStdString();
      letters += letter;
    }
  };
  for (const char* const language : {"English", "German"}) {
    surroundings.ChooseLanguage(language);
    window.SettingsChanged();
    expectOwnLetters(window.menuBar()->actions());
    for (const QAction* const menu : window.menuBar()->actions()) expectOwnLetters(menu->menu()->actions());
  }
}

TEST_F(Editor, NoKeyStandsForTwoEntries) {
  std::map<QString, QString> entries;
  for (const QAction* const action : window.findChildren<QAction*>()) {
    if (action->shortcutContext() != Qt::WindowShortcut) continue;  // a key of one widget alone
    for (const QKeySequence& keys : action->shortcuts()) {
      const auto [taken, isNew] = entries.emplace(keys.toString(), action->text());
      EXPECT_TRUE(isNew) << keys.toString().toStdString() << ": " << taken->second.toStdString() << " and "
                         << action->text().toStdString();
    }
  }
  EXPECT_GT(entries.size(), 20U);
}

TEST_F(Editor, AMissingPanelIsToldInWords) {
  WriteProject(File("a.plexel"), Project{"Nowhere", {}});
  QString reason;
  AnswerNextBox([&](QMessageBox& box) { reason = box.informativeText(); });
  EXPECT_FALSE(window.OpenProject(File("a.plexel")));
  EXPECT_TRUE(reason.contains("Nowhere") && reason.contains("not installed")) << reason.toStdString();
  EXPECT_FALSE(reason.contains('/')) << reason.toStdString();
}

TEST_F(Editor, ANewerFormatIsToldInWordsAndLeftAsItIs) {
  std::ofstream(File("a.plexel")) << "[PROJECT]\nFormat=12\n";
  for (const auto& [language, words] : {std::pair{"English", "newer version"}, std::pair{"German", "neuere Version"}}) {
    surroundings.ChooseLanguage(language);
    QString reason;
    AnswerNextBox([&](QMessageBox& box) { reason = box.informativeText(); });
    EXPECT_FALSE(window.OpenProject(File("a.plexel")));
    EXPECT_TRUE(reason.contains(words) && reason.contains("a.plexel") && reason.contains("12")) << reason.toStdString();
    EXPECT_FALSE(reason.contains('/')) << reason.toStdString();
  }
}

TEST_F(Editor, EachLetterOfTheWindowStandsForOneMenuOrButton) {
  for (const char* const language : {"English", "German"}) {
    surroundings.ChooseLanguage(language);
    window.SettingsChanged();
    QStringList captions;
    for (const QAction* const menu : window.menuBar()->actions()) captions.append(menu->text());
    for (const QAbstractButton* const button : window.findChildren<QAbstractButton*>()) captions.append(button->text());
    std::map<QChar, QString> letters;
    for (const QString& caption : captions) {
      const qsizetype mark = caption.indexOf('&');
      if (mark < 0 || mark + 1 == caption.size()) continue;
      const auto [known, isNew] = letters.emplace(caption[mark + 1].toLower(), caption);
      EXPECT_TRUE(isNew) << known->second.toStdString() << " and " << caption.toStdString();
    }
    EXPECT_GT(letters.size(), 6U);
  }
}

TEST_F(Editor, TheHelpKeyOpensTheTopicOfWhereTheKeyboardIs) {
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto shown = [&] {
    window.findChild<QAction*>("HelpHere")->trigger();
    const auto* const browser = help.Window() ? help.Window()->findChild<QTextBrowser*>() : nullptr;
    const QString topic = browser == nullptr ? QString() : browser->source().fileName();
    delete help.Window();
    window.activateWindow();
    return topic;
  };
  window.View().setFocus();
  EXPECT_EQ(shown(), "1.html");
  window.TheInspector().Enter();
  EXPECT_EQ(shown(), "3009.html");
  window.ProblemList().Enter();
  EXPECT_EQ(shown(), "3003.html");
  window.Overview().Find();
  EXPECT_EQ(shown(), "3007.html");
  window.Try(true);
  EXPECT_EQ(shown(), "3004.html");
}

TEST_F(Editor, AnotherTopicComesIntoTheWindowThatIsInFront) {
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  ShowHelpTopic(0, 2000);
  const QPointer<QDialog> shown = help.Window();
  ASSERT_TRUE(QTest::qWaitForWindowActive(shown));
  ShowHelpTopic(0, 2001);
  ASSERT_EQ(help.Window(), shown);
  EXPECT_EQ(shown->findChild<QTextBrowser*>()->source().fileName(), "2001.html");
  EXPECT_EQ(shown->parentWidget(), &window);
}

TEST_F(Editor, TheHelpKeyOpensTheTopicOfADialog) {
  LayersDialog dialog(1, &window);
  dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  QTest::keyClick(&dialog, Qt::Key_F1);
  ASSERT_TRUE(help.Window());
  EXPECT_EQ(help.Window()->findChild<QTextBrowser*>()->source().fileName(), "3006.html");
}

TEST_F(Editor, ATopicOfTheHelpIsShownAndAMissingOneOpensNothing) {
  help.Show(0, "nowhere\\Help\\PlexelEnglish.chm", HelpViewer::HelpContext, 2000);
  EXPECT_TRUE(help.Window().isNull());
  help.Show(0, DataDirectory().string() + "\\Help\\PlexelEnglish.chm", HelpViewer::HelpContext, 2000);
  ASSERT_FALSE(help.Window().isNull());
  EXPECT_TRUE(help.Window()->isVisible());
}

}  // namespace
}  // namespace plexel::testing
