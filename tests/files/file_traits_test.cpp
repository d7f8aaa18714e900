#include "files/file_traits.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <grp.h>
#include <pwd.h>
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
  for (const int error : {EPERM, EACCES, ENOTSUP, EINVAL}) {
    const FileFaults faults(directory.Path(), "fsetxattr", error);
    const FileTraits lost = LostByWriting(file);
    EXPECT_THAT(lost, ::testing::UnorderedElementsAre(FileTrait{FileTrait::Kind::AccessList, ""},
                                                      FileTrait{FileTrait::Kind::Attribute, NoteName}));
    EXPECT_EQ(Content(file), "old");
    EXPECT_EQ(directory.CountFiles(), 1U);
  }
}

TEST_F(FileTraitsOfASavedFile, AnAttributeThatGoesInTheMeantimeIsNotLost) {
  const FileFaults faults(directory.Path(), "getxattr", ENODATA);
  EXPECT_TRUE(LostByWriting(file).empty());
}

TEST_F(FileTraitsOfASavedFile, WhereThereAreNoAttributesNoneIsLost) {
  const FileFaults faults(directory.Path(), "listxattr", ENOTSUP);
  EXPECT_TRUE(LostByWriting(file).empty());
  EXPECT_EQ(faults.Failed(), "listxattr");
}

TEST_F(FileTraitsOfASavedFile, AttributesThatCannotBeListedAreAFailure) {
  const FileFaults faults(directory.Path(), "listxattr", EIO);
  const auto error = FileErrorOf([&] { LostByWriting(file); });
  ASSERT_TRUE(error);
  EXPECT_THAT(error->what(), HasSubstr("cannot be written: Input/output error"));
}

