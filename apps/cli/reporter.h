#pragma once

#include <cstddef>
#include <cstdio>
#include <optional>
#include <string>

#include "cli/json.h"

namespace plexel {

/// Writes the answers and reports of a script: one JSON object a line, each with the number of its command's line.
class Reporter {
 public:
  explicit Reporter(std::FILE* output) : output_(output) {}

  /// Something that happened while the current command was being carried out. Nothing is told once the reports have
  /// ended: what the end of the script itself brings about is no act of its.
  void Report(const Json& report) {
    if (!ended_) Write(report);
  }
  void EndReports() { ended_ = true; }
  void Succeed(const Json& fields);
  void Fail(const std::string& error);
  /// Keeps the success of the current command back, and all that follows behind it, until Settle tells what became of
  /// it: a success after all, or the failure of this reason. Without a command kept back Settle does nothing.
  void Defer(Json fields);
  void Settle(const std::string& error);
  bool IsDeferring() const { return deferred_.has_value(); }
  /// Whether any command has failed so far, or an answer could not be written.
  bool AnyFailed() const { return anyFailed_; }

  /// Makes a command the current one for the life of this object.
  class Current {
   public:
    Current(Reporter& reporter, std::size_t line) : reporter_(reporter), outer_(reporter.line_) {
      reporter_.line_ = line;
    }
    ~Current() { reporter_.line_ = outer_; }
    Current(const Current&) = delete;
    Current& operator=(const Current&) = delete;

   private:
    Reporter& reporter_;
    std::size_t outer_;
  };

 private:
  struct Deferred {
    std::size_t line;
    Json fields;
    std::string behind;  ///< what was written since
  };
  void Write(const Json& fields);
  void Put(const std::string& text);

  std::FILE* output_;
  std::size_t line_ = 0;
  bool anyFailed_ = false, ended_ = false;
  std::optional<Deferred> deferred_;
};

}  // namespace plexel
