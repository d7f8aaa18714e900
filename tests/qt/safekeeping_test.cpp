#include "editor/safekeeping.h"

#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <algorithm>
#include <fstream>
#include <iterator>

#include "editor/notice_bar.h"
#include "editor/step_text.h"
#include "editor/versions_dialog.h"
#include "editor_fixture.h"
#include "files/file_error.h"
#include "files/panel_file.h"
#include "project/difference.h"
#include "project/open_file.h"
#include "services/setting_table.h"

namespace plexel::testing {
namespace {

/// The editor and what it keeps in the user's state directory.
class Kept : public Editor {
 protected:
  std::size_t RecoveryFiles() {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(File("state") / "recovery")) {
      if (entry.path().extension() == ".recovery") ++count;
    }
    return count;
  }
  NoticeBar& Notice() { return dynamic_cast<NoticeBar&>(*window.findChild<QFrame*>("notice")); }
  QPushButton* Choice(const QString& text) {
    for (QPushButton* const button : Notice().findChildren<QPushButton*>()) {
      if (button->text().remove('&') == text) return button;
    }
    return nullptr;
  }
  /// Another program writes the project with other notes of F3.
  void PutNotes(const std::filesystem::path& file, const std::string& notes) {
    Project project = ReadProject(file);
    for (ProjectElement& element : project.elements) {
      if (element.place == "F3") element.bag.Store("ButtonNotes", notes);
    }
    WriteProject(file, project);
  }
  /// Answers the message box that comes next by the text of a button.
  void AnswerNextBoxWith(const QString& text) {
    AnswerNextBox([text](QMessageBox& box) {
      for (QAbstractButton* const button : box.buttons()) {
        if (button->text() == text) button->click();
      }
    });
  }
  /// What a second editor would find at its start, after this one was killed.
  void LeaveLostWork() {
    window.KeepWork();
    for (const auto& entry : std::filesystem::directory_iterator(File("state") / "recovery")) {
      if (entry.path().extension() == ".recovery") {
        std::filesystem::copy_file(entry.path(), entry.path().parent_path() / "1-1.recovery");
        return;
      }
    }
  }
};

TEST_F(Kept, UnsavedWorkIsOnTheDiskWithinTenSecondsWithoutBeingAsked) {
  ChangeNotes("F5", "unsaved");
  EXPECT_TRUE(QTest::qWaitFor([&] { return RecoveryFiles() == 1; }, 10'000));
}

TEST_F(Kept, SavingTakesTheRecoveryFileAway) {
  ChangeNotes("F5", "unsaved");
  window.KeepWork();
  EXPECT_EQ(RecoveryFiles(), 1U);
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  window.KeepWork();
  EXPECT_EQ(RecoveryFiles(), 0U);
}

TEST_F(Kept, LostWorkIsOfferedWithWhatItHoldsAndIsOneStep) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  ChangeNotes("F5", "lost");
  LeaveLostWork();
  ChangeNotes("F5", "");
  ASSERT_TRUE(window.NewProject("Small"));
  QString told;
  AnswerNextBox([&](QMessageBox& box) {
    told = box.informativeText();
    box.defaultButton()->click();
  });
  EXPECT_TRUE(window.OfferLostWork());
  EXPECT_TRUE(told.contains("a.plexel") && told.contains("F5")) << told.toStdString();
  EXPECT_EQ(Element("F5").ButtonNotes(), "lost");
  EXPECT_EQ(window.Document()->File(), File("a.plexel"));
  EXPECT_TRUE(window.Document()->Modified());
  EXPECT_EQ(window.Document()->Steps().ToUndo().name.kind, StepKind::Recover);
  window.Document()->Undo();
  EXPECT_FALSE(window.Document()->Modified());
}

TEST_F(Kept, LostWorkOfAProjectWhoseFileIsGoneStandsByItself) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  ChangeNotes("F5", "lost");
  LeaveLostWork();
  std::filesystem::remove(File("a.plexel"));
  ASSERT_TRUE(window.NewProject("Small"));
  AnswerNextBoxWith("Bring back");
  EXPECT_TRUE(window.OfferLostWork());
  EXPECT_EQ(Element("F5").ButtonNotes(), "lost");
  EXPECT_TRUE(window.Document()->Modified());
}

TEST_F(Kept, LostWorkStaysWhereItIsWhenItCannotBeKeptAnew) {
  ChangeNotes("F5", "lost");
  LeaveLostWork();
  for (const auto& entry : std::filesystem::directory_iterator(File("state") / "recovery")) {
    const std::filesystem::path file = entry.path();
    if (file.extension() != ".recovery" || file.stem() == "1-1") continue;
    std::filesystem::remove(file);
    std::filesystem::create_directories(file / "in the way");  // nothing can be written there any more
    break;
  }
  AnswerNextBoxWith("Bring back");
  EXPECT_TRUE(window.OfferLostWork());
  EXPECT_EQ(Element("F5").ButtonNotes(), "lost");
  EXPECT_TRUE(std::filesystem::exists(File("state") / "recovery" / "1-1.recovery"));
  EXPECT_TRUE(Notice().Told().contains("kept safe")) << Notice().Told().toStdString();
  EXPECT_FALSE(window.KeepWork());
}

TEST_F(Kept, LostWorkOfAProjectThatWasNeverSavedIsToldElementByElement) {
  ChangeNotes("F5", "lost");
  LeaveLostWork();
  QString told;
  AnswerNextBox([&](QMessageBox& box) { told = box.informativeText(); });
  EXPECT_FALSE(window.OfferLostWork());
  EXPECT_TRUE(told.contains("not been saved yet") && told.contains("(F5)")) << told.toStdString();
}

TEST_F(Kept, WhatLostWorkHoldsIsShownBeforeItIsDecided) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  ChangeNotes("F5", "lost");
  LeaveLostWork();
  QStringList row;
  int asked = 0;
  AnswerNextBox([&](QMessageBox& box) {
    ++asked;
    QTimer::singleShot(0, &window, [&] {
      QWidget* const shown = QApplication::activeModalWidget();
      const auto* const tree = shown->findChild<QTreeWidget*>();
      ASSERT_NE(tree, nullptr);
      for (int column = 0; column < 4; ++column) row.append(tree->topLevelItem(0)->text(column));
      AnswerNextBox([&](QMessageBox& again) {
        ++asked;
        QTest::keyClick(&again, Qt::Key_Escape);
      });
      shown->close();
    });
    for (QAbstractButton* const button : box.buttons()) {
      if (button->text().remove('&') == "Show the difference") button->click();
    }
  });
  EXPECT_FALSE(window.OfferLostWork());
  EXPECT_EQ(row, QStringList({"F5", "Notes", "(nothing)", "lost"}));
  EXPECT_EQ(asked, 2);
}

