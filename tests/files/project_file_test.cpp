#include "files/project_file.h"

#include <gmock/gmock.h>

#include "file_error_of.h"
#include "files/project_writer.h"
#include "files/text_lines.h"
#include "platform/failure.h"
#include "sample_project.h"
#include "services/code_page.h"
#include "world/temporary_directory.h"
#include "world/world.h"

namespace plexel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

Project Parse(const std::string& text) { return ParseProject(TextFile("f", text)); }

std::optional<FileError> FaultOf(const std::string& text) {
  return FileErrorOf([&text] { Parse(text); });
}

constexpr const char* Header = "[PROJECT]\nFormat=1\nMarks=\x8B\x9B\nPanel=P\nElements=1\n";

/// A project of one element with the given lines, which begin in line 7.
std::string OneElement(const std::string& lines) { return std::string(Header) + "[ELEMENT A]\n" + lines + "[END]\n"; }

Project WithText(const std::string& text) {
  Project project;
  project.elements.emplace_back().bag.Store("ButtonNotes", text);
  return project;
}

std::string TextThroughAFile(const std::string& text) {
  const Project read = Parse(FormatProject(WithText(text)));
  return std::get<std::string>(*read.elements.at(0).bag.Find("ButtonNotes"));
}

TEST(ProjectFile, EverythingReadsBackAsItWasWritten) {
  const Project project = SampleProject();
  EXPECT_EQ(Parse(FormatProject(project)), project);
}

TEST(ProjectFile, AnEmptyProjectReadsBack) { EXPECT_EQ(Parse(FormatProject({})), Project{}); }

TEST(ProjectFile, AFileOnTheDiskReadsBack) {
  const TemporaryDirectory directory;
  WriteProject(directory / "p", SampleProject());
  EXPECT_EQ(ReadProject(directory / "p"), SampleProject());
}

TEST(ProjectFile, TheMarksAreTheBytes8BAnd9B) {
  EXPECT_THAT(FormatProject(WithText("[a\u2039\u203A]")), HasSubstr("ButtonNotes=string [a\x8B\x9B]\n"));
}

TEST(ProjectFile, UmlautsAreBytesOfTheCodePage) {
  EXPECT_THAT(FormatProject(WithText("\u00C4\u00DF")), HasSubstr("string \xC4\xDF\n"));
}

TEST(ProjectFile, CharactersThatTheCodePageLacksAreEscaped) {
  EXPECT_THAT(FormatProject(WithText("\u03A9")), HasSubstr("string \\u{3a9}\n"));
}

TEST(ProjectFile, TextsOfEveryKindComeBackUnharmed) {
  for (const std::string text : {"", " ", "  a  ", "\t", "a\nb", "a\r\n", "\r", "\\", "\\u{41}", "=", "[END]",
                                 "; no comment", "string x", "\u2039", "\u0081\u008D\u008F\u0090\u009D",
                                 "\u03A9\U0001F600", "\x7F", "\xFF broken \xC3", "a\u2039\u203Ab \u20AC"}) {
    EXPECT_EQ(TextThroughAFile(text), text);
  }
}

TEST(ProjectFile, EveryByteOfATextComesBack) {
  std::string text;
  for (int code = 0; code < 256; ++code) text += static_cast<char>(code);
  EXPECT_EQ(TextThroughAFile(text), text);
}

TEST(ProjectFile, EveryCharacterOfTheCodePageIsOneByteOrAnEscape) {
  for (int code = 0; code < 256; ++code) {
    const std::string character = CharacterOf(static_cast<std::uint8_t>(code));
    EXPECT_EQ(TextThroughAFile("a" + character + "b"), "a" + character + "b") << code;
  }
}

TEST(ProjectFile, TheFiveUndefinedBytesSurvive) {
  const Project read = Parse(OneElement("ButtonNotes=string \x81\x8D\x8F\x90\x9D\n"));
  EXPECT_EQ(std::get<std::string>(*read.elements[0].bag.Find("ButtonNotes")), "\u0081\u008D\u008F\u0090\u009D");
  EXPECT_THAT(FormatProject(read), HasSubstr("\x81\x8D\x8F\x90\x9D"));
}

