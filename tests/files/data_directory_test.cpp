#include "files/data_directory.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <optional>
#include <string>

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
