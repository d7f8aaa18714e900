#include "files/replacing.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <cerrno>
#include <sstream>

#include "files/file_error.h"
#include "files/system_files.h"
#include "world/access_list.h"
#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using ::testing::UnorderedElementsAre;

/// What is told when a file is replaced while an operation is refused, a line each without the name of the file.
std::vector<std::string> Told(const TemporaryDirectory& directory, const std::filesystem::path& file,
                              const char* refused) {
  std::ostringstream lines;
  {
    const FileFaults faults(directory.Path(), refused, EPERM);
    TellReplacing(file, [&] { WriteWholeFile(file, "new"); }, lines);
  }
  EXPECT_EQ(Content(file), "new");
  std::istringstream told(lines.str());
  std::vector<std::string> reasons;
  const std::string start = file.string() + ": ";
  for (std::string line; std::getline(told, line);) {
    EXPECT_TRUE(line.starts_with(start)) << line;
    reasons.push_back(line.substr(start.size()));
  }
  return reasons;
}

TEST(Replacing, TellsEachAttributeAndTheAccessListThatIsLost) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "old");
  GiveSampleAccessList(file);
  GiveAttribute(file, "user.plexel.note", "lost");
  EXPECT_THAT(Told(directory, file, "fsetxattr"),
              UnorderedElementsAre("is replaced without its access list",
                                   "is replaced without its attribute user.plexel.note"));
}

TEST(Replacing, TellsTheOwnerAndTheGroupThatAreLost) {
  // Only root may give a file away; the file of anybody else is his own.
  const bool root = ::geteuid() == 0;
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", "old");
  ASSERT_EQ(::chown(file.c_str(), root ? 4'000'001 : ::geteuid(), root ? 4'000'002 : ::getegid()), 0);
  const std::vector<std::string> wanted = {"is replaced without its owner 4000001",
                                           "is replaced without its group 4000002"};
  EXPECT_EQ(Told(directory, file, "fchown"), root ? wanted : std::vector<std::string>());
}

TEST(Replacing, TellsNothingWhereNothingIsLost) {
  const TemporaryDirectory directory;
  EXPECT_TRUE(Told(directory, directory.Put("file", "old"), "nothing").empty());
}

}  // namespace
}  // namespace plexel
