#include "cli/reporter.h"

#include <gtest/gtest.h>

namespace plexel {
namespace {

TEST(Reporter, AnAnswerThatCannotBeWrittenIsAFailure) {
  for (const int buffering : {_IOFBF, _IONBF}) {
    std::FILE* const output = std::fopen("/dev/full", "w");
    ASSERT_NE(output, nullptr);
    ASSERT_EQ(std::setvbuf(output, nullptr, buffering, BUFSIZ), 0);
    Reporter reporter(output);
    EXPECT_FALSE(reporter.AnyFailed());
    reporter.Succeed(Json::object());
    EXPECT_TRUE(reporter.AnyFailed()) << buffering;
    std::fclose(output);
  }
}

}  // namespace
}  // namespace plexel
