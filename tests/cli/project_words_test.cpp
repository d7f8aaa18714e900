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

TEST_F(Check, PeopleReadAllLayersOfAProblem) {
  const std::string led = "LedType1=int32 3\nLedType2=int32 3\nTargetSystem=string Compact\n";
  const std::string file = Put("a.plexel", ProjectOf(2, "[ELEMENT L1]\n" + led + "\n[ELEMENT L2]\n" + led));
  EXPECT_THAT(ProgramRun({"check", file}).output, HasSubstr(": L2, layers 1+2: warning: "));
}

TEST_F(Check, WhatIsFoundInOneFileIsFoundInAll) {
  const std::string good = (DataDirectory() / "projects" / "sample.plexel").string();
  const std::string bad = Put("a.plexel", ProjectOf(1, heldKey));
  for (const std::vector<std::string>& files : {std::vector{good, bad, good}, {bad, good, good}, {bad, bad, bad}}) {
    const ProgramRun run({"check", files[0], files[1], files[2]});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "");
  }
  EXPECT_EQ(ProgramRun({"check", good, good}).status, 0);
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

TEST_F(Press, KeysThatOnlyComeUpStandBehindAnEmptyPress) {
  const std::string file =
      Put("a.plexel", ProjectOf(1, "[ELEMENT F1]\nstrLayer1ReleaseScanCode=codes 3 FFF01CFF*41\n"));
  EXPECT_EQ(ProgramRun({"press", file, "F1"}).output,
            "F1, layer 1\n"
            "   press │ release\n"
            "a        │ ▲\n");
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

class Diff : public ProjectWords {
 protected:
  /// What is told of two projects of one element, to people and to programs.
  void Expect(const std::string& one, const std::string& other, const std::string& sentence, const std::string& line) {
    const std::string first = Put("a", one), second = Put("b", other);
    const ProgramRun plain({"diff", first, second}), json({"diff", "--json", first, second});
    EXPECT_EQ(plain.output, sentence + '\n');
    EXPECT_EQ(plain.status, 1);
    EXPECT_EQ(json.output, line + '\n');
    EXPECT_EQ(json.status, 1);
  }
};

TEST_F(Diff, AForeignValueThatOnlyTheSecondHasIsToldFromNothing) {
  Expect(ProjectOf(1, "[ELEMENT F1]\n"), ProjectOf(1, "[ELEMENT F1]\nx=int32 5\n"), "F1 x: not stored -> 5",
         R"({"element":"F1","property":"x","from":null,"to":5})");
}

TEST_F(Diff, BytesBehindTheEndOfABufferAreToldToo) {
  Expect(ProjectOf(1, "[ELEMENT F1]\nstrLayer1PressScanCode=codes 2 FF1CFF2A\n"),
         ProjectOf(1, "[ELEMENT F1]\nstrLayer1PressScanCode=codes 2 FF1CFF2B\n"),
         R"(F1 strLayer1PressScanCode: "FF 1C FF" -> "FF 1C FF", behind the end "2A" -> "2B")",
         R"({"element":"F1","property":"strLayer1PressScanCode","from":"FF 1C FF","to":"FF 1C FF",)"
         R"("fromBehind":"2A","toBehind":"2B"})");
}

TEST_F(Diff, BytesBehindTheEndOfOneBufferAreTold) {
  Expect(ProjectOf(1, "[ELEMENT F1]\nstrLayer1PressScanCode=codes 2 FF1CFF\n"),
         ProjectOf(1, "[ELEMENT F1]\nstrLayer1PressScanCode=codes 2 FF1CFF2B\n"),
         R"(F1 strLayer1PressScanCode: "FF 1C FF" -> "FF 1C FF", behind the end "00" -> "2B")",
         R"({"element":"F1","property":"strLayer1PressScanCode","from":"FF 1C FF","to":"FF 1C FF",)"
         R"("fromBehind":"00","toBehind":"2B"})");
}

TEST_F(Diff, NamesThatOneCouldMisreadStandInQuotes) {
  for (const auto& [name, shown] : {std::pair{"a b", R"("a b")"}, {"a\"b", R"("a\"b")"}, {"", R"("")"}, {"ab", "ab"}}) {
    Expect(ProjectOf(1, "[ELEMENT " + std::string(name) + "]\n"), ProjectOf(0, ""),
           std::string(shown) + ": only in " + (directory / "a").string(),
           R"({"element":)" + Json(name).dump() + R"(,"only":"A"})");
  }
}

TEST_F(Diff, PanelTextsAreToldToDiffer) {
  const auto carrying = [](const std::string& line) {
    return "[PROJECT]\nFormat=2\nMarks=\x8B\x9B\nPanel=Small\nElements=0\n[PANEL]\nLine=" + line + "\n[END]\n";
  };
  Expect(carrying("a"), carrying("b"), "Panel text: the projects carry different ones",
         R"({"project":"PanelText","from":"a\n","to":"b\n"})");
}

class Import : public ProjectWords {};

TEST_F(Import, ATextTooLongForAProjectIsToldWithItsPlace) {
  const std::string notes(std::size_t{1} << 20U, 'x');
  const ProgramRun run({"import", "-", "-"}, R"({"format":1,"panel":{"name":"Small"},"elements":[{"place":"F1",)"
                                             R"("properties":{"ButtonNotes":{"string":")" +
                                                 notes + R"("}}}]})");
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors, "standard input: /elements/0/properties/ButtonNotes: is too long for a project\n");
}

class ScriptWord : public ProjectWords {
 protected:
  /// What a script answers.
  static std::string Run(std::vector<std::string> words, int wanted) {
    words.insert(words.begin(), "script");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_EQ(ProgramRun(words).status, wanted);
    errors = testing::internal::GetCapturedStderr();
    return testing::internal::GetCapturedStdout();
  }
  static inline std::string errors;
};

TEST_F(ScriptWord, TheBasePathAndTheFileStandInAnyOrder) {
  const std::string file = Put("s.script", "fn GetBasePath\n");
  const std::string answer = "{\"line\":1,\"ok\":true,\"result\":\"/x\"}\n";
  EXPECT_EQ(Run({"--base", "/x", file}, 0), answer);
  EXPECT_EQ(Run({file, "--base", "/x"}, 0), answer);
}

TEST_F(ScriptWord, BehindTwoDashesNothingIsAnOption) {
  const std::filesystem::path before = std::filesystem::current_path();
  Put("--base", "element A\n");
  std::filesystem::current_path(directory.Path());
  EXPECT_EQ(Run({"--", "--base"}, 0), "{\"line\":1,\"ok\":true}\n");
  std::filesystem::current_path(before);
}

TEST_F(ScriptWord, WrongCallsTellTheUsage) {
  const std::string file = Put("s.script", "element A\n");
  for (const std::vector<std::string>& words : {std::vector<std::string>{"--base"},
                                                {file, "--base"},
                                                {"--base", "/x", "--base", "/y"},
                                                {"-b", file},
                                                {file, file},
                                                {"--", file, file},
                                                {"-"}}) {
    EXPECT_EQ(Run(words, 2), "");
    EXPECT_EQ(errors, "usage: plexel script [--base DIR] [FILE]\n");
  }
}

}  // namespace
}  // namespace plexel
