#pragma once

#include <cstddef>
#include <cstdio>

#include "cli/json.h"

namespace plexel {

/// Writes the answers and reports of a script: one JSON object a line, each with the number of its command's line.
class Reporter {
 public:
  explicit Reporter(std::FILE* output) : output_(output) {}

  /// Something that happened while the current command was being carried out.
  void Report(Json report) { Write(std::move(report)); }
  void Succeed(Json fields);
  void Fail(const std::string& error);
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
  void Write(Json fields);

  std::FILE* output_;
  std::size_t line_ = 0;
  bool anyFailed_ = false;
};

}  // namespace plexel
