#include "forms/list_keys.h"

#include <gtest/gtest.h>

namespace plexel {
namespace {

TEST(ListKeys, OnlyDownUpAndReturnAreKept) {
  for (std::int16_t code = 0; code < 256; ++code) {
    std::int16_t keyCode = code;
    KeepListKeys(keyCode);
    const bool kept = code == 13 || code == 38 || code == 40;
    EXPECT_EQ(keyCode, kept ? code : 0) << code;
  }
}

}  // namespace
}  // namespace plexel