TEST(ProjectFile, EveryTruncationIsRefusedWithALine) {
  const std::string whole = FormatProject(SampleProject());
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const auto error = FaultOf(whole.substr(0, length));
    ASSERT_TRUE(error) << length;
    EXPECT_GT(error->Line(), 0U) << length;
    EXPECT_THAT(error->Reason(), Not(IsEmpty())) << length;
  }
}

TEST(ProjectFile, EveryChangedByteIsReadOrRefusedWithALine) {
  const std::string whole = FormatProject(SampleProject());
  for (std::size_t index = 0; index < whole.size(); ++index) {
    for (const char byte : {'\0', '\n', ' ', '[', '=', '9', '\xFF'}) {
      std::string damaged = whole;
      damaged[index] = byte;
      const auto error = FaultOf(damaged);
      if (error) {
        EXPECT_GT(error->Line(), 0U) << index;
      }
    }
  }
}

TEST(ProjectFile, LineEndsOfEveryKindAreRead) {
  std::string text = FormatProject(SampleProject());
  std::string mixed;
  int count = 0;
  for (const char c : text) {
    if (c == '\n') {
      mixed += std::vector<const char*>{"\r\n", "\r", "\n"}[static_cast<std::size_t>(count++ % 3)];
    } else {
      mixed += c;
    }
  }
  EXPECT_EQ(Parse(mixed), SampleProject());
}

TEST(ProjectFile, CommentsAndEmptyLinesAreRead) {
  const Project read = Parse("; comment\n\n" + OneElement("# comment\n  \nSizeX=int16 7\n") + "; end\n");
  EXPECT_EQ(*read.elements[0].bag.Find("SizeX"), BagValue(std::int16_t{7}));
}

TEST(ProjectFile, AFileThatIsNoProjectIsToldSo) {
  for (const char* text : {"", "hello", "[SETTINGS]\nA=1\n", "%PDF-1.4\n", "[PROJECT"}) {
    const auto error = FaultOf(text);
    ASSERT_TRUE(error) << text;
    EXPECT_EQ(error->Line(), 1U) << text;
  }
}

TEST(ProjectFile, AFileSavedAsUtf8IsToldSo) {
  const std::string text = FormatProject(SampleProject());
  EXPECT_THAT(FaultOf("\xEF\xBB\xBF" + text)->Reason(), HasSubstr("UTF-8"));
  EXPECT_THAT(FaultOf(FromCodePage(text))->what(), HasSubstr("f:3: the file has been saved in another code page"));
}

TEST(ProjectFile, AnUnknownFormatIsToldSo) {
  EXPECT_THAT(FaultOf("[PROJECT]\nFormat=x\n")->what(), HasSubstr("f:2: the format \"x\" is unknown"));
  EXPECT_THAT(FaultOf("[PROJECT]\nFormat=02\n")->what(), HasSubstr("f:2: the format \"02\" is unknown"));
  EXPECT_THAT(FaultOf("[PROJECT]\nFormat=0\n")->what(), HasSubstr("f:2: the format \"0\" is unknown"));
  EXPECT_THAT(FaultOf("[PROJECT]\nFormat=3\n")->what(),
              HasSubstr("f:2: the format 3 is newer than this program, which knows 1 and 2"));
}

TEST(ProjectFile, AHeaderWithoutAllItsKeysIsRefused) {
  const std::vector<std::string> keys = {"Format=1\n", "Marks=\x8B\x9B\n", "Panel=P\n", "Elements=0\n"};
  for (std::size_t missing = 0; missing < keys.size(); ++missing) {
    std::string text = "[PROJECT]\n";
    for (std::size_t index = 0; index < keys.size(); ++index) text += index == missing ? "" : keys[index];
    EXPECT_TRUE(FaultOf(text + "[END]\n")) << missing;
  }
}

