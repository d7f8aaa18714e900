#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/program.h"

namespace plexel {

/// One call of the program inside the test.
struct ProgramRun {
  explicit ProgramRun(const std::vector<std::string>& words, const std::string& text = {}) {
    std::istringstream input(text);
    std::ostringstream answers, faults;
    status = RunProgram(words, {input, answers, faults});
    output = answers.str();
    errors = faults.str();
  }
  int status = 0;
  std::string output, errors;
};

}  // namespace plexel
