#include "cli/exchange_program.h"

#include "cli/exit_status.h"
#include "cli/named_files.h"
#include "cli/program_call.h"
#include "project/exchange_words.h"
#include "project/project_export.h"
#include "project/project_import.h"

namespace plexel {

int RunExport(std::span<const std::string> arguments, const Streams& streams) {
  const ProgramCall call(arguments, {});
  call.RequireOthers(1, 2);
  const std::vector<std::string>& files = call.Others();
  const std::string document =
      ProjectDocument(InputName(files.front()), ReadInputProject(files.front(), streams.input));
  WriteOutput(files.size() > 1 ? files[1] : std::string(StandardStream), document, streams);
  return AllSucceeded;
}

int RunImport(std::span<const std::string> arguments, const Streams& streams) {
  const ProgramCall call(arguments, {});
  call.RequireOthers(2, 2);
  const std::string &source = call.Others()[0], &target = call.Others()[1];
  const std::string document = ReadInput(source, exchange_words::DocumentLimit, streams.input);
  const Project project = ImportProject(InputName(source), document);
  WriteOutput(target, ProjectFileText(OutputName(target), project), streams);
  return AllSucceeded;
}

}  // namespace plexel
