#include "files/beside.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <optional>

#include "files/file_error.h"
#include "files/filling.h"
#include "files/process_lock.h"
#include "files/system_files.h"
#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;

std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
  std::sort(names.begin(), names.end());
  return names;
}

TEST(Beside, WhatKilledProgramsHaveLeftGoesWhenTheFileIsSaved) {
  const TemporaryDirectory directory;
  directory.Put("file.4194305-0.new", "half");
  directory.Put("file.4194306-17.new", "");
  directory.Put("file.4194306-0.old", "older");
  WriteWholeFile(directory / "file", "content");
  EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("file"));
}

TEST(Beside, WhatALivingProgramHoldsStays) {
  const TemporaryDirectory directory;
  const auto held = ProcessLock::Try(NameBeside(directory / "file", 0, HalfEnding));
  ASSERT_TRUE(held);
  WriteWholeFile(directory / "file", "content");
  EXPECT_EQ(Content(directory / "file"), "content");
  EXPECT_EQ(directory.CountFiles(), 2U);
}

TEST(Beside, WhatIsJustBeingWrittenStays) {
  const TemporaryDirectory directory;
  const auto file = directory / "file", beside = NameBeside(file, 0, HalfEnding);
  FileTraits lost;
  int handle = -1;
  ASSERT_EQ(SystemFiles().Create(beside, file, handle, lost), 0);
  ClearLeftOver(StandingBeside(file), HalfEnding);
  EXPECT_TRUE(std::filesystem::exists(beside));
  SystemFiles().Close(handle);
  ClearLeftOver(StandingBeside(file), HalfEnding);
  EXPECT_FALSE(std::filesystem::exists(beside));
}

TEST(Beside, WhatAKilledProcessWasWritingGoes) {
  const TemporaryDirectory directory;
  const auto file = directory / "file";
  const pid_t process = ::fork();
  if (process == 0) {
    FileTraits lost;
    int handle = -1;
    if (SystemFiles().Create(NameBeside(file, 0, HalfEnding), file, handle, lost) != 0) ::_exit(1);
    ::raise(SIGKILL);
  }
  ::waitpid(process, nullptr, 0);
  ASSERT_EQ(directory.CountFiles(), 1U);
  WriteWholeFile(file, "content");
  EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("file"));
}

TEST(Beside, WhatStandsBesideOtherFilesAndOtherThingsStay) {
  const TemporaryDirectory directory;
  const std::vector<std::string> others = {"file.1-.new",  "file.1-1.new.txt", "file.new",     "file.1.new",
                                           "file.x-1.new", "file2.1-1.new",    "other.1-1.new"};
  for (const std::string& name : others) directory.Put(name, "theirs");
  std::filesystem::create_directory(directory / "file.2-2.new");
  WriteWholeFile(directory / "file", "content");
  EXPECT_EQ(directory.CountFiles(), others.size() + 2);
}

TEST(Beside, WhereEveryNameBesideIsTakenTheFileStaysAsItWas) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "old");
  const FileFaults faults(directory.Path(), "open", EEXIST);
  FileTraits lost;
  std::filesystem::path beside;
  int handle = -1;
  EXPECT_EQ(CreateBeside(SystemFiles(), file, HalfEnding, beside, handle, lost), EEXIST);
  EXPECT_EQ(beside, NameBeside(file, 99, HalfEnding)) << "the last one that is tried";
  EXPECT_THROW(WriteWholeFile(file, "new"), FileError);
}

TEST(Beside, ANewFileThatSomebodyTakesForLeftOverIsMadeUnderAnotherName) {
  const TemporaryDirectory directory;
  const auto file = directory / "file";
  int taken = 0;
  {
    const Meanwhile another(directory.Path(), "flock", [&] {
      if (++taken == 1) std::filesystem::remove(NameBeside(file, 0, HalfEnding));
    });
    WriteWholeFile(file, "content");
  }
  EXPECT_EQ(taken, 2);
  EXPECT_EQ(Content(file), "content");
  EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("file"));
}

TEST(Beside, ANewFileThatSomebodyHoldsIsLeftToHim) {
  const TemporaryDirectory directory;
  const auto file = directory / "file";
  {
    const FileFaults faults(directory.Path(), "flock", {EWOULDBLOCK});
    WriteWholeFile(file, "content");
  }
  EXPECT_EQ(Content(file), "content");
  EXPECT_TRUE(std::filesystem::exists(NameBeside(file, 0, HalfEnding)));
  EXPECT_EQ(directory.CountFiles(), 2U);
}

TEST(Beside, ADirectoryThatCannotBeListedKeepsWhatIsLeftAndIsSavedInto) {
  const TemporaryDirectory directory;
  directory.Put("file.4194305-0.new", "half");
  {
    const FileFaults faults(directory.Path(), "openat", EACCES);
    WriteWholeFile(directory / "file", "content");
    EXPECT_EQ(faults.Failed(), "openat");
  }
  EXPECT_EQ(Content(directory / "file"), "content");
  EXPECT_EQ(directory.CountFiles(), 2U);
}

TEST(Beside, ANameAsLongAsTheSystemTakesIsSavedAndClearedBeside) {
  const TemporaryDirectory directory;
  const std::string name(255, 'n');
  const auto file = directory / name;
  WriteWholeFile(file, "old");
  directory.Put(NameBeside(file, 3, HalfEnding).filename().string(), "half");
  WriteWholeFile(file, "new");
  EXPECT_EQ(Content(file), "new");
  EXPECT_THAT(NamesIn(directory.Path()), ElementsAre(name));
}

TEST(Beside, ALongNameIsCutBetweenItsCharacters) {
  for (const std::size_t ahead : {0U, 1U, 2U}) {
    std::string name(ahead, 'n');
    while (name.size() < 250) name += "\u20AC";
    const std::string beside = NameBeside("/" + name, 0, OldEnding).filename().string();
    EXPECT_LE(beside.size(), 255U);
    EXPECT_THAT(beside, EndsWith("-0.old"));
    EXPECT_EQ(beside.find('~') % 3, ahead);
    EXPECT_GT(beside.find('~'), 200U);
  }
}

TEST(Beside, ALongNameOfPiecesOfCharactersIsSavedAndClearedBeside) {
  const TemporaryDirectory directory;
  const std::string name(250, '\x80');
  const std::string beside = NameBeside(directory / name, 3, HalfEnding).filename().string();
  EXPECT_EQ(beside.front(), '~');
  directory.Put(beside, "half");
  WriteWholeFile(directory / name, "content");
  EXPECT_THAT(NamesIn(directory.Path()), ElementsAre(name));
}

TEST(Beside, AFileOfTheCurrentDirectoryIsSavedAndClearedBeside) {
  const TemporaryDirectory directory;
  directory.Put("file.4194305-0.new", "half");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(directory.Path());
  WriteWholeFile("file", "content");
  std::filesystem::current_path(before);
  EXPECT_THAT(NamesIn(directory.Path()), ElementsAre("file"));
  EXPECT_EQ(Content(directory / "file"), "content");
}

TEST(Beside, LongNamesThatDifferOnlyAtTheirEndsHaveOtherNamesBeside) {
  const std::string name(254, 'n');
  EXPECT_NE(NameBeside("/" + name + 'a', 0, OldEnding), NameBeside("/" + name + 'b', 0, OldEnding));
}

}  // namespace
}  // namespace plexel
