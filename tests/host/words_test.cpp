#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "host/call.h"
#include "host/texts.h"
#include "host/walk.h"

namespace plexel::host {

namespace {

/// Three places in a row, and one below the last.
constexpr std::array places = {RECT{0, 0, 10, 10}, RECT{20, 0, 30, 10}, RECT{40, 0, 50, 10}, RECT{40, 30, 50, 40}};

std::optional<Call> Words(std::vector<std::string> words) { return Understand(words); }

}  // namespace

TEST(Call, WordsAreUnderstood) {
  EXPECT_EQ(Words({})->work, Call::Work::Window);
  EXPECT_EQ(Words({"a.plexel"})->project, "a.plexel");
  EXPECT_EQ(Words({"--check"})->work, Call::Work::Check);
  const auto saving = Words({"a.plexel", "--save-as", "b.plexel"});
  EXPECT_EQ(saving->work, Call::Work::SaveAs);
  EXPECT_EQ(saving->project + " " + saving->target, "a.plexel b.plexel");
}

TEST(Call, OtherWordsAreRefused) {
  EXPECT_FALSE(Words({"--chek"}));
  EXPECT_FALSE(Words({"a", "b"}));
  EXPECT_FALSE(Words({"a", "--save-as"}));
  EXPECT_FALSE(Words({"a", "--save-as", "b", "c"}));
}

TEST(Texts, KindsOfFilesAreThoseOfTheSystemsDialogs) {
  using namespace std::string_literals;
  EXPECT_EQ(FilterOf("Plexel projects (*.plexel);;All files (*)"),
            L"Plexel projects (*.plexel)\0*.plexel\0All files (*)\0*.*\0\0"s);
}

TEST(Walk, TabGoesAroundBothWays) {
  EXPECT_EQ(PlaceBehind(places, 0, VK_TAB, false), 1U);
  EXPECT_EQ(PlaceBehind(places, 3, VK_TAB, false), 0U);
  EXPECT_EQ(PlaceBehind(places, 0, VK_TAB, true), 3U);
  EXPECT_EQ(PlaceBehind(places, NoPlace, VK_TAB, false), 0U);
}

TEST(Walk, ArrowsGoToTheNearestInTheirDirection) {
  EXPECT_EQ(PlaceBehind(places, 0, VK_RIGHT, false), 1U);
  EXPECT_EQ(PlaceBehind(places, 2, VK_LEFT, false), 1U);
  EXPECT_EQ(PlaceBehind(places, 2, VK_DOWN, false), 3U);
  EXPECT_EQ(PlaceBehind(places, 3, VK_UP, false), 2U);
  EXPECT_EQ(PlaceBehind(places, 0, VK_UP, false), 0U);
  EXPECT_EQ(PlaceBehind(places, 1, 'A', false), 1U);
}

}  // namespace plexel::host
