#include "forms/characters.h"

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace plexel {
namespace {

TEST(Characters, AreSplitAtTheirOwnLengths) {
  EXPECT_EQ(characters::Split("aä€𝄞"), (std::vector<std::string_view>{"a", "ä", "€", "𝄞"}));
}

TEST(Characters, OfABrokenSequenceCountByteByByte) {
  EXPECT_EQ(characters::Count("\x80"), 1);
  EXPECT_EQ(characters::Count("\xC3"), 1);
  EXPECT_EQ(characters::Count("\xE2\x82"), 2);
  EXPECT_EQ(characters::Count("\xC3z"), 2);
  EXPECT_EQ(characters::Count("\xC0\x80"), 2);
  EXPECT_EQ(characters::Count("\xED\xA0\x80"), 3);
  EXPECT_EQ(characters::Count("\xF4\x90\x80\x80"), 4);
}

TEST(Characters, AreNotLedByABytePastTheLastLeadNorByOneThatFollows) {
  EXPECT_EQ(characters::Count("\xFC\x80\x80\x80"), 4);
  EXPECT_EQ(characters::Count("\x84\x80\x80\x80"), 4);
}

TEST(Characters, ThatComeFirstTellTheirLength) {
  const characters::Decoded first = characters::First("\u20ACx");
  EXPECT_EQ(first.character, U'\u20AC');
  EXPECT_EQ(first.length, 3U);
  EXPECT_FALSE(first.broken);
}

TEST(Characters, ThatAreBrokenAreToldFromTheReplacementCharacter) {
  EXPECT_TRUE(characters::First("\xFF").broken);
  EXPECT_EQ(characters::First("\xFF").character, U'\uFFFD');
  EXPECT_FALSE(characters::First("\uFFFD").broken);
}

TEST(Characters, AreNeitherSurrogatesNorBeyondTheLastPlane) {
  for (const char32_t number : {0x0U, 0xD7FFU, 0xE000U, 0x10FFFFU}) EXPECT_TRUE(characters::IsCharacter(number));
  for (const char32_t number : {0xD800U, 0xDFFFU, 0x110000U}) EXPECT_FALSE(characters::IsCharacter(number));
}

TEST(Characters, OfTheLastPlaneAreWhole) { EXPECT_EQ(characters::Count("\xF4\x8F\xBF\xBF"), 1); }

TEST(Characters, ComeBackFromTheirEncoding) {
  for (const char32_t character :
       {U'a', U'\u007F', U'\u0080', U'\u07FF', U'\u0800', U'\uFFFF', U'\U00010000', U'\U0010FFFF'}) {
    EXPECT_EQ(characters::Decode(characters::Encode(character)), character);
  }
}

TEST(Characters, AreAppendedBehindWhatStands) {
  std::string text = "x";
  for (const char32_t character : {U'a', U'\u00E4', U'\u20AC', U'\U0001D11E'}) characters::Append(text, character);
  EXPECT_EQ(text, "xa\u00E4\u20AC\U0001D11E");
}

TEST(Characters, OfEveryCodeHaveThatCode) {
  for (int code = 0; code <= 0xFF; ++code) {
    EXPECT_EQ(characters::CodeOf(characters::OfCode(static_cast<std::uint8_t>(code))), code);
  }
}

TEST(Characters, OfTheMarksHaveTheCodes139And155) {
  EXPECT_EQ(characters::CodeOf(U'\u2039'), 139);
  EXPECT_EQ(characters::CodeOf(U'\u203A'), 155);
}

TEST(Characters, ThatTheCodePageLacksHaveNoCode) {
  EXPECT_EQ(characters::CodeOf(U'\u0100'), -1);
  EXPECT_EQ(characters::CodeOf(U'\u0080'), -1);
}

TEST(FoldedText, HasNeitherCaseNorAccent) {
  EXPECT_EQ(characters::Folded("ÄäÉçÑ Zz"), "aaecn zz");
  EXPECT_EQ(characters::Folded("Straße Æ Þ ÿ"), "strasse ae th y");
}

TEST(FoldedText, OfEveryLetterIsItsLetterWithoutCaseAndAccent) {
  EXPECT_EQ(characters::Folded("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), "abcdefghijklmnopqrstuvwxyz");
  EXPECT_EQ(characters::Folded("ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞß"), "aaaaaaaeceeeeiiiidnoooooouuuuythss");
  EXPECT_EQ(characters::Folded("àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþÿ"), "aaaaaaaeceeeeiiiidnoooooouuuuythy");
  EXPECT_EQ(characters::Folded("@[`{¿Ā"), "@[`{¿Ā");
}

TEST(FoldedText, KeepsWhatIsNoLetterOfLatin1) { EXPECT_EQ(characters::Folded("×÷_€1Ω\xFF"), "×÷_€1Ω\xFF"); }

TEST(Characters, AWellFormedTextHasNoBrokenByte) {
  for (const std::string_view good : {"", "a", "\xC3\xA4", "\xE2\x80\xB9", "\xF0\x9F\x98\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(characters::IsWellFormed(good)) << good;
  }
  for (const std::string_view bad : {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                     "\xF5\x80\x80\x80", "\xE4", "a\xFF"}) {
    EXPECT_FALSE(characters::IsWellFormed(bad));
  }
}

#if __has_include(<sys/mman.h>)
TEST(Characters, NothingBehindATextIsRead) {
  const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  void* const memory = mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  ASSERT_NE(memory, MAP_FAILED);
  char* const end = static_cast<char*>(memory) + page;
  ASSERT_EQ(mprotect(end, page, PROT_NONE), 0);
  for (std::size_t size = 0; size <= 20; ++size) {
    std::fill_n(end - size, size, 'a');
    EXPECT_TRUE(characters::IsWellFormed({end - size, size})) << size;
  }
  EXPECT_EQ(munmap(memory, 2 * page), 0);
}
#endif

TEST(Characters, TheFirstBrokenByteIsFoundBehindPlainAndOtherText) {
  EXPECT_EQ(characters::FindBroken("0123456789\xC3\xA4\xFFz"), 12U);
  EXPECT_EQ(characters::FindBroken("01234567\xC3"), 8U);
  EXPECT_EQ(characters::FindBroken("\xC3\xA4"
                                   "0123456789abcdef"),
            std::string_view::npos);
}

}  // namespace
}  // namespace plexel
