#include "files/system_files.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "file_error_of.h"
#include "files/system_operations.h"
#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::HasSubstr;

/// The system's files, of which one operation fails with an error of the disk.
class FailingFiles : public FilePort {
 public:
  explicit FailingFiles(std::string operation) : operation_(std::move(operation)) {}
  int Create(const std::filesystem::path& file, const std::filesystem::path& model, int& handle,
             FileTraits& lost) override {
    return Fails("create") ? EACCES : SystemFiles().Create(file, model, handle, lost);
  }
  int Open(const std::filesystem::path& file, int& handle) override { return SystemFiles().Open(file, handle); }
  int Write(int handle, std::size_t place, std::string_view bytes, std::size_t& written) override {
    if (Fails("write nothing")) return 0;
    if (Fails("write a part")) {
      operation_ = "write";
      return SystemFiles().Write(handle, place, bytes.substr(0, 1), written);
    }
    return Fails("write") ? ENOSPC : SystemFiles().Write(handle, place, bytes, written);
  }
  int Resize(int handle, std::size_t size) override { return SystemFiles().Resize(handle, size); }
  int Flush(int handle) override { return Fails("flush") ? EIO : SystemFiles().Flush(handle); }
  int Close(int handle) override { return SystemFiles().Close(handle); }
  int Replace(int handle, const std::filesystem::path& from, const std::filesystem::path& to) override {
    if (!Fails("replace")) return SystemFiles().Replace(handle, from, to);
    SystemFiles().Close(handle);
    return EPERM;
  }
  int Remove(const std::filesystem::path& file) override { return SystemFiles().Remove(file); }
  int FlushDirectory(const std::filesystem::path& directory) override {
    return Fails("flush directory") ? EIO : SystemFiles().FlushDirectory(directory);
  }

 private:
  bool Fails(std::string_view operation) const { return operation_ == operation; }
  std::string operation_;
};

std::string CannotBeWritten(int reason) { return "cannot be written: " + std::generic_category().message(reason); }

struct Step {
  const char* operation;
  int reason;  ///< why writing has failed then
};
class FailingStep : public testing::TestWithParam<Step> {};

TEST_P(FailingStep, LeavesTheOldFileAndNothingBesideItAndTellsWhy) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("project", "old");
  FailingFiles files(GetParam().operation);
  const auto error = FileErrorOf([&] { WriteWholeFile(file, "new content", files); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->what(), file.string() + ": " + CannotBeWritten(GetParam().reason));
  EXPECT_EQ(Content(file), "old");
  EXPECT_EQ(directory.CountFiles(), 1U);
}

INSTANTIATE_TEST_SUITE_P(WriteWholeFile, FailingStep,
                         testing::Values(Step{"create", EACCES}, Step{"write", ENOSPC}, Step{"write a part", ENOSPC},
                                         Step{"write nothing", EIO}, Step{"flush", EIO}, Step{"replace", EPERM}));

TEST(WriteWholeFile, WhatCannotBeTakenAwayIsToldWithTheReasonsOfBoth) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("project", "old");
  std::optional<FileError> error;
  {
    const FileFaults faults(directory.Path(), "unlink", EROFS);
    FailingFiles files("flush");
    error = FileErrorOf([&] { WriteWholeFile(file, "new content", files); });
  }
  ASSERT_TRUE(error);
  ASSERT_EQ(directory.CountFiles(), 2U);
  std::string beside;
  for (const auto& entry : std::filesystem::directory_iterator(directory.Path()))
    if (entry.path() != file) beside = entry.path().string();
  EXPECT_EQ(error->Reason(),
            CannotBeWritten(EIO) + " (" + beside + " is left over: " + std::generic_category().message(EROFS) + ')');
  EXPECT_EQ(Content(file), "old");
}

TEST(WriteWholeFile, ANewFileHoldsTheContent) {
  const TemporaryDirectory directory;
  WriteWholeFile(directory / "new", "content");
  EXPECT_EQ(Content(directory / "new"), "content");
  EXPECT_EQ(directory.CountFiles(), 1U);
}

TEST(WriteWholeFile, WritingThatASignalInterruptsGoesOn) {
  const TemporaryDirectory directory;
  const FileFaults faults(directory.Path(), "pwrite", {EINTR, EINTR});
  WriteWholeFile(directory / "file", "content");
  EXPECT_EQ(Content(directory / "file"), "content");
  EXPECT_EQ(faults.Failed(), "pwrite");
}

TEST(ReadWholeFile, ReadingThatASignalInterruptsGoesOn) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "content");
  const FileFaults faults(directory.Path(), "read", {EINTR, 0, EINTR});
  EXPECT_EQ(ReadWholeFile(file, 100), "content");
  EXPECT_EQ(faults.Failed(), "read");
}

TEST(NamesOf, AFileThatTheSystemDoesNotTellOfHasNone) {
  const TemporaryDirectory directory;
  EXPECT_EQ(NamesOf(directory / "none"), 0U);
  EXPECT_EQ(NamesOf(directory.Put("file", "")), 1U);
}

TEST(WriteWholeFile, ADirectoryThatIsNeverFlushedIsNothingToTell) {
  const TemporaryDirectory directory;
  for (const int error : {EINVAL, ENOTSUP}) {
    const FileFaults faults(directory.Path(), "fsync of a directory", error);
    EXPECT_NO_THROW(WriteWholeFile(directory / "file", "content")) << error;
    EXPECT_EQ(faults.Failed(), "fsync of a directory");
  }
}

