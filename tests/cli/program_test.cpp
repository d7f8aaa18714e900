#include "cli/program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "program_run.h"

namespace plexel {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(Program, HelpListsEveryWordOfTheTable) {
  const ProgramRun run({"--help"});
  EXPECT_EQ(run.status, 0);
  for (const ProgramWord& one : ProgramWords()) EXPECT_THAT(run.output, HasSubstr("\n  " + std::string(one.word)));
}

TEST(Program, EveryWordTellsItself) {
  for (const ProgramWord& one : ProgramWords()) {
    const ProgramRun run({std::string(one.word), "--help"});
    EXPECT_EQ(run.status, 0) << one.word;
    EXPECT_THAT(run.output, HasSubstr("usage: plexel " + std::string(one.word)));
    EXPECT_THAT(run.output, HasSubstr(std::string(one.help)));
    EXPECT_EQ(run.errors, "") << one.word;
  }
}

TEST(Program, AWrongCallTellsTheReasonAndTheUsageOfItsWord) {
  const ProgramRun run({"check", "--nothing", "a.cfg"});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_THAT(run.errors, StartsWith("usage: plexel check "));
  EXPECT_THAT(run.errors, HasSubstr("\nplexel check: there is no option --nothing\n"));
}

TEST(Program, WithoutAKnownWordTheUsageOfAllIsAnError) {
  for (const std::vector<std::string>& words : {std::vector<std::string>{}, {"checks"}}) {
    const ProgramRun run(words);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_THAT(run.errors, HasSubstr("usage: plexel WORD"));
  }
}

}  // namespace
}  // namespace plexel
