#include "files/file_lists.h"

#include <gmock/gmock.h>

#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FileLists, FilesOfAnExtensionAreSorted) {
  const TemporaryDirectory directory;
  for (const char* name : {"b.cap", "a.cap", "c.cap.old", "cap", "d.CAP"}) directory.Put(name, "");
  std::error_code error;
  EXPECT_THAT(FilesWith(".cap", directory.Path(), error), ElementsAre(directory / "a.cap", directory / "b.cap"));
  EXPECT_FALSE(error);
  EXPECT_THAT(NamesOfFilesWith(".cap", directory.Path()), ElementsAre("a", "b"));
}

TEST(FileLists, NamesAreSortedWithoutTheirExtension) {
  const TemporaryDirectory directory;
  for (const char* name : {"a.panel", "a-1.panel"}) directory.Put(name, "");
  EXPECT_THAT(NamesOfFilesWith(".panel", directory.Path()), ElementsAre("a", "a-1"));
}

TEST(FileLists, ADirectoryThatIsMissingHasNoneAndTellsWhy) {
  const TemporaryDirectory directory;
  std::error_code error;
  EXPECT_THAT(FilesWith(".cap", directory / "missing", error), IsEmpty());
  EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

}  // namespace
}  // namespace plexel
