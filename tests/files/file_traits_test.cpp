#include "files/file_traits.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "file_error_of.h"
#include "files/system_files.h"
#include "world/access_list.h"
#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using ::testing::HasSubstr;

constexpr const char* NoteName = "user.plexel.note";

struct stat StatusOf(const std::filesystem::path& file) {
  struct stat status{};
  EXPECT_EQ(::stat(file.c_str(), &status), 0);
  return status;
}
unsigned ModeOf(const std::filesystem::path& file) { return StatusOf(file).st_mode & 07777U; }

/// A file with an access list and an attribute.
class FileTraitsOfASavedFile : public ::testing::Test {
 protected:
  FileTraitsOfASavedFile() {
    GiveSampleAccessList(file);
    GiveAttribute(file, NoteName, "kept");
  }
  TemporaryDirectory directory;
  const std::filesystem::path file = directory.Put("file", "old");
};

TEST_F(FileTraitsOfASavedFile, AccessListAndExtendedAttributesStay) {
  EXPECT_TRUE(LostByWriting(file).empty());
  WriteWholeFile(file, "new");
  EXPECT_EQ(Content(file), "new");
  EXPECT_EQ(AttributeOf(file, AccessListName), SampleAccessList());
  EXPECT_EQ(AttributeOf(file, NoteName), "kept");
}

TEST_F(FileTraitsOfASavedFile, WhatMayNotBeGivenIsToldBeforeAndTheFileIsAsItWas) {
  const FileFaults faults(directory.Path(), "fsetxattr", EPERM);
  const FileTraits lost = LostByWriting(file);
  EXPECT_THAT(lost, ::testing::UnorderedElementsAre(FileTrait{FileTrait::Kind::AccessList, ""},
                                                    FileTrait{FileTrait::Kind::Attribute, NoteName}));
  EXPECT_EQ(Content(file), "old");
  EXPECT_EQ(directory.CountFiles(), 1U);
}

TEST_F(FileTraitsOfASavedFile, AGroupGetsNoRightsThatTheLostAccessListDidNotGiveToAnyone) {
  {
    const FileFaults faults(directory.Path(), "fsetxattr", ENOTSUP);
    WriteWholeFile(file, "new");
  }
  EXPECT_EQ(Content(file), "new");
  EXPECT_EQ(ModeOf(file), 0600U);
}

TEST_F(FileTraitsOfASavedFile, AnAttributeThatCannotBeReadIsLost) {
  const FileFaults faults(directory.Path(), "getxattr", EACCES);
  EXPECT_EQ(LostByWriting(file).size(), 2U);
}

TEST_F(FileTraitsOfASavedFile, AFailingDiskIsAFailureAndNoLoss) {
  const FileFaults faults(directory.Path(), "fsetxattr", ENOSPC);
  for (const auto& act : {std::function<void()>([&] { LostByWriting(file); }),
                          std::function<void()>([&] { WriteWholeFile(file, "new"); })}) {
    const auto error = FileErrorOf(act);
    ASSERT_TRUE(error);
    EXPECT_THAT(error->what(), HasSubstr("cannot be written: No space left on device"));
    EXPECT_EQ(Content(file), "old");
    EXPECT_EQ(directory.CountFiles(), 1U);
  }
}

TEST(FileTraits, AFileWithoutAccessListGetsNoneFromItsDirectory) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "old");
  ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
  GiveAttribute(directory.Path(), "system.posix_acl_default", SampleAccessList());
  WriteWholeFile(file, "new");
  EXPECT_EQ(AttributeOf(file, AccessListName), std::nullopt);
  EXPECT_EQ(ModeOf(file), 0640U);
  WriteWholeFile(directory / "another", "new");
  EXPECT_EQ(AttributeOf(directory / "another", AccessListName), SampleAccessList()) << "a new file has what it gets";
}

TEST(FileTraits, OwnerAndGroupThatMayNotBeGivenAreNamedBefore) {
  // Only root may have a file of somebody else; the file of anybody else is his own.
  const bool root = ::geteuid() == 0;
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "old");
  ASSERT_EQ(::chmod(file.c_str(), 0664), 0);
  ASSERT_EQ(::chown(file.c_str(), root ? 4'000'001 : ::geteuid(), root ? 4'000'002 : ::getegid()), 0);
  const FileFaults faults(directory.Path(), "fchown", EPERM);
  const FileTraits lost = LostByWriting(file);
  const FileTraits wanted = {{FileTrait::Kind::Owner, "4000001"}, {FileTrait::Kind::Group, "4000002"}};
  EXPECT_EQ(lost, root ? wanted : FileTraits());
  WriteWholeFile(file, "new");
  EXPECT_EQ(ModeOf(file), root ? 0644U : 0664U) << "another group does not get the rights of the lost one";
}

TEST(FileTraits, AFileThatDoesNotStandYetLosesNothing) {
  const TemporaryDirectory directory;
  EXPECT_TRUE(LostByWriting(directory / "new").empty());
  EXPECT_EQ(directory.CountFiles(), 0U);
}

TEST(FileTraits, OfAFileOfSeveralNamesNothingIsLost) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "old");
  GiveSampleAccessList(file);
  std::filesystem::create_hard_link(file, directory / "other");
  const FileFaults faults(directory.Path(), "fsetxattr", EPERM);
  EXPECT_TRUE(LostByWriting(file).empty());
  WriteWholeFile(file, "new");
  EXPECT_EQ(AttributeOf(file, AccessListName), SampleAccessList());
}

}  // namespace
}  // namespace plexel
