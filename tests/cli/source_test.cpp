#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/script_source.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

/// A pipe of which the source reads one end.
class Source : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(pipe(ends.data()), 0); }
  void TearDown() override {
    Close();
    close(ends[0]);
  }
  void Write(const std::string& text) {
    ASSERT_EQ(write(ends[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
  }
  void Close() {
    if (ends[1] >= 0) close(std::exchange(ends[1], -1));
  }
  std::vector<std::pair<std::size_t, std::string>> All() {
    Close();
    ByteInput input(ends[0]);
    ScriptSource source(input);
    std::vector<std::pair<std::size_t, std::string>> lines;
    for (ScriptLine line; source.Next(line);) lines.emplace_back(line.number, line.text);
    return lines;
  }
  std::array<int, 2> ends{-1, -1};
};

using Lines = std::vector<std::pair<std::size_t, std::string>>;

TEST_F(Source, LinesKeepTheirNumbers) {
  Write("a\n\n  # comment\nb\n");
  EXPECT_EQ(All(), (Lines{{1, "a"}, {4, "b"}}));
}

TEST_F(Source, TheLastLineNeedsNoEnd) {
  Write("a\nb");
  EXPECT_EQ(All(), (Lines{{1, "a"}, {2, "b"}}));
}

TEST_F(Source, CarriageReturnsAtLineEndsDoNotCount) {
  Write("a\r\n\r\nb\rc\r\n");
  EXPECT_EQ(All(), (Lines{{1, "a"}, {3, "b\rc"}}));
}

TEST_F(Source, AByteOrderMarkDoesNotCount) {
  Write("\xEF\xBB\xBF# comment\na\n");
  EXPECT_EQ(All(), (Lines{{2, "a"}}));
}

TEST_F(Source, AnEmptyScriptHasNoCommand) { EXPECT_TRUE(All().empty()); }

TEST_F(Source, AScriptOfAMarkAloneHasNoCommand) {
  Write("\xEF\xBB\xBF");
  EXPECT_TRUE(All().empty());
}

TEST_F(Source, AByteOrderMarkMayComeInPieces) {
  ByteInput input(ends[0]);
  ScriptSource source(input);
  ScriptLine line;
  Write("\xEF\xBB");
  EXPECT_FALSE(source.AtEnd());
  Write(
      "\xBF"
      "a\n");
  ASSERT_TRUE(source.Next(line));
  EXPECT_EQ(line.text, "a");
}

TEST_F(Source, BehindTheLastCommandIsTheEnd) {
  Write("a\n# comment\n\n");
  Close();
  ByteInput input(ends[0]);
  ScriptSource source(input);
  ScriptLine line;
  EXPECT_FALSE(source.AtEnd());
  source.Next(line);
  EXPECT_TRUE(source.AtEnd());
  EXPECT_FALSE(source.Next(line));
}

TEST_F(Source, LookingAheadLosesNothing) {
  Write("a\n\nb\n");
  ByteInput input(ends[0]);
  ScriptSource source(input);
  ScriptLine line;
  source.Next(line);
  EXPECT_FALSE(source.AtEnd());
  EXPECT_FALSE(source.AtEnd());
  ASSERT_TRUE(source.Next(line));
  EXPECT_EQ(line.number, 3U);
  EXPECT_EQ(line.text, "b");
}

TEST_F(Source, AnOpenPipeIsNotWaitedFor) {
  Write("a\n");
  ByteInput input(ends[0]);
  ScriptSource source(input);
  ScriptLine line;
  source.Next(line);
  EXPECT_FALSE(source.AtEnd()) << "nobody writes more or closes the pipe ahead of this";
  Write("b\n");
  ASSERT_TRUE(source.Next(line));
  EXPECT_EQ(line.text, "b");
}

TEST(LongSource, LinesBehindManyOthersAreGivenWhole) {
  // Behind the short lines stands one that is longer than all of them, and than what is read at once.
  std::string content;
  for (int count = 0; count < 20'000; ++count) content += "abc" + std::to_string(count) + "\n";
  const std::string longest(3 * content.size(), 'x');
  const TemporaryDirectory directory;
  ByteInput input(directory.Put("s.script", content + longest + "\nend"));
  ScriptSource source(input);
  ScriptLine line;
  for (int count = 0; count < 20'000; ++count) {
    ASSERT_TRUE(source.Next(line));
    ASSERT_EQ(line.text, "abc" + std::to_string(count));
  }
  ASSERT_TRUE(source.Next(line));
  EXPECT_EQ(line.number, 20'001U);
  EXPECT_EQ(line.text, longest);
  ASSERT_TRUE(source.Next(line));
  EXPECT_EQ(line.text, "end");
  EXPECT_FALSE(source.Next(line));
}

TEST_F(Source, AReadThatFailsIsTold) {
  ByteInput input(-1);
  ScriptSource source(input);
  ScriptLine line;
  EXPECT_THROW(source.Next(line), std::system_error);
}

}  // namespace
}  // namespace plexel
