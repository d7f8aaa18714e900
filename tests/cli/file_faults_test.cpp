#include <gmock/gmock.h>

#include "files/project_file.h"
#include "files/system_files.h"
#include "program_run.h"
#include "world/fault_walk.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using ::testing::HasSubstr;

struct Word {
  const char* name;
  std::vector<std::string> words;  ///< IN and OUT stand for the files
  const char* from;                ///< the file that is read
};

std::ostream& operator<<(std::ostream& out, const Word& word) { return out << word.name; }

/// Words of the command line that read a file and write another, with each operation on files failing once.
class EachFileOperationOfAWordFails : public ::testing::TestWithParam<Word> {
 protected:
  EachFileOperationOfAWordFails() {
    ProjectElement element;
    element.place = "F1";
    element.bag.Store("ButtonNotes", std::string("notes"));
    WriteProject(directory / "a.plexel", {"Small", {element}});
    ProgramRun({"export", (directory / "a.plexel").string(), (directory / "a.json").string()});
    for (std::string word : GetParam().words) {
      if (word == "IN") word = (directory / GetParam().from).string();
      words.push_back(word == "OUT" ? target.string() : word);
    }
  }

  TemporaryDirectory directory;
  const std::filesystem::path target = directory / "out";
  std::vector<std::string> words;
};

TEST_P(EachFileOperationOfAWordFails, AndTheTargetIsTheNewOneOrAsItWasWithTheReasonTold) {
  const ProgramRun first(words);
  ASSERT_EQ(first.status, 0) << first.errors;
  const std::string wanted = Content(target), source = Content(directory / GetParam().from);
  ASSERT_FALSE(wanted.empty());
  std::optional<ProgramRun> run;
  int refused = 0;
  FailEachFileOperation(
      directory.Path(), [&] { WriteWholeFile(target, "old"); }, [&] { run.emplace(words); },
      [&](int error) {
        EXPECT_THAT(run->status, ::testing::AnyOf(0, 2));
        EXPECT_EQ(Content(target), run->status == 0 ? wanted : "old");
        EXPECT_EQ(Content(directory / GetParam().from), source);
        EXPECT_EQ(directory.CountFiles(), 3U);
        EXPECT_EQ(run->output, "");
        if (run->status != 0) {
          EXPECT_THAT(run->errors, HasSubstr(ReasonOf(error)));
          ++refused;
        }
      });
  EXPECT_GE(refused, 5 * 6);
}

INSTANTIATE_TEST_SUITE_P(Words, EachFileOperationOfAWordFails,
                         ::testing::Values(Word{"export", {"export", "IN", "OUT"}, "a.plexel"},
                                           Word{"import", {"import", "IN", "OUT"}, "a.json"},
                                           Word{"html", {"report", "IN", "--html", "OUT"}, "a.plexel"},
                                           Word{"csv", {"report", "IN", "--csv", "OUT"}, "a.plexel"},
                                           Word{"svg", {"report", "IN", "--svg", "OUT"}, "a.plexel"}),
                         [](const auto& word) { return std::string(word.param.name); });

}  // namespace
}  // namespace plexel
