#include "files/parameter_check.h"

#include <gmock/gmock.h>

#include "file_error_of.h"
#include "files/data_directory.h"
#include "files/parameter_syntax.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<Finding> Check(std::string_view content) {
  const TemporaryDirectory directory;
  return CheckParameterFile(directory.Put("f.cfg", content));
}

auto At(std::size_t line, const std::string& text) {
  return AllOf(Field(&Finding::line, line), Field(&Finding::text, HasSubstr(text)));
}

/// An entry of five lines.
std::string Entry(int number, std::string_view make = "1C", std::string_view release = "F0:1C") {
  const std::string n = std::to_string(number);
  return "[SCANCODE" + n + "]\nREMARK001=Name " + n + "\nREMARK049=Eintrag " + n + "\nMAKECODE=" + std::string(make) +
         "\nBREAKCODE=" + std::string(release) + "\n";
}

std::string Row(std::size_t count, std::string_view code) {
  std::string row;
  for (std::size_t index = 0; index < count; ++index) row += (index == 0 ? "" : ":") + std::string(code);
  return row;
}

TEST(ParameterCheck, AProperFileHasNoFindings) { EXPECT_THAT(Check(Entry(1) + Entry(2)), IsEmpty()); }

TEST(ParameterCheck, TheShippedFileHasNoFindings) {
  EXPECT_THAT(CheckParameterFile(DataDirectory() / "NonStandardScancodes.cfg"), IsEmpty());
}

TEST(ParameterCheck, AMissingFileIsUnreadable) { EXPECT_THROW(CheckParameterFile("no/such.cfg"), FileError); }

TEST(ParameterCheck, AnEndlessDeviceIsUnreadable) { EXPECT_THROW(CheckParameterFile("/dev/zero"), FileError); }

TEST(ParameterCheck, AnEmptyFileHasNoEntry) { EXPECT_THAT(Check(""), ElementsAre(At(1, "no entry SCANCODE1"))); }

TEST(ParameterCheck, EntriesBehindAGapAreNeverReached) {
  EXPECT_THAT(Check(Entry(1) + Entry(3)), ElementsAre(At(6, "SCANCODE3 is never reached, because SCANCODE2")));
}

TEST(ParameterCheck, TheOrderOfTheEntriesInTheFileDoesNotMatter) { EXPECT_THAT(Check(Entry(2) + Entry(1)), IsEmpty()); }

TEST(ParameterCheck, ASectionThatIsNoEntryIsNotRead) {
  for (const char* name : {"OTHER", "SCANCODE", "SCANCODE0", "SCANCODE01", "SCANCODE-1", "SCANCODE1x", ""}) {
    EXPECT_THAT(Check(Entry(1) + "[" + name + "]\nANY=1\n"), ElementsAre(At(6, "is not read"))) << name;
  }
}

TEST(ParameterCheck, ASectionThatStandsTwiceIsFound) {
  EXPECT_THAT(Check(Entry(1) + "[scancode1]\nMAKECODE=1\n"), ElementsAre(At(6, "stands already in line 1")));
}

TEST(ParameterCheck, AKeyThatStandsTwiceIsFound) {
  EXPECT_THAT(Check(Entry(1) + "makecode=1\n"), ElementsAre(At(6, "MAKECODE stands already in line 4")));
}

TEST(ParameterCheck, OfAKeyThatStandsTwiceTheFirstValueCounts) {
  EXPECT_THAT(Check(Entry(1) + "makecode=zz\n"), ElementsAre(At(6, "MAKECODE stands already in line 4")));
}

TEST(ParameterCheck, AnUnknownKeyIsFound) {
  EXPECT_THAT(Check(Entry(1) + "REMARK033=Nom\n"), ElementsAre(At(6, "\"REMARK033\" is unknown")));
}

TEST(ParameterCheck, AKeyBeforeTheFirstSectionIsFound) {
  EXPECT_THAT(Check("MAKECODE=1\n" + Entry(1)), ElementsAre(At(1, "before the first section")));
}

TEST(ParameterCheck, ALineThatIsNothingIsFound) {
  EXPECT_THAT(Check(Entry(1) + "nothing\n[SCANCODE2\n"), ElementsAre(At(6, "\"nothing\" is no"), At(7, "is no")));
}

TEST(ParameterCheck, AMissingNameEndsTheListOfItsLanguage) {
  EXPECT_THAT(Check("[SCANCODE1]\nREMARK001=a\nMAKECODE=1\n"), ElementsAre(At(1, "ends before it in German")));
  EXPECT_THAT(Check("[SCANCODE1]\nREMARK049=a\nMAKECODE=1\n"), ElementsAre(At(1, "ends before it in English")));
}

TEST(ParameterCheck, ANameThatOccursTwiceIsFoundInItsLanguageOnly) {
  EXPECT_THAT(Check("[SCANCODE1]\nREMARK001=a\nREMARK049=b\nMAKECODE=1\n"
                    "[SCANCODE2]\nREMARK001=b\nREMARK049=b\nMAKECODE=1\n"),
              ElementsAre(At(7, "stands already at SCANCODE1")));
}

TEST(ParameterCheck, NamesThatDifferInCaseAreTwoNames) {
  EXPECT_THAT(Check("[SCANCODE1]\nREMARK001=a\nREMARK049=b\nMAKECODE=1\n"
                    "[SCANCODE2]\nREMARK001=A\nREMARK049=B\nMAKECODE=1\n"),
              IsEmpty());
}

