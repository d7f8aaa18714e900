#include <algorithm>
#include <array>
#include <iostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/check_program.h"
#include "cli/diff_program.h"
#include "cli/exchange_program.h"
#include "cli/exit_status.h"
#include "cli/script_program.h"

namespace {

constexpr const char* Usage = R"(usage: plexel WORD ...

  script [--base DIR] [FILE]   carries out the commands of FILE, or of standard input, on elements and dialogs, and
                               answers in JSON, one object a line; DIR is the base path of the installation
  check FILE.cfg               tells what is wrong with a file of named code sequences
  diff [--json] A B            tells in what two projects differ
  export PROJECT [FILE.json]   writes all that a project holds as one JSON document
  import FILE.json PROJECT     writes the project that such a document holds
  --help                       tells this
  --version                    tells the version

Exit status: 0 done, 1 a command of the script failed or a check or a comparison found something, 2 the call is wrong or a file
cannot be read.
)";

int TellUsage(std::span<const std::string>) {
  std::cout << Usage;
  return plexel::AllSucceeded;
}

int TellVersion(std::span<const std::string>) {
  std::cout << "plexel " PLEXEL_VERSION "\n";
  return plexel::AllSucceeded;
}

struct ProgramWord {
  std::string_view word;
  int (*run)(std::span<const std::string> arguments);
};

constexpr auto words = std::to_array<ProgramWord>({{"script", plexel::RunScript},
                                                   {"check", plexel::RunCheck},
                                                   {"diff", plexel::RunDiff},
                                                   {"export", plexel::RunExport},
                                                   {"import", plexel::RunImport},
                                                   {"--help", TellUsage},
                                                   {"--version", TellVersion}});

}  // namespace

int main(int count, char** values) {
  const std::vector<std::string> arguments(values + std::min(count, 1), values + count);
  for (const ProgramWord& one : words) {
    if (!arguments.empty() && arguments.front() == one.word) return one.run(std::span(arguments).subspan(1));
  }
  std::cerr << Usage;
  return plexel::WrongCall;
}
