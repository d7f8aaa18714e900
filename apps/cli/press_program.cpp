#include "cli/press_program.h"

#include <algorithm>
#include <array>

#include "cli/exit_status.h"
#include "cli/json_lines.h"
#include "cli/named_files.h"
#include "cli/program_call.h"
#include "cli/project_bench.h"
#include "cli/time_line.h"
#include "element/ctlPlexelBaseElement.h"
#include "files/file_error.h"
#include "project/key_code_names.h"
#include "project/problem.h"

namespace plexel {

namespace {

/// As KeyDeed has them.
constexpr std::array<const char*, 5> deedNames = {"down", "up", "repeat", "panel", "unknown"};

std::int32_t LayerOf(const ProgramCall& call) {
  const std::string text = call.Value("--layer").value_or("1");
  if (text.size() != 1 || text.front() < '1' || text.front() > '0' + LayerCount) {
    throw CallError("there is no layer \"" + text + '"');
  }
  return text.front() - '0';
}

void TellJson(const LayerReading& reading, std::ostream& output) {
  for (const KeyReport& report : reading.reports) {
    Json line;
    line["at"] = NameOf(report.at);
    line["do"] = deedNames[static_cast<std::size_t>(report.deed)];
    line["code"] = CodeText(report.code);
    if (report.deed == KeyDeed::Panel) {
      line["function"] = PanelFunctionNameOf(report.code);
    } else if (report.deed != KeyDeed::Unknown) {
      line["key"] = KeyNameOf(report.code);
    }
    PutJsonLine(output, line);
  }
  Json last;
  last["stillDown"] = Json::array();
  for (const KeyCode code : reading.stillDown) last["stillDown"].push_back(CodeText(code));
  PutJsonLine(output, last);
}

}  // namespace

int RunPress(std::span<const std::string> arguments, const Streams& streams) {
  const ProgramCall call(arguments, {"--json"}, {"--layer"});
  call.RequireOthers(2, 2);
  const std::int32_t layer = LayerOf(call);
  const std::string &file = call.Others()[0], &name = call.Others()[1];
  ProjectBench bench;
  const auto document = bench.Open(file, streams.input);
  const auto place = std::ranges::find_if(
      document->Places(), [&name](const PanelDocument::Place& one) { return one.element->Name() == name; });
  if (place == document->Places().end()) throw FileError(InputName(file), "there is no element \"" + name + '"');
  const LayerReading reading = ReadLayer(place->element->TactisBaseElementScanCodeBuffer(), layer);
  if (call.Has("--json")) {
    TellJson(reading, streams.output);
  } else {
    streams.output << name << ", layer " << layer << '\n' << TimeLine(reading);
  }
  return AllSucceeded;
}

}  // namespace plexel
