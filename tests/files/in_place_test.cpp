#include "files/in_place.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

#include "file_error_of.h"
#include "files/beside.h"
#include "files/system_files.h"
#include "world/fault_walk.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using namespace std::string_literals;
using ::testing::HasSubstr;

/// The system's files, which write a byte at a time; ahead of one of their operations the program ends.
class EndingFiles : public FilePort {
 public:
  explicit EndingFiles(int last) : left_(last) {}
  int Create(const std::filesystem::path& file, const std::filesystem::path& model, int& handle,
             FileTraits& lost) override {
    return Next().Create(file, model, handle, lost);
  }
  int Open(const std::filesystem::path& file, int& handle) override { return Next().Open(file, handle); }
  int Write(int handle, std::size_t place, std::string_view bytes, std::size_t& written) override {
    return Next().Write(handle, place, bytes.substr(0, 1), written);
  }
  int Resize(int handle, std::size_t size) override { return Next().Resize(handle, size); }
  int Flush(int handle) override { return Next().Flush(handle); }
  int Close(int handle) override { return Next().Close(handle); }
  int Replace(int handle, const std::filesystem::path& from, const std::filesystem::path& to) override {
    return Next().Replace(handle, from, to);
  }
  int Remove(const std::filesystem::path& file) override { return Next().Remove(file); }
  int FlushDirectory(const std::filesystem::path& directory) override { return Next().FlushDirectory(directory); }

 private:
  FilePort& Next() {
    if (--left_ < 0) ::_exit(1);
    return SystemFiles();
  }
  int left_;
};

/// A file of two names.
class InPlace : public ::testing::Test {
 protected:
  InPlace() { std::filesystem::create_hard_link(file, other); }
  std::string Read(const std::filesystem::path& name) { return ReadWholeFile(name, 1000); }
  /// As a program leaves it that is killed while it writes.
  std::filesystem::path Tear(std::string_view old) {
    directory.Put("file", "\0hal"s);
    return directory.Put(NameBeside(file, 0, OldEnding).filename().string(), old);
  }

  TemporaryDirectory directory;
  const std::filesystem::path file = directory.Put("file", "old"), other = directory / "other";
};

TEST_F(InPlace, AFileOfSeveralNamesStaysOneFile) {
  for (const std::string content : {"new", "longer than before", "", "s"}) {
    WriteWholeFile(file, content);
    EXPECT_EQ(Content(file), content);
    EXPECT_EQ(Content(other), content);
    EXPECT_EQ(std::filesystem::hard_link_count(file), 2U);
    EXPECT_EQ(directory.CountFiles(), 2U);
  }
}

TEST_F(InPlace, AHalfWrittenFileGivesWhatItHeldAndIsGivenItBack) {
  for (const std::string old : {"old content", ""}) {
    Tear(old);
    EXPECT_EQ(Read(file), old);
    EXPECT_EQ(Content(other), old);
    EXPECT_EQ(directory.CountFiles(), 2U);
  }
}

TEST_F(InPlace, AHalfWrittenFileIsFoundThroughALink) {
  Tear("old content");
  std::filesystem::create_directory(directory / "folder");
  std::filesystem::create_symlink(file, directory / "folder/link");
  EXPECT_EQ(Read(directory / "folder/link"), "old content");
  EXPECT_EQ(Content(file), "old content");
}

TEST_F(InPlace, AFileThatIsBeingWrittenGivesWhatItHeldAndIsLeftAlone) {
  const auto copy = Tear("old content");
  int handle = -1;
  ASSERT_EQ(SystemFiles().Open(file, handle), 0);
  EXPECT_EQ(Read(file), "old content");
  EXPECT_EQ(Content(file), "\0hal"s);
  EXPECT_TRUE(std::filesystem::exists(copy));
  SystemFiles().Close(handle);
}

TEST_F(InPlace, AFileThatIsBeingWrittenIsNotWrittenByAnother) {
  int handle = -1;
  ASSERT_EQ(SystemFiles().Open(file, handle), 0);
  const auto error = FileErrorOf([&] { WriteWholeFile(file, "new"); });
  ASSERT_TRUE(error);
  EXPECT_THAT(error->what(), HasSubstr(ReasonOf(EWOULDBLOCK)));
  EXPECT_EQ(Content(file), "old");
  EXPECT_EQ(directory.CountFiles(), 2U);
  SystemFiles().Close(handle);
}

