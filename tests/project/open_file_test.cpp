#include "project/open_file.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <memory>
#include <set>

#include "project/fingerprint.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

class OpenFiles : public ::testing::Test {
 protected:
  std::unique_ptr<OpenFile> Open(const std::string& name) {
    return std::make_unique<OpenFile>(directory.Path() / "open", directory.Path() / name);
  }
  TemporaryDirectory directory;
};

TEST_F(OpenFiles, EachKnowsOfTheOther) {
  const auto first = Open("a.plexel");
  EXPECT_EQ(first->Others(), 0U);
  auto second = Open("./a.plexel");
  EXPECT_EQ(first->Others(), 1U);
  EXPECT_EQ(second->Others(), 1U);
  second.reset();
  EXPECT_EQ(first->Others(), 0U);
}

TEST_F(OpenFiles, AMarkIsOfAFileAndAProgramAndItsOwnNumber) {
  const auto first = Open("a.plexel"), second = Open("a.plexel");
  const std::string start = FingerprintOf(directory.Path() / "a.plexel") + "-" + std::to_string(ProcessNumber()) + "-";
  std::set<std::string> names;
  for (const auto& mark : std::filesystem::directory_iterator(directory.Path() / "open"))
    names.insert(mark.path().filename());
  EXPECT_EQ(names, (std::set<std::string>{start + "1.open", start + "2.open"}));
}

TEST_F(OpenFiles, LeavesNothingBehind) {
  Open("a.plexel");
  EXPECT_TRUE(std::filesystem::is_empty(directory.Path() / "open"));
}

TEST_F(OpenFiles, AnotherFileIsNothingToThem) {
  const auto first = Open("a.plexel"), second = Open("b.plexel");
  EXPECT_EQ(first->Others(), 0U);
}

TEST_F(OpenFiles, WhereThePathCannotBeFollowedFilesAreToldApartByTheirNames) {
  std::filesystem::create_symlink("loop", directory.Path() / "loop");
  const auto named = [this](const char* name) { return FingerprintOf(directory.Path() / name); };
  EXPECT_NE(named("loop/a.plexel"), named("loop/b.plexel"));
  EXPECT_EQ(named("loop/a.plexel"), named("loop/x/../a.plexel"));
}

TEST_F(OpenFiles, AProgramThatWasKilledHasNoFileOpen) {
  const auto first = Open("a.plexel");
  const pid_t process = ::fork();
  if (process == 0) {
    const auto left = Open("a.plexel");
    ::_exit(first->Others() == 1 ? 0 : 1);
  }
  int status = 0;
  ::waitpid(process, &status, 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(first->Others(), 0U);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(directory.Path() / "open"), {}), 1);
}

}  // namespace
}  // namespace plexel