TEST(WriteWholeFile, AnEmptyContentIsWritten) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("f", "old");
  WriteWholeFile(file, "");
  EXPECT_EQ(Content(file), "");
}

TEST(WriteWholeFile, ADirectoryThatCannotBeFlushedIsToldOfAFileThatIsWritten) {
  const TemporaryDirectory directory;
  FailingFiles files("flush directory");
  const auto file = directory / "new";
  std::string told;
  try {
    WriteWholeFile(file, "content", files);
  } catch (const FileWarning& warning) {
    told = warning.what();
  }
  EXPECT_EQ(told, file.string() + ": is written, but may not outlast a power cut: Input/output error");
  EXPECT_EQ(Content(file), "content");
  EXPECT_EQ(directory.CountFiles(), 1U);
}

TEST(WriteWholeFile, ALinkStaysALink) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "old");
  std::filesystem::create_symlink(file, directory / "link");
  WriteWholeFile(directory / "link", "new");
  EXPECT_TRUE(std::filesystem::is_symlink(directory / "link"));
  EXPECT_EQ(Content(file), "new");
}

TEST(WriteWholeFile, ALinkThatLeadsToNoFileYetStaysALink) {
  const TemporaryDirectory directory;
  std::filesystem::create_directory(directory / "folder");
  std::filesystem::create_symlink("folder/file", directory / "second");
  std::filesystem::create_symlink(directory / "second", directory / "first");
  WriteWholeFile(directory / "first", "new");
  EXPECT_TRUE(std::filesystem::is_symlink(directory / "first"));
  EXPECT_TRUE(std::filesystem::is_symlink(directory / "second"));
  EXPECT_EQ(Content(directory / "folder/file"), "new");
}

TEST(WriteWholeFile, ALinkThatLeadsInACircleIsRefused) {
  const TemporaryDirectory directory;
  std::filesystem::create_symlink("b", directory / "a");
  std::filesystem::create_symlink("a", directory / "b");
  const auto error = FileErrorOf([&] { WriteWholeFile(directory / "a", "new"); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Reason(), CannotBeWritten(ELOOP));
  EXPECT_TRUE(std::filesystem::is_symlink(directory / "a"));
}

TEST(MakeOwnDirectory, MakesAllThatIsMissingForTheUserAlone) {
  const TemporaryDirectory directory;
  MakeOwnDirectory(directory / "a/b");
  MakeOwnDirectory(directory / "a/b");
  struct stat status{};
  ASSERT_EQ(::stat((directory / "a").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0700U);
  EXPECT_TRUE(std::filesystem::is_directory(directory / "a/b"));
}

TEST(MakeOwnDirectory, ARootThatIsMissingIsAnError) {
  EXPECT_TRUE(FileErrorOf([] { MakeOwnDirectory(""); }));
  const FileFaults faults("/", "mkdir", ENOENT);
  const auto error = FileErrorOf([] { MakeOwnDirectory("/"); });
  ASSERT_TRUE(error);
  EXPECT_STREQ(error->what(), "/: cannot be made: No such file or directory");
}

TEST(MakeOwnDirectory, AFileInItsPlaceIsAnError) {
  const TemporaryDirectory directory;
  directory.Put("file", "");
  EXPECT_TRUE(FileErrorOf([&] { MakeOwnDirectory(directory / "file/a"); }));
}

TEST(WriteWholeFile, PermissionsOfTheOldFileStay) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "old");
  ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
  WriteWholeFile(file, "new");
  struct stat status{};
  ASSERT_EQ(::stat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST(WriteWholeFile, OwnerAndGroupOfTheOldFileStay) {
  // Only root may give a file away; the file of anybody else is his own.
  const bool root = ::geteuid() == 0;
  const uid_t owner = root ? 1234 : ::geteuid();
  const gid_t group = root ? 5678 : ::getegid();
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "old");
  ASSERT_EQ(::chown(file.c_str(), owner, group), 0);
  ASSERT_EQ(::chmod(file.c_str(), 02664), 0);
  WriteWholeFile(file, "new");
  struct stat status{};
  ASSERT_EQ(::stat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, owner);
  EXPECT_EQ(status.st_gid, group);
  EXPECT_EQ(status.st_mode & 07777U, 02664U);
}

TEST(WriteWholeFile, ADeviceIsRefused) {
  const auto error = FileErrorOf([] { WriteWholeFile("/dev/full", "content"); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Reason(), "cannot be written: it is no regular file");
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST(WriteWholeFile, ADirectoryIsRefused) {
  const TemporaryDirectory directory;
  const auto error = FileErrorOf([&] { WriteWholeFile(directory.Path(), "content"); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Reason(), "cannot be written: it is no regular file");
}

TEST(WriteWholeFile, AMissingDirectoryIsRefused) {
  const TemporaryDirectory directory;
  const auto error = FileErrorOf([&] { WriteWholeFile(directory / "none/file", "content"); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Reason(), CannotBeWritten(ENOENT));
}

TEST(WriteWholeFile, AFullDiskLeavesTheOldFile) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("project", "old");
  rlimit limits{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limits), 0);
  const rlimit small{4096, limits.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
  const auto error = FileErrorOf([&] { WriteWholeFile(file, std::string(100'000, 'x')); });
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limits), 0);
  std::signal(SIGXFSZ, handler);
  ASSERT_TRUE(error);
  EXPECT_EQ(Content(file), "old");
  EXPECT_EQ(directory.CountFiles(), 1U);
}

}  // namespace
}  // namespace plexel
