#include "services/failure_styles.h"

#include <gtest/gtest.h>

namespace plexel {
namespace {

[[noreturn]] void Fail() { throw Failure(FailureKind::Platform, "failed"); }

TEST(FailureStyles, EndingQuietlyKeepsWhatWasDone) {
  int done = 0;
  EndQuietly([&] {
    done = 1;
    Fail();
  });
  EXPECT_EQ(done, 1);
}

TEST(FailureStyles, EndingQuietlyGivesTheResultAsItStood) {
  const int result = EndQuietlyWith(1, [](int& value) {
    value = 2;
    Fail();
  });
  EXPECT_EQ(result, 2);
}

TEST(FailureStyles, EndingQuietlyGivesTheStartWhenNothingWasSet) {
  EXPECT_EQ(EndQuietlyWith(7, [](int&) { Fail(); }), 7);
}

TEST(FailureStyles, PassingOverSkipsOneStatement) {
  int value = 1;
  PassOver([&] { value = (Fail(), 2); });
  PassOver([&] { value += 10; });
  EXPECT_EQ(value, 11);
}

TEST(FailureStyles, ADefectOfTheProgramIsNotHidden) {
  EXPECT_THROW(EndQuietly([] { throw std::logic_error("defect"); }), std::logic_error);
  EXPECT_THROW(EndQuietlyWith(0, [](int&) { throw std::logic_error("defect"); }), std::logic_error);
  EXPECT_THROW(PassOver([] { throw std::logic_error("defect"); }), std::logic_error);
}

}  // namespace
}  // namespace plexel
