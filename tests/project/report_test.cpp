#include "project/report.h"

#include <gmock/gmock.h>

#include "files/language_file.h"
#include "open_document.h"
#include "project/panel_svg.h"
#include "project/report_csv.h"
#include "project/report_html.h"

namespace plexel {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class ReportOfDocument : public OpenDocument {
 protected:
  ReportOfDocument() { world.Speak(); }
  Report Made() { return ReportOf(*document, "a.plexel"); }
  ReportRow RowOf(const std::string& id, std::int32_t layer) {
    for (const ReportRow& row : Made().rows) {
      if (row.element == id && row.layer == layer) return row;
    }
    throw std::logic_error("no row of " + id);
  }
};

/// A report of one row on a panel of one key.
struct OneRow {
  explicit OneRow(const ReportRow& row) { report.rows.push_back(row); }
  Panel panel;
  Report report{"a.plexel", &panel, {}, {}};
};

ReportRow WithPress(const std::string& text) {
  ReportRow row;
  row.element = "F1";
  row.layer = 1;
  row.press = text;
  return row;
}

std::string CsvField(const std::string& press) {
  const std::string csv = ReportCsv(OneRow(WithPress(press)).report);
  const std::size_t start = csv.find("F1,,1,") + 6;
  return csv.substr(start, csv.rfind(",,,,,,,") - start);
}

TEST_F(ReportOfDocument, HasARowForEachElementAndLayer) {
  const Report report = Made();
  EXPECT_EQ(report.name, "a.plexel");
  ASSERT_EQ(report.rows.size(), document->Places().size() * 4);
  for (std::size_t index = 0; index < report.rows.size(); ++index) {
    EXPECT_EQ(report.rows[index].element, document->Places()[index / 4].element->Name());
    EXPECT_EQ(report.rows[index].layer, static_cast<std::int32_t>(index % 4 + 1));
  }
}

TEST_F(ReportOfDocument, ARowTellsTextsBytesLedNumbersAndNote) {
  Element("F1").PressKeyDefLayer(2, "[a\u2039]");
  Element("F1").ReleaseKeyDefLayer(2, "[a\u203A]");
  Element("F1").LEDTypeLayer(2, RunLed);
  Element("F1").ButtonNotes("a note");
  PutBytes("F1", {0xFF, 0xF0, 0x1C, 0xFF});
  const ReportRow row = RowOf("F1", 2);
  EXPECT_EQ(row.kind, "key with LED");
  EXPECT_EQ(row.press, "[a\u2039]");
  EXPECT_EQ(row.release, "[a\u203A]");
  EXPECT_EQ(row.pressBytes, "");
  EXPECT_EQ(row.releaseBytes, "FF F0 1C FF");
  EXPECT_EQ(row.led, Text(10961));
  EXPECT_EQ(row.buttonNumber, "11");
  EXPECT_EQ(row.ledNumber, "14");
  EXPECT_EQ(row.note, "a note");
  EXPECT_EQ(RowOf("F1", 1).led, "");
}

TEST_F(ReportOfDocument, EachKindHasTheNumbersOfItsParts) {
  EXPECT_EQ(RowOf("L1", 1).buttonNumber, "");
  EXPECT_EQ(RowOf("L1", 1).ledNumber, "2");
  EXPECT_EQ(RowOf("K1", 1).kind, "key switch");
  EXPECT_EQ(RowOf("K1", 1).buttonNumber, "1 2");
  EXPECT_EQ(RowOf("R1", 1).ledNumber, "");
}

TEST_F(ReportOfDocument, EveryKindHasAKeyAnLedOrContacts) {
  Element("R1").HardwareNumberButton(5);
  Element("R1").HardwareNumberLed(6);
  Element("R1").HardwareNumberKeyAt(7, 9);
  const std::pair<enumTactisBaseElementType, std::string> kinds[] = {
      {Led, "LED||6"},  {Oval, "round key|5|"},        {OvalLed, "round key with LED|5|6"},
      {Rect, "key|5|"}, {RectLed, "key with LED|5|6"}, {Key, "key switch|9|"}};
  for (const auto& [kind, told] : kinds) {
    Element("R1").ElementType(kind);
    const ReportRow row = RowOf("R1", 1);
    EXPECT_EQ(row.kind + "|" + row.buttonNumber + "|" + row.ledNumber, told);
  }
}

TEST_F(ReportOfDocument, AnElementOfNoKnownKindHasEveryNumber) {
  for (const std::int32_t kind : {Led - 1, Key + 1}) {
    Element("R1").ElementType(static_cast<enumTactisBaseElementType>(kind));
    EXPECT_EQ(RowOf("R1", 1).kind, "unknown");
    EXPECT_EQ(RowOf("R1", 1).buttonNumber, std::to_string(Element("R1").HardwareNumberButton()));
    EXPECT_EQ(RowOf("R1", 1).ledNumber, std::to_string(Element("R1").HardwareNumberLed()));
  }
}

TEST_F(ReportOfDocument, TheBytesEndWhereTheBufferDoes) {
  udtTactisBaseElement_ScanCodeInfo record = Element("F1").TactisBaseElementScanCodeBuffer();
  record.strLayer1PressScanCode.NextValue = 1000;
  Element("F1").TactisBaseElementScanCodeBuffer(record);
  EXPECT_EQ(RowOf("F1", 1).pressBytes.size(), 3 * record.strLayer1PressScanCode.Value.size() - 1);
}

TEST_F(ReportOfDocument, OneByteInUseIsToldAndNoneIsNot) {
  udtTactisBaseElement_ScanCodeInfo record = Element("F1").TactisBaseElementScanCodeBuffer();
  record.strLayer1PressScanCode.Value[1] = 0x1C;
  for (const auto& [next, told] : {std::pair{1, "FF 1C"}, {0, ""}, {-1, ""}}) {
    record.strLayer1PressScanCode.NextValue = next;
    Element("F1").TactisBaseElementScanCodeBuffer(record);
    EXPECT_EQ(RowOf("F1", 1).pressBytes, told) << next;
  }
}

TEST_F(ReportOfDocument, AProblemTellsAllItsLayersOrNone) {
  for (const char* const id : {"L1", "L2"}) {
    Element(id).LEDTypeLayer1(UserLed);
    Element(id).LEDTypeLayer3(UserLed);
    Element(id).HardwareNumberLed(200);
  }
  std::vector<std::string> places;
  for (const ReportProblem& problem : Made().problems) places.push_back(problem.place);
  EXPECT_THAT(places, testing::IsSupersetOf({"layers 1+3", "layer 3", ""}));
}

TEST_F(ReportOfDocument, ProblemsAreTold) {
  EXPECT_TRUE(Made().problems.empty());
  Element("F1").PressKeyDefLayer(2, "[a\u2039]");
  const Report report = Made();
  ASSERT_FALSE(report.problems.empty());
  EXPECT_EQ(report.problems[0].element, "F1");
  EXPECT_THAT(report.problems[0].place, HasSubstr("layer 2"));
  EXPECT_EQ(report.problems[0].level, ProblemLevel::Error);
  EXPECT_THAT(ReportHtml(report), HasSubstr("<td class=\"error\">error</td>"));
}

TEST(ReportWordsTest, APatternTakesWhatIsToldWhereverItWantsIt) {
  ReportWords words = EnglishReportWords();
  words.texts[static_cast<std::size_t>(ReportWord::OnLayer)] = "on %1 as its layer";
  words.texts[static_cast<std::size_t>(ReportWord::OnLayers)] = "of all";
  EXPECT_EQ(words.With(ReportWord::OnLayer, "4"), "on 4 as its layer");
  EXPECT_EQ(words.With(ReportWord::OnLayers, "4"), "of all");
}

TEST_F(ReportOfDocument, WithoutTextsOfALanguageTheWordsAreEnglish) {
  EXPECT_EQ(ReportWordsInForce().texts, EnglishReportWords().texts);
  EXPECT_EQ(ReportWordsInForce().problems.patterns, EnglishProblemWords().patterns);
}

TEST_F(ReportOfDocument, InEnglishTheWordsOfTheLanguageAreThoseWithoutOne) {
  const auto speak = [this](const char* file) {
    for (const auto& [number, text] : ReadLanguageFile(DataDirectory() / "languages" / file)) {
      world.surroundings.Language().Set(number, text);
    }
  };
  speak("English.lang");
  const ReportWords words = ReportWordsInForce();
  EXPECT_EQ(words.texts, EnglishReportWords().texts);
  EXPECT_EQ(EnglishReportWords().problems.patterns, EnglishProblemWords().patterns);
  EXPECT_EQ(words.problems.patterns, EnglishProblemWords().patterns);
  EXPECT_EQ(words.problems.numbers, EnglishProblemWords().numbers);
  EXPECT_EQ(words.problems.directions, EnglishProblemWords().directions);
  for (const auto& [number, text] : ReadLanguageFile(DataDirectory() / "languages" / "English.lang")) {
    world.surroundings.Language().Set(number, "~" + text);
  }
  for (std::size_t word = 0; word < ReportWordCount; ++word) {
    EXPECT_EQ(ReportWordsInForce().texts.at(word), "~" + EnglishReportWords().texts.at(word)) << "in no language";
  }
  speak("German.lang");
  EXPECT_EQ(ReportWordsInForce()[ReportWord::LanguageCode], "de");
  EXPECT_EQ(ReportWordsInForce()[ReportWord::KindKeyWithLed], "Taste mit LED");
  EXPECT_EQ(ReportWordsInForce().problems.directions[0], "Dr\u00FCcken");
}

TEST_F(ReportOfDocument, AnotherLanguageBringsItsOwnWords) {
  Element("F1").PressKeyDefLayer(2, "[a\u2039]");
  Element("F1").ReleaseKeyDefLayer(2, "[a\u203A]");
  for (const auto& [number, text] : {std::pair{21200, "xx"},
                                     {21205, "Kind"},
                                     {21208, "Grave"},
                                     {20914, "L%1"},
                                     {21210, "up %1"},
                                     {21215, "Place"},
                                     {21083, "Down"}}) {
    world.surroundings.Language().Set(number, text);
  }
  const Report report = ReportOf(*document, "a.plexel", ReportWordsInForce());
  ASSERT_FALSE(report.problems.empty());
  EXPECT_EQ(report.problems[0].place, "L2, Down");
  const std::string html = ReportHtml(report);
  EXPECT_THAT(html, HasSubstr("<html lang=\"xx\">"));
  EXPECT_THAT(html, HasSubstr("up [a\u203A]</dd>"));
  EXPECT_THAT(html, HasSubstr("<td class=\"error\">Grave</td>"));
  world.surroundings.Language().Set(20914, "without the number");
  EXPECT_EQ(ReportOf(*document, "a.plexel", ReportWordsInForce()).problems[0].place, "without the number, Down");
  const std::string csv = ReportCsv(report);
  EXPECT_THAT(csv, StartsWith("\uFEFFPlace,kind,"));
  EXPECT_THAT(csv, HasSubstr("F1,Kind,2,"));
}

TEST(ReportCsv, HasAMarkAHeadRowAndLinesInCrLf) {
  ReportRow row = WithPress("[a]");
  row.kind = "key";
  row.releaseBytes = "FF 1C FF";
  EXPECT_EQ(ReportCsv(OneRow(row).report),
            "\uFEFFelement,kind,layer,press,release,press bytes,release bytes,led,button number,LED number,note\r\n"
            "F1,key,1,[a],,,FF 1C FF,,,,\r\n");
}

TEST(ReportCsv, FieldsAreQuotedWhereTheyMustBe) {
  EXPECT_EQ(CsvField("plain [x] ;"), "plain [x] ;");
  EXPECT_EQ(CsvField("a,b"), "\"a,b\"");
  EXPECT_EQ(CsvField("a\"b"), "\"a\"\"b\"");
  EXPECT_EQ(CsvField("a\r\nb"), "\"a\r\nb\"");
  EXPECT_EQ(CsvField("a\nb"), "\"a\nb\"");
}

TEST(ReportCsv, NoFieldIsAFormula) {
  EXPECT_EQ(CsvField("=1+1"), "'=1+1");
  EXPECT_EQ(CsvField("+1"), "'+1");
  EXPECT_EQ(CsvField("-1"), "'-1");
  EXPECT_EQ(CsvField("@A1"), "'@A1");
  EXPECT_EQ(CsvField("\tx"), "'\tx");
  EXPECT_EQ(CsvField("\rx"), "\"'\rx\"");
  EXPECT_EQ(CsvField("=HYPERLINK(\"x\",\"y\")"), "\"'=HYPERLINK(\"\"x\"\",\"\"y\"\")\"");
  EXPECT_EQ(CsvField("a=1"), "a=1");
}

TEST(ReportCsv, BrokenTextIsStillUtf8) { EXPECT_EQ(CsvField("a\xFF"), "a\uFFFD"); }

constexpr const char* Hostile = "</td><script>alert(\"1\")</script>&'\x01\xFF";
constexpr const char* Harmless = "&lt;/td&gt;&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt;&amp;&#39;\uFFFD\uFFFD";

TEST(ReportHtml, NoTextBecomesMarkUp) {
  ReportRow row;
  for (std::string* text : {&row.element, &row.kind, &row.press, &row.release, &row.pressBytes, &row.releaseBytes,
                            &row.led, &row.buttonNumber, &row.ledNumber, &row.note}) {
    *text = Hostile;
  }
  OneRow one(row);
  one.report.name = Hostile;
  one.panel.title = Hostile;
  one.panel.parts.emplace_back().legend = Hostile;
  one.panel.parts.back().element.emplace().id = Hostile;
  one.report.problems.push_back({Hostile, Hostile, ProblemLevel::Error, Hostile});
  const std::string html = ReportHtml(one.report);
  EXPECT_THAT(html, HasSubstr(Harmless));
  EXPECT_THAT(html, Not(HasSubstr("<script")));
  EXPECT_EQ(html.find('\x01'), std::string::npos);
  EXPECT_EQ(html.find('\xFF'), std::string::npos);
}

TEST(ReportHtml, IsAPageOfThePictureTheLegendTheTableAndTheProblems) {
  OneRow one({"F1", "key with LED", 1, "[a]", "[b]", "FF 1C FF", "FF 32 FF", "Layer 1", "7", "8", "a note"});
  one.panel.title = "The panel";
  one.report.rows.insert(one.report.rows.end(),
                         {{"F1", "key with LED", 2, "", "[b]", "FF 1C FF", "", "", "7", "8", "a note"},
                          {"F1", "key with LED", 3, "", "", "", "FF 32 FF", "Alarm", "7", "8", "a note"},
                          {"F1", "key with LED", 4, "", "", "", "", "", "7", "8", "a note"}});
  for (const std::int32_t layer : {1, 2, 3, 4}) {
    one.report.rows.push_back({"L1", "LED", layer, "", "", "", "", layer == 4 ? "Power" : "", "", "9", ""});
  }
  for (const std::int32_t layer : {1, 2, 3, 4}) {
    one.report.rows.push_back({"K1", "key switch", layer, "", "", "", "", "", "1 2", "", "turn"});
  }
  one.report.problems = {{"F1", "layer 1, press", ProblemLevel::Error, "wrong"},
                         {"L1", "", ProblemLevel::Warning, "odd"}};
  const std::string html = ReportHtml(one.report);
  EXPECT_THAT(html, StartsWith(R"html(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'">
<meta name="viewport" content="width=device-width">
<title>a.plexel</title>
<style>
@page { size: A4;)html"));
  EXPECT_EQ(html.substr(html.find("</style>")), R"html(</style>
</head>
<body>
<h1>a.plexel</h1>
<p>The panel</p>
<figure>
<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 0 0" width="0" height="0" role="img" font-family="Liberation Sans, Arial, Helvetica, sans-serif">
<title>The panel</title>
</svg>
</figure>
<h2>What each key does</h2>
<dl>
<div><dt>F1</dt><dd>1: [a] on release [b], LED: Layer 1</dd><dd>2: FF 1C FF on release [b]</dd><dd>3: on release FF 32 FF, LED: Alarm</dd></div>
<div><dt>L1</dt><dd>4: LED: Power</dd></div>
</dl>
<h2>All elements</h2>
<table>
<thead><tr><th>Element</th><th>Layer</th><th>Press</th><th>Release</th><th>LED</th><th>Numbers</th><th>Note</th></tr></thead>
<tbody>
<tr><td><b>F1</b><br>key with LED</td><td>1</td><td>[a]<br><span class="bytes">FF 1C FF</span></td><td>[b]<br><span class="bytes">FF 32 FF</span></td><td>Layer 1</td><td>key 7, LED 8</td><td>a note</td></tr>
<tr><td><b>F1</b></td><td>2</td><td><br><span class="bytes">FF 1C FF</span></td><td>[b]</td><td></td><td></td><td></td></tr>
<tr><td><b>F1</b></td><td>3</td><td></td><td><br><span class="bytes">FF 32 FF</span></td><td>Alarm</td><td></td><td></td></tr>
<tr><td><b>L1</b><br>LED</td><td>4</td><td></td><td></td><td>Power</td><td>LED 9</td><td></td></tr>
<tr><td><b>K1</b><br>key switch</td><td></td><td></td><td></td><td></td><td>key 1 2</td><td>turn</td></tr>
</tbody>
</table>
<h2>Problems</h2>
<table>
<thead><tr><th>Element</th><th>Where</th><th>Level</th><th>Problem</th></tr></thead>
<tbody>
<tr><td>F1</td><td>layer 1, press</td><td class="error">error</td><td>wrong</td></tr>
<tr><td>L1</td><td></td><td>warning</td><td>odd</td></tr>
</tbody>
</table>
</body>
</html>
)html");
}

TEST(ReportHtml, AnElementThatDoesTheSameOnAllLayersIsToldOnce) {
  OneRow one(WithPress("[a]"));
  for (int layer = 2; layer <= 4; ++layer) one.report.rows.push_back(one.report.rows.front());
  EXPECT_THAT(ReportHtml(one.report), HasSubstr("<dt>F1</dt><dd>[a]</dd></div>"));
  one.report.rows[2].press = "";
  EXPECT_THAT(ReportHtml(one.report), HasSubstr("<dd>1: [a]</dd><dd>2: [a]</dd><dd>4: [a]</dd></div>"));
}

TEST(ReportHtml, WithoutProblemsItSaysSo) {
  EXPECT_THAT(ReportHtml(OneRow(WithPress("")).report),
              HasSubstr("<h2>Problems</h2>\n<p>None were found.</p>\n</body>\n</html>\n"));
}

TEST(ReportHtml, AnElementWithoutAnythingStandsInTheTableAlone) {
  const std::string html = ReportHtml(OneRow(WithPress("")).report);
  EXPECT_THAT(html, Not(HasSubstr("<dt>")));
  EXPECT_THAT(html, HasSubstr("<b>F1</b>"));
}

TEST(ReportHtml, EachTextOrByteOfALayerMakesItALine) {
  for (std::string ReportRow::* const text :
       {&ReportRow::press, &ReportRow::release, &ReportRow::pressBytes, &ReportRow::releaseBytes, &ReportRow::led}) {
    OneRow one(WithPress(""));
    one.report.rows.push_back(one.report.rows.front());
    one.report.rows.front().layer = 3;
    EXPECT_THAT(ReportHtml(one.report), Not(HasSubstr("<td>3</td>")));
    one.report.rows.front().*text = "x";
    EXPECT_THAT(ReportHtml(one.report), HasSubstr("<td>3</td>"));
  }
}

TEST(ReportHtml, WithoutANameItHasTheTitleOfThePanel) {
  OneRow one(WithPress(""));
  one.panel.title = "The panel";
  EXPECT_THAT(ReportHtml(one.report), HasSubstr("<h1>a.plexel</h1>"));
  one.report.name.clear();
  EXPECT_THAT(ReportHtml(one.report), AllOf(HasSubstr("<title>The panel</title>"), HasSubstr("<h1>The panel</h1>")));
}

TEST(PanelSvg, EveryKindOfPartIsDrawn) {
  Panel panel;
  panel.width = 100;
  panel.height = 50;
  const std::string empty = PanelSvg(panel);
  EXPECT_THAT(empty, StartsWith("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 100 50\""));
  for (const PanelPartKind kind : {PanelPartKind::Housing, PanelPartKind::Screen, PanelPartKind::Key,
                                   PanelPartKind::RoundKey, PanelPartKind::KeySwitch, PanelPartKind::Led}) {
    panel.parts.resize(1);
    panel.parts[0].kind = kind;
    panel.parts[0].box = {10, 10, 20, 20};
    EXPECT_GT(PanelSvg(panel).size(), empty.size() + 50) << static_cast<int>(kind);
  }
}

TEST(PanelSvg, EachKindOfPartHasItsShapeAndLight) {
  Panel panel;
  panel.title = "P & Q";
  panel.width = 300;
  panel.height = 200;
  const auto put = [&panel](PanelPartKind kind, const PanelBox& box, std::int32_t fill) -> PanelPart& {
    PanelPart& part = panel.parts.emplace_back();
    part.kind = kind;
    part.box = box;
    part.fillColor = fill;
    part.lineColor = 0x302010;
    return part;
  };
  put(PanelPartKind::Housing, {0, 0, 300, 200}, 0x00C8C8);
  put(PanelPartKind::Screen, {10, 20, 100, 60}, 0x400000);
  put(PanelPartKind::Key, {120, 20, 40, 30}, 0xF0F0F0).cornerRadius = 3;
  put(PanelPartKind::RoundKey, {170, 20, 30, 31}, 0xF0F0F0);
  put(PanelPartKind::KeySwitch, {210, 20, 50, 50}, 0x646464);
  put(PanelPartKind::Led, {10, 100, 9, 9}, 0x00A000);
  put(PanelPartKind::Led, {30, 100, 20, 8}, 0x00A000).cornerRadius = 1;
  PanelPart& led = put(PanelPartKind::Led, {60, 100, 20, 8}, 0x00A000);
  led.legend = "L";
  led.legendSize = 10;
  led.legendAlignment = LegendAlignment::Left;
  PanelPart& legend = put(PanelPartKind::Legend, {100, 100, 40, 20}, 0);
  legend.legend = "R";
  legend.legendAlignment = LegendAlignment::Right;
  PanelPart& key = put(PanelPartKind::Key, {120, 60, 40, 30}, 0xF0F0F0);
  key.legend = "ESC";
  key.element.emplace().id = "R<1";
  EXPECT_EQ(
      PanelSvg(panel, PanelPlaces::Shown),
      R"svg(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 300 200" width="300" height="200" role="img" font-family="Liberation Sans, Arial, Helvetica, sans-serif">
<title>P &amp; Q</title>
<defs>
<linearGradient id="light1" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#D4D400"/><stop offset="1" stop-color="#BDBD00"/></linearGradient>
<linearGradient id="light2" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#FFFFFF"/><stop offset="1" stop-color="#E0E0E0"/></linearGradient>
<linearGradient id="light3" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#6B6B6B"/><stop offset="1" stop-color="#5D5D5D"/></linearGradient>
<radialGradient id="light4" cx="0.35" cy="0.3" r="0.6"><stop offset="0" stop-color="#00F000"/><stop offset="1" stop-color="#00A000"/></radialGradient>
</defs>
<rect x="0.50" y="0.50" width="299.00" height="199.00" fill="url(#light1)" stroke="#102030"/>
<rect x="10.50" y="20.50" width="99.00" height="59.00" fill="#000040" stroke="#102030"/>
<path d="M10.00 20.00H65.00L40.00 80.00H10.00Z" fill="#FFFFFF" fill-opacity="0.055"/>
<rect x="120.50" y="20.50" width="39.00" height="29.00" rx="3.00" fill="url(#light2)" stroke="#102030"/>
<ellipse cx="185.00" cy="35.50" rx="14.50" ry="15.00" fill="url(#light2)" stroke="#102030"/>
<ellipse cx="235.00" cy="45.00" rx="24.50" ry="24.50" fill="url(#light3)" stroke="#102030"/>
<ellipse cx="235.00" cy="45.00" rx="12.50" ry="12.50" fill="#575757" stroke="#102030"/>
<rect x="233.00" y="36.50" width="4.00" height="17.00" rx="1" fill="#0D1B28"/>
<ellipse cx="14.50" cy="104.50" rx="4.00" ry="4.00" fill="url(#light4)" stroke="#102030"/>
<ellipse cx="40.00" cy="104.00" rx="9.50" ry="3.50" fill="url(#light4)" stroke="#102030"/>
<rect x="60.50" y="100.50" width="19.00" height="7.00" fill="url(#light4)" stroke="#102030"/>
<text x="60.00" y="107.60" font-size="10" text-anchor="start" fill="#000000">L</text>
<text x="140.00" y="114.32" font-size="12" text-anchor="end" fill="#000000">R</text>
<g><title>R&lt;1</title>
<rect x="120.50" y="60.50" width="39.00" height="29.00" fill="url(#light2)" stroke="#102030"/>
<text x="140.00" y="79.32" font-size="12" text-anchor="middle" fill="#000000">ESC</text>
<text x="140.00" y="58.00" font-size="10.00" text-anchor="middle" fill="#4A5A69">R&lt;1</text>
</g>
</svg>
)svg");
}

TEST(PanelSvg, APartWithoutRoomHasNoExtent) {
  Panel panel;
  panel.parts.resize(2);
  panel.parts[0].kind = PanelPartKind::Key;
  panel.parts[1].kind = PanelPartKind::RoundKey;
  const std::string svg = PanelSvg(panel);
  EXPECT_THAT(svg, AllOf(HasSubstr("width=\"0\" height=\"0\""), HasSubstr("width=\"0.00\" height=\"0.00\""),
                         HasSubstr("rx=\"0.00\" ry=\"0.00\"")));
}

TEST(PanelSvg, ALegendHasALineForEachOfItsLines) {
  Panel panel;
  panel.parts.resize(1);
  panel.parts[0].kind = PanelPartKind::Legend;
  panel.parts[0].box = {0, 0, 40, 40};
  panel.parts[0].legend = "a<\nb";
  panel.parts[0].legendColor = 0x112233;
  panel.parts[0].legendSize = 10;
  const std::string svg = PanelSvg(panel);
  EXPECT_THAT(svg, AllOf(HasSubstr(" x=\"20.00\" y=\"17.75\" "), HasSubstr(" x=\"20.00\" y=\"29.45\" ")));
  EXPECT_THAT(svg, HasSubstr("text-anchor=\"middle\" fill=\"#332211\">a&lt;</text>"));
  EXPECT_THAT(svg, HasSubstr(">b</text>"));
}

TEST(PanelSvg, PlacesAreShownWhereTheLegendIsAnother) {
  Panel panel;
  panel.parts.resize(1);
  panel.parts[0].kind = PanelPartKind::Key;
  panel.parts[0].legend = "ESC";
  panel.parts[0].element.emplace().id = "R1";
  EXPECT_THAT(PanelSvg(panel), Not(HasSubstr(">R1</text>")));
  EXPECT_THAT(PanelSvg(panel, PanelPlaces::Shown), HasSubstr(">R1</text>"));
  panel.parts[0].legend = "R1";
  const std::string svg = PanelSvg(panel, PanelPlaces::Shown);
  EXPECT_EQ(svg.find(">R1</text>"), svg.rfind(">R1</text>"));
}

TEST(PanelSvg, ALegendStandsAtTheSideOfItsAlignment) {
  Panel panel;
  panel.parts.resize(1);
  panel.parts[0].kind = PanelPartKind::Legend;
  panel.parts[0].box = {10, 0, 40, 40};
  panel.parts[0].legend = "a";
  const auto drawn = [&](LegendAlignment alignment) {
    panel.parts[0].legendAlignment = alignment;
    return PanelSvg(panel);
  };
  EXPECT_THAT(drawn(LegendAlignment::Left), AllOf(HasSubstr("x=\"10.00\""), HasSubstr("text-anchor=\"start\"")));
  EXPECT_THAT(drawn(LegendAlignment::Right), AllOf(HasSubstr("x=\"50.00\""), HasSubstr("text-anchor=\"end\"")));
  EXPECT_THAT(drawn(LegendAlignment::Center), AllOf(HasSubstr("x=\"30.00\""), HasSubstr("text-anchor=\"middle\"")));
}

TEST(PanelSvg, AnLedIsRoundWhenItsCornersAreOrItIsASquare) {
  Panel panel;
  panel.parts.resize(1);
  panel.parts[0].kind = PanelPartKind::Led;
  const auto drawn = [&](PanelBox box, int radius) {
    panel.parts[0].box = box;
    panel.parts[0].cornerRadius = radius;
    return PanelSvg(panel);
  };
  EXPECT_THAT(drawn({0, 0, 10, 10}, 0), HasSubstr("<ellipse"));
  EXPECT_THAT(drawn({0, 0, 20, 10}, 5), HasSubstr("<ellipse"));
  EXPECT_THAT(drawn({0, 0, 20, 10}, 0), Not(HasSubstr("<ellipse")));
}

}  // namespace
}  // namespace plexel