TEST_F(Kept, AProjectThatIsNotOpenedForLostWorkIsTold) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  window.TellNotOpened(QString::fromStdString(File("a.plexel").string()));
  EXPECT_EQ(Notice().Told(), "");
  window.TellNotOpened("/elsewhere/b.plexel");
  EXPECT_TRUE(Notice().Told().startsWith("b.plexel was not opened")) << Notice().Told().toStdString();
}

TEST_F(Kept, AnotherEditorIsToldAsLongAsItIsThere) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  {
    const OpenFile other(File("state") / "open", File("a.plexel"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Notice().Told().contains("another editor"); }, 5000));
  }
  EXPECT_TRUE(QTest::qWaitFor([&] { return Notice().Told().isEmpty(); }, 5000));
}

/// A file whose panel has the same elements in another picture.
class OtherPicture : public Kept {
 protected:
  void PutOtherPicture() {
    Project project = ReadProject(File("a.plexel"));
    const std::size_t place = project.panelText.find("Legend=ESC");
    ASSERT_NE(place, std::string::npos);
    project.panelText.replace(place, 10, "Legend=QUIT");
    WriteProject(File("a.plexel"), project);
  }
  std::string Legend() { return window.Document()->ThePanel().Find("R1")->legend; }
};

TEST_F(OtherPicture, IsTakenWithTheirsAndTakenBack) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  QTest::qWait(400);
  PutOtherPicture();
  ASSERT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 5000));
  Choice("Take theirs")->click();
  EXPECT_EQ(Legend(), "QUIT");
  EXPECT_FALSE(window.isWindowModified());
  window.Document()->Undo();
  EXPECT_EQ(Legend(), "ESC");
  EXPECT_TRUE(window.isWindowModified());
}

