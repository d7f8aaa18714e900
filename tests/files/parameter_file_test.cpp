#include "files/parameter_file.h"

#include <gmock/gmock.h>

#include <array>
#include <random>

#include "files/data_directory.h"
#include "reader_properties.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

/// A reader on a file "f.cfg" of its own.
class ParameterFile : public testing::Test {
 protected:
  void Put(std::string_view content) { directory_.Put("f.cfg", content); }
  std::string FileName() const { return directory_.Path().string() + "\\f.cfg"; }
  /// The value of a key, or "missing".
  std::string Value(std::string_view section, std::string_view name) {
    std::string value = "old";
    std::int32_t status = -1;
    reader_.ReadEntry(FileName(), section, name, value, 0, status);
    return status == 0 ? value : "missing" + value;
  }
  std::string Item(std::int32_t index, const std::string& value) {
    std::string text = "old";
    reader_.GetItem(index, value, text);
    return text;
  }

  TemporaryDirectory directory_;
  FileParameterReader reader_;
};

TEST_F(ParameterFile, AKeyOfASectionHasItsValue) {
  Put("[SCANCODE1]\nMAKECODE=E0:5E\n[SCANCODE2]\nMAKECODE=1C\n");
  EXPECT_EQ(Value("SCANCODE1", "MAKECODE"), "E0:5E");
  EXPECT_EQ(Value("SCANCODE2", "MAKECODE"), "1C");
}

TEST_F(ParameterFile, WhatIsNotThereIsMissingAndEmpty) {
  Put("[SCANCODE1]\nMAKECODE=E0\n[SCANCODE2]\nBREAKCODE=1\n");
  EXPECT_EQ(Value("SCANCODE1", "BREAKCODE"), "missing");
  EXPECT_EQ(Value("SCANCODE3", "MAKECODE"), "missing");
  EXPECT_EQ(Value("", "MAKECODE"), "missing");
}

TEST_F(ParameterFile, NamesStandInAnyCase) {
  Put("[ScanCode1]\nmakeCode=E0\n");
  EXPECT_EQ(Value("SCANCODE1", "MAKECODE"), "E0");
}

TEST_F(ParameterFile, BlanksAroundNamesAndValuesDoNotCount) {
  Put(" \t[ SCANCODE1 ]\t\n  MAKECODE =\t E0 : 5E \n");
  EXPECT_EQ(Value("SCANCODE1", "MAKECODE"), "E0 : 5E");
  EXPECT_EQ(Item(2, "E0 : 5E "), "5E");
}

TEST_F(ParameterFile, CommentsAreNotRead) {
  Put("[SCANCODE1]\n;MAKECODE=1\n # MAKECODE=2\nMAKECODE=3\n");
  EXPECT_EQ(Value("SCANCODE1", "MAKECODE"), "3");
}

TEST_F(ParameterFile, EveryKindOfLineEndCounts) {
  Put("[SCANCODE1]\r\nA=1\rB=2\nC=3");
  EXPECT_EQ(Value("SCANCODE1", "A"), "1");
  EXPECT_EQ(Value("SCANCODE1", "B"), "2");
  EXPECT_EQ(Value("SCANCODE1", "C"), "3");
}

TEST_F(ParameterFile, AnEmptyValueIsFound) {
  Put("[SCANCODE1]\nMAKECODE=\n");
  EXPECT_EQ(Value("SCANCODE1", "MAKECODE"), "");
}

TEST_F(ParameterFile, OfSectionsAndKeysThatStandTwiceTheFirstCounts) {
  Put("[S]\nA=1\nA=2\n[S]\nA=3\nB=4\n");
  EXPECT_EQ(Value("S", "A"), "1");
  EXPECT_EQ(Value("S", "B"), "missing");
}

TEST_F(ParameterFile, AFileOfWellFormedUtf8IsUtf8) {
  Put("\xEF\xBB\xBF[S]\nA=Zur\xC3\xBC"
      "ck\n");
  EXPECT_EQ(Value("S", "A"),
            "Zur\xC3\xBC"
            "ck");
}

