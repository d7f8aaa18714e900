#include <gmock/gmock.h>

#include <cmath>
#include <limits>

#include "files/file_error_of.h"
#include "files/sample_project.h"
#include "files/text_lines.h"
#include "project/json_reader.h"
#include "project/project_export.h"
#include "project/project_import.h"

namespace plexel {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

Project Import(const std::string& text) { return ImportProject("f.json", text); }

std::string FaultOf(const std::string& text) {
  const auto error = FileErrorOf([&text] { Import(text); });
  return error ? error->what() : "nothing";
}

/// A document of one element with these members behind its place.
std::string WithElement(const std::string& members) {
  return R"({"format":1,"panel":{"name":"P"},"elements":[{"place":"A",)" + members + "}]}";
}
std::string WithCodes(const std::string& codes) { return WithElement(R"("properties":{},"codes":[)" + codes + "]"); }

Project WithValue(const std::string& key, BagValue value) {
  Project project;
  project.elements.emplace_back().bag.Store(key, std::move(value));
  return project;
}

TEST(Exchange, EverythingComesBackFromADocument) {
  EXPECT_EQ(Import(ExportProject(SampleProject())), SampleProject());
  EXPECT_EQ(Import(ExportProject({})), Project{});
}

TEST(Exchange, ADocumentComesBackByteForByte) {
  const std::string document = ExportProject(SampleProject());
  EXPECT_EQ(ExportProject(Import(document)), document);
}

TEST(Exchange, APanelThatIsCarriedComesBack) {
  Project project = SampleProject();
  project.panelText = "[PANEL]\n\nTitle=\u00DF \"x\"\n";
  const std::string document = ExportProject(project);
  EXPECT_THAT(document, HasSubstr("\"Title=\u00DF \\\"x\\\"\""));
  EXPECT_EQ(Import(document), project);
  const auto withText = [](const std::string& text) {
    return R"({"format":1,"panel":{"name":"P","text":)" + text + R"(},"elements":[]})";
  };
  EXPECT_THAT(FaultOf(withText("[]")), HasSubstr("/panel/text: must have a line"));
  EXPECT_THAT(FaultOf(withText("\"a\"")), HasSubstr("/panel/text: must be a list"));
  EXPECT_THAT(FaultOf(withText(R"(["a","b\nc"])")), HasSubstr("/panel/text/1: must be one line"));
  EXPECT_THAT(FaultOf(withText("[1]")), HasSubstr("/panel/text/0: must be"));
}

TEST(Exchange, ADocumentShowsOnePropertyOrBufferALine) {
  Project project = WithValue("SizeX", std::int16_t{72});
  project.panel = "Small";
  project.elements[0].place = "F1";
  project.elements[0].bag.Store("PressKeyDefLayer1", std::string("[a\u2039\u203A]"));
  SavedCodes saved{0, InitialCodes()};
  saved.codes.Value[1] = 0x1C;
  saved.codes.NextValue = 2;
  project.elements[0].codes.push_back(saved);
  EXPECT_EQ(ExportProject(project), R"({
  "format": 1,
  "panel": {"name": "Small"},
  "elements": [
    {
      "place": "F1",
      "properties": {
        "SizeX": {"int16": 72},
        "PressKeyDefLayer1": {"string": "[a‹›]"}
      },
      "codes": [
        {"buffer": "strLayer1PressScanCode", "next": 2, "bytes": "FF 1C FF"}
      ]
    }
  ]
}
)");
}

TEST(Exchange, ADocumentShowsOneLineOfThePanelALine) {
  Project project;
  project.panel = "Small";
  project.panelText = "[PANEL]\n\nTitle=\"a\"\n";
  for (const char* const place : {"F1", "F2"}) project.elements.emplace_back().place = place;
  EXPECT_EQ(ExportProject(project), R"({
  "format": 1,
  "panel": {"name": "Small", "text": [
    "[PANEL]",
    "",
    "Title=\"a\""
  ]},
  "elements": [
    {
      "place": "F1",
      "properties": {}
    },
    {
      "place": "F2",
      "properties": {}
    }
  ]
}
)");
}

TEST(Exchange, EveryByteOfABufferComesBack) {
  for (std::size_t place = 0; place < InitialCodes().Value.size(); ++place) {
    for (const int next : {0, 44, 88}) {
      Project project;
      SavedCodes saved{5, InitialCodes()};
      saved.codes.Value[place] ^= 0x5A;
      saved.codes.NextValue = next;
      project.elements.emplace_back().codes.push_back(saved);
      EXPECT_EQ(Import(ExportProject(project)), project) << place << ' ' << next;
    }
  }
}