TEST(ProjectFile, AFaultyHeaderLineIsNamed) {
  for (const std::string fault : {"Panel=Q", "Unknown=1", "nothing", "Elements=2"}) {
    const auto error = FaultOf(std::string(Header) + fault + "\n[ELEMENT A]\n[END]\n");
    ASSERT_TRUE(error) << fault;
    EXPECT_EQ(error->Line(), 6U) << fault;
  }
}

TEST(ProjectFile, AWrongNumberOfElementsIsRefused) {
  const std::string header = "[PROJECT]\nFormat=1\nMarks=\x8B\x9B\nPanel=P\nElements=";
  const std::string element = "\n[ELEMENT A]\n[END]\n";
  EXPECT_FALSE(FaultOf(header + "1" + element));
  for (const char* count : {"0", "2", "-1", "", "x", "4294967295", "4294967296"}) {
    EXPECT_TRUE(FaultOf(header + count + element)) << count;
  }
}

TEST(ProjectFile, AFaultyElementLineIsNamed) {
  for (const std::string fault : {"SizeX=int16 32768",
                                  "SizeX=int16 -32769",
                                  "SizeX=int32 2147483648",
                                  "SizeX=uint8 256",
                                  "SizeX=uint8 -1",
                                  "SizeX=boolean 40000",
                                  "SizeX=int16",
                                  "SizeX=int16 1.5",
                                  "SizeX=int16 7 8",
                                  "SizeX=7",
                                  "SizeX=",
                                  "SizeX",
                                  "SizeX=double x",
                                  "=int16 1",
                                  "SizeX=word 1",
                                  "SizeX=string \\",
                                  "SizeX=string \\n",
                                  "SizeX=string \\u{110000}",
                                  "[OTHER]",
                                  "[ELEMENT",
                                  "[PROJECT]",
                                  "[ELEMENT A]"}) {
    const auto error = FaultOf(OneElement("ZoomFactor=int16 1\n" + fault + "\n"));
    ASSERT_TRUE(error) << fault;
    EXPECT_EQ(error->Line(), 8U) << fault;
  }
}

TEST(ProjectFile, AKeyThatStandsTwiceIsRefused) {
  EXPECT_EQ(FaultOf(OneElement("SizeX=int16 1\nSizeX=int16 1\n"))->Line(), 8U);
  EXPECT_EQ(FaultOf(OneElement("Foreign=int16 1\nForeign=int16 1\n"))->Line(), 8U);
  EXPECT_EQ(FaultOf(OneElement("strLayer1PressScanCode=codes 0 FF\nstrLayer1PressScanCode=codes 0 FF\n"))->Line(), 8U);
}

TEST(ProjectFile, APlaceThatStandsTwiceIsRefused) {
  const std::string header = "[PROJECT]\nFormat=1\nMarks=\x8B\x9B\nPanel=P\nElements=2\n";
  EXPECT_EQ(FaultOf(header + "[ELEMENT A]\n[ELEMENT \\u{41}]\n[END]\n")->Line(), 7U);
}

TEST(ProjectFile, ALineBehindTheEndIsRefused) {
  EXPECT_THAT(FaultOf(OneElement("") + "[ELEMENT B]\n")->what(), HasSubstr("f:8: something stands behind [END]"));
}

TEST(ProjectFile, CodesAreTheirLastIndexAndTheirBytes) {
  const Project read = Parse(OneElement("strLayer2ReleaseScanCode=codes 4 ff1CF0 1C FF*41\n"));
  ASSERT_EQ(read.elements[0].codes.size(), 1U);
  const SavedCodes& codes = read.elements[0].codes[0];
  EXPECT_EQ(codes.buffer, 3);
  EXPECT_EQ(codes.codes.NextValue, 4);
  EXPECT_EQ(codes.codes.Value[2], 0xF0);
  EXPECT_EQ(codes.codes.Value[44], 0xFF);
  EXPECT_EQ(codes.codes.Value[45], 0);
}

