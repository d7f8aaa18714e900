#include "editor/end_signals.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <csignal>

namespace plexel::testing {
namespace {

TEST(EndSignals, EndTheProgramWhenEverythingIsKept) {
  int kept = 0, asked = 0;
  const EndSignals ends([&] { return ++kept > 0; }, [&] { return ++asked > 0; });
  std::raise(SIGTERM);
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(ends.Heard());
  EXPECT_EQ(kept, 1);
  EXPECT_EQ(asked, 0);
}

TEST(EndSignals, AskWhereNotEverythingCanBeKept) {
  int asked = 0;
  bool may = false;
  const EndSignals ends([] { return false; },
                        [&] {
                          ++asked;
                          return may;
                        });
  std::raise(SIGTERM);
  EXPECT_TRUE(QTest::qWaitFor([&] { return asked == 1; }, 5000));
  EXPECT_FALSE(ends.Heard());  // the user wants to go on
  may = true;
  std::raise(SIGHUP);
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_TRUE(ends.Heard());
  EXPECT_EQ(asked, 2);
}

}  // namespace
}  // namespace plexel::testing
