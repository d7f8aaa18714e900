#include "cli/program.h"

#include <algorithm>
#include <array>

#include "cli/check_program.h"
#include "cli/diff_program.h"
#include "cli/exchange_program.h"
#include "cli/exit_status.h"
#include "cli/press_program.h"
#include "cli/program_call.h"
#include "cli/report_program.h"
#include "cli/script_program.h"
#include "files/file_error.h"

namespace plexel {

namespace {

int TellHelp(std::span<const std::string> arguments, const Streams& streams);
int TellVersion(std::span<const std::string> arguments, const Streams& streams);

constexpr auto words = std::to_array<ProgramWord>({
    {"script", "[--base DIR] [FILE]",
     R"(carries out the commands of FILE, or of standard input, on elements and dialogs, and answers in JSON, one object
a line; DIR is the base path of the installation
)",
     [](std::span<const std::string> arguments, const Streams&) { return RunScript(arguments); }},
    {"check", "[--json] FILE...",
     R"(tells what would surprise on the machine, or what is wrong with a file. What FILE is, its ending tells: a project
(.plexel, or - for the one on standard input), a panel (.panel), a language (.lang), a capability table (.cap) or
named code sequences (.cfg). With --json one JSON object a line for each problem.
)",
     RunCheck},
    {"press", "PROJECT ELEMENT [--layer N] [--json]",
     R"(tells what a PC receives when ELEMENT is pressed and let go, in layer 1 unless told: a row for each key, which
goes down at ▼, repeats at ▽ and comes up at ▲; ◆ is a command to the panel, ? a byte that is no key. PROJECT may be
-, standard input. With --json one JSON object a line for each event, and at last the keys that are still down.
)",
     RunPress},
    {"diff", "[--json] A B",
     R"(tells in what two projects differ: the panel, the stored properties and code buffers of each element, and the
elements that only one of them has. A property that is not stored has its default. With --json one JSON object a
line. - is standard input.
)",
     RunDiff},
    {"export", "PROJECT [FILE.json]",
     R"(writes all that a project holds as one JSON document, to standard output when no file is named; - as PROJECT is
standard input
)",
     RunExport},
    {"import", "FILE.json PROJECT",
     R"(writes the project that such a document holds; - is standard input or output. What is no such document is refused,
with the place in it.
)",
     RunImport},
    {"report", "PROJECT --html FILE | --csv FILE | --svg FILE [--language NAME]",
     R"(writes what a project holds for people: --html a page with the panel's picture, a legend, a table and the problems,
which prints well; --csv the table for a spreadsheet; --svg the picture alone. - is standard input or output. NAME is
one of the languages of the editor, such as German; without it English is spoken.
)",
     RunReport},
    {"--help", "", "tells this; behind a word, that word alone\n", TellHelp},
    {"--version", "", "tells the version\n", TellVersion},
});

constexpr std::string_view ExitStatuses =
    R"(Exit status: 0 done and nothing found, 1 something found or a command of the script failed, 2 the call is wrong or
a file cannot be read or written.
)";

void TellCall(const ProgramWord& one, std::ostream& output) {
  output << one.word << (one.synopsis.empty() ? "" : " ") << one.synopsis << '\n';
}

void TellIndented(std::string_view lines, std::ostream& output) {
  while (!lines.empty()) {
    const std::size_t end = lines.find('\n') + 1;
    output << "      " << lines.substr(0, end);
    lines.remove_prefix(end);
  }
}

void TellAll(std::ostream& output) {
  output << "usage: plexel WORD ...\n\n";
  for (const ProgramWord& one : words) {
    output << "  ";
    TellCall(one, output);
    TellIndented(one.help, output);
  }
  output << '\n' << ExitStatuses;
}

void TellUsage(const ProgramWord& one, std::ostream& output) {
  output << "usage: plexel ";
  TellCall(one, output);
}

int TellHelp(std::span<const std::string>, const Streams& streams) {
  TellAll(streams.output);
  return AllSucceeded;
}

int TellVersion(std::span<const std::string>, const Streams& streams) {
  streams.output << "plexel " PLEXEL_VERSION "\n";
  return AllSucceeded;
}

int RunWord(const ProgramWord& one, std::span<const std::string> arguments, const Streams& streams) {
  if (!arguments.empty() && arguments.front() == "--help") {
    TellUsage(one, streams.output);
    streams.output << '\n' << one.help << '\n' << ExitStatuses;
    return AllSucceeded;
  }
  try {
    return one.run(arguments, streams);
  } catch (const CallError& error) {
    TellUsage(one, streams.errors);
    streams.errors << "plexel " << one.word << ": " << error.what() << '\n';
  } catch (const FileError& error) {
    streams.errors << error.what() << '\n';
  }
  return WrongCall;
}

}  // namespace

std::span<const ProgramWord> ProgramWords() { return words; }

int RunProgram(std::span<const std::string> arguments, const Streams& streams) {
  const auto* one = std::ranges::find_if(
      words, [&](const ProgramWord& word) { return !arguments.empty() && arguments.front() == word.word; });
  if (one == words.end()) {
    TellAll(streams.errors);
    return WrongCall;
  }
  const int status = RunWord(*one, arguments.subspan(1), streams);
  if (!streams.output.flush()) {
    streams.errors << "plexel: standard output cannot be written\n";
    return WrongCall;
  }
  return status;
}

}  // namespace plexel
