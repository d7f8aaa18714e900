#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/json.h"
#include "files/data_directory.h"
#include "program_run.h"
#include "world/temporary_directory.h"

namespace plexel {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// A project on the small panel with these sections of elements.
std::string ProjectOf(int count, const std::string& sections) {
  return "[PROJECT]\nFormat=1\nMarks=\x8B\x9B\nPanel=Small\nElements=" + std::to_string(count) + "\n\n" + sections +
         "\n[END]\n";
}

class ProjectWords : public testing::Test {
 protected:
  std::string Put(const std::string& name, const std::string& content) { return directory.Put(name, content).string(); }
  TemporaryDirectory directory;
};
using Check = ProjectWords;
using Press = ProjectWords;

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

const std::string heldKey =
    "[ELEMENT F1]\nPressKeyDefLayer2=string [Ctrl Left\x8B]\nstrLayer2PressScanCode=codes 2 FF14FF*43\n";

TEST_F(Check, AProjectWithoutProblemsIsStatus0) {
  const std::string file = (DataDirectory() / "projects" / "sample.plexel").string();
  const ProgramRun plain({"check", file});
  EXPECT_EQ(plain.status, 0);
  EXPECT_EQ(plain.output, file + ": nothing found\n");
  const ProgramRun json({"check", "--json", file});
  EXPECT_EQ(json.status, 0);
  EXPECT_EQ(json.output, "");
}

TEST_F(Check, AProblemIsOneJsonObject) {
  const std::string file = Put("a.plexel", ProjectOf(1, heldKey));
  const ProgramRun run({"check", "--json", file});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output, R"({"file":")" + file + R"(","rule":"held","level":"error","element":"F1","layer":2,"text":")" +
                            "Ctrl Left is still down after release: every further key reaches the machine together "
                            "with it\"}\n");
}

TEST_F(Check, PeopleReadPlaceLevelTextAndCounts) {
  const std::string file = Put("a.plexel", ProjectOf(1, heldKey + "strLayer1ReleaseScanCode=codes 2 FF00FF*43\n"));
  const ProgramRun run({"check", file});
  EXPECT_EQ(run.status, 1);
  const std::vector<std::string> lines = Lines(run.output);
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_THAT(lines[0], StartsWith(file + ": F1, layer 1, release: warning: on release the machine gets 00"));
  EXPECT_THAT(lines[1], StartsWith(file + ": F1, layer 1, release: error: "));
  EXPECT_THAT(lines[1], HasSubstr("(no-text)"));
  EXPECT_THAT(lines[2], StartsWith(file + ": F1, layer 2: error: Ctrl Left is still down"));
  EXPECT_EQ(lines[3], file + ": 2 errors, 1 warning");
}

TEST_F(Check, DirectionsPairsAndLayersAreMembersWhereARuleHasThem) {
  const std::string led =
      "LedType1=int32 3\nLedType2=int32 3\nTargetSystem=string Compact\nHardwareNumberLed=int32 9\n";
  const std::string file =
      Put("a.plexel", ProjectOf(3, "[ELEMENT L2]\n" + led + "\n[ELEMENT F1]\n" +
                                       "strLayer3PressScanCode=codes 2 FFF1FF*43\n\n" + "[ELEMENT L1]\n" + led));
  std::vector<Json> answers;
  for (const std::string& line : Lines(ProgramRun({"check", "--json", file}).output)) {
    Json answer = Json::parse(line);
    answer.erase("file");
    answer.erase("text");
    answers.push_back(answer);
  }
  std::vector<std::string> told;
  for (const Json& answer : answers) told.push_back(answer.dump());
  EXPECT_THAT(told, testing::ElementsAre(
                        R"({"rule":"no-text","level":"error","element":"F1","layer":3,"direction":"press"})",
                        R"({"rule":"number-twice","level":"error","element":"L1","with":"L2"})",
                        R"({"rule":"led-twice","level":"warning","element":"L1","layers":[1,2],"with":"L2"})"));
}

TEST_F(Check, TheProjectOnStandardInputIsADash) {
  const ProgramRun run({"check", "-"}, ProjectOf(1, heldKey));
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.output, StartsWith("-: F1, layer 2: error: "));
}

TEST_F(Check, FilesOfEveryKindAreReadByTheirEndings) {
  for (const auto& [name, content] :
       std::initializer_list<std::pair<const char*, const char*>>{{"a.panel", "[PANEL]\nwrong"},
                                                                  {"a.lang", "1=one\n1=two\n"},
                                                                  {"a.cap", "[A]\nNothing=1\n"},
                                                                  {"a.plexel", "[PROJECT]\nwrong\n"}}) {
    const std::string file = Put(name, content);
    const ProgramRun run({"check", file});
    EXPECT_EQ(run.status, 2) << name;
    EXPECT_EQ(run.output, "") << name;
    EXPECT_THAT(run.errors, testing::ContainsRegex(file + ":2: ")) << name;
  }
  for (const std::filesystem::path& file :
       {DataDirectory() / "panels" / "Small.panel", DataDirectory() / "languages" / "German.lang",
        DataDirectory() / "capabilities" / "Compact.cap", DataDirectory() / "NonStandardScancodes.cfg"}) {
    const ProgramRun run({"check", file.string()});
    EXPECT_EQ(run.status, 0) << file;
    EXPECT_EQ(run.output, file.string() + ": nothing found\n");
  }
}

TEST_F(Check, FindingsInNamedSequencesAreStatus1) {
  const std::string file = Put("a.cfg", "[SCANCODE1]\nREMARK001=x\nREMARK049=x\nMAKECODE=ZZ\nBREAKCODE=F0:1C\n");
  const ProgramRun plain({"check", file});
  EXPECT_EQ(plain.status, 1);
  EXPECT_THAT(plain.output, StartsWith(file + ":4: "));
  const ProgramRun json({"check", "--json", file});
  EXPECT_EQ(json.status, 1);
  const Json answer = Json::parse(json.output);
  EXPECT_EQ(answer["file"], file);
  EXPECT_EQ(answer["line"], 4);
  EXPECT_EQ(answer["level"], "warning");
}

