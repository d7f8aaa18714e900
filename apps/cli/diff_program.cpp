#include "cli/diff_program.h"

#include <algorithm>
#include <array>

#include "cli/exit_status.h"
#include "cli/file_call.h"
#include "cli/named_files.h"
#include "project/difference.h"
#include "project/json_text.h"
#include "project/value_text.h"

namespace plexel {

namespace {

const FileCallForm& Form() {
  static const FileCallForm form{R"(usage: plexel diff [--json] A B

Tells in what two projects differ: the panel, the stored properties and code buffers of each element, and the elements
that only one of them has. A property that is not stored has its default. With --json one JSON object a line. "-" is
standard input. Exit status: 0 no difference, 1 some, 2 the call is wrong or a file cannot be read.
)",
                                 2,
                                 2,
                                 {"--json"},
                                 {}};
  return form;
}

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
  if (!one.fromBehind.empty() || !one.toBehind.empty()) {
    AppendMember(line, "fromBehind", Quoted(one.fromBehind));
    AppendMember(line, "toBehind", Quoted(one.toBehind));
  }
  return line + "}\n";
}

/// A name as it stands in a line for people: as it is, or in quotes when something in it needs them.
std::string Shown(const std::string& name) {
  std::string quoted = Quoted(name);
  return quoted.size() == name.size() + 2 && name.find(' ') == std::string::npos && !name.empty() ? name : quoted;
}

std::string SentenceOf(const ProjectDifference& one, const FileCall& call) {
  if (one.kind == DifferenceKind::OnlyFirst) return Shown(one.element) + ": only in " + call.files[0] + '\n';
  if (one.kind == DifferenceKind::OnlySecond) return Shown(one.element) + ": only in " + call.files[1] + '\n';
  const auto typed = [&one](const std::optional<BagValue>& value) {
    if (!value) return std::string("not stored");
    const bool twoTypes = one.from && one.to && one.from->index() != one.to->index();
    return (twoTypes ? std::string(JsonOf(*value).type) + ' ' : "") + JsonOf(*value).json;
  };
  std::string line = one.kind == DifferenceKind::Panel ? "Panel" : Shown(one.element) + ' ' + Shown(one.name);
  line += ": " + typed(one.from) + " -> " + typed(one.to);
  if (!one.fromBehind.empty() || !one.toBehind.empty()) {
    line += ", behind the end " + Quoted(one.fromBehind) + " -> " + Quoted(one.toBehind);
  }
  return line + '\n';
}

int Diff(const FileCall& call) {
  const Project first = ReadInputProject(call.files[0]);
  const Project second = ReadInputProject(call.files[1]);
  const std::vector<ProjectDifference> differences = DifferencesOf(first, second);
  std::string lines;
  for (const ProjectDifference& one : differences) lines += call.Has("--json") ? LineOf(one) : SentenceOf(one, call);
  WriteOutput("-", lines);
  return differences.empty() ? AllSucceeded : SomeFailed;
}

}  // namespace

int RunDiff(std::span<const std::string> arguments) { return RunFileCall(Form(), arguments, Diff); }

}  // namespace plexel
