#include <gmock/gmock.h>

#include <algorithm>
#include <optional>

#include "files/file_error.h"
#include "files/system_files.h"
#include "project/open_document.h"
#include "project/open_file.h"
#include "project/project_export.h"
#include "project/project_import.h"
#include "project/recovery.h"
#include "project/versions.h"
#include "world/access_list.h"
#include "world/fault_walk.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using ::testing::HasSubstr;

/// Whatever reads or writes files for a project, with each of its operations failing once.
class EachFileOperationFails : public OpenDocument {
 protected:
  void Note(const std::string& text) {
    Change({"F3"}, [&] { Element("F3").ButtonNotes(text); });
  }
  /// Keeps what an act tells, of a failure or of what it has written all the same.
  template <typename Act>
  void Try(Act&& act) {
    told.reset();
    warned.reset();
    try {
      act();
    } catch (const FileWarning& warning) {
      warned = warning.what();
    } catch (const FileError& failure) {
      told = failure.what();
    }
  }
  void ExpectReason(int error) {
    for (const auto& words : {told, warned}) {
      if (words) {
        EXPECT_THAT(*words, HasSubstr(ReasonOf(error)));
      }
    }
  }
  std::vector<std::string> FilesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

  TemporaryDirectory directory;
  std::optional<std::string> told, warned;
};

TEST_F(EachFileOperationFails, SavingLeavesTheOldOrTheNewFileAndTheProjectAsItWas) {
  const auto file = directory / "a.plexel";
  std::string before;
  Project project;
  int turn = 0, kept = 0, warnings = 0;
  const int failed = FailEachFileOperation(
      directory.Path(),
      [&] {
        document->Save(file);
        before = Content(file);
        Note("turn " + std::to_string(++turn));
        project = document->Content();
      },
      [&] { Try([&] { document->Save(file); }); },
      [&](int error) {
        ExpectReason(error);
        EXPECT_EQ(document->Content(), project);
        EXPECT_EQ(document->Modified(), told.has_value());
        EXPECT_EQ(Content(file), told ? before : FormatProject(project));
        EXPECT_EQ(FilesIn(directory.Path()), std::vector<std::string>{"a.plexel"});
        kept += told ? 1 : 0;
        warnings += warned ? 1 : 0;
      });
  EXPECT_GE(kept, 5 * 5) << "of " << failed;
  EXPECT_GE(warnings, 5) << "a directory that is not flushed is told of";
}

TEST_F(EachFileOperationFails, SavingThroughALinkLeavesTheLink) {
  const auto file = directory.Put("b.plexel", ""), link = directory / "a.plexel";
  std::filesystem::create_symlink(file, link);
  std::string before;
  int turn = 0;
  FailEachFileOperation(
      directory.Path(),
      [&] {
        document->Save(link);
        before = Content(file);
        Note("turn " + std::to_string(++turn));
      },
      [&] { Try([&] { document->Save(link); }); },
      [&](int error) {
        ExpectReason(error);
        EXPECT_TRUE(std::filesystem::is_symlink(link));
        EXPECT_EQ(Content(file), told ? before : FormatProject(document->Content()));
        EXPECT_EQ(directory.CountFiles(), 2U);
      });
}

TEST_F(EachFileOperationFails, SavingAFileOfTwoNamesAndAnAccessListLeavesBothNamesAndTheList) {
  const auto file = directory / "a.plexel", other = directory / "b.plexel", listed = directory / "c.plexel";
  std::string before;
  int turn = 0;
  const int failed = FailEachFileOperation(
      directory.Path(),
      [&] {
        std::filesystem::remove(other);
        document->Save(listed);
        GiveSampleAccessList(listed);
        document->Save(file);
        std::filesystem::create_hard_link(file, other);
        before = Content(file);
        Note("turn " + std::to_string(++turn));
      },
      [&] {
        Try([&] { document->Save(listed); });
        const bool failedThere = told.has_value();
        Try([&] { document->Save(file); });
        ASSERT_FALSE(failedThere && told);
      },
      [&](int error) {
        ExpectReason(error);
        EXPECT_EQ(Content(file), told ? before : FormatProject(document->Content()));
        // Who cannot see that a file stands, or may not give the list, puts one there without.
        if (error != ENOENT) {
          EXPECT_EQ(Content(other), Content(file));
        }
        if (error != ENOENT && error != EACCES) {
          EXPECT_EQ(AttributeOf(listed, AccessListName), SampleAccessList());
        }
        const bool copyIsLeft = warned && warned->find("is left over") != warned->npos;
        EXPECT_EQ(directory.CountFiles(), copyIsLeft ? 4U : 3U);
      });
  EXPECT_GE(failed, 5 * 30);
}

