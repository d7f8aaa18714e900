#include "cli/program_call.h"

#include <gtest/gtest.h>

namespace plexel {
namespace {

using Words = std::vector<std::string>;

TEST(ProgramCall, OptionsStandAnywhereAmongTheOthers) {
  const ProgramCall call(Words{"a", "--json", "b", "--layer", "2", "c"}, {"--json"}, {"--layer"});
  EXPECT_TRUE(call.Has("--json"));
  EXPECT_EQ(call.Value("--layer"), "2");
  EXPECT_EQ(call.Others(), (Words{"a", "b", "c"}));
}

TEST(ProgramCall, AnOptionThatIsNotGivenHasNoValue) {
  const ProgramCall call(Words{"a"}, {"--json"}, {"--layer"});
  EXPECT_FALSE(call.Has("--json"));
  EXPECT_EQ(call.Value("--layer"), std::nullopt);
}

TEST(ProgramCall, ASingleDashIsNoOption) { EXPECT_EQ(ProgramCall(Words{"-"}, {}).Others(), Words{"-"}); }

TEST(ProgramCall, BehindTwoDashesNothingIsAnOption) {
  EXPECT_EQ(ProgramCall(Words{"--", "--json", "-x"}, {"--json"}).Others(), (Words{"--json", "-x"}));
}

TEST(ProgramCall, UnknownRepeatedAndIncompleteOptionsAreRefused) {
  for (const Words& words : {Words{"--other"}, {"-j"}, {"--json", "--json"}, {"--layer"}}) {
    EXPECT_THROW(ProgramCall(words, {"--json"}, {"--layer"}), CallError) << words.front();
  }
}

TEST(ProgramCall, TheNumberOfOtherWordsHasBounds) {
  const ProgramCall call(Words{"a", "b"}, {});
  EXPECT_NO_THROW(call.RequireOthers(2, 2));
  EXPECT_THROW(call.RequireOthers(3, 3), CallError);
  EXPECT_THROW(call.RequireOthers(0, 1), CallError);
}

}  // namespace
}  // namespace plexel
