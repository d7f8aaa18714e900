#pragma once

#include <array>
#include <string>

#include "project/problem.h"
#include "project/report.h"

namespace plexel {

/// The words for problems and reports in the language that was in force when this was made.
class ToldWords {
 public:
  ToldWords();
  ToldWords(const ToldWords&) = delete;
  ToldWords& operator=(const ToldWords&) = delete;

  const ReportWords& Rows() const { return rows_; }
  const ProblemWords& Problems() const { return problems_; }

 private:
  std::array<std::string, 7> kinds_;
  std::array<std::string, 15> patterns_;
  ReportWords rows_;
  ProblemWords problems_;
};

}  // namespace plexel