TEST_F(ParameterFile, AnyOtherFileIsWindows1252) {
  Put("[S]\nA=Zur\xFC"
      "ck\nB=\x8B\n");
  EXPECT_EQ(Value("S", "A"),
            "Zur\xC3\xBC"
            "ck");
  EXPECT_EQ(Value("S", "B"), "\xE2\x80\xB9");
}

TEST_F(ParameterFile, ItemsAreCountedFromOne) {
  EXPECT_EQ(Item(1, "E0:5E"), "E0");
  EXPECT_EQ(Item(2, "E0:5E"), "5E");
  EXPECT_EQ(Item(3, "E0:5E"), "");
  EXPECT_EQ(Item(0, "E0:5E"), "");
  EXPECT_EQ(Item(-1, "E0:5E"), "");
  EXPECT_EQ(Item(1, ""), "");
}

TEST_F(ParameterFile, AnEmptyItemIsEmpty) {
  EXPECT_EQ(Item(2, "E0::5E"), "");
  EXPECT_EQ(Item(3, "E0::5E"), "5E");
}

TEST_F(ParameterFile, TheDelimiterCanBeAnyText) {
  reader_.SetDelimiter(", ");
  EXPECT_EQ(Item(2, "a, b:c"), "b:c");
}

TEST_F(ParameterFile, WithoutADelimiterTheValueIsOneItem) {
  reader_.SetDelimiter("");
  EXPECT_EQ(Item(1, "a:b"), "a:b");
  EXPECT_EQ(Item(2, "a:b"), "");
}

TEST_F(ParameterFile, AMissingFileHasNoEntries) { EXPECT_EQ(Value("S", "A"), "missing"); }

TEST_F(ParameterFile, ADirectoryHasNoEntries) {
  std::filesystem::create_directory(directory_ / "f.cfg");
  EXPECT_EQ(Value("S", "A"), "missing");
}

TEST_F(ParameterFile, AnEndlessFileHasNoEntries) {
  std::filesystem::create_symlink("/dev/zero", directory_ / "f.cfg");
  EXPECT_EQ(Value("S", "A"), "missing");
}

TEST_F(ParameterFile, OfABinaryFileTheReadablePartCounts) {
  Put(std::string_view("\0\1\2[x\n[S]\nA=1\n\xFF\0", 17));
  EXPECT_EQ(Value("S", "A"), "1");
}

TEST_F(ParameterFile, OfAHugeFileTheStartCounts) {
  Put("[S]\nA=1\n");
  std::filesystem::resize_file(directory_ / "f.cfg", std::uintmax_t{1} << 40U);
  EXPECT_EQ(Value("S", "A"), "1");
  EXPECT_EQ(Value("S", "B"), "missing");
}

TEST_F(ParameterFile, AChangeShowsAfterTheNextSetDelimiter) {
  Put("[S]\nA=1\n");
  EXPECT_EQ(Value("S", "A"), "1");
  Put("[S]\nA=22\n");
  EXPECT_EQ(Value("S", "A"), "1");
  reader_.SetDelimiter(":");
  EXPECT_EQ(Value("S", "A"), "22");
}

TEST_F(ParameterFile, AFileThatComesLaterIsRead) {
  EXPECT_EQ(Value("S", "A"), "missing");
  Put("[S]\nA=1\n");
  reader_.SetDelimiter(":");
  EXPECT_EQ(Value("S", "A"), "1");
}

TEST_F(ParameterFile, ABracketBeginsASectionOnlyAtTheStartOfALine) {
  Put("[A]\nX=[B]\n;[B]\n# [B]\nY [B]\n[B\n \t[B] \nZ=2\r[C]\rZ=3");
  EXPECT_EQ(Value("A", "X"), "[B]");
  EXPECT_EQ(Value("A", "Z"), "missing");
  EXPECT_EQ(Value("B", "Z"), "2");
  EXPECT_EQ(Value("C", "Z"), "3");
}

