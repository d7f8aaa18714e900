#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QListWidget>
#include <QStringList>
#include <cerrno>

#include "editor/log_panel.h"
#include "editor/notice_bar.h"
#include "editor/texts.h"
#include "editor_fixture.h"
#include "files/system_files.h"
#include "world/access_list.h"
#include "world/file_faults.h"

namespace plexel::testing {
namespace {

using ::testing::HasSubstr;

/// The editor with a saved project whose file has an access list and an attribute.
class LostTraits : public Editor {
 protected:
  LostTraits() {
    std::filesystem::create_directory(folder);
    EXPECT_TRUE(window.SaveProject(file));
    GiveSampleAccessList(file);
    GiveAttribute(file, "user.plexel.note", "kept");
    ChangeNotes("F2", "unsaved");
  }
  /// Answers the question that comes next by the text of a button, and keeps what it asks.
  void AnswerNextBoxWith(Text button) {
    asked.clear();
    AnswerNextBox([this, button](QMessageBox& box) {
      asked = box.text().toStdString();
      for (QAbstractButton* const each : box.buttons()) {
        if (each->text().remove('&') == Say(button).remove('&')) each->click();
      }
    });
  }
  std::string Now() { return ReadWholeFile(file, ProjectLimit); }
  NoticeBar& Notice() { return dynamic_cast<NoticeBar&>(*window.findChild<QFrame*>("notice")); }

  const std::filesystem::path folder = File("folder"), file = folder / "a.plexel";
  std::string asked;
};

TEST_F(LostTraits, AreAskedAboutByNameBeforeSaving) {
  const std::string before = Now();
  const FileFaults faults(folder, "fsetxattr", EPERM);
  AnswerNextBoxWith(Text::Cancel);
  EXPECT_FALSE(window.SaveProject(file));
  EXPECT_EQ(asked,
            "Saving replaces the file a.plexel. What may not be given to the new one is lost: its access list, its "
            "attribute user.plexel.note. Save all the same?");
  EXPECT_EQ(Now(), before);
  EXPECT_TRUE(window.Document()->Modified());

  AnswerNextBoxWith(Text::SaveAllTheSame);
  EXPECT_TRUE(window.SaveProject(file));
  EXPECT_FALSE(asked.empty());
  EXPECT_EQ(Now(), FormatProject(window.Document()->Content()));
  EXPECT_EQ(AttributeOf(file, AccessListName), std::nullopt);
}

TEST_F(LostTraits, AreAskedAboutInGermanAndBeforeAnExportToo) {
  surroundings.ChooseLanguage("German");
  const FileFaults faults(folder, "fsetxattr", EPERM);
  const std::string before = Now();
  AnswerNextBoxWith(Text::Cancel);
  EXPECT_FALSE(window.Export("json", file));
  EXPECT_EQ(asked,
            "Speichern ersetzt die Datei a.plexel. Was der neuen nicht mitgegeben werden darf, geht verloren: "
            "Zugriffsliste, Attribut user.plexel.note. Trotzdem speichern?");
  EXPECT_EQ(Now(), before);
}

TEST_F(LostTraits, AreNotAskedAboutWhereTheyStay) {
  EXPECT_TRUE(window.SaveProject(file));
  EXPECT_EQ(AttributeOf(file, AccessListName), SampleAccessList());
  EXPECT_EQ(AttributeOf(file, "user.plexel.note"), "kept");
}

TEST_F(LostTraits, ADirectoryThatIsNotFlushedIsToldOfAndTheProjectIsSaved) {
  const FileFaults faults(folder, "fsync of a directory", EIO);
  EXPECT_TRUE(window.SaveProject(file));
  EXPECT_FALSE(window.Document()->Modified());
  EXPECT_EQ(Now(), FormatProject(window.Document()->Content()));
  EXPECT_THAT(Notice().Told().toStdString(),
              HasSubstr("The file is saved, but there is something to know: " + file.string() +
                        ": is written, but may not outlast a power cut: Input/output error"));
  EXPECT_TRUE(window.Export("csv", folder / "a.csv"));
  EXPECT_THAT(Notice().Told().toStdString(), HasSubstr("a.csv: is written, but may not outlast a power cut"));
}

}  // namespace
}  // namespace plexel::testing
