#include "files/text_lines.h"

#include <gmock/gmock.h>

#include <vector>

#include "file_error_of.h"
#include "files/system_files.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> result;
  LineWalk lines(text);
  for (std::string_view line; lines.Next(line);) result.emplace_back(line);
  return result;
}

TEST(LineWalk, EveryKindOfLineEndEndsALine) { EXPECT_THAT(LinesOf("a\nb\r\nc\rd"), ElementsAre("a", "b", "c", "d")); }

TEST(LineWalk, LineFeedBeforeCarriageReturnEndsTwoLines) { EXPECT_THAT(LinesOf("a\n\rb"), ElementsAre("a", "", "b")); }

TEST(LineWalk, TwoCarriageReturnsAndALineFeedEndTwoLines) {
  EXPECT_THAT(LinesOf("a\r\r\nb"), ElementsAre("a", "", "b"));
}

TEST(LineWalk, ALineEndAtTheEndOpensNoFurtherLine) { EXPECT_THAT(LinesOf("a\r\n"), ElementsAre("a")); }

TEST(LineWalk, AnEmptyTextHasNoLine) { EXPECT_THAT(LinesOf(""), IsEmpty()); }

TEST(LineWalk, ALoneLineEndIsOneEmptyLine) { EXPECT_THAT(LinesOf("\n"), ElementsAre("")); }

TEST(LineWalk, LinesAreNumberedFromOne) {
  LineWalk lines("a\rb\r\n\nd");
  std::string_view line;
  std::vector<std::size_t> numbers = {lines.Number()};
  while (lines.Next(line)) numbers.push_back(lines.Number());
  EXPECT_THAT(numbers, ElementsAre(0U, 1U, 2U, 3U, 4U));
}

TEST(LineWalk, ManyCarriageReturnsAreLinesEach) {
  // A walk that looked at all the rest for each of them would not come to its end.
  const std::string text(4 << 20, '\r');
  EXPECT_EQ(LinesOf(text).size(), text.size());
}

TEST(LineWalk, ACarriageReturnFarIntoALongLineEndsIt) {
  // Around the ends of the pieces by which it is looked for, and behind a line that was looked through already.
  for (const std::size_t length : {8191U, 8192U, 8193U, 16383U, 16384U, 20000U}) {
    const std::string line(length, 'x');
    EXPECT_THAT(LinesOf(line + "\rb\nc\r\n" + line + "\r\n" + line), ElementsAre(line, "b", "c", line, line)) << length;
    EXPECT_THAT(LinesOf("a\n" + line + "\n" + line + "\rd"), ElementsAre("a", line, line, "d")) << length;
  }
}

TEST(LineOf, CountsTheLineThatHoldsThePosition) {
  EXPECT_EQ(LineOf("ab\r\ncd", 0), 1U);
  EXPECT_EQ(LineOf("ab\r\ncd", 4), 2U);
  EXPECT_EQ(LineOf("", 0), 1U);
}

TEST(TextFile, AByteOrderMarkOfUtf8IsPassedOver) {
  EXPECT_EQ(TextFile("t", std::string("\xEF\xBB\xBFtext")).Text(), "text");
}

TEST(TextFile, WhatStandsBehindItsFirstLinesTellsTheLinesOfTheWhole) {
  const TextFile whole("a.txt", std::string("\xEF\xBB\xBF"
                                            "a\nbc\nd\ne\n"));
  const TextFile rest = whole.Behind(2, 5), last = rest.Behind(1, 2);
  EXPECT_EQ(rest.Text(), "d\ne\n");
  EXPECT_STREQ(rest.Error(1, "odd").what(), "a.txt:3: odd");
  EXPECT_EQ(last.Text(), "e\n");
  EXPECT_STREQ(last.Error(1, "odd").what(), "a.txt:4: odd");
}

TEST(TextFile, Utf16IsRefusedInBothByteOrders) {
  for (const std::string_view mark : {"\xFF\xFE", "\xFE\xFF"}) {
    const auto error = FileErrorOf([mark] { TextFile("name", std::string(mark) + "a"); });
    ASSERT_TRUE(error);
    EXPECT_THAT(error->what(), HasSubstr("name:1: the text is UTF-16"));
  }
}

TEST(TextFile, ANulByteIsRefusedWithItsLine) {
  const auto error = FileErrorOf([] { TextFile("name", std::string("a\nb\n\0c", 6)); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Line(), 3U);
  EXPECT_THAT(error->Reason(), HasSubstr("NUL"));
}

TEST(TextFile, TheLongestLineIsAccepted) {
  EXPECT_NO_THROW(TextFile("t", "a\n" + std::string(TextFile::LongestLine, 'x')));
}

TEST(TextFile, ALineOfOneByteMoreIsRefusedWithItsNumber) {
  const auto error = FileErrorOf([] { TextFile("t", "a\n" + std::string(TextFile::LongestLine + 1, 'x') + "\nb"); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Line(), 2U);
}

TEST(TextFile, ALineOf100MegabytesGetsAMessage) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("long", std::string(100'000'000, 'x'));
  const auto small = FileErrorOf([&] { TextFile{file}; });
  ASSERT_TRUE(small);
  EXPECT_THAT(small->Reason(), HasSubstr("larger than"));
  const auto large = FileErrorOf([&] { TextFile(file, std::size_t{1} << 30U); });
  ASSERT_TRUE(large);
  EXPECT_EQ(large->Line(), 1U);
}

TEST(ReadWholeFile, AMissingFileIsNamed) {
  const auto error = FileErrorOf([] { ReadWholeFile("no/such/file", 10); });
  ASSERT_TRUE(error);
  EXPECT_THAT(error->what(), HasSubstr("no/such/file: cannot be read"));
  EXPECT_EQ(error->Line(), 0U);
}

TEST(ReadWholeFile, ADirectoryIsRefused) {
  const TemporaryDirectory directory;
  EXPECT_THROW(ReadWholeFile(directory.Path(), 10), FileError);
}

TEST(ReadWholeFile, AnEndlessDeviceIsRefused) { EXPECT_THROW(ReadWholeFile("/dev/zero", 10), FileError); }

TEST(ReadWholeFile, AFileOfExactlyTheLimitIsRead) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("f", "12345");
  EXPECT_EQ(ReadWholeFile(file, 5), "12345");
  EXPECT_THROW(ReadWholeFile(file, 4), FileError);
}

TEST(ReadWholeFile, AFileWhoseSizeTheSystemDoesNotTellIsReadToItsEnd) {
  EXPECT_THAT(ReadWholeFile("/proc/self/status", 1 << 20), HasSubstr("Threads:"));
}

TEST(ByteOrderMarks, AreToldFromText) {
  EXPECT_EQ(Utf8MarkLength("\xEF\xBB\xBFtext"), 3U);
  EXPECT_EQ(Utf8MarkLength("\xEF\xBB"), 0U);
  EXPECT_EQ(Utf8MarkLength("text"), 0U);
  EXPECT_TRUE(HasUtf16Mark("\xFF\xFEt"));
  EXPECT_TRUE(HasUtf16Mark("\xFE\xFFt"));
  EXPECT_FALSE(HasUtf16Mark("\xEF\xBB\xBFt"));
}

TEST(Excerpt, LongTextsAreShortened) { EXPECT_EQ(Excerpt(std::string(100, 'a')), std::string(40, 'a') + "..."); }

TEST(Excerpt, BytesThatNobodyCanReadBecomeQuestionMarks) { EXPECT_EQ(Excerpt("a\x01\xFF\xC3\xA4"), "a??\xC3\xA4"); }

}  // namespace
}  // namespace plexel
