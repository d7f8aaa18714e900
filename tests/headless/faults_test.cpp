#include "headless/faults.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/failure.h"

namespace plexel {
namespace {

TEST(Faults, NothingFailsUntilItIsTold) {
  Faults faults;
  for (const FaultRow& row : FaultTable) {
    EXPECT_FALSE(faults.Trips(*Faults::Named(row.name))) << row.name;
  }
}

TEST(Faults, EveryNameNamesAFaultOfItsOwn) {
  for (const FaultRow& row : FaultTable) {
    EXPECT_EQ(Faults::Named(row.name), row.fault) << row.name;
  }
}

TEST(Faults, AnUnknownNameIsNone) { EXPECT_EQ(Faults::Named("keyboard"), std::nullopt); }

TEST(Faults, TurningAnUnknownNameIsADefectOfTheCaller) {
  Faults faults;
  EXPECT_THROW(faults.Turn("keyboard", true), std::invalid_argument);
}

TEST(Faults, AFaultThatIsOnFailsUntilItIsOff) {
  Faults faults;
  faults.Turn("registry", true);
  EXPECT_TRUE(faults.Trips(Fault::Registry));
  EXPECT_TRUE(faults.Trips(Fault::Registry));
  faults.Turn("registry", false);
  EXPECT_FALSE(faults.Trips(Fault::Registry));
}

TEST(Faults, AnArmedFaultFailsOnItsCallOnly) {
  Faults faults;
  faults.Arm("screen", 2);
  EXPECT_FALSE(faults.Trips(Fault::Screen));
  EXPECT_TRUE(faults.Trips(Fault::Screen));
  EXPECT_FALSE(faults.Trips(Fault::Screen));
}

TEST(Faults, ArmingCountsFromTheCallsMadeSoFar) {
  Faults faults;
  faults.Trips(Fault::Screen);
  faults.Arm(Fault::Screen, 1);
  EXPECT_TRUE(faults.Trips(Fault::Screen));
}

TEST(Faults, ArmingWithZeroDisarms) {
  Faults faults;
  faults.Arm(Fault::Screen, 1);
  faults.Arm(Fault::Screen, 0);
  EXPECT_FALSE(faults.Trips(Fault::Screen));
}

TEST(Faults, ACheckThatFailsIsAFailureOfThePlatform) {
  Faults faults;
  faults.Turn(Fault::Language, true);
  try {
    faults.Check(Fault::Language);
    FAIL() << "no failure";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind(), FailureKind::Platform);
  }
}

TEST(Faults, CallsAreCountedFailingOrNot) {
  Faults faults;
  faults.Turn(Fault::Help, true);
  faults.Trips(Fault::Help);
  faults.Turn(Fault::Help, false);
  faults.Trips(Fault::Help);
  EXPECT_EQ(faults.Calls(Fault::Help), 2);
  EXPECT_EQ(faults.Calls(Fault::Events), 0);
}

TEST(Faults, ResetForgetsFaultsAndCounts) {
  Faults faults;
  faults.Turn(Fault::Help, true);
  faults.Trips(Fault::Help);
  faults.Reset();
  EXPECT_EQ(faults.Calls(Fault::Help), 0);
  EXPECT_FALSE(faults.Trips(Fault::Help));
}

}  // namespace
}  // namespace plexel
