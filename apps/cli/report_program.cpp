#include "cli/report_program.h"

#include <array>
#include <filesystem>
#include <optional>

#include "cli/exit_status.h"
#include "cli/named_files.h"
#include "cli/program_call.h"
#include "cli/project_bench.h"
#include "files/path_text.h"
#include "project/panel_svg.h"
#include "project/report_csv.h"
#include "project/report_html.h"

namespace plexel {

namespace {

struct Kind {
  std::string_view option;
  std::string (*write)(const Report& report);
};
constexpr std::array kinds = {Kind{"--html", ReportHtml}, Kind{"--csv", ReportCsv},
                              Kind{"--svg", [](const Report& report) { return PanelSvg(*report.panel); }}};

/// The one kind that a call asks for.
const Kind& KindOf(const ProgramCall& call) {
  const Kind* wanted = nullptr;
  for (const Kind& kind : kinds) {
    if (!call.Has(kind.option)) continue;
    if (wanted != nullptr) throw CallError("only one of --html, --csv and --svg can stand");
    wanted = &kind;
  }
  if (wanted == nullptr) throw CallError("one of --html, --csv and --svg must stand");
  return *wanted;
}

}  // namespace

int RunReport(std::span<const std::string> arguments, const Streams& streams) {
  const ProgramCall call(arguments, {}, {"--html", "--csv", "--svg", "--language"});
  call.RequireOthers(1, 1);
  const Kind& kind = KindOf(call);
  const std::string& file = call.Others().front();
  ProjectBench bench;
  const auto language = call.Value("--language");
  if (language) bench.Speak(*language);
  const auto document = bench.Open(file, streams.input);
  const std::string name = file == StandardStream ? std::string() : TextOf(PathOf(file).filename());
  WriteOutput(call.Value(kind.option).value_or(""),
              kind.write(ReportOf(*document, name, language ? ReportWordsInForce() : EnglishReportWords())), streams);
  return AllSucceeded;
}

}  // namespace plexel
