#include "cli/project_bench.h"

#include <gtest/gtest.h>

#include <sstream>

#include "element/ctlPlexelBaseElement.h"
#include "files/data_directory.h"
#include "files/file_error.h"
#include "files/system_files.h"

namespace plexel {
namespace {

const std::filesystem::path& Sample() {
  static const std::filesystem::path file = DataDirectory() / "projects" / "sample.plexel";
  return file;
}

TEST(ProjectBench, OpensAProjectWithAllElementsOfItsPanel) {
  ProjectBench bench;
  std::istringstream nothing;
  const auto document = bench.Open(Sample().string(), nothing);
  EXPECT_FALSE(document->Places().empty());
  EXPECT_EQ(document->File(), Sample());
}

TEST(ProjectBench, OpensTheProjectOnStandardInput) {
  ProjectBench bench;
  std::istringstream input(ReadWholeFile(Sample(), ProjectLimit));
  std::istringstream nothing;
  const auto document = bench.Open("-", input);
  const auto same = bench.Open(Sample().string(), nothing);
  ASSERT_EQ(document->Places().size(), same->Places().size());
  for (std::size_t place = 0; place < same->Places().size(); ++place) {
    EXPECT_EQ(document->Places()[place].element->TactisBaseElementScanCodeBuffer(),
              same->Places()[place].element->TactisBaseElementScanCodeBuffer());
  }
}

TEST(ProjectBench, NoContainerTellsOfLedsThatAreDefined) {
  ProjectBench bench;
  std::istringstream nothing;
  const auto document = bench.Open(Sample().string(), nothing);
  EXPECT_EQ(document->Places().front().element->CheckIfLedIsAlreadyDefined(CapsLockLed, 1), False);
}

TEST(ProjectBench, ElementsComeInTheOrderOfTheFile) {
  ProjectBench bench;
  std::istringstream input(
      "[PROJECT]\nFormat=1\nMarks=\x8B\x9B\nPanel=Small\nElements=2\n\n[ELEMENT F2]\n\n[ELEMENT F1]\n\n[END]\n");
  const auto document = bench.Open("-", input);
  ASSERT_GT(document->Places().size(), 2u);
  EXPECT_EQ(document->Places()[0].element->Name(), "F2");
  EXPECT_EQ(document->Places()[1].element->Name(), "F1");
}

TEST(ProjectBench, AProjectThatCannotBeReadTellsFileAndLine) {
  ProjectBench bench;
  std::istringstream input("[PROJECT]\nwrong\n");
  EXPECT_THROW(bench.Open("-", input), FileError);
  EXPECT_THROW(bench.Open("/nowhere.plexel", input), FileError);
}

}  // namespace
}  // namespace plexel
