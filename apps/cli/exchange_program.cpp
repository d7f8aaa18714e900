#include "cli/exchange_program.h"

#include "cli/exit_status.h"
#include "cli/file_call.h"
#include "cli/named_files.h"
#include "files/file_error.h"
#include "platform/failure.h"
#include "project/exchange_words.h"
#include "project/project_export.h"
#include "project/project_import.h"

namespace plexel {

namespace {

const FileCallForm& ExportForm() {
  static const FileCallForm form{R"(usage: plexel export PROJECT [FILE.json]

Writes all that a project holds as one JSON document, to standard output when no file is named. "-" as PROJECT is
standard input. Exit status: 0 done, 2 the call is wrong or a file cannot be read or written.
)",
                                 1,
                                 2,
                                 {},
                                 {}};
  return form;
}

const FileCallForm& ImportForm() {
  static const FileCallForm form{R"(usage: plexel import FILE.json PROJECT

Writes the project that a JSON document holds, as "plexel export" gives it. "-" is standard input or output. What is no
such document is refused, with the place in it. Exit status: 0 done, 2 the call is wrong, the document is refused, or a
file cannot be read or written.
)",
                                 2,
                                 2,
                                 {},
                                 {}};
  return form;
}

int Export(const FileCall& call) {
  const std::string document = ExportProject(ReadInputProject(call.files.front()));
  const std::string target = call.files.size() > 1 ? call.files[1] : "-";
  if (document.size() > exchange_words::DocumentLimit) {
    throw FileError(InputName(call.files.front()), 0, "the document of the project is too large");
  }
  WriteOutput(target, document);
  return AllSucceeded;
}

int Import(const FileCall& call) {
  const std::string& source = call.files[0];
  const std::string document = ReadInput(source, exchange_words::DocumentLimit);
  const Project project = ImportProject(InputName(source), document);
  std::string content;
  try {
    content = FormatProject(project);
  } catch (const Failure& failure) {
    throw FileError(InputName(source), 0, std::string("is no project: ") + failure.what());
  }
  if (content.size() > ProjectLimit) throw FileError(InputName(source), 0, "the project is too large");
  WriteOutput(call.files[1], content);
  return AllSucceeded;
}

}  // namespace

int RunExport(std::span<const std::string> arguments) { return RunFileCall(ExportForm(), arguments, Export); }

int RunImport(std::span<const std::string> arguments) { return RunFileCall(ImportForm(), arguments, Import); }

}  // namespace plexel