TEST_F(InPlace, WhereFilesCannotBeHeldNothingIsWrittenInPlace) {
  const FileFaults faults(directory.Path(), "flock", ENOLCK);
  const auto error = FileErrorOf([&] { WriteWholeFile(file, "new"); });
  ASSERT_TRUE(error);
  EXPECT_THAT(error->what(), HasSubstr(ReasonOf(ENOLCK)));
  EXPECT_EQ(Content(file), "old");
  const auto copy = Tear("old content");
  EXPECT_EQ(Read(file), "old content");
  EXPECT_TRUE(std::filesystem::exists(copy)) << "somebody may be writing it";
}

TEST_F(InPlace, AHalfWrittenFileWhoseCopyStandsBesideAnotherNameIsToldOf) {
  Tear("old content");
  const auto error = FileErrorOf([&] { Read(other); });
  ASSERT_TRUE(error);
  EXPECT_THAT(error->what(), HasSubstr("it held may stand beside another of its names"));
  EXPECT_EQ(Read(file), "old content");
  EXPECT_EQ(Read(other), "old content");
}

TEST_F(InPlace, SavingAHalfWrittenFileWritesItWhole) {
  Tear("old content");
  WriteWholeFile(file, "new");
  EXPECT_EQ(Content(other), "new");
  EXPECT_EQ(directory.CountFiles(), 2U);
}

TEST_F(InPlace, AHalfWrittenFileThatCannotBeGivenItsContentBackKeepsItsCopy) {
  const auto copy = Tear("old content");
  const FileFaults faults(file, "pwrite", EIO);
  EXPECT_EQ(Read(file), "old content");
  const auto error = FileErrorOf([&] { WriteWholeFile(file, "new"); });
  ASSERT_TRUE(error);
  EXPECT_THAT(error->what(), HasSubstr("what it held stands in " + copy.string()));
  EXPECT_EQ(Content(copy), "old content");
}

TEST_F(InPlace, OfSeveralCopiesTheLatestHoldsWhatTheFileHeld) {
  const std::vector<std::string> names = {"file.4194305-0.old", "file.4194306-0.old", "file.4194307-0.old"};
  for (const std::string& latest : names) {
    directory.Put("file", "\0hal"s);
    for (const std::string& name : names) {
      directory.Put(name, name == latest ? "old content" : "older");
      const auto age = std::chrono::hours(name == latest ? 1 : 2);
      std::filesystem::last_write_time(directory / name, std::filesystem::last_write_time(file) - age);
    }
    EXPECT_EQ(Read(file), "old content");
  }
}

TEST_F(InPlace, WhatIsBesideAHalfWrittenFileAndIsNoCopyIsNotRead) {
  Tear("old content");
  const auto half = directory.Put("file.4194305-0.new", "half");
  std::filesystem::last_write_time(half, std::filesystem::last_write_time(file) + std::chrono::hours(1));
  EXPECT_EQ(Read(file), "old content");
}

/// A half-written file that another program is still writing.
class InPlaceByAnother : public InPlace {
 protected:
  InPlaceByAnother() { EXPECT_EQ(SystemFiles().Open(file, handle_), 0); }
  ~InPlaceByAnother() override { SystemFiles().Close(handle_); }
  const std::filesystem::path copy = Tear("old content");

 private:
  int handle_ = -1;
};

TEST_F(InPlaceByAnother, ACopyThatGoesWhenItIsReadHasBeenPutBackIntoTheFile) {
  const Meanwhile another(copy, "open", [&] {
    directory.Put("file", "whole");
    std::filesystem::remove(copy);
  });
  EXPECT_EQ(Read(file), "whole");
}

