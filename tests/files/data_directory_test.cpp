#include "files/data_directory.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <optional>
#include <string>

#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

/// Sets or removes an environment variable for the life of this object.
class Environment {
 public:
  Environment(const char* name, const char* value) : name_(name) {
    if (const char* old = ::getenv(name)) old_ = old;
    value == nullptr ? ::unsetenv(name) : ::setenv(name, value, 1);
  }
  ~Environment() { old_ ? ::setenv(name_, old_->c_str(), 1) : ::unsetenv(name_); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  const char* name_;
  std::optional<std::string> old_;
};

TEST(DataDirectory, TheEnvironmentDecidesFirst) {
  const Environment data("PLEXEL_DATA", "/some/where");
  EXPECT_EQ(DataDirectory(), "/some/where");
}

TEST(DataDirectory, AnEmptyVariableDoesNotCount) {
  const Environment data("PLEXEL_DATA", "");
  EXPECT_TRUE(std::filesystem::exists(DataDirectory() / "languages" / "English.lang"));
}

TEST(DataDirectory, IsNamedWithoutTheLinkThatLeadsThere) {
  const Environment data("PLEXEL_DATA", nullptr);
  EXPECT_EQ(DataDirectory(), std::filesystem::canonical(DataDirectory()));
  EXPECT_FALSE(std::filesystem::is_symlink(DataDirectory()));
}

TEST(DataDirectory, IsFoundByTheProgramWhereItsLibraryIsNotKnown) {
  const Environment data("PLEXEL_DATA", nullptr);
  const NoModuleNames unknown;
  EXPECT_TRUE(DataDirectory().is_absolute());
  EXPECT_TRUE(std::filesystem::exists(DataDirectory() / "languages" / "English.lang"));
}

TEST(FirstDirectory, IsTheFirstOfFullNameThatIsADirectory) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("file", ""), found = directory / "found";
  std::filesystem::create_directory(found);
  std::filesystem::create_directory_symlink(found, directory / "link");
  for (const std::filesystem::path& other :
       {file, directory / "none", std::filesystem::path("."), std::filesystem::path()}) {
    EXPECT_EQ(FirstDirectory({other, directory / "link", directory.Path()}), std::filesystem::canonical(found))
        << other;
  }
}

TEST(FirstDirectory, IsTheLastPlaceWhereThereIsNone) {
  EXPECT_EQ(FirstDirectory({"/no/such", ".", "/none/either"}), "/none/either");
}

TEST(ConfigurationDirectory, LiesUnderTheConfigurationHome) {
  const Environment home("XDG_CONFIG_HOME", "/c");
  EXPECT_EQ(ConfigurationDirectory(), "/c/plexel");
}

TEST(ConfigurationDirectory, ARelativeConfigurationHomeDoesNotCount) {
  const Environment configuration("XDG_CONFIG_HOME", "c");
  const Environment home("HOME", "/h");
  EXPECT_EQ(ConfigurationDirectory(), "/h/.config/plexel");
}

TEST(StateDirectory, LiesUnderTheStateHome) {
  const Environment home("XDG_STATE_HOME", "/s");
  EXPECT_EQ(StateDirectory(), "/s/plexel");
}

TEST(StateDirectory, ARelativeStateHomeDoesNotCount) {
  const Environment state("XDG_STATE_HOME", "s");
  const Environment home("HOME", "/h");
  EXPECT_EQ(StateDirectory(), "/h/.local/state/plexel");
}

}  // namespace
}  // namespace plexel
