#include <gmock/gmock.h>

#include <QLabel>
#include <QListWidget>
#include <vector>

#include "closed_boxes.h"
#include "editor/editor_store.h"
#include "editor/log_panel.h"
#include "editor_fixture.h"
#include "files/system_files.h"
#include "world/fault_walk.h"

namespace plexel::testing {
namespace {

using ::testing::HasSubstr;

/// The editor with each of its operations on files failing once. Message boxes are closed, and what they tell is kept.
class EachFileOperationOfTheEditorFails : public Editor {
 protected:
  EachFileOperationOfTheEditorFails() { std::filesystem::create_directory(folder); }
  std::vector<std::string> FilesInFolder() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
    return names;
  }
  void ExpectReason(bool done, int error) {
    EXPECT_EQ(told.size(), done ? 0U : 1U);
    if (!told.empty()) {
      EXPECT_THAT(told.front(), HasSubstr(ReasonOf(error)));
    }
  }

  const std::filesystem::path folder = File("folder");
  ClosedBoxes boxes;
  std::vector<std::string>& told = boxes.told;
};

TEST_F(EachFileOperationOfTheEditorFails, ExportingLeavesTheOldOrTheNewFileAndTheProjectAsItWas) {
  ChangeNotes("F2", "unsaved");
  const Project project = window.Document()->Content();
  const auto target = folder / "out";
  for (const char* const suffix : {"json", "html", "csv", "svg", "pdf"}) {
    const ::testing::ScopedTrace trace(__FILE__, __LINE__, suffix);
    ASSERT_TRUE(window.Export(suffix, target));
    const std::string wanted = ReadWholeFile(target, ProjectLimit);
    bool done = false;
    const int failed = FailEachFileOperation(
        folder,
        [&] {
          WriteWholeFile(target, "old");
          told.clear();
        },
        [&] { done = window.Export(suffix, target); },
        [&](int error) {
          ExpectReason(done, error);
          const std::string now = ReadWholeFile(target, ProjectLimit);
          // A PDF document tells when it was made.
          const bool isNew = std::string_view(suffix) == "pdf" ? now.ends_with("%%EOF\n") : now == wanted;
          EXPECT_EQ(now == "old", !done);
          EXPECT_EQ(isNew, done);
          EXPECT_EQ(FilesInFolder(), std::vector<std::string>{"out"});
          EXPECT_EQ(window.Document()->Content(), project);
          EXPECT_TRUE(window.Document()->Modified());
        });
    EXPECT_GE(failed, 5 * 5);
  }
}

TEST_F(EachFileOperationOfTheEditorFails, ImportingIsOneStepOrNone) {
  const auto source = folder / "a.json";
  ChangeNotes("F2", "theirs");
  ASSERT_TRUE(window.Export("json", source));
  window.Document()->Undo();
  const Project project = window.Document()->Content();
  bool done = false;
  const int failed = FailEachFileOperation(
      folder, [&] { told.clear(); }, [&] { done = window.Import(source); },
      [&](int error) {
        ExpectReason(done, error);
        EXPECT_EQ(Element("F2").ButtonNotes(), done ? "theirs" : "");
        if (done) window.Document()->Undo();
        EXPECT_EQ(window.Document()->Content(), project);
      });
  EXPECT_GE(failed, 5 * 3);
}

TEST_F(EachFileOperationOfTheEditorFails, SavingLeavesTheOldOrTheNewFileAndTheProjectAsItWas) {
  const auto file = folder / "a.plexel";
  std::string before;
  bool done = false;
  int turn = 0, refused = 0;
  FailEachFileOperation(
      folder,
      [&] {
        ASSERT_TRUE(window.SaveProject(file));
        before = ReadWholeFile(file, ProjectLimit);
        ChangeNotes("F2", "turn " + std::to_string(++turn));
        told.clear();
      },
      [&] { done = window.SaveProject(file); },
      [&](int error) {
        // A file that could not be compared is asked about, and nobody has agreed.
        if (!told.empty() && !told.front().empty()) {
          EXPECT_THAT(told.front(), HasSubstr(ReasonOf(error)));
        }
        EXPECT_EQ(told.empty(), done);
        EXPECT_EQ(ReadWholeFile(file, ProjectLimit), done ? FormatProject(window.Document()->Content()) : before);
        EXPECT_EQ(window.Document()->Modified(), !done);
        EXPECT_EQ(Element("F2").ButtonNotes(), "turn " + std::to_string(turn));
        EXPECT_EQ(FilesInFolder(), std::vector<std::string>{"a.plexel"});
        refused += done ? 0 : 1;
      });
  EXPECT_GE(refused, 5 * 5);
}

TEST_F(EachFileOperationOfTheEditorFails, OpeningGivesTheProjectOrLeavesTheOpenOne) {
  const auto file = folder / "a.plexel";
  ChangeNotes("F2", "saved");
  ASSERT_TRUE(window.SaveProject(file));
  bool done = false;
  const int failed = FailEachFileOperation(
      folder,
      [&] {
        ASSERT_TRUE(window.NewProject("Large"));
        ChangeNotes("F2", "open");
        told.clear();
      },
      [&] { done = window.OpenProject(file); },
      [&](int error) {
        ExpectReason(done, error);
        EXPECT_EQ(Element("F2").ButtonNotes(), done ? "saved" : "open");
        EXPECT_EQ(window.Document()->Modified(), !done);
      });
  EXPECT_GE(failed, 5 * 3);
}

TEST_F(EachFileOperationOfTheEditorFails, SavingSucceedsWhereWhatIsKeptForTheUserFails) {
  const auto file = folder / "a.plexel";
  int turn = 0, words = 0;
  bool done = false;
  auto* const events = window.Log().findChild<QListWidget*>();
  FailEachFileOperation(
      File("state"),
      [&] {
        ChangeNotes("F2", "turn " + std::to_string(++turn));
        window.KeepWork();
        told.clear();
        events->clear();
      },
      [&] { done = window.SaveProject(file); },
      [&](int error) {
        EXPECT_TRUE(done);
        EXPECT_EQ(ReadWholeFile(file, ProjectLimit), FormatProject(window.Document()->Content()));
        for (int row = 0; row < events->count(); ++row) {
          EXPECT_THAT(events->item(row)->text().toStdString(), HasSubstr(ReasonOf(error)));
          ++words;
        }
      });
  EXPECT_GE(words, 5 * 5);
}

TEST_F(EachFileOperationOfTheEditorFails, TheEditorsOwnFileIsTheOldOrTheNewOneAndTheFailureIsTold) {
  const auto own = folder / "editor.ini";
  QStringList recent;
  QString problem;
  int refused = 0;
  FailEachFileOperation(
      folder,
      [&] {
        std::filesystem::remove(own);
        EditorStore store(folder);
        store.AddRecent("/old.plexel");
        ASSERT_EQ(store.Keep(), "");
      },
      [&] {
        EditorStore store(folder);
        store.AddRecent("/new.plexel");
        problem = store.Keep();
      },
      [&](int error) {
        recent = EditorStore(folder).Recent();
        // A file that is not there any more had nothing that could be lost.
        const bool wasGone = error == ENOENT && recent == QStringList("/new.plexel");
        EXPECT_TRUE(recent == QStringList({"/new.plexel", "/old.plexel"}) || recent == QStringList("/old.plexel") ||
                    wasGone)
            << recent.join(' ').toStdString();
        // A store that could not keep it tries again when it goes.
        EXPECT_TRUE(!problem.isEmpty() || recent.front() == "/new.plexel");
        if (!problem.isEmpty()) {
          EXPECT_THAT(problem.toStdString(), HasSubstr(ReasonOf(error)));
        }
        EXPECT_EQ(FilesInFolder(), std::vector<std::string>{"editor.ini"});
        refused += problem.isEmpty() ? 0 : 1;
      });
  EXPECT_GE(refused, 5 * 5);
}

}  // namespace
}  // namespace plexel::testing
