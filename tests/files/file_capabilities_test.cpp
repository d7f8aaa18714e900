#include "files/file_capabilities.h"

#include <gmock/gmock.h>

#include <cerrno>

#include "file_error_of.h"
#include "files/data_directory.h"
#include "world/file_faults.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::optional<FileError> FaultOf(std::string_view content) {
  const TemporaryDirectory directory;
  directory.Put("a.cap", content);
  return FileErrorOf([&] { FileCapabilities{directory.Path()}; });
}

std::int32_t CountYes(FileCapabilities& capabilities, std::string_view target) {
  std::int32_t yes = 0;
  for (int query = 0; query < CapabilityCount; ++query) {
    yes += capabilities.Ask(static_cast<Capability>(query), target) == 1 ? 1 : 0;
  }
  return yes;
}

TEST(FileCapabilities, AnswersAreThoseOfTheTable) {
  const TemporaryDirectory directory;
  directory.Put("a.cap", "; comment\r\n[ One ]\nHasRunLed = 1\rHasUserLed=-2\n[Two]\n");
  FileCapabilities capabilities(directory.Path());
  EXPECT_EQ(capabilities.Ask(Capability::HasRunLed, "One"), 1);
  EXPECT_EQ(capabilities.Ask(Capability::HasUserLed, "One"), -2);
  EXPECT_EQ(capabilities.Ask(Capability::HasAlarmLed, "One"), 0);
  EXPECT_EQ(capabilities.Ask(Capability::HasRunLed, "Two"), 0);
  EXPECT_THAT(capabilities.Targets(), ElementsAre("One", "Two"));
}

TEST(FileCapabilities, TablesOfSeveralFilesCountTogether) {
  const TemporaryDirectory directory;
  directory.Put("a.cap", "[One]\nHasRunLed=1\n");
  directory.Put("b.cap", "[Two]\nHasRunLed=1\n");
  directory.Put("c.txt", "no table");
  EXPECT_THAT(FileCapabilities(directory.Path()).Targets(), ElementsAre("One", "Two"));
}

TEST(FileCapabilities, AnUnknownTargetAnswersZeroToAllQueries) {
  FileCapabilities capabilities(DataDirectory() / "capabilities");
  EXPECT_EQ(CountYes(capabilities, "nobody knows it"), 0);
}

TEST(FileCapabilities, AnEmptyTargetAnswersZeroToAllQueries) {
  FileCapabilities capabilities(DataDirectory() / "capabilities");
  EXPECT_EQ(CountYes(capabilities, ""), 0);
}

TEST(FileCapabilities, AMissingDirectoryHasNoTargets) {
  EXPECT_THAT(FileCapabilities("no/such/directory").Targets(), IsEmpty());
}

TEST(FileCapabilities, ADirectoryThatCannotBeReadIsAnError) {
  const TemporaryDirectory directory;
  directory.Put("a.cap", "[One]\n");
  const FileFaults faults(directory.Path(), "openat", EACCES);
  const auto error = FileErrorOf([&] { FileCapabilities{directory.Path()}; });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->what(), directory.Path().string() + ": cannot be read: Permission denied");
}

TEST(FileCapabilities, AFaultyLineIsNamedWithItsReason) {
  struct Faulty {
    const char* line;
    const char* reason;
  };
  for (const auto& [line, reason] :
       {Faulty{"HasEverything=1", "there is no query \"HasEverything\""},
        Faulty{"HasRunLed", "\"HasRunLed\" is neither a section nor NAME=VALUE"},
        Faulty{"HasRunLed=yes", "\"yes\" is no number"}, Faulty{"HasRunLed=", "\"\" is no number"},
        Faulty{"[One", "a section must end in \"]\""}, Faulty{"HasRunLed=2147483648", "\"2147483648\" is no number"},
        Faulty{"HasUserLed=1", "the query HasUserLed stands twice"},
        Faulty{"[One]", "the target system One stands twice"}, Faulty{"[]", "the target system has no name"}}) {
    const auto error = FaultOf("[One]\nHasUserLed=1\n" + std::string(line) + "\n");
    ASSERT_TRUE(error) << line;
    EXPECT_EQ(error->Line(), 3U) << line;
    EXPECT_EQ(error->Reason(), reason) << line;
  }
}

TEST(FileCapabilities, AQueryBeforeTheFirstTargetIsRefused) {
  const auto error = FaultOf("HasUserLed=1\n");
  ASSERT_TRUE(error);
  EXPECT_THAT(error->what(), HasSubstr("a.cap:1: a query before the first target system"));
}

TEST(FileCapabilities, TheSampleTargetsAnswerDifferently) {
  FileCapabilities capabilities(DataDirectory() / "capabilities");
  EXPECT_THAT(capabilities.Targets(), ElementsAre("Compact", "Extended", "Standard"));
  EXPECT_EQ(CountYes(capabilities, "Compact"), 5);
  EXPECT_EQ(CountYes(capabilities, "Standard"), 15);
  EXPECT_EQ(CountYes(capabilities, "Extended"), 20);
}

}  // namespace
}  // namespace plexel
