#include "cli/check_program.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <string_view>

#include "cli/exit_status.h"
#include "cli/json_lines.h"
#include "cli/named_files.h"
#include "cli/program_call.h"
#include "cli/project_bench.h"
#include "element/ctlPlexelBaseElement.h"
#include "files/file_capabilities.h"
#include "files/file_error.h"
#include "files/language_file.h"
#include "files/panel_file.h"
#include "files/parameter_check.h"
#include "files/path_text.h"
#include "project/problems.h"

namespace plexel {

namespace {

std::string Counted(std::size_t count, std::string_view one) {
  return std::to_string(count) + ' ' + std::string(one) + (count == 1 ? "" : "s");
}

/// "F1, layer 2, press"
std::string PlaceOf(const Problem& problem, const std::string& element) {
  std::string place = element;
  for (const std::int32_t layer : problem.layers) {
    place += layer == problem.layers.front() ? (problem.layers.size() == 1 ? ", layer " : ", layers ") : "+";
    place += std::to_string(layer);
  }
  if (problem.direction) place += ", " + std::string(NameOf(*problem.direction));
  return place;
}

/// The checks of one call.
class Checks {
 public:
  Checks(const Streams& streams, bool json) : streams_(streams), json_(json) {}

  void Project(const std::string& file) {
    if (!bench_) bench_.emplace();
    const auto document = bench_->Open(file, streams_.input);
    const Problems problems(*document);
    for (const Problem& problem : problems.All()) Tell(file, problems, problem);
    Close(file, problems.Errors() + problems.Warnings(),
          Counted(problems.Errors(), "error") + ", " + Counted(problems.Warnings(), "warning"));
  }
  void Sequences(const std::string& file) {
    const std::vector<Finding> findings = CheckParameterFile(PathOf(file));
    for (const Finding& finding : findings) Tell(file, finding);
    Close(file, findings.size(), Counted(findings.size(), "finding"));
  }
  void Panel(const std::string& file) {
    ReadPanel(PathOf(file));
    Close(file, 0, {});
  }
  void Language(const std::string& file) {
    ReadLanguageFile(PathOf(file));
    Close(file, 0, {});
  }
  void CapabilityTable(const std::string& file) {
    FileCapabilities::OfTable(PathOf(file));
    Close(file, 0, {});
  }

  bool FoundAny() const { return foundAny_; }

 private:
  void Tell(const std::string& file, const Problems& problems, const Problem& problem) {
    const ProblemRuleRow& row = RowOf(problem.rule);
    const std::string& element = problems.Element(problem.element).Name();
    const std::string text = problems.Text(problem);
    if (!json_) {
      streams_.output << file << ": " << PlaceOf(problem, element) << ": " << NameOf(row.level) << ": " << text << " ("
                      << row.name << ")\n";
      return;
    }
    Json line;
    line["file"] = file;
    line["rule"] = row.name;
    line["level"] = NameOf(row.level);
    line["element"] = element;
    if (problem.rule == ProblemRule::LedTwice) {
      line["layers"] = problem.layers;
    } else if (!problem.layers.empty()) {
      line["layer"] = problem.layers.front();
    }
    if (problem.direction) line["direction"] = NameOf(*problem.direction);
    if (problem.with) line["with"] = problems.Element(*problem.with).Name();
    line["text"] = text;
    PutJsonLine(streams_.output, line);
  }

  void Tell(const std::string& file, const Finding& finding) {
    if (!json_) {
      streams_.output << file << ':' << finding.line << ": " << finding.text << '\n';
      return;
    }
    Json line;
    line["file"] = file;
    line["line"] = finding.line;
    line["level"] = NameOf(ProblemLevel::Warning);
    line["text"] = finding.text;
    PutJsonLine(streams_.output, line);
  }

  void Close(const std::string& file, std::size_t count, const std::string& counts) {
    foundAny_ = foundAny_ || count > 0;
    if (!json_) streams_.output << file << ": " << (count == 0 ? "nothing found" : counts) << '\n';
  }

  const Streams& streams_;
  const bool json_;
  std::optional<ProjectBench> bench_;
  bool foundAny_ = false;
};

/// What a file is, its ending tells.
struct FileKind {
  std::string_view ending;
  void (Checks::*check)(const std::string& file);
};
constexpr auto kinds = std::to_array<FileKind>({{".plexel", &Checks::Project},
                                                {".panel", &Checks::Panel},
                                                {LanguageExtension, &Checks::Language},
                                                {".cap", &Checks::CapabilityTable},
                                                {".cfg", &Checks::Sequences}});

const FileKind& KindOf(const std::string& file) {
  if (file == StandardStream) return kinds.front();
  const std::string ending = TextOf(PathOf(file).extension());
  const auto* kind = std::ranges::find(kinds, ending, &FileKind::ending);
  if (kind == kinds.end()) throw CallError("the ending of \"" + file + "\" does not tell what it is");
  return *kind;
}

}  // namespace

int RunCheck(std::span<const std::string> arguments, const Streams& streams) {
  const ProgramCall call(arguments, {"--json"});
  if (call.Others().empty()) throw CallError("a file is missing");
  for (const std::string& file : call.Others()) KindOf(file);
  Checks checks(streams, call.Has("--json"));
  bool unreadable = false;
  for (const std::string& file : call.Others()) {
    try {
      (checks.*KindOf(file).check)(file);
    } catch (const FileError& error) {
      streams.errors << error.what() << '\n';
      unreadable = true;
    }
  }
  if (unreadable) return WrongCall;
  return checks.FoundAny() ? SomeFailed : AllSucceeded;
}

}  // namespace plexel
