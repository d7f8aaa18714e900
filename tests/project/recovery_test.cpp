#include "project/recovery.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "files/file_error.h"
#include "project/open_document.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using ::testing::HasSubstr;

class UnsavedWork : public OpenDocument {
 protected:
  void Note(const std::string& id, const std::string& text) {
    Change({id.c_str()}, [&] { Element(id).ButtonNotes(text); });
  }
  void Watch(RecoveryKeeper& keeper) {
    document->Listen([&keeper](std::span<const std::size_t> places) { keeper.Changed(places); });
    keeper.Watch(document.get());
  }
  std::filesystem::path Store() { return directory.Path() / "recovery"; }

  TemporaryDirectory directory;
};

class Recovery : public UnsavedWork {
 protected:
  void Watch() { UnsavedWork::Watch(keeper); }
  bool FileStands() { return std::filesystem::exists(keeper.File()); }
  std::string Content() {
    std::ifstream file(keeper.File(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  RecoveryFile Kept() { return ParseRecovery(TextFile(keeper.File())); }

  RecoveryKeeper keeper{Store(), [] { return std::int64_t{1732250000}; }};
};

TEST_F(Recovery, AnUnmodifiedProjectHasNoFile) {
  EXPECT_EQ(keeper.File(), Store() / (std::to_string(::getpid()) + "-1.recovery"));
  EXPECT_FALSE(keeper.Work(1)) << "there is nothing to keep";
  Watch();
  keeper.Flush();
  EXPECT_FALSE(FileStands());
}

TEST_F(Recovery, TheFileHoldsTheWholeProjectItsNameAndTheTime) {
  const auto file = directory.Path() / "a % name\n~\x7F\u00E4.plexel";
  document->Save(file);
  Watch();
  Note("F3", "unsaved");
  EXPECT_TRUE(keeper.IsDue());
  keeper.Flush();
  EXPECT_FALSE(keeper.IsDue());
  const RecoveryFile kept = Kept();
  EXPECT_EQ(kept.head.file, file);
  EXPECT_EQ(kept.head.time, 1732250000);
  EXPECT_EQ(kept.project, document->Content());
}

TEST_F(Recovery, OfAPanelWithOneKeyIsKeptLikeAnyOther) {
  std::ofstream(directory.Path() / "One.panel")
      << "[PANEL]\nTitle=One\nWidth=100\nHeight=100\nTargetSystem=T\n[STYLE KEY]\nFill=#FFFFFF\n"
         "[KEY]\nPlace=0 0 50 50\nElement=F3\nElementType=4\nHardwareNumberButton=1\n[END]\n";
  PanelDocument::Site site = Site();
  site.panelDirectory = directory.Path();
  document = PanelDocument::New("One", site);
  Watch();
  Note("F3", "unsaved");
  keeper.Flush();
  EXPECT_EQ(Kept().project.elements.size(), 1U);
  EXPECT_EQ(Kept().project, document->Content());
}

TEST_F(Recovery, EveryLaterChangeReachesTheFile) {
  Watch();
  Note("F3", "a");
  keeper.Flush();
  Note("F4", "b");
  PutBytes("F5", {0xFF, 0x1C, 0xFF});
  Change({"F5"}, [&] { PutBytes("F5", {0xFF, 0x1B, 0xFF}); });
  document->Undo();
  keeper.Flush();
  EXPECT_EQ(Kept().project, document->Content());
}

TEST_F(Recovery, SmallPortionsMakeTheSameFile) {
  Watch();
  Note("F3", "a");
  int portions = 1;
  while (keeper.Work(7)) {
    ++portions;
    if (portions == 3) Note("F1", "between two portions");
  }
  EXPECT_GE(portions, 46 / 7);
  keeper.Flush();
  EXPECT_EQ(Kept().project, document->Content());
}

TEST_F(Recovery, OnlyWhatHasChangedIsMadeAnew) {
  Watch();
  Note("F3", "a");
  keeper.Flush();
  Note("F4", "b");
  EXPECT_FALSE(keeper.Work(1)) << "nothing is left to be made";
  keeper.Flush();
  EXPECT_EQ(Kept().project, document->Content());
}

TEST_F(Recovery, WhenTheProjectHasAnotherFileNoTextIsMadeAnew) {
  Watch();
  Note("F3", "a");
  keeper.Flush();
  document->FileIsLost(directory.Path() / "b.plexel");
  keeper.Saved();
  EXPECT_FALSE(keeper.Work(0)) << "nothing is left to be made";
  keeper.Flush();
  EXPECT_EQ(Kept().head.file, directory.Path() / "b.plexel");
  EXPECT_EQ(Kept().project, document->Content());
}

TEST_F(Recovery, GoesWhenNothingDiffersAnyMore) {
  Watch();
  Note("F3", "a");
  keeper.Flush();
  EXPECT_TRUE(FileStands());
  document->Undo();
  keeper.Flush();
  EXPECT_FALSE(FileStands());
}

TEST_F(Recovery, GoesWhenTheProjectIsSavedOrLeft) {
  Watch();
  Note("F3", "a");
  keeper.Flush();
  document->Save(directory.Path() / "a.plexel");
  keeper.Saved();
  keeper.Flush();
  EXPECT_FALSE(FileStands());
  Note("F3", "b");
  keeper.Flush();
  keeper.Watch(nullptr);
  keeper.Flush();
  EXPECT_FALSE(FileStands());
}

TEST_F(Recovery, OfTheProjectBeforeNothingIsKept) {
  for (const bool whole : {true, false}) {
    Watch();
    Note("F3", "of the first");
    EXPECT_NE(keeper.Work(whole ? document->Places().size() : 7), whole) << "of a portion more is left to be made";
    const auto first = std::move(document);
    document = PanelDocument::New("Large", Site());
    Watch();
    Note("F4", "of the second");
    keeper.Flush();
    EXPECT_EQ(Kept().project, document->Content());
  }
}

TEST_F(Recovery, AProjectThatIsLeftKeepsItsFile) {
  Watch();
  Note("F3", "a");
  keeper.Flush();
  const RecoveryFile before = Kept();
  Note("F3", "b");
  keeper.Leave();
  EXPECT_FALSE(keeper.IsDue());
  keeper.Flush();
  EXPECT_EQ(Kept().project, before.project);
}

TEST_F(Recovery, AFailureIsToldAndTheNextWritingTriesAgain) {
  Watch();
  Note("F3", "a");
  std::filesystem::create_directory(keeper.File());
  keeper.Flush();
  EXPECT_THAT(keeper.Problem(), HasSubstr("cannot be written"));
  std::ofstream(keeper.File() / "in it") << "";
  document->Undo();
  keeper.Flush();
  EXPECT_THAT(keeper.Problem(), HasSubstr(".recovery: cannot be removed: "));
  std::filesystem::remove_all(keeper.File());
  Note("F3", "b");
  keeper.Flush();
  EXPECT_EQ(keeper.Problem(), "");
  EXPECT_EQ(Kept().project, document->Content());
}

TEST_F(Recovery, TwoProgramsDoNotShareAFile) {
  RecoveryKeeper other(Store(), [] { return std::int64_t{}; });
  EXPECT_NE(other.File(), keeper.File());
}

/// A program that is killed with unsaved work.
class LostWorkFound : public UnsavedWork {
 protected:
  void SetUp() override {
    UnsavedWork::SetUp();
    std::filesystem::create_directory(Store());
  }
  /// Runs in a process of its own, which ends without any clean-up. A keeper's thread of this process may hold a lock
  /// of the allocator, which nobody would let go of there: hence none may be.
  void InAProcessThatIsKilled(const std::function<void()>& act) {
    const std::filesystem::directory_iterator threads("/proc/self/task");
    ASSERT_EQ(std::distance(begin(threads), end(threads)), 1);
    const pid_t process = ::fork();
    ASSERT_GE(process, 0);
    if (process == 0) {
      act();
      ::_exit(0);
    }
    ::waitpid(process, nullptr, 0);
  }
  void PutLost(const std::string& name, std::int64_t time, const std::string& tail = {}) {
    std::ofstream(Store() / name, std::ios::binary)
        << FormatRecoveryHead({"/somewhere/" + name, time}) << FormatProject(document->Content()) << tail;
  }
  std::vector<std::string> damaged;
};

TEST_F(LostWorkFound, BehindAProgramThatWasKilled) {
  InAProcessThatIsKilled([&] {
    RecoveryKeeper killed(Store(), [] { return std::int64_t{7}; });
    Watch(killed);
    Note("F3", "lost");
    killed.Flush();
    ::_exit(0);
  });
  std::vector<LostWork> lost = FindLostWork(Store(), damaged);
  ASSERT_EQ(lost.size(), 1U);
  EXPECT_EQ(lost.front().content.head.time, 7);
  Note("F3", "lost");
  EXPECT_EQ(lost.front().content.project, document->Content());
  Forget(lost.front());
  EXPECT_TRUE(std::filesystem::is_empty(Store()));
  EXPECT_TRUE(FindLostWork(Store(), damaged).empty());
  EXPECT_TRUE(damaged.empty());
}

TEST_F(LostWorkFound, ThatCannotBeRemovedIsToldWithTheReasonAndStaysLocked) {
  PutLost("1-1.recovery", 10);
  std::vector<LostWork> lost = FindLostWork(Store(), damaged);
  ASSERT_EQ(lost.size(), 1U);
  std::filesystem::remove(lost.front().source);
  std::filesystem::create_directories(lost.front().source / "in it");
  try {
    Forget(lost.front());
    ADD_FAILURE() << "it is gone";
  } catch (const FileError& failure) {
    EXPECT_EQ(failure.File(), lost.front().source);
    EXPECT_EQ(failure.Reason(), "cannot be removed: " + std::make_error_code(std::errc::directory_not_empty).message());
  }
  EXPECT_TRUE(std::filesystem::exists(Store() / "1-1.lock"));
}

TEST_F(LostWorkFound, OfAProgramThatHadTheSameNumberStays) {
  const std::string first = std::to_string(::getpid()) + "-1.recovery";
  PutLost(first, 10);
  const RecoveryKeeper keeper(Store(), [] { return std::int64_t{7}; });
  EXPECT_NE(keeper.File(), Store() / first);
  const std::vector<LostWork> lost = FindLostWork(Store(), damaged);
  ASSERT_EQ(lost.size(), 1U);
  EXPECT_EQ(lost.front().source, Store() / first);
}

TEST_F(LostWorkFound, WhateverCannotBeLockedBesideIt) {
  std::filesystem::create_directory(Store() / "1-1.lock");
  for (const char* const name : {"1-1.recovery.9-0.new", "1-2.recovery.9-0.new", "1-2.lock"}) {
    std::ofstream(Store() / name) << "left over";
  }
  PutLost("1-3.recovery", 10);
  EXPECT_EQ(FindLostWork(Store(), damaged).size(), 1U);
  EXPECT_THAT(damaged, ::testing::IsEmpty());
  std::vector<std::string> left;
  for (const auto& entry : std::filesystem::directory_iterator(Store())) left.push_back(entry.path().filename());
  EXPECT_THAT(left, ::testing::UnorderedElementsAre("1-1.lock", "1-1.recovery.9-0.new", "1-3.recovery", "1-3.lock"));
}

TEST_F(LostWorkFound, NotBehindAProgramThatRuns) {
  RecoveryKeeper keeper(Store(), [] { return std::int64_t{7}; });
  Watch(keeper);
  Note("F3", "mine");
  keeper.Flush();
  EXPECT_TRUE(FindLostWork(Store(), damaged).empty());
}

TEST_F(LostWorkFound, TheLatestComesFirstAndIsOfferedOnce) {
  PutLost("1-1.recovery", 10);
  PutLost("1-2.recovery", 30);
  PutLost("1-3.recovery", 20);
  const std::vector<LostWork> lost = FindLostWork(Store(), damaged);
  ASSERT_EQ(lost.size(), 3U);
  EXPECT_EQ(lost[0].content.head.time, 30);
  EXPECT_EQ(lost[2].content.head.time, 10);
  EXPECT_TRUE(FindLostWork(Store(), damaged).empty());
}

TEST_F(LostWorkFound, DamagedFilesArePassedOverWithAWordAndLeft) {
  PutLost("1-1.recovery", 10, "more");
  std::ofstream(Store() / "1-2.recovery") << "[RECOVERY]\nFormat=1\nFile=%2\nTime=1\n";
  std::ofstream(Store() / "1-3.recovery") << "[RECOVERY]\nFormat=2\n";
  std::ofstream(Store() / "1-4.recovery") << "[RECOVERY]\nFormat=1\nFile=a\nTime=x\n";
  std::ofstream(Store() / "1-5.recovery") << "[RECOVERY]\nFormat=1\nFile=a%00\nTime=1";
  std::ofstream(Store() / "1-6.recovery") << "";
  PutLost("1-7.recovery", 20);
  for (const char* const broken : {"%G0", "%0G", "%4", "%", "a%4"}) {
    std::ofstream(Store() / ("1-8" + std::string(broken) + ".recovery"))
        << "[RECOVERY]\nFormat=1\nFile=" << broken << "\nTime=1\n"
        << FormatProject(document->Content());
  }
  EXPECT_EQ(FindLostWork(Store(), damaged).size(), 1U);
  EXPECT_EQ(damaged.size(), 11U);
  EXPECT_TRUE(std::filesystem::exists(Store() / "1-1.recovery"));
}

TEST(RecoveryHead, HasWhatIsNoPlainCharacterOfTheNameInHexadecimal) {
  EXPECT_EQ(FormatRecoveryHead({"/!a %~\x7F\n\xC3\xA4", -5}),
            "[RECOVERY]\nFormat=1\nFile=/!a%20%25~%7F%0A%C3%A4\nTime=-5\n");
}

TEST_F(UnsavedWork, OfAFileWhoseNameEndsInAnEscapeIsRead) {
  for (const char* const name : {"/a ", "/%", "/\xC3\xA4"}) {
    const TextFile file("1-1.recovery", FormatRecoveryHead({name, 5}) + FormatProject(document->Content()));
    EXPECT_EQ(ParseRecovery(file).head.file, name);
  }
}

TEST_F(LostWorkFound, WhatAKilledWritingLeftBesideItGoes) {
  RecoveryKeeper keeper(Store(), [] { return std::int64_t{7}; });
  keeper.Flush();
  const std::string mine = keeper.File().stem();
  std::ofstream(Store() / "1-1.lock") << "";
  std::ofstream(Store() / "1-2.recovery.1-0.new") << "half";
  PutLost("1-3.recovery", 10);
  std::ofstream(Store() / (mine + ".recovery.9-0.new")) << "being written";
  std::ofstream(Store() / "a.plexel.9-0.new") << "of no recovery file";
  const auto lost = FindLostWork(Store(), damaged);
  EXPECT_EQ(lost.size(), 1U);
  std::vector<std::string> left;
  for (const auto& entry : std::filesystem::directory_iterator(Store())) left.push_back(entry.path().filename());
  EXPECT_THAT(left, ::testing::UnorderedElementsAre("1-3.recovery", "1-3.lock", mine + ".lock",
                                                    mine + ".recovery.9-0.new", "a.plexel.9-0.new"));
}

TEST_F(UnsavedWork, AProgramThatKeptNothingLeavesNothing) {
  {
    const RecoveryKeeper keeper(Store(), [] { return std::int64_t{7}; });
  }
  EXPECT_TRUE(std::filesystem::is_empty(Store()));
  {
    RecoveryKeeper keeper(Store(), [] { return std::int64_t{7}; });
    Watch(keeper);
    Note("F3", "a");
    while (keeper.Work(document->Places().size())) {
    }
  }
  const std::string mine = std::to_string(::getpid()) + "-1.";
  std::vector<std::string> left;
  for (const auto& entry : std::filesystem::directory_iterator(Store())) left.push_back(entry.path().filename());
  EXPECT_THAT(left, ::testing::UnorderedElementsAre(mine + "recovery", mine + "lock"));
}

TEST_F(UnsavedWork, IsForItsUserAloneWhateverStoodThere) {
  namespace fs = std::filesystem;
  fs::create_directory(Store());
  fs::permissions(Store(), fs::perms::owner_all | fs::perms::group_all | fs::perms::others_all);
  const RecoveryKeeper keeper(Store(), [] { return std::int64_t{7}; });
  EXPECT_EQ(fs::status(Store()).permissions(), fs::perms::owner_all);
}

TEST_F(LostWorkFound, WhatIsNoRecoveryFileIsToldOfAtItsFirstLine) {
  std::ofstream(Store() / "1-1.recovery") << "[PROJECT]\nFormat=1\n";
  EXPECT_TRUE(FindLostWork(Store(), damaged).empty());
  EXPECT_THAT(damaged, ::testing::ElementsAre(HasSubstr("1-1.recovery:1: this is no recovery file of a known format")));
}

TEST_F(LostWorkFound, AHeadWithoutItsFileOrTimeIsToldOfAtItsLine) {
  std::ofstream(Store() / "1-1.recovery") << "[RECOVERY]\nFormat=1\nTime=1\nFile=a\n";
  EXPECT_TRUE(FindLostWork(Store(), damaged).empty());
  EXPECT_THAT(damaged,
              ::testing::ElementsAre(HasSubstr("1-1.recovery:3: the name of the project's file must stand here")));
  damaged.clear();
  std::ofstream(Store() / "1-1.recovery") << "[RECOVERY]\nFormat=1\nFile=a\nFile=a\n";
  EXPECT_TRUE(FindLostWork(Store(), damaged).empty());
  EXPECT_THAT(damaged, ::testing::ElementsAre(HasSubstr("1-1.recovery:4: the time must stand here")));
}

TEST_F(LostWorkFound, AHeadThatIsCutOffIsToldOfAsSuch) {
  std::ofstream(Store() / "1-1.recovery") << "[RECOVERY]\nFormat=1\nFile=a\nTime=1";
  FindLostWork(Store(), damaged);
  EXPECT_THAT(damaged, ::testing::ElementsAre(HasSubstr("1-1.recovery:4: the file is cut off")));
}

TEST_F(LostWorkFound, AHeadWithoutAProjectIsToldOfBehindIt) {
  std::ofstream(Store() / "1-1.recovery") << "[RECOVERY]\nFormat=1\nFile=a\nTime=1\n";
  FindLostWork(Store(), damaged);
  EXPECT_THAT(damaged, ::testing::ElementsAre(HasSubstr("1-1.recovery:5: this is no project: [PROJECT] is missing")));
}

TEST_F(LostWorkFound, EveryCutOfAFileIsDamage) {
  PutLost("1-1.recovery", 10);
  const std::string whole = [&] {
    std::ifstream file(Store() / "1-1.recovery", std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
  }();
  for (std::size_t length = 0; length < whole.size(); length += 1 + length / 50) {
    EXPECT_THROW(ParseRecovery(TextFile("cut", whole.substr(0, length))), FileError) << length;
  }
  EXPECT_NO_THROW(ParseRecovery(TextFile("whole", whole)));
}

}  // namespace
}  // namespace plexel
