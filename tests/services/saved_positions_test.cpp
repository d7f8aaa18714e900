#include "services/saved_positions.h"

#include <gtest/gtest.h>

namespace plexel {
namespace {

TEST(SavedPositions, EveryNumberFindsItsOwnRow) {
  for (std::int32_t number = 0; number <= 4; ++number) {
    const PositionRow* row = FindPosition(number);
    ASSERT_NE(row, nullptr) << number;
    EXPECT_EQ(row->number, number);
  }
}

TEST(SavedPositions, OutsideTheNumbersThereIsNoRow) {
  EXPECT_EQ(FindPosition(-1), nullptr);
  EXPECT_EQ(FindPosition(5), nullptr);
}

TEST(SavedPositions, TheNamesOfTheColumnWidthsSayRow) {
  EXPECT_EQ(FindPosition(SavedColumn0Width)->name, "ConfigDialogMsFlexGridRow0Width");
  EXPECT_EQ(FindPosition(SavedColumn2Width)->name, "ConfigDialogMsFlexGridRow2Width");
}

}  // namespace
}  // namespace plexel
