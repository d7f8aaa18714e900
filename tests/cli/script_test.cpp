#include "cli/script.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <map>
#include <thread>

#include "cli/json.h"
#include "cli/workbench.h"
#include "element/ctlPlexelBaseElement.h"
#include "files/data_directory.h"
#include "services/module_state.h"

namespace plexel {
namespace {

/// Runs scripts inside the test and keeps their answers.
class ScriptRun : public testing::Test {
 protected:
  std::vector<Json> Run(const std::string& script) {
    std::array<int, 2> ends{};
    EXPECT_EQ(pipe(ends.data()), 0);
    std::thread writer([&script, end = ends[1]] {
      for (std::size_t sent = 0; sent < script.size();) {
        const ssize_t count = write(end, script.data() + sent, script.size() - sent);
        if (count <= 0) break;
        sent += static_cast<std::size_t>(count);
      }
      close(end);
    });
    char* text = nullptr;
    std::size_t length = 0;
    std::FILE* output = open_memstream(&text, &length);
    {
      ByteInput input(ends[0]);
      ScriptSource source(input);
      Reporter reporter(output);
      Script(source, reporter).Run();
      failed = reporter.AnyFailed();
    }
    std::fclose(output);
    writer.join();
    close(ends[0]);
    std::vector<Json> answers;
    std::string_view rest(text, length);
    while (!rest.empty()) {
      const std::size_t end = rest.find('\n');
      answers.push_back(Json::parse(rest.substr(0, end)));
      rest.remove_prefix(end + 1);
    }
    std::free(text);
    return answers;
  }
  bool failed = false;
};

TEST_F(ScriptRun, EveryCommandIsAnsweredOnce) {
  const std::vector<Json> answers = Run("element A\nget SizeX\nnothing\n");
  ASSERT_EQ(answers.size(), 3U);
  EXPECT_EQ(answers[0].dump(), R"({"line":1,"ok":true})");
  EXPECT_EQ(answers[1].dump(), R"({"line":2,"ok":true,"value":0})");
  EXPECT_EQ(answers[2]["ok"], false);
  EXPECT_TRUE(failed);
}

TEST_F(ScriptRun, AScriptWithoutFailureSucceeds) {
  Run("element A\n");
  EXPECT_FALSE(failed);
}

TEST_F(ScriptRun, OneScriptLeavesNothingToTheNext) {
  Run("element A\nset ElementType 2\ncall OpenConfigurationDialog\ndblclick msgScanCodes\n");
  EXPECT_TRUE(failed);
  EXPECT_EQ(Module().ctlCurrentElement, nullptr);
  const std::vector<Json> answers = Run("form\nelement A\nstate\n");
  EXPECT_EQ(answers[0]["form"], nullptr);
  EXPECT_EQ(answers[2]["state"]["lngKeyboardHook"], 0);
  EXPECT_FALSE(failed);
}

TEST_F(ScriptRun, MoreThanAThousandCommandsRunInsideAForm) {
  std::string script = "element A\nset ElementType 2\ncall OpenConfigurationDialog\n";
  for (int i = 0; i < 2500; ++i) script += "cell 1 2\n";
  const std::vector<Json> answers = Run(script + "close\n");
  const std::size_t reports = 3;  // shown, unloaded, SendKeyDefinition
  EXPECT_EQ(answers.size(), 2504U + reports);
  EXPECT_FALSE(failed);
}

TEST_F(ScriptRun, AVeryLongLineWorks) {
  const std::string note(4U << 20U, 'x');
  const std::vector<Json> answers = Run("element A\nset ButtonNotes \"" + note + "\"\nget ButtonNotes\n");
  EXPECT_EQ(answers[2]["value"].get<std::string>().size(), note.size());
}

TEST_F(ScriptRun, DeepJsonIsAFailedCommand) {
  const std::string deep(200000, '[');
  const std::vector<Json> answers = Run("element A\nset ButtonNotes " + deep + "\nget SizeX\n");
  EXPECT_EQ(answers[1]["ok"], false);
  EXPECT_EQ(answers[2]["ok"], true);
}

TEST_F(ScriptRun, AnElementDroppedInsideItsDialogLivesToItsEnd) {
  const std::vector<Json> answers =
      Run("element A\nset ElementType 2\nelement B\nuse A\ncall OpenConfigurationDialog\ndrop A\nuse B\n"
          "set ShowDefined -1\nclose\nform\n");
  EXPECT_EQ(answers.back()["form"], nullptr);
  EXPECT_EQ(answers.back()["ok"], true);
}

TEST_F(ScriptRun, ADroppedElementTellsItsEndToTheContainer) {
  const std::vector<Json> answers = Run("element A\nset ElementType 2\ntrace notices on\ndrop A\n");
  ASSERT_EQ(answers.size(), 5U);
  EXPECT_EQ(answers[3].dump(), R"({"line":4,"notice":"ElementType","element":"A"})");
  EXPECT_EQ(answers[4].dump(), R"({"line":4,"ok":true,"ElementType":0})");
}

TEST_F(ScriptRun, ElementsThatAreLeftEndWithTheScriptAndReportNothing) {
  char* text = nullptr;
  std::size_t length = 0;
  std::FILE* output = open_memstream(&text, &length);
  std::shared_ptr<ctlPlexelBaseElement> element;
  {
    Reporter reporter(output);
    Workbench bench(reporter);
    element = bench.component.Create("A", bench.host);
    element->ElementType(Rect);
    bench.Add(element);
    bench.host.TraceNotices(true);
  }
  std::fclose(output);
  EXPECT_EQ(static_cast<std::int32_t>(element->ElementType()), 0);
  EXPECT_EQ(length, 0U);
  std::free(text);
}

TEST_F(ScriptRun, WhatIsNoFieldOrNoNumberOfARecordIsRefused) {
  const std::string put = "put {\"strLayer1PressScanCode\":{";
  const std::vector<Json> answers =
      Run("element A\n" + put + "\"Other\":1}}\n" + put + "\"NextValue\":2147483648}}\n" + put +
          "\"NextValue\":-2147483649}}\n" + put + "\"NextValue\":18446744073709551615}}\n" + put +
          "\"NextValue\":1.5}}\n" + put + "\"NextValue\":-2147483648}}\n" + put + "\"NextValue\":2147483647}}\n");
  ASSERT_EQ(answers.size(), 8U);
  EXPECT_EQ(answers[1]["error"], "a code buffer has no field Other");
  for (const std::size_t place : {2U, 3U, 4U}) {
    EXPECT_EQ(answers[place]["error"], "the value of NextValue is no number of 32 bits");
  }
  EXPECT_EQ(answers[5]["error"], "the value of NextValue is no whole number");
  EXPECT_EQ(answers[6]["ok"], true);
  EXPECT_EQ(answers[7]["ok"], true);
}

TEST_F(ScriptRun, ARecordIsSetAsAPropertyAndFloatsByWholeNumbersToo) {
  const std::vector<Json> answers =
      Run("element A\nset TactisBaseElementScanCodeBuffer {\"strLayer1PressString\":\"[a]\"}\nget PressKeyDefLayer1\n"
          "set TactisBaseElementScanCodeBuffer 5\nset DPIFontScaleFactor 2\nget DPIFontScaleFactor\n"
          "set DPIFontScaleFactor {}\nset ParentWindow object\nget ParentWindow\n");
  ASSERT_EQ(answers.size(), 9U);
  EXPECT_EQ(answers[2]["value"], "[a]");
  EXPECT_EQ(answers[3]["error"], "\"5\" is no JSON object");
  EXPECT_EQ(answers[5]["value"], 2);
  EXPECT_EQ(answers[6]["error"], "a JSON value is no value of a property");
  EXPECT_EQ(answers[8]["value"], Json());
}

TEST_F(ScriptRun, NumbersOfABagOutside32BitsAreFloats) {
  const std::vector<Json> answers =
      Run("read A {\"OriginalPosX\":2147483647}\nget OriginalPosX\nread B {\"OriginalPosX\":-2147483648}\nget "
          "OriginalPosX\n"
          "read C {\"OriginalPosX\":2147483648}\nread D {\"OriginalPosX\":-2147483649}\n");
  ASSERT_EQ(answers.size(), 6U);
  EXPECT_EQ(answers[1]["value"], 2147483647);
  EXPECT_EQ(answers[3]["value"], -2147483648LL);
}

/// A configuration dialog that offers some LED functions on layer 1.
const std::string openWithLeds =
    "text 10413 none\ntext 10400 Run\ntext 10401 \"#0\"\ncapability * HasUserLed 1\ncapability * HasHarddiskLed 1\n"
    "element A\nset ElementType 3\ncall OpenConfigurationDialog\n";

TEST_F(ScriptRun, AnEntryOfAListIsPickedByItsTextOrItsPlace) {
  const std::vector<Json> answers = Run(openWithLeds + "tab 1\nselect cmbLEDTypes(0) Run\ncontrol cmbLEDTypes(0)\n" +
                                        "select cmbLEDTypes(0) \"#0\"\ncontrol cmbLEDTypes(0)\n" +
                                        "select cmbLEDTypes(0) #1\ncontrol cmbLEDTypes(0)\n" +
                                        "select cmbLEDTypes(0) #x\nselect cmbLEDTypes(0) {\"a\":1}\n" +
                                        "select cmbLEDTypes(0) Rum\nselect cmbLEDTypes(0) #99999999999\nclose\n");
  std::map<int, Json> byLine;
  for (const Json& answer : answers) byLine[answer["line"]] = answer;
  EXPECT_EQ(byLine[11]["control"]["Text"], "Run");
  EXPECT_EQ(byLine[13]["control"]["Text"], "#0");
  EXPECT_EQ(byLine[15]["control"]["ListIndex"], 1);
  EXPECT_EQ(byLine[16]["error"], "the list of cmbLEDTypes(0) has no entry \"#x\"");
  EXPECT_EQ(byLine[17]["error"], "the list of cmbLEDTypes(0) has no entry \"\"");
  EXPECT_EQ(byLine[18]["error"], "the list of cmbLEDTypes(0) has no entry \"Rum\"");
  EXPECT_EQ(byLine[19]["error"], "99999999999 does not fit 32 bits");
}

TEST_F(ScriptRun, ProceduresOfTheConfigurationDialogNeedItToBeOpen) {
  const std::vector<Json> answers =
      Run("fn CopyGridCell\nelement A\nset ElementType 2\nset WizardOn -1\ncall OpenConfigurationDialog\n"
          "fn CopyGridCell\nfn FillLedLists\nclose\n");
  std::map<int, Json> byLine;
  for (const Json& answer : answers) byLine[answer["line"]] = answer;
  EXPECT_EQ(byLine[1]["error"], "frmConfigurationDialog is not open");
  EXPECT_EQ(byLine[6]["error"], "frmConfigurationDialog is not open");
  EXPECT_EQ(byLine[7]["error"], "no dialog that has this procedure is open");
}

TEST_F(ScriptRun, AClickProcedureIsThatOfTheTopmostFormThatHasIt) {
  const std::vector<Json> answers =
      Run(openWithLeds + "fn cmdOK_Click 0 1\nfn cmdNothing_Click\nfn txtButtonNotes_Click\nfn cmdCancel_Click\n");
  std::map<int, Json> byLine;
  for (const Json& answer : answers) byLine[answer["line"]] = answer;
  EXPECT_EQ(byLine[9]["error"], "cmdOK_Click takes 0 to 1 arguments");
  EXPECT_EQ(byLine[10]["error"], "no open dialog has the procedure cmdNothing_Click");
  EXPECT_EQ(byLine[11]["error"], "no open dialog has the procedure txtButtonNotes_Click")
      << "it does nothing on a click";
  EXPECT_EQ(byLine[12]["ok"], true);
  EXPECT_EQ(byLine[8]["ok"], true) << "the dialog has closed";
}

TEST_F(ScriptRun, AFormOverAMessageBoxTakesTheCommands) {
  const std::vector<Json> answers =
      Run("element B\nset ElementType 2\nelement A\nset ElementType 2\nset WizardOn -1\nset WizardOptions 4\n"
          "set PressKeyDefLayer1 \"[a]\"\ncall OpenConfigurationDialog\nform\nuse B\ncall OpenPropertiesDialog\nform\n"
          "answer No\nclose\nform\nanswer Cancel\n");
  std::map<int, Json> byLine;
  for (const Json& answer : answers) byLine[answer["line"]] = answer;
  EXPECT_EQ(byLine[9]["form"]["Name"], "MessageBox");
  EXPECT_NE(byLine[12]["form"]["Name"], "MessageBox");
  EXPECT_EQ(byLine[13]["error"], "no message box is open");
  EXPECT_EQ(byLine[15]["form"]["Name"], "MessageBox");
}

TEST_F(ScriptRun, ANewElementOfTheNameOfADroppedOneIsNotThatOfTheProject) {
  const std::string file = (DataDirectory() / "projects" / "sample.plexel").string();
  const std::vector<Json> opened = Run("open \"" + file + "\"\n");
  const std::string name = opened.at(0)["elements"][0];
  const std::vector<Json> answers =
      Run("open \"" + file + "\"\ndrop " + name + "\nsave /nowhere\nelement " + name + "\nsave /nowhere\n");
  const std::string dropped = "the element " + name + " of the project was dropped";
  EXPECT_EQ(answers.at(2)["error"], dropped);
  EXPECT_EQ(answers.at(3)["ok"], true);
  EXPECT_EQ(answers.at(4)["error"], dropped);
}

}  // namespace
}  // namespace plexel