TEST_F(EachFileOperationFails, OpeningGivesTheProjectOrTheReason) {
  const auto file = directory / "a.plexel";
  document->Save(file);
  std::unique_ptr<PanelDocument> opened;
  const int failed = FailEachFileOperation(
      directory.Path(), [&] { opened.reset(); }, [&] { Try([&] { opened = PanelDocument::Open(file, Site()); }); },
      [&](int error) {
        ExpectReason(error);
        EXPECT_NE(told.has_value(), opened != nullptr);
        if (opened) {
          EXPECT_EQ(opened->Content(), document->Content());
        }
      });
  EXPECT_GE(failed, 5 * 3);
}

TEST_F(EachFileOperationFails, ComparingTellsWhatIsOnTheDiskOrTheReason) {
  const auto file = directory / "a.plexel";
  document->Save(file);
  PanelDocument::FileState state;
  FailEachFileOperation(
      directory.Path(), [] {}, [&] { state = document->FileNow(); },
      [&](int error) {
        if (state.now == PanelDocument::OnDisk::Unreadable) {
          EXPECT_THAT(state.reason, HasSubstr(ReasonOf(error)));
        } else {
          EXPECT_TRUE(state.now == PanelDocument::OnDisk::Same ||
                      (state.now == PanelDocument::OnDisk::Gone && error == ENOENT));
        }
      });
}

TEST_F(EachFileOperationFails, ARecoveryFileIsTheOldOrTheNewOneAndTheReasonIsTold) {
  const auto store = directory / "recovery";
  RecoveryKeeper keeper(store, [] { return std::int64_t{7}; });
  document->Listen([&](std::span<const std::size_t> places) { keeper.Changed(places); });
  keeper.Watch(document.get());
  std::string before;
  Project project;
  int turn = 0, kept = 0;
  FailEachFileOperation(
      directory.Path(),
      [&] {
        Note("old " + std::to_string(++turn));
        keeper.Flush();
        before = Content(keeper.File());
        Note("new " + std::to_string(turn));
        project = document->Content();
      },
      [&] { keeper.Flush(); },
      [&](int error) {
        const std::string problem = keeper.Problem();
        if (!problem.empty()) {
          EXPECT_THAT(problem, HasSubstr(ReasonOf(error)));
        }
        EXPECT_EQ(document->Content(), project);
        EXPECT_EQ(Content(keeper.File()) == before,
                  !problem.empty() && problem.find("is written, but") == problem.npos);
        EXPECT_NO_THROW(ParseRecovery(TextFile(keeper.File())));
        EXPECT_EQ(FilesIn(store).size(), 2U) << "the file and its lock";
        kept += problem.empty() ? 0 : 1;
      });
  EXPECT_GE(kept, 5 * 5);
}

TEST_F(EachFileOperationFails, ARecoveryFileThatCannotBeRemovedIsTold) {
  RecoveryKeeper keeper(directory / "recovery", [] { return std::int64_t{7}; });
  document->Listen([&](std::span<const std::size_t> places) { keeper.Changed(places); });
  keeper.Watch(document.get());
  const int failed = FailEachFileOperation(
      directory.Path(),
      [&] {
        Note("unsaved");
        keeper.Flush();
        document->Undo();
      },
      [&] { keeper.Flush(); },
      [&](int error) {
        const std::string problem = keeper.Problem();
        if (!problem.empty()) {
          EXPECT_THAT(problem, HasSubstr(ReasonOf(error)));
        }
        if (error != ENOENT) {
          EXPECT_EQ(std::filesystem::exists(keeper.File()), !problem.empty());
        }
      });
  EXPECT_GE(failed, 5);
}

