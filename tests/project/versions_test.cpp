#include "project/versions.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "world/temporary_directory.h"

namespace plexel {
namespace {

class Versions : public ::testing::Test {
 protected:
  static std::string Content(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  TemporaryDirectory directory;
  const std::filesystem::path project = directory.Path() / "a.plexel";
  const VersionStore store{directory.Path() / "versions"};
};

TEST_F(Versions, AProjectThatWasNeverSavedHasNone) { EXPECT_TRUE(store.List(project).empty()); }

TEST_F(Versions, TheLatestComesFirst) {
  store.Keep(project, "first", 1000);
  store.Keep(project, "second", 2000);
  const auto versions = store.List(project);
  ASSERT_EQ(versions.size(), 2U);
  EXPECT_EQ(Content(versions[0].file), "second");
  EXPECT_EQ(versions[0].time, 2000);
  EXPECT_EQ(Content(versions[1].file), "first");
}

TEST_F(Versions, TheSameContentIsKeptOnce) {
  store.Keep(project, "same", 1000);
  store.Keep(project, "same", 2000);
  EXPECT_EQ(store.List(project).size(), 1U);
}

TEST_F(Versions, TheLastTwentyAreKept) {
  for (int number = 0; number < 25; ++number) store.Keep(project, std::to_string(number), 1000 + number);
  const auto versions = store.List(project);
  ASSERT_EQ(versions.size(), 20U);
  EXPECT_EQ(Content(versions.front().file), "24");
  EXPECT_EQ(Content(versions.back().file), "5");
}

TEST_F(Versions, AreNamedByTheirTimeInSixteenDigitsEachLaterThanTheOneBefore) {
  for (const auto& [content, time] : {std::pair{"a", -3}, {"b", 1}, {"c", 1}}) store.Keep(project, content, time);
  std::vector<std::string> names;
  for (const auto& version : store.List(project)) names.push_back(version.file.filename());
  EXPECT_EQ(names, (std::vector<std::string>{"0000000000000002.plexel", "0000000000000001.plexel",
                                             "0000000000000000.plexel"}));
}

TEST_F(Versions, AreForTheirUserAloneWhateverStoodThere) {
  namespace fs = std::filesystem;
  store.Keep(project, "a", 1000);
  const fs::path folder = store.List(project).front().file.parent_path();
  fs::permissions(folder, fs::perms::owner_all | fs::perms::group_all | fs::perms::others_all);
  store.Keep(project, "b", 2000);
  EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
}

TEST_F(Versions, AClockThatWentBackDoesNotHideTheLatest) {
  store.Keep(project, "first", 5000);
  store.Keep(project, "second", 1000);
  EXPECT_EQ(Content(store.List(project).front().file), "second");
}

TEST_F(Versions, ProjectsDoNotMix) {
  store.Keep(project, "a", 1000);
  store.Keep(directory.Path() / "b.plexel", "b", 1000);
  ASSERT_EQ(store.List(project).size(), 1U);
  EXPECT_EQ(Content(store.List(project).front().file), "a");
}

TEST_F(Versions, AProjectIsTheSameByEveryNameOfItsFile) {
  std::ofstream(project) << "there";
  std::filesystem::create_symlink(project, directory.Path() / "link.plexel");
  store.Keep(project, "a", 1000);
  EXPECT_EQ(store.List(directory.Path() / "." / "link.plexel").size(), 1U);
}

TEST_F(Versions, ForeignFilesArePassedOver) {
  store.Keep(project, "a", 1000);
  std::ofstream(store.List(project).front().file.parent_path() / "note.plexel") << "mine";
  EXPECT_EQ(store.List(project).size(), 1U);
}

}  // namespace
}  // namespace plexel
