#include "cli/script.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <thread>

#include "cli/json.h"
#include "cli/workbench.h"
#include "element/ctlPlexelBaseElement.h"
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

}  // namespace
}  // namespace plexel