TEST_F(EachFileOperationFails, AStoreOfRecoveryFilesIsMadeOrTheReasonIsTold) {
  std::optional<RecoveryKeeper> keeper;
  const auto store = directory / "state/recovery";
  const int failed = FailEachFileOperation(
      directory.Path(),
      [&] {
        keeper.reset();
        std::filesystem::remove_all(directory / "state");
      },
      [&] { Try([&] { keeper.emplace(store, [] { return std::int64_t{}; }); }); },
      [&](int error) {
        ExpectReason(error);
        EXPECT_NE(keeper.has_value(), told.has_value());
      });
  EXPECT_GE(failed, 5 * 4);
}

TEST_F(EachFileOperationFails, LostWorkIsFoundOrTheReasonIsToldAndItStays) {
  const auto store = directory / "recovery";
  std::filesystem::create_directory(store);
  const auto file = store / "1-1.recovery";
  const std::string text = FormatRecoveryHead({"/a.plexel", 5}) + FormatProject(document->Content());
  std::vector<LostWork> found;
  std::vector<std::string> damaged;
  const int failed = FailEachFileOperation(
      directory.Path(),
      [&] {
        found.clear();
        damaged.clear();
        WriteWholeFile(file, text);
      },
      [&] { found = FindLostWork(store, damaged); },
      [&](int error) {
        EXPECT_EQ(Content(file), text);
        // A folder that is missing holds no lost work.
        if (found.empty() && error != ENOENT) {
          ASSERT_EQ(damaged.size(), 1U);
          EXPECT_THAT(damaged.front(), HasSubstr(ReasonOf(error)));
        }
        if (!found.empty()) {
          EXPECT_EQ(found.front().content.project, document->Content());
        }
      });
  EXPECT_GE(failed, 5 * 5);
}

TEST_F(EachFileOperationFails, LostWorkThatIsNotWantedGoesOrTheReasonIsTold) {
  const auto store = directory / "recovery";
  std::filesystem::create_directory(store);
  const std::string text = FormatRecoveryHead({"/a.plexel", 5}) + FormatProject(document->Content());
  std::vector<LostWork> found;
  FailEachFileOperation(
      directory.Path(),
      [&] {
        std::vector<std::string> damaged;
        found.clear();
        WriteWholeFile(store / "1-1.recovery", text);
        found = FindLostWork(store, damaged);
        ASSERT_EQ(found.size(), 1U);
      },
      [&] { Try([&] { Forget(found.front()); }); },
      [&](int error) {
        ExpectReason(error);
        if (error != ENOENT) {
          EXPECT_EQ(std::filesystem::exists(store / "1-1.recovery"), told.has_value());
        }
      });
}

TEST_F(EachFileOperationFails, AVersionIsKeptOrTheReasonIsToldAndTheOthersStay) {
  const VersionStore store(directory / "versions");
  const auto project = directory / "a.plexel";
  std::int64_t time = 1000;
  const auto contents = [&] {
    std::vector<std::string> held;
    for (const VersionStore::Version& version : store.List(project)) held.push_back(Content(version.file));
    return held;
  };
  std::vector<std::string> held;
  int kept = 0;
  FailEachFileOperation(
      directory.Path(),
      [&] {
        std::filesystem::remove_all(directory / "versions");
        store.Keep(project, "earlier", ++time);
        held = contents();
      },
      [&] { Try([&] { store.Keep(project, "latest", ++time); }); },
      [&](int error) {
        ExpectReason(error);
        std::vector<std::string> now = contents();
        if (!told) {
          ASSERT_FALSE(now.empty());
          EXPECT_EQ(now.front(), "latest");
          now.erase(now.begin());
        }
        EXPECT_EQ(now, held);
        for (const auto& entry : std::filesystem::recursive_directory_iterator(directory.Path())) {
          EXPECT_TRUE(entry.is_directory() || entry.path().extension() == ".plexel") << entry.path();
        }
        kept += told ? 1 : 0;
      });
  EXPECT_GE(kept, 5 * 5);
}