TEST(ProjectFile, CodesThatFitNoBufferAreRefused) {
  for (const char* codes :
       {"", "x", "-1 FF", "89 FF", "0 F", "0 GG", "0 FF*", "0 FF*0", "0 FF*90", "0 FF*88 1C1C", "0 FF*x"}) {
    EXPECT_TRUE(FaultOf(OneElement("strLayer1PressScanCode=codes " + std::string(codes) + "\n"))) << codes;
  }
  EXPECT_TRUE(FaultOf(OneElement("strLayer5PressScanCode=codes 0 FF\n")));
  EXPECT_FALSE(FaultOf(OneElement("strLayer1PressScanCode=codes 88 FF*88 1C\n")));
}

TEST(ProjectFile, AllBytesOfABufferComeBack) {
  Project project;
  SavedCodes saved{5, {}};
  for (std::size_t index = 0; index < saved.codes.Value.size(); ++index) {
    saved.codes.Value[index] = static_cast<std::uint8_t>(index * 7);
  }
  saved.codes.NextValue = 88;
  project.elements.emplace_back().codes.push_back(saved);
  EXPECT_EQ(Parse(FormatProject(project)), project);
}

TEST(ProjectFile, ATextThatIsTooLongIsNotWritten) {
  const TemporaryDirectory directory;
  const auto file = directory.Put("p", "old");
  const auto error = FileErrorOf([&] { WriteProject(file, WithText(std::string(TextFile::LongestLine, 'x'))); });
  ASSERT_TRUE(error);
  EXPECT_THAT(error->what(), HasSubstr("too long"));
  EXPECT_EQ(Content(file), "old");
}

TEST(ProjectFile, TheLongestTextComesBack) {
  const std::string text(TextFile::LongestLine - std::string_view("ButtonNotes=string ").size(), 'x');
  EXPECT_EQ(TextThroughAFile(text), text);
}

TEST(ProjectFile, WhatCannotBeReadBackIsNotWritten) {
  Project twice;
  twice.elements.resize(2);
  EXPECT_THROW(FormatProject(twice), Failure);
  Project buffer;
  buffer.elements.emplace_back().codes.push_back({8, {}});
  EXPECT_THROW(FormatProject(buffer), Failure);
  Project key;
  key.elements.emplace_back().bag.Store("", std::int16_t{1});
  EXPECT_THROW(FormatProject(key), Failure);
}

TEST(ProjectFile, AHugeCountTakesNoHugeMemory) {
  EXPECT_TRUE(FaultOf("[PROJECT]\nFormat=1\nMarks=\x8B\x9B\nPanel=P\nElements=4294967295\n[END]\n"));
}

class ProjectOfElements : public testing::Test, protected World {};

TEST_F(ProjectOfElements, TheBuffersOfANewElementAreNotSaved) {
  const auto element = component.Create("A", host);
  EXPECT_THAT(CodesOf(element->TactisBaseElementScanCodeBuffer()), IsEmpty());
}

TEST_F(ProjectOfElements, SavedBuffersComeBackAndTheOthersAreNew) {
  const auto element = component.Create("A", host);
  udtTactisBaseElement_ScanCodeInfo record = element->TactisBaseElementScanCodeBuffer();
  record.strLayer3ReleaseScanCode.Value[1] = 0x1C;
  record.strLayer3ReleaseScanCode.NextValue = 2;
  const std::vector<SavedCodes> codes = CodesOf(record);
  ASSERT_EQ(codes.size(), 1U);
  EXPECT_EQ(codes[0].buffer, 5);
  udtTactisBaseElement_ScanCodeInfo other = record;
  ZeroAllBuffers(other);
  PutCodes(codes, other);
  EXPECT_EQ(other, record);
}

TEST_F(ProjectOfElements, AnElementsBagComesBackThroughAFile) {
  const auto element = component.Create("A", host);
  element->SizeX(33);
  element->PressKeyDefLayer1("[a\u2039\u203A]");
  element->ButtonNotes("two\nlines");
  Project project;
  element->UserControl_WriteProperties(project.elements.emplace_back().bag);
  const Project read = Parse(FormatProject(project));
  EXPECT_EQ(read, project);
  const auto again = component.Read("B", host, read.elements[0].bag);
  EXPECT_EQ(again->SizeX(), 33);
  EXPECT_EQ(again->PressKeyDefLayer1(), "[a\u2039\u203A]");
  EXPECT_EQ(again->ButtonNotes(), "two\nlines");
}