TEST_F(InPlaceByAnother, ACopyThatCannotBeReadTellsTheReason) {
  const FileFaults faults(copy, "open", EACCES);
  const auto error = FileErrorOf([&] { Read(file); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->what(), copy.string() + ": cannot be read: Permission denied");
}

TEST_F(InPlaceByAnother, CopiesThatGoAgainAndAgainAreGivenUp) {
  int number = 1;
  const Meanwhile another(directory.Path(), "open", [&] {
    const auto last = NameBeside(file, number - 1, OldEnding), next = NameBeside(file, number++, OldEnding);
    std::filesystem::rename(last, next);
  });
  const auto error = FileErrorOf([&] { Read(file); });
  ASSERT_TRUE(error);
  EXPECT_THAT(error->what(), HasSubstr("it held may stand beside another of its names"));
}

TEST_F(InPlace, ACopyBesideAWholeFileIsNotRead) {
  directory.Put("file.4194305-0.old", "older");
  EXPECT_EQ(Read(file), "old");
  WriteWholeFile(file, "new");
  EXPECT_EQ(directory.CountFiles(), 2U);
}

TEST_F(InPlace, ADiskThatTakesNothingMoreLeavesTheCopyAndSaysWhere) {
  const FileFaults faults(file, "pwrite", EIO);
  const auto error = FileErrorOf([&] { WriteWholeFile(file, "new"); });
  ASSERT_TRUE(error);
  const auto copy = NameBeside(file, 0, OldEnding);
  EXPECT_THAT(error->what(), HasSubstr("(what it held stands in " + copy.string() + ")"));
  EXPECT_EQ(Content(copy), "old");
}

TEST_F(InPlace, AProgramThatEndsAheadOfAnyOperationLeavesTheOldOrTheNewContent) {
  const std::string old = "old content", content = "new";
  int ended = 0, half = 0;
  for (bool done = false; !done; ++ended) {
    WriteWholeFile(file, old);
    const pid_t process = ::fork();
    if (process == 0) {
      EndingFiles files(ended);
      WriteWholeFile(file, content, files);
      ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(process, &status, 0), process);
    done = status == 0;
    const std::string left = Content(other);
    half += MayBeHalfWritten(left) ? 1 : 0;
    EXPECT_TRUE(MayBeHalfWritten(left) || left == old || left == content) << ended << ": " << left;
    EXPECT_THAT(Read(file), ::testing::AnyOf(old, content)) << ended;
    EXPECT_EQ(Content(other), Content(file));
  }
  EXPECT_GE(half, 5) << "of " << ended;
  WriteWholeFile(file, old);
  EXPECT_EQ(directory.CountFiles(), 2U);
}

TEST_F(InPlace, EachFileOperationFailsAndTheFileIsTheOldOrTheNewOne) {
  std::optional<FileError> told;
  bool warned = false;
  int refused = 0;
  const int failed = FailEachFileOperation(
      directory.Path(),
      [&] {
        std::filesystem::remove(other);
        WriteWholeFile(file, "old content");
        std::filesystem::create_hard_link(file, other);
      },
      [&] {
        told.reset();
        warned = false;
        try {
          WriteWholeFile(file, "new");
        } catch (const FileWarning& warning) {
          told = warning;
          warned = true;
        } catch (const FileError& error) {
          told = error;
        }
      },
      [&](int error) {
        if (told) {
          EXPECT_THAT(told->what(), HasSubstr(ReasonOf(error)));
        }
        const bool isNew = !told || warned;
        EXPECT_EQ(Content(file), isNew ? "new" : "old content");
        // Who cannot see that the file stands puts a new one there.
        if (error != ENOENT) {
          EXPECT_EQ(Content(other), Content(file));
        }
        EXPECT_LE(directory.CountFiles(), warned ? 3U : 2U);
        refused += isNew ? 0 : 1;
      });
  EXPECT_GE(refused, 5 * 12) << "of " << failed;
}

TEST_F(InPlace, EachFileOperationFailsAndAHalfWrittenFileIsReadOrTheReasonTold) {
  std::optional<FileError> told;
  std::string read;
  const int failed = FailEachFileOperation(
      directory.Path(),
      [&] {
        told.reset();
        Tear("old content");
      },
      [&] { told = FileErrorOf([&] { read = Read(file); }); },
      [&](int) {
        if (!told) {
          EXPECT_EQ(read, "old content");
        }
        EXPECT_EQ(Read(file), "old content") << "nothing is lost";
        EXPECT_EQ(Content(other), "old content");
      });
  EXPECT_GE(failed, 5 * 10);
}

}  // namespace
}  // namespace plexel
