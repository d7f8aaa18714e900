#include "cli/bag_json.h"

#include <gtest/gtest.h>

#include "platform/failure.h"

namespace plexel {
namespace {

TEST(ScriptBag, ValuesHaveTheTypesOfJson) {
  const ScriptBag bag(Json::parse(R"({"whole":7,"large":2147483648,"real":1.5,"yes":true,"text":"a"})"));
  EXPECT_EQ(*bag.Find("whole"), BagValue(std::int32_t{7}));
  EXPECT_EQ(*bag.Find("large"), BagValue(2147483648.0));
  EXPECT_EQ(*bag.Find("real"), BagValue(1.5));
  EXPECT_EQ(*bag.Find("yes"), BagValue(True));
  EXPECT_EQ(*bag.Find("text"), BagValue(std::string("a")));
  EXPECT_EQ(bag.Find("none"), nullptr);
}

TEST(ScriptBag, WhatDoesNotConvertFailsUntilItIsStoredAnewOrTakenAway) {
  ScriptBag bag(Json::parse(R"({"a":[1],"b":null})"));
  EXPECT_THROW(bag.Find("a"), Failure);
  EXPECT_THROW(bag.Find("b"), Failure);
  bag.Store("a", std::int16_t{1});
  bag.Remove("b");
  EXPECT_EQ(*bag.Find("a"), BagValue(std::int16_t{1}));
  EXPECT_EQ(bag.Find("b"), nullptr);
  bag.Remove("a");
  EXPECT_EQ(bag.Find("a"), nullptr);
}

}  // namespace
}  // namespace plexel
