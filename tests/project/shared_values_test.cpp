#include "project/shared_values.h"

#include <gmock/gmock.h>

#include <vector>

namespace plexel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr SharedValue button{SharedValue::Kind::Button, 7}, led{SharedValue::Kind::LedNumber, 7};

TEST(SharedValuesHeld, AreToldInTheOrderOfTheirElementsUntilTheyAreTakenBack) {
  SharedValues held;
  for (const std::uint32_t element : {9U, 2U, 5U}) held.Add(element, std::vector{button});
  EXPECT_THAT(held.Holders(button), ElementsAre(2, 5, 9));
  held.Remove(5, std::vector{button});
  EXPECT_THAT(held.Holders(button), ElementsAre(2, 9));
  held.Remove(2, std::vector{button});
  held.Remove(9, std::vector{button});
  EXPECT_THAT(held.Holders(button), IsEmpty());
}

TEST(SharedValuesHeld, WhatWasNeverAddedIsNotMissed) {
  SharedValues held;
  held.Add(3, std::vector{button});
  held.Remove(4, std::vector{led, button});
  EXPECT_THAT(held.Holders(button), ElementsAre(3));
  EXPECT_THAT(held.Holders(led), IsEmpty());
}

}  // namespace
}  // namespace plexel
