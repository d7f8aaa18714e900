#include "cli/check_program.h"

#include <iostream>

#include "cli/exit_status.h"
#include "files/file_error.h"
#include "files/parameter_check.h"

namespace plexel {

int RunCheck(std::span<const std::string> arguments) {
  if (arguments.size() != 1 || arguments.front().starts_with("--")) {
    std::cerr << "usage: plexel check FILE.cfg\n";
    return WrongCall;
  }
  try {
    const std::vector<Finding> findings = CheckParameterFile(arguments.front());
    for (const Finding& finding : findings) {
      std::cout << arguments.front() << ':' << finding.line << ": " << finding.text << '\n';
    }
    return findings.empty() ? AllSucceeded : SomeFailed;
  } catch (const FileError& error) {
    std::cerr << "plexel: " << error.what() << '\n';
    return WrongCall;
  }
}

}  // namespace plexel
