#include "files/help_topics.h"

#include <gmock/gmock.h>

#include <regex>
#include <set>

#include "files/data_directory.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

constexpr std::int32_t TopicNumbers[] = {1002, 2000, 2001, 2002, 2003, 2600, 2601, 2602, 2604,
                                         3001, 3002, 3003, 3004, 3005, 3006, 3007, 3008, 3009};

std::string ShippedHelp(const std::string& language) {
  return DataDirectory().string() + "\\Help\\Plexel" + language + ".chm";
}

TEST(HelpTopics, AHelpFileStandsForADirectory) {
  EXPECT_EQ(HelpDirectory("/base\\Help\\PlexelGerman.chm"), "/base/Help/PlexelGerman");
}

TEST(HelpTopics, AMissingTopicIsNothing) {
  EXPECT_FALSE(ReadHelpTopic(ShippedHelp("English"), 4711));
  EXPECT_FALSE(ReadHelpTopic(ShippedHelp("English"), -1));
  EXPECT_FALSE(ReadHelpTopic("", 2000));
}

TEST(HelpTopics, AMissingHelpFileHasNoTopics) { EXPECT_THAT(ReadHelpTopics("no\\such.chm"), IsEmpty()); }

TEST(HelpTopics, ATopicThatIsNoTextIsNothing) {
  const TemporaryDirectory directory;
  directory.Put("1.html", "<title>\xFF</title>");
  directory.Put("2.html", std::string_view("a\0b", 3));
  directory.Put("x.html", "<title>x</title>");
  EXPECT_THAT(ReadHelpTopics(directory.Path().string() + ".chm"), IsEmpty());
}

TEST(HelpTopics, ATopicHasItsTitle) {
  const TemporaryDirectory directory;
  directory.Put("7.html", "<html><title>About</title>");
  const auto topic = ReadHelpTopic(directory.Path().string() + ".chm", 7);
  ASSERT_TRUE(topic);
  EXPECT_EQ(topic->title, "About");
  EXPECT_EQ(topic->number, 7);
}

TEST(HelpTopics, ATopicWithoutATitleIsRead) {
  const TemporaryDirectory directory;
  for (const char* html : {"<title>open", "<h1>About</h1>"}) {
    directory.Put("7.html", html);
    const auto topic = ReadHelpTopic(directory.Path().string() + ".chm", 7);
    ASSERT_TRUE(topic);
    EXPECT_EQ(topic->title, "");
    EXPECT_EQ(topic->html, html);
  }
}

TEST(HelpTopics, TopicsComeByTheirTitlesAndThoseOfOneTitleByTheirNumbers) {
  const TemporaryDirectory directory;
  directory.Put("10.html", "<title>b</title>");
  directory.Put("9.html", "<title>b</title>");
  directory.Put("8.html", "<title>c</title>");
  directory.Put("11.html", "<title>a</title>");
  std::vector<std::int32_t> numbers;
  for (const HelpTopic& topic : ReadHelpTopics(directory.Path().string() + ".chm")) numbers.push_back(topic.number);
  EXPECT_EQ(numbers, (std::vector<std::int32_t>{11, 9, 10, 8}));
}

TEST(ShippedHelpTopics, EveryTopicOfTheDialogsIsThereInBothLanguages) {
  for (const char* language : {"English", "German"}) {
    for (const std::int32_t number : TopicNumbers) {
      const auto topic = ReadHelpTopic(ShippedHelp(language), number);
      ASSERT_TRUE(topic) << language << number;
      EXPECT_NE(topic->title, "");
      EXPECT_THAT(topic->html, HasSubstr("<h1>" + topic->title + "</h1>"));
    }
  }
}

TEST(ShippedHelpTopics, BothLanguagesHaveTheSameTopics) {
  std::set<std::int32_t> english;
  std::set<std::int32_t> german;
  for (const HelpTopic& topic : ReadHelpTopics(ShippedHelp("English"))) english.insert(topic.number);
  for (const HelpTopic& topic : ReadHelpTopics(ShippedHelp("German"))) german.insert(topic.number);
  EXPECT_EQ(english, german);
}

TEST(ShippedHelpTopics, EveryLinkLeadsToATopic) {
  const std::regex link("href=\"([0-9]+)\\.html\"");
  for (const char* language : {"English", "German"}) {
    for (const HelpTopic& topic : ReadHelpTopics(ShippedHelp(language))) {
      for (std::sregex_iterator match(topic.html.begin(), topic.html.end(), link), end; match != end; ++match) {
        EXPECT_TRUE(ReadHelpTopic(ShippedHelp(language), std::stoi((*match)[1]))) << topic.number;
      }
    }
  }
}

}  // namespace
}  // namespace plexel
