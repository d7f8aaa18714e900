#include "files/file_registry.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using namespace std::string_view_literals;

class RegistryFile : public testing::Test {
 protected:
  std::int32_t Store(std::string_view name, std::string_view text, std::int32_t length,
                     std::int32_t type = Registry::TypeText) {
    return registry.SetValue(key, name, 0, type, text, length);
  }
  std::int32_t Store(std::string_view name, std::string_view text) {
    return Store(name, text, static_cast<std::int32_t>(text.size()));
  }

  TemporaryDirectory directory;
  FileRegistry registry{directory / "registry.ini", "Key"};
  std::intptr_t key = 0;
};

TEST_F(RegistryFile, TakesValuesOfAnOpenKeyAlone) {
  EXPECT_NE(Store("A", "1"), 0);
  EXPECT_NE(registry.CloseKey(key), 0);
  ASSERT_EQ(registry.OpenKey(Registry::CurrentUser, "KEY", 0, Registry::AccessSetValue, key), 0);
  EXPECT_EQ(Store("A", "1"), 0);
  EXPECT_NE(registry.SetValue(key + 1, "A", 0, Registry::TypeText, "1", 1), 0);
  EXPECT_NE(registry.CloseKey(key + 1), 0);
  EXPECT_EQ(registry.CloseKey(key), 0);
  EXPECT_NE(Store("A", "1"), 0);
  EXPECT_NE(registry.CloseKey(key), 0);
}

TEST_F(RegistryFile, OpensTheKeyOfTheUserForWritingAlone) {
  EXPECT_NE(registry.OpenKey(Registry::CurrentUser, "Other", 0, Registry::AccessSetValue, key), 0);
  EXPECT_NE(registry.OpenKey(0x80000002U, "Key", 0, Registry::AccessSetValue, key), 0);
  EXPECT_NE(registry.OpenKey(Registry::CurrentUser, "Key", 0, 1, key), 0);
}

TEST_F(RegistryFile, RefusesWhatDoesNotFitALine) {
  ASSERT_EQ(registry.OpenKey(Registry::CurrentUser, "Key", 0, Registry::AccessSetValue, key), 0);
  for (const std::string_view name :
       {""sv, " A"sv, "A "sv, "A\rB"sv, "A\nB"sv, "A\0B"sv, "A=B"sv, "#A"sv, ";A"sv, "[A"sv}) {
    EXPECT_NE(Store(name, "1"), 0) << name;
  }
  for (const std::string_view text : {" 1"sv, "1\t"sv, "1\r"sv, "1\n2"sv, "\0"sv})
    EXPECT_NE(Store("A", text), 0) << text;
  EXPECT_NE(Store("A", "1", -1), 0);
  EXPECT_NE(Store("A", "1", 1, Registry::TypeText + 1), 0);
  for (const std::string_view name : {"A#"sv, "A;"sv, "A["sv, "]"sv, "A B"sv}) EXPECT_EQ(Store(name, "="), 0) << name;
  EXPECT_EQ(Store("Empty", ""), 0);
}

TEST_F(RegistryFile, ValuesThatCannotBeWrittenAreWrittenWithTheNextOnes) {
  const auto close = [this](std::string_view text) {
    EXPECT_EQ(registry.OpenKey(Registry::CurrentUser, "Key", 0, Registry::AccessSetValue, key), 0);
    EXPECT_EQ(Store("A", text), 0);
    return registry.CloseKey(key);
  };
  {
    const FileFaults faults(directory.Path(), "fsync", EIO);
    EXPECT_NE(close("1"), 0);
  }
  EXPECT_FALSE(std::filesystem::exists(directory / "registry.ini"));
  EXPECT_EQ(*registry.Find("A"), "1");
  EXPECT_EQ(close("1"), 0);
  EXPECT_EQ(Content(directory / "registry.ini"), "[Key]\nA=1\n");
}

TEST_F(RegistryFile, AValueThatStaysIsNotWrittenAgain) {
  for (const bool written : {true, false}) {
    ASSERT_EQ(registry.OpenKey(Registry::CurrentUser, "Key", 0, Registry::AccessSetValue, key), 0);
    EXPECT_EQ(Store("A", "1"), 0);
    EXPECT_EQ(registry.CloseKey(key), 0);
    EXPECT_EQ(std::filesystem::remove(directory / "registry.ini"), written);
  }
}

TEST_F(RegistryFile, OneValueThatChangesIsWrittenWithThoseThatStay) {
  ASSERT_EQ(registry.OpenKey(Registry::CurrentUser, "Key", 0, Registry::AccessSetValue, key), 0);
  EXPECT_EQ(Store("A", "1"), 0);
  EXPECT_EQ(Store("B", ""), 0);
  EXPECT_EQ(registry.CloseKey(key), 0);
  EXPECT_EQ(Content(directory / "registry.ini"), "[Key]\nA=1\nB=\n");
}

TEST_F(RegistryFile, AValueThatIsEmptyIsWrittenToo) {
  ASSERT_EQ(registry.OpenKey(Registry::CurrentUser, "Key", 0, Registry::AccessSetValue, key), 0);
  EXPECT_EQ(Store("A", ""), 0);
  EXPECT_EQ(registry.CloseKey(key), 0);
  EXPECT_EQ(Content(directory / "registry.ini"), "[Key]\nA=\n");
}

TEST_F(RegistryFile, ADirectoryThatIsNotFlushedIsNoFailure) {
  ASSERT_EQ(registry.OpenKey(Registry::CurrentUser, "Key", 0, Registry::AccessSetValue, key), 0);
  EXPECT_EQ(Store("A", "1"), 0);
  const FileFaults faults(directory.Path(), "fsync of a directory", EIO);
  EXPECT_EQ(registry.CloseKey(key), 0);
  EXPECT_NE(faults.Failed(), "");
  EXPECT_EQ(Content(directory / "registry.ini"), "[Key]\nA=1\n");
}

TEST_F(RegistryFile, AFileInThePlaceOfItsDirectoryIsAFailure) {
  const auto file = directory.Put("file", "");
  FileRegistry other(file / "registry.ini", "Key");
  ASSERT_EQ(other.OpenKey(Registry::CurrentUser, "Key", 0, Registry::AccessSetValue, key), 0);
  EXPECT_EQ(other.SetValue(key, "A", 0, Registry::TypeText, "1", 1), 0);
  EXPECT_NE(other.CloseKey(key), 0);
}

}  // namespace
}  // namespace plexel