TEST_F(ParameterFile, EachEntryIsReadFromTheFileThatIsNamed) {
  Put("[S]\nA=1\n");
  const std::string other = directory_.Put("g.cfg", "[S]\nA=2\n").string();
  EXPECT_EQ(Value("S", "A"), "1");
  std::string value;
  std::int32_t status = -1;
  reader_.ReadEntry(other, "S", "A", value, 0, status);
  EXPECT_EQ(value, "2");
  EXPECT_EQ(Value("S", "A"), "1");
}

TEST_F(ParameterFile, ASectionMayHaveTheEmptyName) {
  Put("[]\nA=1\n[ ]\nA=2\nB=3\n[S]\n=4");
  EXPECT_EQ(Value("", "A"), "1");
  EXPECT_EQ(Value("", "B"), "missing");
  EXPECT_EQ(Value("S", ""), "4");
}

TEST_F(ParameterFile, ASectionEndsWhereOneBeginsThatStandsTwice) {
  Put("[S]\nA=1\n[T]\nB=2\n[S]\nC=3\n[T]\nD=4\n");
  EXPECT_EQ(Value("S", "A"), "1");
  EXPECT_EQ(Value("T", "B"), "2");
  EXPECT_EQ(Value("S", "C"), "missing");
  EXPECT_EQ(Value("T", "D"), "missing");
}

TEST_F(ParameterFile, AnyTextGivesWhatAWalkOverItsLinesGives) {
  constexpr std::array pieces = {"[",         "]",         "[SCANCODE1]", "[scancode2]", "SCANCODE", "1",   "2",
                                 "\n",        " ",         "\n",          "\r",          "\r\n",     "\t",  "=",
                                 "REMARK001", "MAKECODE=", ";",           "#",           "\xC3\xA4", "\xE4"};
  std::mt19937 random(7);
  for (int round = 0; round < 400; ++round) {
    std::string content;
    while (random() % 60 != 0) content += pieces[random() % pieces.size()];
    ASSERT_NO_THROW(CheckParameterReader(directory_.Path(), content)) << content;
  }
}

TEST_F(ParameterFile, EveryEntryOfAFileOf10MegabytesIsFound) {
  std::string content;
  std::int32_t count = 0;
  while (content.size() < 10'000'000) {
    ++count;
    content += "[SCANCODE" + std::to_string(count) + "]\nREMARK001=Entry " + std::to_string(count) +
               "\nREMARK049=Eintrag\nMAKECODE=E0:5E\nBREAKCODE=E0:F0:5E\n";
  }
  Put(content);
  for (std::int32_t number = 1; number <= count; ++number) {
    ASSERT_EQ(Value("SCANCODE" + std::to_string(number), "REMARK001"), "Entry " + std::to_string(number));
  }
  EXPECT_EQ(Value("SCANCODE" + std::to_string(count + 1), "REMARK001"), "missing");
}

TEST(ShippedSequences, EveryEntryHasANameInBothLanguagesAndCodes) {
  FileParameterReader reader;
  const std::string file = (DataDirectory() / "NonStandardScancodes.cfg").string();
  std::int32_t count = 0;
  for (std::int32_t status = 0;; ++count) {
    const std::string section = "SCANCODE" + std::to_string(count + 1);
    std::string value;
    reader.ReadEntry(file, section, "REMARK001", value, 0, status);
    if (status != 0) break;
    EXPECT_NE(value, "");
    reader.ReadEntry(file, section, "REMARK049", value, 0, status);
    EXPECT_EQ(status, 0) << section;
    reader.ReadEntry(file, section, "MAKECODE", value, 0, status);
    EXPECT_EQ(status, 0) << section;
  }
  EXPECT_GE(count, 30);
}

}  // namespace
}  // namespace plexel