TEST_F(OtherPicture, IsAChangeWhenMineIsKept) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  QTest::qWait(400);
  PutOtherPicture();
  ASSERT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 5000));
  Choice("Keep mine")->click();
  EXPECT_EQ(Legend(), "ESC");
  EXPECT_TRUE(window.isWindowModified());
}

TEST_F(OtherPicture, GivesWayToTheInstalledOneInAStep) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  PutOtherPicture();
  ASSERT_TRUE(window.OpenProject(File("a.plexel")));
  ChangeNotes("F5", "a step before");
  ASSERT_NE(Choice("Use the installed one"), nullptr);
  Choice("Use the installed one")->click();
  EXPECT_EQ(Legend(), "ESC");
  EXPECT_EQ(StepText(window.Document()->Steps().ToUndo().name), "use the installed panel");
  EXPECT_FALSE(Notice().isVisible());
  window.Document()->Undo();
  EXPECT_EQ(Legend(), "QUIT");
  window.Document()->Undo();
  EXPECT_EQ(Element("F5").ButtonNotes(), "");
}

TEST_F(Kept, LostWorkThatIsLeftForLaterIsOfferedAgain) {
  ChangeNotes("F5", "lost");
  LeaveLostWork();
  int asked = 0;
  for (int turn = 0; turn < 2; ++turn) {
    AnswerNextBox([&](QMessageBox& box) {
      ++asked;
      QTest::keyClick(&box, Qt::Key_Escape);
    });
    EXPECT_FALSE(window.OfferLostWork());
  }
  EXPECT_EQ(asked, 2);
}

TEST_F(Kept, AFileThatAnotherProgramChangesIsToldAtOnceAndTakenAsOneStep) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  QTest::qWait(400);
  PutNotes(File("a.plexel"), "theirs");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 5000));
  ASSERT_NE(Choice("Take theirs"), nullptr);
  Choice("Take theirs")->click();
  EXPECT_EQ(Element("F3").ButtonNotes(), "theirs");
  EXPECT_FALSE(window.Document()->Modified());
  EXPECT_FALSE(Notice().isVisible());
  window.Document()->Undo();
  EXPECT_EQ(Element("F3").ButtonNotes(), "");
}

TEST_F(Kept, AfterTheirsWereTakenMineCanBeTakenBackAndSavedWithoutAQuestion) {
  WriteProject(File("a.plexel"), Project{"Large", {}});
  ASSERT_TRUE(window.OpenProject(File("a.plexel")));
  ChangeNotes("F5", "mine");
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  QTest::qWait(400);
  WriteProject(File("a.plexel"), Project{"Large", {}});
  ASSERT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 5000));
  Choice("Take theirs")->click();
  EXPECT_EQ(Element("F5").ButtonNotes(), "");
  EXPECT_FALSE(window.isWindowModified());
  window.Document()->Undo();
  EXPECT_EQ(Element("F5").ButtonNotes(), "mine");
  EXPECT_TRUE(window.isWindowModified());
  EXPECT_TRUE(window.SaveProject(File("a.plexel")));
}