TEST(Exchange, TextsOfEveryKindComeBackAsValuesKeysPlacesAndPanels) {
  std::string all;
  for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
  for (const std::string& text :
       {std::string("a"), std::string("\0", 1), all, std::string("\xFF"), std::string("\uFFFD"),
        std::string("\uFFFD41"), std::string("\"\\/\b\f\n\r\t\x7F"), std::string("\u009B\u2028"),
        std::string("\U0001F600"), std::string("\u202E\uFEFF")}) {
    Project project = WithValue(text, text);
    project.panel = text;
    project.elements[0].place = text;
    const std::string document = ExportProject(project);
    EXPECT_EQ(Import(document), project) << text;
    EXPECT_EQ(document.find('\x7F'), std::string::npos);
  }
}

TEST(Exchange, FloatsOfEveryKindComeBack) {
  for (const double number :
       {0.0, -0.0, 0.1, -1e300, 5e-324, std::numeric_limits<double>::max(), 36893488147419103232.0, 9007199254740993.0,
        std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()}) {
    const Project read = Import(ExportProject(WithValue("Foreign", number)));
    const double back = std::get<double>(*read.elements[0].bag.Find("Foreign"));
    EXPECT_EQ(back, number);
    EXPECT_EQ(std::signbit(back), std::signbit(number));
  }
  const Project read = Import(ExportProject(WithValue("Foreign", std::nan(""))));
  EXPECT_TRUE(std::isnan(std::get<double>(*read.elements[0].bag.Find("Foreign"))));
}

TEST(Exchange, ForeignKeysKeepTheirOrderAmongEachOther) {
  const std::string document =
      ExportProject(Import(WithElement(R"("properties":{"b":{"int32":1},"SizeX":{"int16":2},"a":{"int32":3}})")));
  EXPECT_LT(document.find("\"b\""), document.find("\"a\""));
}

TEST(Exchange, AByteOrderMarkIsPassedOver) {
  EXPECT_EQ(Import("\uFEFF" + ExportProject({})), Project{});
  for (const std::string broken : {"", "{", "{\n\"a\" 1", "[1,\n2,,\n", "\"\xFF\""}) {
    EXPECT_EQ(FaultOf("\uFEFF" + broken), FaultOf(broken));
  }
}

TEST(Exchange, ADocumentLargerThanOneThatIsReadIsRefused) {
  const std::string document = ExportProject({});
  EXPECT_EQ(ProjectDocument("p", {}, document.size()), document);
  const auto error = FileErrorOf([&] { ProjectDocument("p", {}, document.size() - 1); });
  ASSERT_TRUE(error);
  EXPECT_STREQ(error->what(), "p: the document of the project is too large");
}

TEST(Exchange, AWholeNumberMayBeWrittenAsAFloat) {
  const Project read = Import(WithElement(R"("properties":{"SizeX":{"int16":2.0},"ZoomFactor":{"int16":1e2}})"));
  EXPECT_EQ(*read.elements[0].bag.Find("SizeX"), BagValue(std::int16_t{2}));
  EXPECT_EQ(*read.elements[0].bag.Find("ZoomFactor"), BagValue(std::int16_t{100}));
}

TEST(Exchange, BrokenJsonIsToldWithItsLine) {
  EXPECT_THAT(FaultOf(""), StartsWith("f.json:1: "));
  EXPECT_THAT(FaultOf("{\n\"format\": 1,\n"), StartsWith("f.json:2: "));
  EXPECT_THAT(FaultOf("{\n\"format\": nope}"), StartsWith("f.json:2: this is no JSON"));
  EXPECT_THAT(FaultOf("{}\n{}"), StartsWith("f.json:2: this is no JSON"));
  EXPECT_THAT(FaultOf("[;\n]"), StartsWith("f.json:1: this is no JSON"));
  EXPECT_EQ(FaultOf("{\n\"format\": 1e999}"), "f.json:2: the number 1e999 is too large");
  EXPECT_THAT(FaultOf("{\n\n\"\xFF\": 1}"), StartsWith("f.json:3: this is no UTF-8"));
  EXPECT_THAT(FaultOf("[\n\"\\ud800\"]"), StartsWith("f.json:2: this is no JSON"));
  EXPECT_THAT(FaultOf(std::string("[1,\0 2]", 7)), StartsWith("f.json:1: this is no JSON"));
}

TEST(Exchange, EveryTruncationIsRefused) {
  const std::string whole = ExportProject(SampleProject());
  for (std::size_t length = 0; length + 2 < whole.size(); ++length) {
    EXPECT_NE(FaultOf(whole.substr(0, length)), "nothing") << length;
  }
}

