#include "services/code_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

#include "platform/failure.h"

namespace plexel {
namespace {

TEST(CodePage, CodesBelow128AreThemselves) {
  EXPECT_EQ(CharacterOf(0x41), "A");
  EXPECT_EQ(CharacterOf(0x7F), "\x7F");
  EXPECT_EQ(CharacterOf(0), std::string(1, '\0'));
}

TEST(CodePage, TheMarksAreTheCodes139And155) {
  EXPECT_EQ(CharacterOf(139), chrMakeMark);
  EXPECT_EQ(CharacterOf(155), chrBreakMark);
  EXPECT_EQ(ToCodePageEscaped("\u2039\u203A"), "\x8B\x9B");
}

TEST(CodePage, EveryCodeComesBackFromItsCharacter) {
  for (int code = 0; code < 256; ++code) {
    const std::string bytes(1, static_cast<char>(code));
    EXPECT_EQ(ToCodePageEscaped(FromCodePage(bytes)), code == '\\' ? "\\\\" : bytes) << code;
  }
}

TEST(CodePage, All256CharactersDiffer) {
  std::vector<std::string> characters;
  for (int code = 0; code < 256; ++code) characters.push_back(CharacterOf(static_cast<std::uint8_t>(code)));
  std::sort(characters.begin(), characters.end());
  EXPECT_EQ(std::unique(characters.begin(), characters.end()), characters.end());
}

TEST(CodePage, TheUndefinedBytesStandForControlCharacters) {
  for (const std::int32_t code : {0x81, 0x8D, 0x8F, 0x90, 0x9D}) {
    EXPECT_EQ(CodeOf(static_cast<char32_t>(code)), code);
  }
  EXPECT_EQ(CharacterOf(0x81), "\u0081");
}

TEST(CodePage, ControlCharactersOfTakenCodesAreLacking) {
  EXPECT_EQ(CodeOf(0x80), -1);
  EXPECT_EQ(CodeOf(0x9F), -1);
}

TEST(CodePage, LatinLettersAndTheEuroSignHaveTheirCodes) {
  EXPECT_EQ(CodeOf(U'\u20AC'), 0x80);
  EXPECT_EQ(CodeOf(U'\u00A0'), 0xA0);
  EXPECT_EQ(CodeOf(U'\u00FC'), 0xFC);
  EXPECT_EQ(CodeOf(U'\u00FF'), 0xFF);
  EXPECT_EQ(CodeOf(U'\u0178'), 0x9F);
  EXPECT_EQ(CodeOf(U'\u0100'), -1);
}

TEST(CodePage, OverlongFormsAndSurrogatesAreBrokenSequences) {
  EXPECT_EQ(CountCharacters("\xC0\x80"), 2U);
  EXPECT_EQ(CountCharacters("\xE0\x80\x80"), 3U);
  EXPECT_EQ(CountCharacters("\xED\xA0\x80"), 3U);
  EXPECT_EQ(CountCharacters("\xF0\x80\x80\x80"), 4U);
  EXPECT_EQ(CountCharacters("\xF4\x90\x80\x80"), 4U);
}

TEST(CodePage, EscapingDoublesABackslash) {
  EXPECT_EQ(ToCodePageEscaped("a\\b"), "a\\\\b");
  EXPECT_EQ(FromCodePageEscaped("a\\\\b"), "a\\b");
}

TEST(CodePage, EscapingNamesALackingCharacterByItsNumber) {
  EXPECT_EQ(ToCodePageEscaped("\u0416"), "\\u{416}");
  EXPECT_EQ(ToCodePageEscaped("\U0001F600"), "\\u{1f600}");
}

TEST(CodePage, EscapedTextComesBackUnharmed) {
  for (const std::string text : {"", "plain", "\u2039\u203A", "a\u0416\U0001F600\\u{41}", "\\", "\u0080\u0081"}) {
    EXPECT_EQ(FromCodePageEscaped(ToCodePageEscaped(text)), text);
  }
}

TEST(CodePage, BrokenSequencesComeBackUnharmed) {
  for (const std::string text : {"\x80", "\xE2\x80", "a\xFF\xFEz", "\xED\xA0\x80"}) {
    EXPECT_EQ(FromCodePageEscaped(ToCodePageEscaped(text)), text);
  }
}

TEST(CodePage, EveryCharacterComesBackUnharmed) {
  for (char32_t character = 0x80; character <= 0x10FFFF; character += character < 0x3000 ? 1 : 251) {
    if (character >= 0xD800 && character <= 0xDFFF) continue;
    std::array<char, 16> hexadecimal{};
    std::snprintf(hexadecimal.data(), hexadecimal.size(), "\\u{%x}", static_cast<unsigned>(character));
    const std::string text = FromCodePageEscaped(hexadecimal.data());
    ASSERT_EQ(CountCharacters(text), 1U) << static_cast<std::uint32_t>(character);
    ASSERT_EQ(FromCodePageEscaped(ToCodePageEscaped(text)), text) << static_cast<std::uint32_t>(character);
  }
}

TEST(CodePage, BrokenEscapesAreConversionFailures) {
  for (const char* bytes : {"\\", "\\n", "\\n{41}", "\\U{41}", "\\u", "\\u{", "\\u{}", "\\u{12", "\\u{G}", "\\u{-1}",
                            "\\u{ 1}", "\\u{D800}", "\\u{110000}", "\\u{FFFFFFFFFF}", "\\x{100}", "\\x{}", "x\\"}) {
    try {
      FromCodePageEscaped(bytes);
      ADD_FAILURE() << bytes;
    } catch (const Failure& failure) {
      EXPECT_EQ(failure.Kind(), FailureKind::Conversion) << bytes;
      EXPECT_STREQ(failure.what(), "broken escape in a text") << bytes;
    }
  }
}

TEST(CodePage, CharactersAreCountedNotBytes) {
  EXPECT_EQ(CountCharacters(""), 0U);
  EXPECT_EQ(CountCharacters("[a\u2039\u203A]"), 5U);
  EXPECT_EQ(CountCharacters("\U0001F600"), 1U);
}

}  // namespace
}  // namespace plexel