TEST_F(Kept, TheirsMayCarryTheirPanelWhereMineDoesNot) {
  WriteProject(File("a.plexel"), Project{"Large", {}});
  ASSERT_TRUE(window.OpenProject(File("a.plexel")));
  QTest::qWait(400);
  WriteProject(File("a.plexel"), Project{"Large", {}, ReadPanelText(DataDirectory() / "panels/Large.panel")});
  ASSERT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 5000));
  Choice("Take theirs")->click();
  EXPECT_TRUE(window.Document()->CarriesPanel());
  EXPECT_FALSE(window.isWindowModified());
  window.Document()->Undo();
  EXPECT_FALSE(window.Document()->CarriesPanel());
  EXPECT_TRUE(window.isWindowModified());
}

TEST_F(Kept, KeepingMineMakesTheTitleTellThatTheFileDiffers) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  QTest::qWait(400);
  PutNotes(File("a.plexel"), "theirs");
  ASSERT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 5000));
  Choice("Keep mine")->click();
  EXPECT_EQ(Element("F3").ButtonNotes(), "");
  EXPECT_TRUE(window.isWindowModified());
  EXPECT_FALSE(Notice().isVisible());
}

TEST_F(Kept, AFileThatIsRemovedIsToldAndTheProjectCountsAsModified) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  QTest::qWait(400);
  std::filesystem::remove(File("a.plexel"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 5000));
  EXPECT_TRUE(window.isWindowModified());
  EXPECT_TRUE(window.SaveProject(File("a.plexel")));
  EXPECT_FALSE(window.isWindowModified());
}

TEST_F(Kept, AProjectWhoseFileIsGoneIsKeptInTheRecoveryFile) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  QTest::qWait(400);
  EXPECT_EQ(RecoveryFiles(), 0U);
  std::filesystem::remove(File("a.plexel"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return RecoveryFiles() == 1; }, 10'000));
}

TEST_F(Kept, KeepingMineAgainstADamagedFileIsAskedOnce) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  QTest::qWait(400);
  std::filesystem::resize_file(File("a.plexel"), 30);
  ASSERT_TRUE(QTest::qWaitFor([&] { return Notice().isVisible(); }, 5000));
  Choice("Keep mine")->click();
  EXPECT_TRUE(window.isWindowModified());
  QTest::qWait(800);
  EXPECT_FALSE(Notice().isVisible());
}

