#include "cli/diff_program.h"

#include <algorithm>
#include <array>

#include "cli/exit_status.h"
#include "cli/named_files.h"
#include "cli/program_call.h"
#include "project/difference.h"
#include "project/json_text.h"
#include "project/value_text.h"

namespace plexel {

namespace {

void AppendMember(std::string& line, std::string_view name, std::string_view json) {
  line += line.empty() ? '{' : ',';
  AppendJsonText(line, name);
  line += ':';
  line += json;
}

std::string Quoted(std::string_view text) {
  std::string json;
  AppendJsonText(json, text);
  return json;
}

std::string ValueJson(const std::optional<BagValue>& value) { return value ? JsonOf(*value).json : "null"; }

std::string LineOf(const ProjectDifference& one) {
  std::string line;
  const bool only = one.kind == DifferenceKind::OnlyFirst || one.kind == DifferenceKind::OnlySecond;
  if (one.kind == DifferenceKind::Panel) {
    AppendMember(line, "project", "\"Panel\"");
  } else if (one.kind == DifferenceKind::PanelText) {
    AppendMember(line, "project", "\"PanelText\"");
  } else {
    AppendMember(line, "element", Quoted(one.element));
  }
  if (only) AppendMember(line, "only", one.kind == DifferenceKind::OnlyFirst ? "\"A\"" : "\"B\"");
  if (!one.name.empty()) AppendMember(line, "property", Quoted(one.name));
  if (!only) {
    AppendMember(line, "from", ValueJson(one.from));
    AppendMember(line, "to", ValueJson(one.to));
  }
  if (one.from && one.to && one.from->index() != one.to->index()) {
    AppendMember(line, "fromType", Quoted(JsonOf(*one.from).type));
    AppendMember(line, "toType", Quoted(JsonOf(*one.to).type));
  }
  if (!one.fromBehind.empty()) {
    AppendMember(line, "fromBehind", Quoted(one.fromBehind));
    AppendMember(line, "toBehind", Quoted(one.toBehind));
  }
  return line + "}\n";
}

/// A name as it stands in a line for people: as it is, or in quotes when something in it needs them.
std::string Shown(const std::string& name) {
  std::string quoted = Quoted(name);
  if (name.empty() || name.find(' ') != std::string::npos || quoted.size() != name.size() + 2) return quoted;
  return name;
}

std::string SentenceOf(const ProjectDifference& one, const std::vector<std::string>& files) {
  if (one.kind == DifferenceKind::OnlyFirst) return Shown(one.element) + ": only in " + files[0] + '\n';
  if (one.kind == DifferenceKind::OnlySecond) return Shown(one.element) + ": only in " + files[1] + '\n';
  if (one.kind == DifferenceKind::PanelText) return "Panel text: the projects carry different ones\n";
  const auto typed = [&one](const std::optional<BagValue>& value) {
    if (!value) return std::string("not stored");
    const bool twoTypes = one.from && one.to && one.from->index() != one.to->index();
    return (twoTypes ? std::string(JsonOf(*value).type) + ' ' : "") + JsonOf(*value).json;
  };
  std::string line = one.kind == DifferenceKind::Panel ? "Panel" : Shown(one.element) + ' ' + Shown(one.name);
  line += ": " + typed(one.from) + " -> " + typed(one.to);
  if (!one.fromBehind.empty()) {
    line += ", behind the end " + Quoted(one.fromBehind) + " -> " + Quoted(one.toBehind);
  }
  return line + '\n';
}

}  // namespace

int RunDiff(std::span<const std::string> arguments, const Streams& streams) {
  const ProgramCall call(arguments, {"--json"});
  call.RequireOthers(2, 2);
  const std::vector<std::string>& files = call.Others();
  const Project first = ReadInputProject(files[0], streams.input);
  const Project second = ReadInputProject(files[1], streams.input);
  const std::vector<ProjectDifference> differences = DifferencesOf(first, second);
  std::string lines;
  for (const ProjectDifference& one : differences) lines += call.Has("--json") ? LineOf(one) : SentenceOf(one, files);
  WriteOutput(std::string(StandardStream), lines, streams);
  return differences.empty() ? AllSucceeded : SomeFailed;
}

}  // namespace plexel