TEST(Exchange, WhatIsNoJsonIsToldWithTheTwentyBytesThatEndThere) {
  EXPECT_EQ(FaultOf("{\"format\":1,\n \"abcdefghijklmnopqrstuvwxyz\" 1}"),
            "f.json:2: this is no JSON: wrong at the end of \"jklmnopqrstuvwxyz\" 1\"");
  EXPECT_EQ(FaultOf("[1;"), "f.json:1: this is no JSON: wrong at the end of \"[1;\"");
  EXPECT_EQ(FaultOf(""), "f.json:1: this is no whole JSON: the text is cut off");
  EXPECT_EQ(FaultOf("\n}"), "f.json:2: this is no JSON: wrong at the end of \"?}\"");
}

TEST(Exchange, DeepNestingIsRefusedWhateverItsDepth) {
  EXPECT_THAT(FaultOf(std::string(65, '[')), AllOf(StartsWith("f.json: /0/0"), EndsWith("/0/0: is nested too deep")));
  EXPECT_THAT(FaultOf(std::string(1000000, '[')), HasSubstr("is nested too deep"));
}

TEST(Exchange, AMemberThatStandsTwiceIsRefusedWithItsPlace) {
  EXPECT_EQ(FaultOf(R"({"format":1,"format":1})"), "f.json: /format: stands twice");
  EXPECT_EQ(FaultOf(WithElement(R"("properties":{"a/b~":{"int16":1},"a/b~":{"int16":1}})")),
            "f.json: /elements/0/properties/a~1b~0: stands twice");
}

TEST(Exchange, AKeyInTwoWritingsStandsTwice) {
  EXPECT_EQ(FaultOf(WithElement("\"properties\":{\"A\":{\"int16\":1},\"\uFFFD41\":{\"int16\":1}}")),
            "f.json: /elements/0/properties/\uFFFD41: stands twice");
}

TEST(Exchange, APlaceThatStandsTwiceIsRefused) {
  EXPECT_EQ(FaultOf(R"({"format":1,"panel":{"name":""},"elements":[{"place":"A","properties":{}},
                        {"place":"A","properties":{}}]})"),
            "f.json: /elements/1/place: stands twice");
}

TEST(Exchange, WhatTheSchemaRefusesIsRefusedWithItsPlace) {
  EXPECT_EQ(FaultOf("[]"), "f.json: must be an object");
  EXPECT_EQ(FaultOf("{}"), "f.json: must have the member \"format\"");
  EXPECT_EQ(FaultOf(R"({"format":2})"), "f.json: /format: must be 1");
  EXPECT_EQ(FaultOf(R"({"format":1,"panel":"P"})"), "f.json: /panel: must be an object");
  EXPECT_EQ(FaultOf(R"({"format":1,"panel":{"name":1}})"), "f.json: /panel/name: must be a text");
  EXPECT_EQ(FaultOf(R"({"format":1,"panel":{"name":"","size":1}})"), "f.json: /panel/size: is unknown here");
  EXPECT_EQ(FaultOf(R"({"format":1,"other":1})"), "f.json: /other: is unknown here");
  EXPECT_EQ(FaultOf(R"({"format":1,"panel":{"name":""},"elements":{}})"), "f.json: /elements: must be a list");
  EXPECT_EQ(FaultOf(R"({"format":1,"panel":{"name":""},"elements":[1]})"), "f.json: /elements/0: must be an object");
  EXPECT_EQ(FaultOf(WithElement(R"("size":1)")), "f.json: /elements/0/size: is unknown here");
  EXPECT_EQ(FaultOf(WithElement(R"("properties":{"":{"int16":1}})")),
            "f.json: /elements/0/properties/: is a value without a key");
  EXPECT_EQ(FaultOf(WithElement("\"properties\":{\"a\":{\"string\":\"\uFFFD4\"}}")),
            "f.json: /elements/0/properties/a/string: must have bytes in hexadecimal behind U+FFFD");
  EXPECT_EQ(FaultOf(WithElement("\"properties\":{\"\uFFFD4\":{\"int16\":1}}")),
            "f.json: /elements/0/properties/\uFFFD4: must have bytes in hexadecimal behind U+FFFD");
}

TEST(Exchange, APlaceShowsNoControlCharacters) {
  EXPECT_EQ(FaultOf(R"({"\u0000\u0001\u001f \u007f~\u00e4":1})"), "f.json: /??? ?~0\u00E4: is unknown here");
}

