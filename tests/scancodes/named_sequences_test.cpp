#include "scancodes/named_sequences.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "scancodes/key_translation.h"
#include "scancodes/memory_parameter_file.h"
#include "scancodes/scancode_session.h"

namespace plexel {
namespace {

/// A session with a file of named sequences.
class NamedSession : public ScanCodeSession {
 public:
  NamedSession() {
    surroundings.Settings().BasePath("C:\\Plexel");
    surroundings.ParameterFiles().Use(file);
  }
  MemoryParameterFile file{"C:\\Plexel\\NonStandardScancodes.cfg"};
};

TEST(HexConversion, ACodeByteIsReadWithAndWithoutPrefix) {
  for (const char* const text : {"E0", "e0", "&HE0", "&hE0", "&He0"}) EXPECT_EQ(ConvertHex(text), 224) << text;
}

TEST(HexConversion, WhatIsNoHexadecimalNumberIsZero) {
  for (const char* const text :
       {"", "G1", "&H", "1.5", "-1", " E0", "E0 ", "&&HE0", "&H&HE0", "H1", "\xC3\xA9", "E0&"}) {
    EXPECT_EQ(ConvertHex(text), 0) << text;
  }
}

TEST(HexConversion, ShortTextIsFilledWithZerosAndLongTextLosesItsFront) {
  EXPECT_EQ(ConvertHex("5"), 5);
  EXPECT_EQ(ConvertHex("1FF"), 511);
  EXPECT_EQ(ConvertHex("123456789"), 0x23456789);
  EXPECT_EQ(ConvertHex("&H123456789"), 0x23456789);
  EXPECT_EQ(ConvertHex("ZZ00000001"), 1);
}

TEST(HexConversion, TheTopBitMakesNothingNegative) {
  EXPECT_EQ(ConvertHex("FFFFFFFF"), 4294967295);
  EXPECT_EQ(ConvertHex("80000000"), 2147483648);
}

TEST(NamedSequences, EntriesAreReadFromTheFileInTheBasePath) {
  NamedSession session;
  session.file.SetEntry(1, "Zoom", "E0:1F", "E0:F0:1F");
  const NamedSequences sequences;
  EXPECT_EQ(sequences.NameOf(1), "Zoom");
  EXPECT_EQ(sequences.NameOf(2), std::nullopt);
  session.surroundings.Settings().BasePath("C:\\Other");
  EXPECT_EQ(NamedSequences().NameOf(1), std::nullopt);
}

TEST(NamedSequences, GermanInAnyMixOfCaseReadsTheGermanNames) {
  NamedSession session;
  session.file.Set(1, "REMARK049", "deutsch");
  session.file.Set(1, "REMARK001", "other");
  for (const char* const language : {"German", "GERMAN", "gErMaN"}) {
    session.surroundings.Settings().LanguageName(language);
    EXPECT_EQ(NamedSequences().NameOf(1), "deutsch") << language;
  }
  for (const char* const language : {"English", "", "Germany", "French"}) {
    session.surroundings.Settings().LanguageName(language);
    EXPECT_EQ(NamedSequences().NameOf(1), "other") << language;
  }
}

TEST(NamedSequences, TheFirstItemIsTheName) {
  NamedSession session;
  session.file.SetEntry(1, "Zoom:in:out", "", "");
  EXPECT_EQ(NamedSequences().NameOf(1), "Zoom");
}

TEST(NamedSequences, ANameFindsItsFirstEntryExactly) {
  NamedSession session;
  session.file.SetEntry(1, "zoom", "", "");
  session.file.SetEntry(2, "Zoom", "", "");
  session.file.SetEntry(3, "Zoom", "", "");
  const NamedSequences sequences;
  EXPECT_EQ(sequences.NumberOf("Zoom"), 2);
  EXPECT_EQ(sequences.NumberOf("zoom"), 1);
  EXPECT_EQ(sequences.NumberOf(""), 0);
  EXPECT_EQ(sequences.NumberOf("ZOOM"), std::nullopt);
}

TEST(NamedSequences, CodesEndAtTheFirstEmptyItem) {
  NamedSession session;
  session.file.SetEntry(1, "a", "E0:&H1f::22", "");
  const NamedSequences sequences;
  const KeyCodes codes = sequences.ReadCodes(1);
  EXPECT_EQ(codes.make.length, 2);
  EXPECT_EQ(First(3, codes.make), "E0 1F 00");
  EXPECT_EQ(codes.breaking.length, 0);
  EXPECT_EQ(sequences.ReadCodes(2).make.length, 0);
}

TEST(NamedSequences, AtMost101CodesAreTaken) {
  NamedSession session;
  std::string items = "1";
  for (int item = 2; item <= 150; ++item) items += ":1";
  session.file.SetEntry(1, "a", items, "");
  const CodeSequence make = NamedSequences().ReadCodes(1).make;
  EXPECT_EQ(make.length, 101);
  EXPECT_EQ(make.codes.back(), 1);
  EXPECT_EQ(session.file.itemsAsked, 101 + 1) << "and the empty one of the break codes";
}

TEST(NamedSequences, ACodeBeyond32BitsFails) {
  NamedSession session;
  session.file.SetEntry(1, "a", "7FFFFFFF", "7FFFFFFF");
  session.file.SetEntry(2, "b", "80000000", "");
  session.file.SetEntry(3, "c", "", "80000000");
  const NamedSequences sequences;
  EXPECT_EQ(sequences.ReadCodes(1).make.codes[0], 0x7FFFFFFF);
  EXPECT_EQ(sequences.ReadCodes(1).breaking.codes[0], 0x7FFFFFFF);
  EXPECT_THROW(sequences.ReadCodes(2), Failure);
  EXPECT_THROW(sequences.ReadCodes(3), Failure);
}

}  // namespace
}  // namespace plexel