TEST(ParameterCheck, NamesThatTheDialogChangesAreFound) {
  const auto named = [](const std::string& name) {
    return Check("[SCANCODE1]\nREMARK049=x\nMAKECODE=1\nREMARK001=" + name + "\n");
  };
  EXPECT_THAT(named(""), ElementsAre(At(4, "the name is empty")));
  EXPECT_THAT(named("Ratio 1:2"), ElementsAre(At(4, "is cut at \":\" to \"Ratio 1\"")));
  EXPECT_THAT(named("[a]"), ElementsAre(At(4, "square brackets")));
  EXPECT_THAT(named("a\u2039"), ElementsAre(At(4, "make or break mark")));
}

TEST(ParameterCheck, ValuesThatAreNoCodesAreFound) {
  for (const char* code : {"G1", "0xE0", "E 0", "-1", "100", "1FF", "1000000E0", "&H", "E0E0E0E0E0E0E0E0E0"}) {
    EXPECT_THAT(Check(Entry(1, code)), ElementsAre(At(4, "item 1"))) << code;
  }
}

TEST(ParameterCheck, CodesThatTheDialogReadsRightAreNotFound) {
  for (const char* code : {"0", "e0", "FE", "&HE0", "&he0", "00E0"})
    EXPECT_THAT(Check(Entry(1, code)), IsEmpty()) << code;
}

TEST(ParameterCheck, TheSeparatorCodeIsFound) {
  EXPECT_THAT(Check(Entry(1, "E0:FF")), ElementsAre(At(4, "FF is left out")));
  EXPECT_THAT(Check(Entry(1, "E0", "F0:FF:E0")), ElementsAre(At(5, "FF splits")));
}

TEST(ParameterCheck, AnEmptyItemDropsWhatLiesBehind) {
  EXPECT_THAT(Check(Entry(1, "E0::5E:5F")), ElementsAre(At(4, "item 2 is empty, so that 2 items behind it")));
}

TEST(ParameterCheck, ADelimiterAtTheEndDropsNothing) { EXPECT_THAT(Check(Entry(1, "E0:5E:")), IsEmpty()); }

TEST(ParameterCheck, AnEntryWithoutMakeCodesIsFound) {
  EXPECT_THAT(Check(Entry(1, "")), ElementsAre(At(4, "no make codes")));
}

TEST(ParameterCheck, AnEntryWithoutBreakCodesIsNoFinding) { EXPECT_THAT(Check(Entry(1, "1C", "")), IsEmpty()); }

TEST(ParameterCheck, MoreThan101ItemsAreFound) {
  EXPECT_THAT(Check(Entry(1, Row(102, "1"), "")),
              ElementsAre(At(4, "only 101"), At(4, "101 make and break codes fit")));
  EXPECT_THAT(Check(Entry(1, Row(101, "1"), "")), ElementsAre(At(4, "101 make and break codes fit no layer")));
}

TEST(ParameterCheck, SequencesThatFitNoLayerAreFound) {
  EXPECT_THAT(Check(Entry(1, Row(40, "1"), Row(5, "1"))), ElementsAre(At(4, "fit no layer, which takes 44")));
  EXPECT_THAT(Check(Entry(1, Row(40, "1"), Row(4, "1"))), ElementsAre(At(4, "limited to 23")));
  EXPECT_THAT(Check(Entry(1, Row(20, "1"), Row(4, "1"))), ElementsAre(At(4, "limited to 23")));
  EXPECT_THAT(Check(Entry(1, Row(20, "1"), Row(3, "1"))), IsEmpty());
}

TEST(ParameterCheck, Utf16IsNotRead) { EXPECT_THAT(Check("\xFF\xFE[\1S"), ElementsAre(At(1, "UTF-16"))); }

TEST(ParameterCheck, ANulByteIsFound) {
  EXPECT_THAT(Check(Entry(1) + std::string(";\0\n", 3)), ElementsAre(At(6, "NUL")));
}

TEST(ParameterCheck, Utf8LinesOfAFileThatIsNotAreMisread) {
  EXPECT_THAT(Check(Entry(1) + ";\xFC\n;\xC3\xBC\n"), ElementsAre(At(7, "misread")));
}

TEST(ParameterCheck, AWindows1252FileHasNoFindings) {
  EXPECT_THAT(Check("[SCANCODE1]\nREMARK001=a\nREMARK049=\xFC\nMAKECODE=1\n"), IsEmpty());
}

TEST(ParameterCheck, WhatIsNotReadOfAFileIsFound) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("f.cfg", Entry(1));
  std::string empty(std::size_t{1} << 20U, '\n');
  std::ofstream stream(file, std::ios::app);
  for (std::size_t size = 0; size < ParameterFileLimit; size += empty.size()) stream << empty;
  stream << Entry(1);
  stream.close();
  EXPECT_THAT(CheckParameterFile(file), ElementsAre(At(ParameterFileLimit - Entry(1).size() + 5,
                                                       "behind the first 67108864 bytes of the file is not read")));
}

TEST(ParameterCheck, FindingsComeInTheOrderOfLines) {
  EXPECT_THAT(Check("bad\n" + Entry(1, "G1") + "bad\n"), ElementsAre(At(1, "bad"), At(5, "item 1"), At(7, "bad")));
}

}  // namespace
}  // namespace plexel
