#include "cli/values_json.h"

#include <gtest/gtest.h>

#include <limits>

namespace plexel {
namespace {

TEST(ValuesJson, WholeNumbersStandAsSuchAsFarAsTheyAreExact) {
  EXPECT_EQ(NumberToJson(-3).dump(), "-3");
  EXPECT_EQ(NumberToJson(9007199254740992.0).dump(), "9007199254740992");
  EXPECT_TRUE(NumberToJson(18014398509481984.0).is_number_float());
  EXPECT_EQ(NumberToJson(1e300).dump(), "1e+300");
}

TEST(ValuesJson, FractionsAreAsShortAsTheirPrecisionAllows) {
  EXPECT_EQ(NumberToJson(0.1F).dump(), "0.1");
  EXPECT_EQ(NumberToJson(0.1).dump(), "0.1");
  EXPECT_EQ(NumberToJson(1.0 / 3).dump(), "0.3333333333333333");
  EXPECT_EQ(NumberToJson(std::numeric_limits<double>::infinity()).dump(), "null");
  EXPECT_EQ(NumberToJson(std::numeric_limits<double>::quiet_NaN()).dump(), "null");
}

TEST(ValuesJson, ABagTellsItsTypes) {
  MemoryBag bag;
  bag.Store("a", std::int16_t{1});
  bag.Store("b", std::int32_t{2});
  bag.Store("c", std::uint8_t{3});
  bag.Store("d", Boolean::Raw(7));
  bag.Store("e", 0.5);
  bag.Store("f", std::string("x"));
  EXPECT_EQ(
      ToJson(bag).dump(),
      R"([["a","int16",1],["b","int32",2],["c","uint8",3],["d","boolean",7],["e","float",0.5],["f","string","x"]])");
}

}  // namespace
}  // namespace plexel