TEST_F(Check, BesideAnUnreadableFileTheOthersAreChecked) {
  const std::string good = Put("a.plexel", ProjectOf(1, heldKey));
  const ProgramRun run({"check", "/nowhere.cap", good});
  EXPECT_EQ(run.status, 2);
  EXPECT_THAT(run.errors, StartsWith("/nowhere.cap: "));
  EXPECT_THAT(run.output, HasSubstr("1 error, 0 warnings"));
}

TEST_F(Check, AnEndingThatTellsNothingIsAWrongCallBeforeAnythingIsRead) {
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"check"}, {"check", "a.txt"}, {"check", "/nowhere.cap", "plexel"}}) {
    const ProgramRun run(words);
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.errors, StartsWith("usage: plexel check "));
  }
}

TEST_F(Press, EventsAreJsonObjectsAndTheLastTellsWhatStaysDown) {
  const std::string file = Put("a.plexel", ProjectOf(1, heldKey));
  const ProgramRun run({"press", file, "F1", "--layer", "2", "--json"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.output,
            "{\"at\":\"press\",\"do\":\"down\",\"code\":\"14\",\"key\":\"Ctrl Left\"}\n{\"stillDown\":[\"14\"]}\n");
}

TEST_F(Press, EveryKindOfEventHasItsName) {
  const std::string file = Put("a.plexel", ProjectOf(1,
                                                     "[ELEMENT F1]\n"
                                                     "strLayer1PressScanCode=codes 6 FFE074E074F100FF*38\n"
                                                     "strLayer1ReleaseScanCode=codes 4 FFE0F074FF*40\n"));
  const ProgramRun run({"press", "--json", file, "F1"});
  EXPECT_EQ(Lines(run.output),
            (std::vector<std::string>{R"({"at":"press","do":"down","code":"E0 74","key":"Cursor Right"})",
                                      R"({"at":"press","do":"repeat","code":"E0 74","key":"Cursor Right"})",
                                      R"({"at":"press","do":"panel","code":"F1","function":"Layer2"})",
                                      R"({"at":"press","do":"unknown","code":"00"})",
                                      R"({"at":"release","do":"up","code":"E0 74","key":"Cursor Right"})",
                                      R"({"stillDown":[]})"}));
}

TEST_F(Press, PauseGoesDownAndComesUp) {
  const std::string file =
      Put("a.plexel", ProjectOf(1, "[ELEMENT F1]\nstrLayer1PressScanCode=codes 9 FFE11477E1F014F077FF*36\n"));
  EXPECT_EQ(
      Lines(ProgramRun({"press", "--json", file, "F1"}).output),
      (std::vector<std::string>{R"({"at":"press","do":"down","code":"E1 14 77","key":"Pause"})",
                                R"({"at":"press","do":"up","code":"E1 14 77","key":"Pause"})", R"({"stillDown":[]})"}));
}

TEST_F(Press, PeopleReadATimeLine) {
  const std::string file = Put("a.plexel", ProjectOf(1,
                                                     "[ELEMENT F1]\n"
                                                     "strLayer1PressScanCode=codes 5 FF141C1CF1FF*40\n"
                                                     "strLayer1ReleaseScanCode=codes 3 FFF01CFF*41\n"));
  EXPECT_EQ(ProgramRun({"press", file, "F1"}).output,
            "F1, layer 1\n"
            "           press │ release\n"
            "Ctrl Left  ▼━━━━ │ ━━━━━━━  stays down\n"
            "a           ▼▽━━ │ ▲\n"
            "Layer2        ◆  │\n");
}

TEST_F(Press, ALayerWithoutBytesSendsNothing) {
  const std::string file = Put("a.plexel", ProjectOf(1, heldKey));
  EXPECT_EQ(ProgramRun({"press", file, "F1"}).output, "F1, layer 1\nnothing is sent\n");
  EXPECT_EQ(ProgramRun({"press", "--json", file, "F1"}).output, "{\"stillDown\":[]}\n");
}

TEST_F(Press, TheProjectOnStandardInputIsADash) {
  EXPECT_EQ(ProgramRun({"press", "-", "F1", "--json"}, ProjectOf(1, heldKey)).output, "{\"stillDown\":[]}\n");
}

TEST_F(Press, AnElementThatThereIsNotIsStatus2) {
  const std::string file = Put("a.plexel", ProjectOf(1, heldKey));
  const ProgramRun run({"press", file, "F77"});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors, file + ": there is no element \"F77\"\n");
}

TEST_F(Press, LayersAre1To4) {
  const std::string file = Put("a.plexel", ProjectOf(1, heldKey));
  EXPECT_EQ(ProgramRun({"press", file, "F1", "--layer", "4"}).status, 0);
  for (const char* layer : {"0", "5", "x", "", "11", "-1"}) {
    const ProgramRun run({"press", file, "F1", "--layer", layer});
    EXPECT_EQ(run.status, 2) << layer;
    EXPECT_THAT(run.errors, StartsWith("usage: plexel press ")) << layer;
  }
}

TEST_F(Press, NeedsAProjectAndAnElement) {
  EXPECT_EQ(ProgramRun({"press"}).status, 2);
  EXPECT_EQ(ProgramRun({"press", "a.plexel"}).status, 2);
  EXPECT_EQ(ProgramRun({"press", "/nowhere.plexel", "F1"}).status, 2);
}

}  // namespace
}  // namespace plexel
