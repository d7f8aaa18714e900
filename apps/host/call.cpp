#include "host/call.h"

namespace plexel::host {

const char* const Usage =
    R"(usage: plexel-host [PROJECT]
       plexel-host PROJECT --save-as FILE
       plexel-host --check | --help | --version

Without words, or with a project, it opens a window with a control on each element of the panel. --save-as loads a
project into controls and saves it by them. --check tries the control as containers use it, and prints a line for each
fact.

Exit status: 0 done, 1 a fact does not hold, 2 the call is wrong or a file or the control cannot be used.
)";

std::optional<Call> Understand(std::span<const std::string> words) {
  using Work = Call::Work;
  if (words.empty()) return Call{};
  if (words.size() == 1) {
    if (words[0] == "--check") return Call{Work::Check, {}, {}};
    if (words[0] == "--help") return Call{Work::Help, {}, {}};
    if (words[0] == "--version") return Call{Work::Version, {}, {}};
    if (!words[0].starts_with("--")) return Call{Work::Window, words[0], {}};
  }
  if (words.size() == 3 && words[1] == "--save-as") return Call{Work::SaveAs, words[0], words[2]};
  return std::nullopt;
}

}  // namespace plexel::host