TEST(ProjectFile, APanelThatIsCarriedComesBackLineByLine) {
  Project project{"P", {{"F1", {}, {}}}, "[PANEL]\n\nTitle=Gro\u00DF \u4E2D \n  blanks  \n# \\ a comment\n[END]\n"};
  const std::string text = FormatProject(project);
  EXPECT_THAT(text, HasSubstr("Format=2\n"));
  EXPECT_EQ(ParseProject(TextFile("f", text)), project);
}

TEST(ProjectFile, APanelThatIsNotCarriedLeavesTheFormatAsItWas) {
  const std::string text = FormatProject(Project{"P", {}, {}});
  EXPECT_THAT(text, HasSubstr("Format=1\n"));
  EXPECT_EQ(text.find("[PANEL]"), std::string::npos);
}

TEST(ProjectFile, APanelStandsWhereTheFormatTellsAndNowhereElse) {
  const std::string rest = "Marks=\x8B\x9B\nPanel=P\nElements=0\n";
  EXPECT_THAT(FaultOf("[PROJECT]\nFormat=2\n" + rest + "[END]\n")->what(), HasSubstr("[PANEL] is missing"));
  EXPECT_THAT(FaultOf("[PROJECT]\nFormat=2\n" + rest)->what(), HasSubstr("[PANEL] is missing"));
  EXPECT_THAT(FaultOf("[PROJECT]\nFormat=2\n" + rest + "[PANEL]\n[END]\n")->what(), HasSubstr("[PANEL] is empty"));
  EXPECT_THAT(FaultOf("[PROJECT]\nFormat=2\n" + rest + "[PANEL]\nWord=a\n[END]\n")->what(),
              HasSubstr("\"Word\" is unknown here"));
  EXPECT_THAT(FaultOf("[PROJECT]\nFormat=1\n" + rest + "[PANEL]\nLine=a\n[END]\n")->what(),
              HasSubstr("there is no section [PANEL]"));
  EXPECT_TRUE(FaultOf("[PROJECT]\nFormat=2\n" + rest + "[PANEL]\nLine=a\n"));
}

TEST(ProjectWriter, ElementsAreAsManyAsWereTold) {
  const ProjectElement element{"F1", {}, {}};
  EXPECT_THROW(ProjectWriter("P", 0).Add(element), Failure);
  EXPECT_THROW(ProjectWriter("P", 1).Finish(), Failure);
  ProjectWriter writer("P", 1);
  writer.Add(element);
  EXPECT_EQ(writer.Finish(), FormatProject({"P", {element}, {}}));
}

TEST(ProjectWriter, AProjectLargerThanItsLimitIsRefused) {
  const std::size_t size = FormatProject({"P", {}, {}}).size();
  EXPECT_NO_THROW(ProjectWriter("P", 0, {}, size).Finish());
  try {
    ProjectWriter("P", 0, {}, size - 1).Finish();
    ADD_FAILURE() << "it is not refused";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind(), FailureKind::Overflow);
    EXPECT_STREQ(failure.what(), "the project is too large");
  }
}

TEST(ProjectFile, CodesOfABufferThatDoesNotExistAreNotSavedAndNotPut) {
  for (const std::int32_t buffer : {-1, 8}) {
    Project project = SampleProject();
    project.elements[1].codes = {{buffer, {}}};
    EXPECT_THROW(FormatProject(project), Failure) << buffer;
    udtTactisBaseElement_ScanCodeInfo record, untouched;
    PutCodes({}, untouched);
    SavedCodes codes{buffer, {}};
    codes.codes.NextValue = 5;
    PutCodes({codes}, record);
    EXPECT_TRUE(record == untouched) << buffer;
  }
}

}  // namespace
}  // namespace plexel