TEST_F(EachFileOperationFails, TheTwentyFirstVersionDrivesOutNoOtherThanTheOldest) {
  const VersionStore store(directory / "versions");
  const auto project = directory / "a.plexel";
  std::int64_t time = 1000;
  const auto keep = [&] {
    ++time;
    store.Keep(project, std::to_string(time), time);
  };
  const auto times = [&] {
    std::vector<std::int64_t> listed;
    for (const VersionStore::Version& version : store.List(project)) listed.push_back(version.time);
    return listed;
  };
  for (std::size_t number = 0; number < VersionStore::Most; ++number) keep();
  std::vector<std::int64_t> before;
  FailEachFileOperation(
      directory.Path(),
      [&] {
        keep();
        before = times();
        ASSERT_EQ(before.size(), VersionStore::Most);
      },
      [&] { Try(keep); },
      [&](int error) {
        ExpectReason(error);
        std::vector<std::int64_t> now = times(), wanted = before;
        if (!told) wanted.insert(wanted.begin(), time);
        wanted.resize(VersionStore::Most);
        ASSERT_GE(now.size(), VersionStore::Most);
        now.resize(VersionStore::Most);  // an old one that could not be removed goes with the next
        EXPECT_EQ(now, wanted);
      });
}

TEST_F(EachFileOperationFails, VersionsAreListedOrTheReasonIsTold) {
  const VersionStore store(directory / "versions");
  const auto project = directory / "a.plexel";
  store.Keep(project, "kept", 1000);
  std::vector<VersionStore::Version> versions;
  FailEachFileOperation(
      directory.Path(), [&] { versions.clear(); }, [&] { Try([&] { versions = store.List(project); }); },
      [&](int error) {
        ExpectReason(error);
        if (error != ENOENT) {
          EXPECT_EQ(versions.size(), told ? 0U : 1U);
        }
      });
}

TEST_F(EachFileOperationFails, AnOpenFileIsMarkedOrTheReasonIsTold) {
  const auto file = directory / "a.plexel";
  std::optional<OpenFile> mark;
  const int failed = FailEachFileOperation(
      directory.Path(),
      [&] {
        mark.reset();
        std::filesystem::remove_all(directory / "state");
      },
      [&] { Try([&] { mark.emplace(directory / "state/open", file); }); },
      [&](int error) {
        ExpectReason(error);
        EXPECT_NE(mark.has_value(), told.has_value());
        if (mark) {
          EXPECT_EQ(mark->Others(), 0U);
        }
      });
  EXPECT_GE(failed, 5 * 4);
}

TEST_F(EachFileOperationFails, OthersAreCountedOrTheReasonIsToldAndTheirMarksStay) {
  const auto file = directory / "a.plexel", store = directory / "open";
  const OpenFile mine(store, file), theirs(store, file);
  std::size_t others = 0;
  FailEachFileOperation(
      directory.Path(), [&] { others = 0; }, [&] { Try([&] { others = mine.Others(); }); },
      [&](int error) {
        ExpectReason(error);
        EXPECT_EQ(FilesIn(store).size(), 2U);
        EXPECT_EQ(mine.Others(), 1U);
        EXPECT_EQ(theirs.Others(), 1U);
      });
}

TEST_F(EachFileOperationFails, ImportAndExportGiveTheWholeOrTheReason) {
  const auto file = directory / "a.json";
  const std::string mine = ExportProject(document->Content());
  std::optional<Project> project;
  FailEachFileOperation(
      directory.Path(),
      [&] {
        WriteWholeFile(file, mine);
        project.reset();
      },
      [&] { Try([&] { project = ImportProject(file, ReadWholeFile(file, mine.size())); }); },
      [&](int error) {
        ExpectReason(error);
        EXPECT_NE(project.has_value(), told.has_value());
        if (project) {
          EXPECT_EQ(*project, document->Content());
        }
      });
  FailEachFileOperation(
      directory.Path(), [&] { WriteWholeFile(file, "old"); }, [&] { Try([&] { WriteWholeFile(file, mine); }); },
      [&](int error) {
        ExpectReason(error);
        EXPECT_EQ(Content(file), told ? "old" : mine);
        EXPECT_EQ(directory.CountFiles(), 1U);
      });
}

}  // namespace
}  // namespace plexel
