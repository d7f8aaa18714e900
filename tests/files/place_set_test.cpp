#include "files/place_set.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace plexel {
namespace {

TEST(PlaceSet, APlaceIsTakenOnce) {
  PlaceSet places;
  EXPECT_TRUE(places.Insert("F1"));
  EXPECT_TRUE(places.Insert("F2"));
  EXPECT_FALSE(places.Insert("F1"));
  EXPECT_TRUE(places.Insert("f1"));
}

TEST(PlaceSet, TheEmptyPlaceIsAPlace) {
  PlaceSet places;
  EXPECT_TRUE(places.Insert(""));
  EXPECT_FALSE(places.Insert(""));
  EXPECT_TRUE(places.Insert("F1"));
}

TEST(PlaceSet, ATextThatJoinsTwoOthersIsItsOwn) {
  PlaceSet places;
  EXPECT_TRUE(places.Insert("ab"));
  EXPECT_TRUE(places.Insert("cd"));
  EXPECT_TRUE(places.Insert("abcd"));
  EXPECT_TRUE(places.Insert("bc"));
  EXPECT_TRUE(places.Insert("a"));
}

TEST(PlaceSet, ItGrowsAndForgetsNothing) {
  std::mt19937 random(4);
  for (const std::size_t room : {0, 5, 4000}) {
    PlaceSet places(room);
    std::set<std::string> model;
    for (int step = 0; step < 6000; ++step) {
      const std::string place = "P" + std::to_string(random() % 4000);
      ASSERT_EQ(places.Insert(place), model.insert(place).second) << place << ", room " << room;
    }
  }
}

}  // namespace
}  // namespace plexel