TEST_F(Kept, LostWorkOnAPanelThatIsMissingIsToldAndStays) {
  ChangeNotes("F5", "lost");
  LeaveLostWork();
  const auto lost = File("state") / "recovery" / "1-1.recovery";
  std::ifstream file(lost, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  text.replace(text.find("Panel=Large"), 11, "Panel=Ghost");
  std::ofstream(lost, std::ios::binary) << text;
  QString told;
  AnswerNextBox([&](QMessageBox& box) {
    AnswerNextBox([&](QMessageBox& next) { told = next.informativeText(); });
    box.defaultButton()->click();
  });
  EXPECT_FALSE(window.OfferLostWork());
  EXPECT_TRUE(told.contains("Ghost")) << told.toStdString();
  EXPECT_TRUE(std::filesystem::exists(lost));
}

TEST_F(Kept, SavingOverAFileThatChangedAsksFirst) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  PutNotes(File("a.plexel"), "theirs");
  int asked = 0;
  AnswerNextBox([&](QMessageBox& box) {
    ++asked;
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  EXPECT_FALSE(window.SaveProject(File("a.plexel")));
  EXPECT_EQ(asked, 1);
  AnswerNextBoxWith("Write over it");
  EXPECT_TRUE(window.SaveProject(File("a.plexel")));
  const VersionStore versions(File("state") / "versions");
  ASSERT_EQ(versions.List(File("a.plexel")).size(), 3U) << "mine, theirs, and mine again";
}

TEST_F(Kept, TheVersionsTellWhatDiffersAndComeBackAsOneStep) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  ChangeNotes("F5", "second");
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  const VersionStore versions(File("state") / "versions");
  VersionsDialog dialog(versions, *window.Document(), &window);
  auto* const list = dialog.findChild<QListWidget*>("Versions");
  ASSERT_EQ(list->count(), 2);
  auto* const back = dialog.findChild<QPushButton*>("BringBack");
  ASSERT_NE(back, nullptr);
  EXPECT_FALSE(back->isEnabled()) << "the latest is what the project is now";
  list->setCurrentRow(1);
  EXPECT_TRUE(back->isEnabled());
  auto* const differences = dialog.findChild<QTreeWidget*>();
  ASSERT_EQ(differences->topLevelItemCount(), 1);
  EXPECT_EQ(differences->topLevelItem(0)->text(0), "F5");
  EXPECT_EQ(differences->topLevelItem(0)->text(1), "Notes");
  EXPECT_EQ(differences->topLevelItem(0)->text(2), "second");
  EXPECT_EQ(dialog.Chosen(), versions.List(File("a.plexel")).at(1).file);
}

TEST_F(Kept, TheUsersSettingsAreNoDifferenceOfAVersion) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  const auto showX = std::ranges::find(SettingTable, "ShowX", &SettingRow::name);
  ASSERT_NE(showX, SettingTable.end());
  surroundings.Settings().Value(*showX, 1 - surroundings.Settings().Value(*showX));
  window.SettingsChanged();
  ASSERT_FALSE(DifferencesOf(window.Document()->Content(), ReadProject(File("a.plexel"))).empty());
  const VersionStore versions(File("state") / "versions");
  const VersionsDialog dialog(versions, *window.Document(), &window);
  EXPECT_EQ(dialog.findChild<QTreeWidget*>()->topLevelItemCount(), 0);
  EXPECT_FALSE(dialog.findChild<QPushButton*>("BringBack")->isEnabled());
}

TEST_F(Kept, ADifferenceIsToldInWords) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  const std::array place = {static_cast<std::size_t>(PlaceOf("F5"))};
  window.Document()->Change(StepKind::Configure, place, [&] {
    Element("F5").WizardOptions(ManuallyDefined);
    Element("F5").LEDTypeLayer(2, PowerLed);
  });
  const VersionStore versions(File("state") / "versions");
  const VersionsDialog dialog(versions, *window.Document(), &window);
  QStringList told;
  const auto* const differences = dialog.findChild<QTreeWidget*>();
  for (int row = 0; row < differences->topLevelItemCount(); ++row) {
    const QTreeWidgetItem& item = *differences->topLevelItem(row);
    told.append(item.text(1) + ": " + item.text(2) + ", " + item.text(3));
  }
  EXPECT_TRUE(told.contains("Defined as: by hand, Single keystroke")) << told.join('|').toStdString();
  EXPECT_TRUE(told.contains("LED, layer 2: Power, No function")) << told.join('|').toStdString();
}

TEST_F(Kept, ADamagedVersionIsToldAndCannotBeBroughtBack) {
  ASSERT_TRUE(window.SaveProject(File("a.plexel")));
  const VersionStore versions(File("state") / "versions");
  std::filesystem::resize_file(versions.List(File("a.plexel")).front().file, 40);
  VersionsDialog dialog(versions, *window.Document(), &window);
  EXPECT_FALSE(dialog.findChild<QPushButton*>("BringBack")->isEnabled());
}

TEST_F(Kept, AStateDirectoryThatCannotBeMadeIsToldAndTheEditorGoesOn) {
  WriteProject(File("blocked"), window.Document()->Content());
  Safekeeping blocked(File("blocked"));
  QString told;
  blocked.onProblem = [&](const QString& reason) { told = reason; };
  blocked.Watch(window.Document());
  EXPECT_TRUE(told.contains("blocked")) << told.toStdString();
  ChangeNotes("F5", "a");
  blocked.Keep();
}

}  // namespace
}  // namespace plexel::testing
