#include "project/problem.h"

#include <gtest/gtest.h>

#include "world/world.h"

namespace plexel {
namespace {

using Rule = ProblemRule;

class ProblemTexts : public ::testing::Test {
 protected:
  static Problem Of(Rule rule, std::vector<std::uint32_t> values, std::optional<Direction> direction = {},
                    std::optional<SharedNumber> number = {}) {
    Problem problem;
    problem.rule = rule;
    problem.values = std::move(values);
    problem.direction = direction;
    problem.number = number;
    return problem;
  }

  World world;
};

TEST_F(ProblemTexts, TellWhatWouldHappenOnTheMachineWithAllThatItIsAbout) {
  const auto press = Direction::Press, release = Direction::Release;
  EXPECT_EQ(ProblemText(Of(Rule::Held, {0x14, 0x1C}), ""),
            "Ctrl Left, a is still down after release: every further key reaches the machine together with it");
  EXPECT_EQ(ProblemText(Of(Rule::ReleasedFirst, {0x1C, 0x32}, press), ""),
            "on press a, b comes up that is not down: the machine passes over it");
  EXPECT_EQ(ProblemText(Of(Rule::UnknownBytes, {0xE0, 0x02}, release), ""),
            "on release the machine gets E0 02, which is no key");
  EXPECT_EQ(ProblemText(Of(Rule::NoBytes, {}, press), ""), "a text stands, but on press the machine gets nothing");
  EXPECT_EQ(ProblemText(Of(Rule::NoText, {}, release), ""), "no text stands, but on release the machine gets bytes");
  EXPECT_EQ(ProblemText(Of(Rule::GroupsDiffer, {2, 3}, press), ""),
            "the text for press has 2 groups, but the machine gets 3");
  EXPECT_EQ(ProblemText(Of(Rule::OverLimit, {101}), ""),
            "press and release hold 101 code bytes, more than the panel has room for in a layer");
  EXPECT_EQ(ProblemText(Of(Rule::NumberTwice, {4, 5}, {}, SharedNumber::Button), "F2"),
            "button number 4, 5 is that of F2 too: the panel takes both for one key");
  EXPECT_EQ(ProblemText(Of(Rule::NumberTwice, {4}, {}, SharedNumber::Led), "F2"),
            "LED number 4 is that of F2 too: the panel switches both at once");
  EXPECT_EQ(ProblemText(Of(Rule::NumberTwice, {4}, {}, SharedNumber::KeySwitch), "F2"),
            "key number 4 is that of F2 too: the panel takes both for one key switch");
}

TEST_F(ProblemTexts, NameEachLedOnceInTheirOrder) {
  world.Speak();
  EXPECT_EQ(ProblemText(Of(Rule::LedTwice, {UserLed, HarddiskLed, UserLed}), "L2"),
            "L2 shows text 10401, text 10400 too: both light up at once");
  EXPECT_EQ(ProblemText(Of(Rule::LedWithoutLamp, {UserLed}), ""), "there is no LED that could show text 10400");
  EXPECT_EQ(ProblemText(Of(Rule::LedNotOffered, {777}), ""), "the LED stays dark: the panel does not offer 777 here");
}

}  // namespace
}  // namespace plexel
