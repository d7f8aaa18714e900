#include <gmock/gmock.h>

#include <cerrno>
#include <sstream>

#include "cli/program.h"
#include "files/project_file.h"
#include "program_run.h"
#include "world/access_list.h"
#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

/// Where errors are told, and what a file held when the first was.
class ErrorsAboutAFile : public std::stringbuf {
 public:
  explicit ErrorsAboutAFile(std::filesystem::path file) : file_(std::move(file)) {}
  std::string heldThen;

 protected:
  int sync() override {
    if (heldThen.empty()) heldThen = Content(file_);
    return std::stringbuf::sync();
  }

 private:
  const std::filesystem::path file_;
};

/// A file with an access list that the user may not give to another.
class AFileThatLosesItsAccessList : public ::testing::Test {
 protected:
  AFileThatLosesItsAccessList() {
    WriteProject(project, {"Small", {}});
    GiveSampleAccessList(target);
  }
  TemporaryDirectory directory;
  const std::filesystem::path project = directory / "a.plexel", target = directory.Put("out", "old");
  const std::string told = target.string() + ": is replaced without its access list\n";
};

TEST_F(AFileThatLosesItsAccessList, IsToldOfBeforeItIsReplaced) {
  ErrorsAboutAFile buffer(target);
  std::ostream errors(&buffer);
  std::istringstream input;
  std::ostringstream output;
  const FileFaults faults(directory.Path(), "fsetxattr", EPERM);
  EXPECT_EQ(RunProgram(std::vector<std::string>{"export", project.string(), target.string()}, {input, output, errors}),
            0);
  EXPECT_EQ(buffer.str(), told);
  EXPECT_EQ(buffer.heldThen, "old");
  EXPECT_EQ(output.str(), "");
  EXPECT_NE(Content(target), "old");
}

TEST_F(AFileThatLosesItsAccessList, IsToldOfByTheCommandThatSavesAProject) {
  const auto script = directory.Put("s.script", "open " + project.string() + "\nsave " + target.string() + "\n");
  const FileFaults faults(directory.Path(), "fsetxattr", EPERM);
  ::testing::internal::CaptureStderr();
  ::testing::internal::CaptureStdout();
  const int status = ProgramRun({"script", script.string()}).status;
  ::testing::internal::GetCapturedStdout();
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), told);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ReadProject(target).panel, "Small");
}

TEST_F(AFileThatLosesItsAccessList, KeepsItAndIsNotToldOfWhereTheUserMayGiveIt) {
  const ProgramRun run({"export", project.string(), target.string()});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(AttributeOf(target, AccessListName), SampleAccessList());
}

TEST(ADirectoryThatIsNotFlushed, IsToldOfAndTheFileIsWritten) {
  const TemporaryDirectory directory;
  const auto project = directory / "a.plexel", folder = directory / "folder", target = folder / "out";
  WriteProject(project, {"Small", {}});
  std::filesystem::create_directory(folder);
  const FileFaults faults(folder, "fsync of a directory", EIO);
  const ProgramRun run({"export", project.string(), target.string()});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, target.string() + ": is written, but may not outlast a power cut: Input/output error\n");
  EXPECT_FALSE(Content(target).empty());
}

}  // namespace
}  // namespace plexel
