#include "cli/words.h"

#include <gtest/gtest.h>

#include "cli/command_error.h"

namespace plexel {
namespace {

std::string ErrorOf(std::string_view line) {
  try {
    SplitWords(line);
  } catch (const CommandError& error) {
    return error.what();
  }
  return "none";
}

TEST(Words, BlanksAndTabsSeparate) {
  const std::vector<Word> words = SplitWords(" \tset  SizeX\t20 ");
  ASSERT_EQ(words.size(), 3U);
  EXPECT_EQ(words[0].text, "set");
  EXPECT_EQ(words[1].text, "SizeX");
  EXPECT_EQ(words[2].text, "20");
  EXPECT_FALSE(words[2].json.has_value());
}

TEST(Words, AQuotedWordHoldsBlanksAndEscapes) {
  const std::vector<Word> words = SplitWords(R"(text 1 "a \"b\" \u2039 \\")");
  ASSERT_EQ(words.size(), 3U);
  EXPECT_EQ(words[2].text, "a \"b\" \u2039 \\");
  EXPECT_TRUE(words[2].IsText());
}

TEST(Words, AnObjectHoldsBracesInsideItsTexts) {
  const std::vector<Word> words = SplitWords(R"(put {"a":"}{ \"","b":[1,{"c":2}]} end)");
  ASSERT_EQ(words.size(), 3U);
  EXPECT_EQ((*words[1].json)["a"], "}{ \"");
  EXPECT_FALSE(words[1].IsText());
  EXPECT_EQ(words[2].text, "end");
}

TEST(Words, AQuoteInsideAPlainWordIsPlain) { EXPECT_EQ(SplitWords("a\"b c")[0].text, "a\"b"); }

TEST(Words, MembersOfAnObjectKeepTheirOrder) { EXPECT_EQ(SplitWords(R"({"z":1,"a":2})")[0].json->begin().key(), "z"); }

TEST(Words, AnOpenTextIsRefusedBehindTheLine) {
  EXPECT_EQ(ErrorOf("text 1 \"open"), "column 13: the text is not closed by a quote");
}

TEST(Words, AnOpenObjectIsRefusedBehindTheLine) {
  EXPECT_EQ(ErrorOf("put {\"a\":1"), "column 11: the JSON value is not closed");
}

TEST(Words, ABrokenValueIsRefusedWhereItBreaks) {
  EXPECT_EQ(ErrorOf(R"(put {"a" 1})"), "column 10: this is no JSON value");
}

TEST(Words, ColumnsCountCharacters) {
  EXPECT_EQ(ErrorOf("text \u2039\u203A \"open"), "column 14: the text is not closed by a quote");
}

TEST(Words, AValueEndsAtABlank) {
  EXPECT_EQ(ErrorOf("text 1 \"a\"b"), "column 11: a blank is missing behind the JSON value");
}

TEST(Words, ANumberOutOfRangeIsRefused) { EXPECT_NE(ErrorOf(R"(put {"a":1e999})"), "none"); }

TEST(Words, ANulIsRefused) { EXPECT_EQ(ErrorOf(std::string_view("ab\0c", 4)), "column 3: a NUL byte"); }

TEST(Words, BrokenUtf8IsRefused) {
  EXPECT_EQ(ErrorOf("a\u2039\xC3("), "column 3: this is no UTF-8");
  EXPECT_EQ(ErrorOf("a\x80"), "column 2: this is no UTF-8");
  EXPECT_EQ(ErrorOf("abc\xE2\x80"), "column 4: this is no UTF-8");
}

TEST(Words, TheFirstFaultOfALineIsTold) {
  EXPECT_EQ(ErrorOf(std::string_view("a\0\xFF", 3)), "column 2: a NUL byte");
  EXPECT_EQ(ErrorOf(std::string_view("a\xFF\0", 3)), "column 2: this is no UTF-8");
}

}  // namespace
}  // namespace plexel
