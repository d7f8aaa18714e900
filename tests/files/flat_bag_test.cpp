#include "files/flat_bag.h"

#include <gmock/gmock.h>

namespace plexel {
namespace {

using testing::ElementsAre;

std::vector<std::string> KeysOf(const FlatBag& bag) {
  std::vector<std::string> keys;
  const auto take = [&keys](std::string_view key, const BagValue&) { keys.emplace_back(key); };
  bag.ForEach(take, take);
  return keys;
}

TEST(FlatBag, WhatWasStoredIsFound) {
  FlatBag bag;
  bag.Store("SizeX", std::int16_t{20});
  bag.Store("Foreign", 1.5);
  ASSERT_NE(bag.Find("SizeX"), nullptr);
  EXPECT_EQ(*bag.Find("SizeX"), BagValue(std::int16_t{20}));
  ASSERT_NE(bag.Find("Foreign"), nullptr);
  EXPECT_EQ(*bag.Find("Foreign"), BagValue(1.5));
}

TEST(FlatBag, WhatWasNotStoredIsAbsent) {
  FlatBag bag;
  bag.Store("SizeX", std::int16_t{20});
  EXPECT_EQ(bag.Find("ZoomFactor"), nullptr);
  EXPECT_EQ(bag.Find("Foreign"), nullptr);
  EXPECT_EQ(bag.Find(""), nullptr);
}

TEST(FlatBag, WhatWasRemovedIsAbsentAndTheRestStays) {
  FlatBag bag;
  bag.Store("SizeX", std::int16_t{20});
  bag.Store("TargetSystem", std::string("a"));
  bag.Store("ZoomFactor", std::int16_t{100});
  bag.Store("Foreign", std::uint8_t{1});
  bag.Store("Other", std::uint8_t{2});
  bag.Remove("TargetSystem");
  bag.Remove("Foreign");
  bag.Remove("ShowX");
  bag.Remove("");
  EXPECT_THAT(KeysOf(bag), ElementsAre("SizeX", "ZoomFactor", "Other"));
  EXPECT_EQ(bag.Find("TargetSystem"), nullptr);
  EXPECT_EQ(bag.Find("Foreign"), nullptr);
  EXPECT_EQ(*bag.Find("ZoomFactor"), BagValue(std::int16_t{100}));
  bag.Store("TargetSystem", std::string("b"));
  EXPECT_THAT(KeysOf(bag), ElementsAre("SizeX", "ZoomFactor", "TargetSystem", "Other"));
  EXPECT_EQ(*bag.Find("TargetSystem"), BagValue(std::string("b")));
}

TEST(FlatBag, StoringAnewReplacesTheValueAndKeepsThePlace) {
  FlatBag bag;
  bag.Store("SizeX", std::int16_t{20});
  bag.Store("TargetSystem", std::string("a"));
  bag.Store("SizeX", std::int32_t{21});
  bag.Store("Foreign", std::uint8_t{1});
  bag.Store("Foreign", std::uint8_t{2});
  EXPECT_THAT(KeysOf(bag), ElementsAre("SizeX", "TargetSystem", "Foreign"));
  EXPECT_EQ(*bag.Find("SizeX"), BagValue(std::int32_t{21}));
  EXPECT_EQ(*bag.Find("Foreign"), BagValue(std::uint8_t{2}));
}

TEST(FlatBag, StoringANewKeyRefusesOneThatIsThere) {
  FlatBag bag;
  EXPECT_TRUE(bag.StoreNew("SizeX", BagValue(std::int16_t{1})));
  EXPECT_FALSE(bag.StoreNew(StoredKeyNumber("SizeX"), BagValue(std::int16_t{2})));
  EXPECT_TRUE(bag.StoreNew("Foreign", BagValue(std::int16_t{1})));
  EXPECT_FALSE(bag.StoreNew("Foreign", BagValue(std::int16_t{2})));
  EXPECT_EQ(*bag.Find("SizeX"), BagValue(std::int16_t{1}));
  EXPECT_EQ(bag.Size(), 2U);
}

TEST(FlatBag, IsAnotherWithOneValueMoreOfEitherKind) {
  FlatBag one, other;
  for (FlatBag* const bag : {&one, &other}) {
    bag->Store("SizeX", std::int16_t{20});
    bag->Store("Foreign", 1.5);
  }
  EXPECT_TRUE(one == other);
  other.Store("Foreign too", 1.5);
  EXPECT_FALSE(one == other);
  one.Store("Foreign too", 2.5);
  EXPECT_FALSE(one == other);
  one.Store("Foreign too", 1.5);
  EXPECT_TRUE(one == other);
  one.Store("SizeY", std::int16_t{20});
  EXPECT_FALSE(one == other);
}

}  // namespace
}  // namespace plexel