TEST(Exchange, AValueOutsideItsTypeIsRefused) {
  for (const char* value :
       {R"("int16":32768)", R"("int16":-32769)", R"("int32":2147483648)", R"("uint8":256)", R"("uint8":-1)",
        R"("boolean":true)", R"("int16":0.5)", R"("int16":"1")", R"("string":1)", R"("double":"Inf")",
        R"("double":null)", R"("int32":99999999999999999999999)", R"("int32":1e300)"}) {
    const std::string type(value + 1, std::string_view(value).find(':') - 2);
    EXPECT_THAT(FaultOf(WithElement(R"("properties":{"a":{)" + std::string(value) + "}}")),
                StartsWith("f.json: /elements/0/properties/a/" + type + ": must be "))
        << value;
  }
  EXPECT_EQ(FaultOf(WithElement(R"("properties":{"a":{"int64":1}})")),
            "f.json: /elements/0/properties/a/int64: is no type of a value");
  for (const char* value : {"{}", "1", R"({"int16":1,"int32":1})"}) {
    EXPECT_THAT(FaultOf(WithElement(R"("properties":{"a":)" + std::string(value) + "}")),
                StartsWith("f.json: /elements/0/properties/a: must be an object"));
  }
}

TEST(Exchange, AFaultyBufferIsRefused) {
  const std::string press = R"("buffer":"strLayer1PressScanCode")";
  EXPECT_EQ(FaultOf(WithCodes("{" + press + R"(,"next":0,"bytes":""})")), "nothing");
  EXPECT_EQ(FaultOf(WithCodes("{" + press + R"(,"next":89,"bytes":""})")),
            "f.json: /elements/0/codes/0/next: must be a whole number from 0 to 88");
  EXPECT_EQ(FaultOf(WithCodes(R"({"buffer":"strLayer5PressScanCode","next":0,"bytes":""})")),
            "f.json: /elements/0/codes/0/buffer: must be the name of a code buffer");
  EXPECT_EQ(FaultOf(WithCodes(R"({"buffer":1,"next":0,"bytes":""})")),
            "f.json: /elements/0/codes/0/buffer: must be the name of a code buffer");
  EXPECT_EQ(FaultOf(WithCodes("{" + press + R"(,"next":0,"bytes":1})")),
            "f.json: /elements/0/codes/0/bytes: must be a row of at most 89 two-digit hexadecimal numbers with a blank "
            "between them");
  EXPECT_EQ(FaultOf(WithCodes("{" + press + "}")), "f.json: /elements/0/codes/0: must have the member \"next\"");
  EXPECT_EQ(FaultOf(WithCodes("{" + press + R"(,"next":0,"bytes":"","more":1})")),
            "f.json: /elements/0/codes/0/more: is unknown here");
  const std::string codes = "{" + press + R"(,"next":0,"bytes":""})";
  EXPECT_EQ(FaultOf(WithCodes(codes + "," + codes)), "f.json: /elements/0/codes/1/buffer: stands twice");
  std::string many = "00";
  for (int count = 1; count < 90; ++count) many += " 00";
  for (const std::string& bytes :
       {std::string("F"), std::string("FF "), std::string(" FF"), std::string("FFFF"), std::string("FF  FF"),
        std::string("FF-FF"), std::string("GG"), std::string("FF FF F"), many}) {
    EXPECT_THAT(FaultOf(WithCodes("{" + press + R"(,"next":0,"bytes":")" + bytes + "\"}")),
                StartsWith("f.json: /elements/0/codes/0/bytes: must be a row"))
        << bytes;
  }
  EXPECT_EQ(FaultOf(WithCodes("{" + press + R"(,"next":0,"bytes":")" + many.substr(3) + "\"}")), "nothing");
}

TEST(Exchange, ATextTooLongForAProjectFileIsRefusedWithItsPlace) {
  const std::string text(TextFile::LongestLine, 'x');
  EXPECT_EQ(FaultOf(WithElement(R"("properties":{"ButtonNotes":{"string":")" + text + "\"}}")),
            "f.json: /elements/0/properties/ButtonNotes: is too long for a project");
  EXPECT_EQ(FaultOf(R"({"format":1,"panel":{"name":")" + text + R"("},"elements":[]})"),
            "f.json: /panel/name: is too long for a project");
  EXPECT_EQ(FaultOf(R"({"format":1,"panel":{"name":""},"elements":[{"place":")" + text + R"(","properties":{}}]})"),
            "f.json: /elements/0/place: is too long for a project");
  EXPECT_EQ(FaultOf(R"({"format":1,"panel":{"name":"P","text":["a",")" + text + R"("]},"elements":[]})"),
            "f.json: /panel/text/1: is too long for a project");
  EXPECT_EQ(FaultOf(WithElement(R"("properties":{"ButtonNotes":{"string":")" + text.substr(100) + "\"}}")), "nothing");
}

}  // namespace
}  // namespace plexel