TEST_F(FileTraitsOfASavedFile, WhatTellsOfTheContentIsNotGiven) {
  // Only root may give a file such an attribute; that of anybody else has none.
  if (::geteuid() == 0) GiveAttribute(file, "security.ima", "signature");
  EXPECT_TRUE(LostByWriting(file).empty());
  WriteWholeFile(file, "new");
  EXPECT_EQ(AttributeOf(file, "security.ima"), std::nullopt);
  EXPECT_EQ(AttributeOf(file, NoteName), "kept");
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

/// A file without an access list in a directory that gives one to new files.
class FileTraitsInADirectoryThatGivesAccessLists : public ::testing::Test {
 protected:
  FileTraitsInADirectoryThatGivesAccessLists() {
    GiveAttribute(directory.Path(), "system.posix_acl_default", SampleAccessList());
  }
  TemporaryDirectory directory;
  const std::filesystem::path file = directory.Put("file", "old");
};

TEST_F(FileTraitsInADirectoryThatGivesAccessLists, OneThatCannotBeTakenAwayIsLost) {
  const FileFaults faults(directory.Path(), "fremovexattr", EPERM);
  EXPECT_EQ(LostByWriting(file), (FileTraits{{FileTrait::Kind::AccessList, ""}}));
}

TEST_F(FileTraitsInADirectoryThatGivesAccessLists, ADiskThatFailsToTakeItAwayIsAFailure) {
  for (const char* operation : {"fremovexattr", "fgetxattr"}) {
    const FileFaults faults(directory.Path(), operation, EIO);
    EXPECT_TRUE(FileErrorOf([&] { LostByWriting(file); })) << operation;
  }
}

TEST_F(FileTraitsInADirectoryThatGivesAccessLists, WhereThereAreNoneNothingIsLost) {
  const FileFaults faults(directory.Path(), "fgetxattr", ENOTSUP);
  EXPECT_TRUE(LostByWriting(file).empty());
  EXPECT_EQ(faults.Failed(), "fgetxattr");
}

TEST_F(FileTraitsInADirectoryThatGivesAccessLists, AnotherThatTheFileHasStays) {
  std::string list = SampleAccessList();
  list[4 + 8 + 4] = 99;  // another user
  GiveAttribute(file, AccessListName, list);
  WriteWholeFile(file, "new");
  EXPECT_EQ(AttributeOf(file, AccessListName), list);
}

TEST_F(FileTraitsInADirectoryThatGivesAccessLists, OneThatTheNewFileHasAlreadyIsNotGiven) {
  const auto other = directory / "other";
  const int handle = ::open(other.c_str(), O_WRONLY | O_CREAT, 0600);
  ASSERT_GE(handle, 0);
  ::close(handle);
  ASSERT_TRUE(AttributeOf(other, AccessListName));
  const FileFaults faults(directory.Path(), "fsetxattr", EPERM);
  EXPECT_TRUE(LostByWriting(other).empty());
  EXPECT_EQ(faults.Failed(), "");
}

/// A file of somebody else, where root runs the tests; the file of anybody else is his own, and he loses nothing.
class FileOfSomebodyElse : public ::testing::Test {
 protected:
  static constexpr uid_t Owner = 4'000'001;
  static constexpr gid_t Group = 4'000'002;
  static constexpr auto Own = static_cast<uid_t>(-1);

  void GiveAway(uid_t owner, gid_t group) {
    ASSERT_EQ(::chown(file.c_str(), root ? owner : Own, root ? group : Own), 0);
    ASSERT_EQ(::chmod(file.c_str(), wholeMode), 0);
  }
  FileTraits WhatRootLoses(const FileTraits& lost) const { return root ? lost : FileTraits(); }

  const bool root = ::geteuid() == 0;
  const mode_t wholeMode = root ? 06664 : 02664;  ///< who writes a file runs it as its owner no more, but for root
  TemporaryDirectory directory;
  const std::filesystem::path file = directory.Put("file", "old");
};

TEST_F(FileOfSomebodyElse, NamesOfOwnerAndGroupAreToldWhereTheyAreKnown) {
  constexpr uid_t daemon = 1;  // as everywhere
  const passwd* const user = ::getpwuid(daemon);
  const struct group* const group = ::getgrgid(daemon);
  ASSERT_TRUE(user != nullptr && group != nullptr);
  GiveAway(daemon, daemon);
  const FileFaults faults(directory.Path(), "fchown", EPERM);
  EXPECT_EQ(LostByWriting(file),
            WhatRootLoses({{FileTrait::Kind::Owner, user->pw_name}, {FileTrait::Kind::Group, group->gr_name}}));
  const NoUserNames unknown;
  EXPECT_EQ(LostByWriting(file), WhatRootLoses({{FileTrait::Kind::Owner, "1"}, {FileTrait::Kind::Group, "1"}}));
}

TEST_F(FileOfSomebodyElse, OfAGroupThatIsLostAloneTheOwnerStays) {
  GiveAway(Own, Group);
  const FileFaults faults(directory.Path(), "fchown", EPERM);
  EXPECT_EQ(LostByWriting(file), WhatRootLoses({{FileTrait::Kind::Group, "4000002"}}));
  WriteWholeFile(file, "new");
  EXPECT_EQ(ModeOf(file), root ? 0644U : wholeMode) << "neither does the other group get rights, nor is it run for it";
}

TEST_F(FileOfSomebodyElse, OfAnOwnerWhoIsLostAloneTheGroupStays) {
  GiveAway(Owner, Own);
  const FileFaults faults(directory.Path(), "fchown", EPERM);
  EXPECT_EQ(LostByWriting(file), WhatRootLoses({{FileTrait::Kind::Owner, "4000001"}}));
  WriteWholeFile(file, "new");
  EXPECT_EQ(ModeOf(file), root ? 0664U : wholeMode) << "nobody runs it as somebody else";
}

TEST_F(FileOfSomebodyElse, TheGroupIsGivenWhereTheOwnerMayNotBe) {
  GiveAway(Owner, Group);
  const gid_t group = StatusOf(file).st_gid;
  {
    const FileFaults faults(directory.Path(), "fchown", {EPERM});
    WriteWholeFile(file, "new");
  }
  EXPECT_EQ(Content(file), "new");
  EXPECT_EQ(StatusOf(file).st_uid, ::geteuid());
  EXPECT_EQ(StatusOf(file).st_gid, group);
  EXPECT_EQ(ModeOf(file), root ? 0664U : wholeMode);
}

TEST_F(FileOfSomebodyElse, AFailingDiskIsAFailureAndNoLoss) {
  GiveAway(Owner, Group);
  const auto expect = [&](std::initializer_list<int> errors) {
    const FileFaults faults(directory.Path(), "fchown", errors);
    const auto error = FileErrorOf([&] { WriteWholeFile(file, "new"); });
    EXPECT_EQ(error ? error->Reason() : "", root ? "cannot be written: Input/output error" : "");
    EXPECT_EQ(Content(file), root ? "old" : "new");
    EXPECT_EQ(directory.CountFiles(), 1U);
  };
  expect({EIO});
  expect({EPERM, EIO});
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
