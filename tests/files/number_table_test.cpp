#include "files/number_table.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace plexel {
namespace {

TEST(NumberTable, NamesThatDifferInCaseHaveOneHash) {
  EXPECT_EQ(HashOfName("ScanCode12"), HashOfName("SCANCODE12"));
  EXPECT_NE(HashOfName("SCANCODE12"), HashOfName("SCANCODE21"));
  EXPECT_EQ(HashOfName("\xC4"), HashOfName("\xC4"));
}

TEST(NumberTable, NumbersUnderOneHashAreToldApart) {
  NumberTable table;
  const auto is = [](std::uint32_t wanted) { return [wanted](std::uint32_t number) { return number == wanted; }; };
  for (std::uint32_t number = 1; number <= 100; ++number) EXPECT_TRUE(table.Enter(7, number, is(number)));
  for (std::uint32_t number = 1; number <= 100; ++number) EXPECT_EQ(table.Find(7, is(number)), number);
  EXPECT_EQ(table.Find(7, is(101)), 0U);
  EXPECT_EQ(table.Find(8, is(1)), 0U);
  EXPECT_FALSE(table.Enter(7, 101, is(5)));
}

TEST(NumberTable, ItGrowsAndFindsEverything) {
  std::mt19937 random(3);
  for (const std::size_t room : {0, 7, 5000}) {
    NumberTable table(room);
    std::vector<std::string> names;
    std::map<std::string, std::uint32_t> model;
    const auto is = [&](const std::string& name) {
      return [&](std::uint32_t number) { return names[number - 1] == name; };
    };
    for (int step = 0; step < 5000; ++step) {
      const std::string name = std::to_string(random() % 3000);
      const auto number = static_cast<std::uint32_t>(names.size() + 1);
      const bool isNew = model.emplace(name, number).second;
      ASSERT_EQ(table.Enter(HashOfName(name), number, is(name)), isNew);
      if (isNew) names.push_back(name);
      const std::string other = std::to_string(random() % 4000);
      const auto found = model.find(other);
      ASSERT_EQ(table.Find(HashOfName(other), is(other)), found == model.end() ? 0 : found->second);
    }
  }
}

}  // namespace
}  // namespace plexel
