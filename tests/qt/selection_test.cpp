#include "editor/selection.h"

#include <gtest/gtest.h>

#include "editor/place_index.h"
#include "qt/window_place.h"

namespace plexel::testing {
namespace {

using Places = std::vector<int>;

/// A selection of ten places, which counts its changes.
class SelectionTest : public ::testing::Test {
 protected:
  SelectionTest() {
    selection.Reset(10);
    selection.Listen(owner, [this] { ++changes; });
  }
  Selection selection;
  QObject owner;
  int changes = 0;
};

TEST_F(SelectionTest, AtFirstThereIsNothingCurrentAndNothingChosen) {
  EXPECT_EQ(selection.Current(), -1);
  EXPECT_EQ(selection.Chosen(), Places());
  EXPECT_EQ(selection.Meant(), Places());
  EXPECT_FALSE(selection.IsMany());
}

TEST_F(SelectionTest, OnlyOneIsCurrentAndChosen) {
  selection.ChooseAll();
  selection.Only(3);
  EXPECT_EQ(selection.Current(), 3);
  EXPECT_EQ(selection.Chosen(), Places({3}));
  EXPECT_FALSE(selection.IsMany());
}

TEST_F(SelectionTest, TogglingAddsAndTakesAwayAndMakesCurrent) {
  selection.Only(3);
  selection.Toggle(5);
  EXPECT_EQ(selection.Chosen(), Places({3, 5}));
  EXPECT_EQ(selection.Current(), 5);
  selection.Toggle(5);
  EXPECT_EQ(selection.Chosen(), Places({3}));
  EXPECT_EQ(selection.Current(), 5);
  EXPECT_TRUE(selection.IsMany()) << "another than the current one is chosen";
}

TEST_F(SelectionTest, WithoutAChoiceTheCurrentOneIsMeant) {
  selection.Only(4);
  selection.ChooseNone();
  EXPECT_EQ(selection.Current(), 4);
  EXPECT_EQ(selection.Chosen(), Places());
  EXPECT_EQ(selection.Meant(), Places({4}));
  selection.Choose({1, 2});
  EXPECT_EQ(selection.Meant(), Places({1, 2}));
}

TEST_F(SelectionTest, ARangeGoesOnFromWhereOneWasChosenByItself) {
  selection.Only(2);
  selection.Choose({2, 3, 4}, 4);
  EXPECT_EQ(selection.Anchor(), 2);
  selection.Toggle(7);
  EXPECT_EQ(selection.Anchor(), 7);
}

TEST_F(SelectionTest, AChoiceWithoutTheCurrentOneMovesItToItsFirst) {
  selection.Only(9);
  selection.ChooseAndGo({4, 6});
  EXPECT_EQ(selection.Current(), 4);
  selection.ChooseAndGo({2, 4});
  EXPECT_EQ(selection.Current(), 4);
  selection.ChooseAndGo({});
  EXPECT_EQ(selection.Current(), 4);
}

TEST_F(SelectionTest, ListenersHearOfChangesAlone) {
  selection.Only(3);
  EXPECT_EQ(changes, 1);
  selection.Only(3);
  EXPECT_EQ(changes, 1);
  selection.ChooseAll();
  EXPECT_EQ(changes, 2);
}

TEST_F(SelectionTest, AListenerEndsWithItsOwner) {
  int heard = 0;
  {
    QObject passing;
    selection.Listen(passing, [&heard] { ++heard; });
    selection.Only(1);
  }
  selection.Only(2);
  EXPECT_EQ(heard, 1);
  EXPECT_EQ(changes, 2);
}

TEST(PlaceIndex, GivesTheBoxesThatMeetAnAreaInTheirOrderAndOnce) {
  const PlaceIndex index({QRect(0, 0, 2000, 1000), QRect(10, 10, 20, 20), QRect(500, 500, 20, 20)});
  EXPECT_EQ(index.Meeting(QRect(15, 15, 1, 1)), Places({0, 1}));
  EXPECT_EQ(index.Meeting(QRect(0, 0, 5000, 5000)), Places({0, 1, 2}));
  EXPECT_EQ(index.Meeting(QRect(1999, 999, 10, 10)), Places({0}));
  EXPECT_EQ(index.Meeting(QRect(2000, 1000, 10, 10)), Places());
  EXPECT_EQ(PlaceIndex().Meeting(QRect(0, 0, 10, 10)), Places());
}

TEST(PlaceIndex, FindsTheSameAsLookingAtEveryBox) {
  std::vector<QRect> boxes;
  for (int number = 0; number < 900; ++number) {
    boxes.emplace_back(number * 977 % 30011 - 200, number * 613 % 20011 - 100, 5 + number % 90, 5 + number % 70);
  }
  const PlaceIndex index(boxes);
  for (int left = -300; left < 30000; left += 1777) {
    const QRect area(left, left * 2 / 3, 900, 1200);
    Places expected;
    for (int number = 0; number < 900; ++number) {
      if (boxes[static_cast<std::size_t>(number)].intersects(area)) expected.push_back(number);
    }
    EXPECT_EQ(index.Meeting(area), expected) << left;
  }
}

constexpr QRect Screen(0, 0, 1000, 800);

TEST(WindowPlace, AWindowThatCoversNothingStays) {
  EXPECT_EQ(WayBeside(QRect(0, 0, 300, 200), QRect(400, 400, 50, 50), Screen), QPoint());
}

TEST(WindowPlace, AWindowThatCoversItsSubjectGoesTheShortestWay) {
  const QRect kept(400, 400, 50, 50), window(420, 300, 300, 200);
  const QPoint way = WayBeside(window, kept, Screen);
  EXPECT_FALSE(window.translated(way).intersects(kept));
  EXPECT_EQ(way, QPoint(400 + 50 + 8 - 420, 0));
}

TEST(WindowPlace, AWindowNeverLeavesTheScreenForItsSubject) {
  const QRect kept(900, 700, 50, 50), window(700, 600, 300, 200);
  const QPoint way = WayBeside(window, kept, Screen);
  EXPECT_TRUE(Screen.contains(window.translated(way)));
  EXPECT_FALSE(window.translated(way).intersects(kept));
}

TEST(WindowPlace, AWindowThatFindsNoRoomStays) {
  EXPECT_EQ(WayBeside(QRect(10, 10, 900, 700), QRect(450, 350, 50, 50), Screen), QPoint());
}

}  // namespace
}  // namespace plexel::testing
