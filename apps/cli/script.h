#pragma once

#include "cli/reporter.h"
#include "cli/script_source.h"
#include "cli/workbench.h"

namespace plexel {

/// Reads commands and carries them out, one after the other. While a form or a message box is shown the commands that
/// follow are carried out inside the one that showed it, which answers when it has closed.
class Script {
 public:
  Script(ScriptSource& source, Reporter& reporter);
  void BasePath(const std::string& directory) { bench_.surroundings.Settings().BasePath(directory); }
  /// Runs to the end of the script; std::system_error when it cannot be read.
  void Run();

 private:
  /// The script has ended. Unwinds all commands that wait for something shown; it is no failure of the system, so that
  /// nothing on the way can clear it.
  struct Ended {
    std::string reason;  ///< of their failure; empty when nothing is shown
  };

  using Open = std::function<bool()>;
  void RunWhile(const Open& open);
  void Execute(const ScriptLine& line, const Open& open);
  /// Answers a command that has succeeded; Ended when it was the last one and its form stays open.
  void Succeed(Json answer, const Open& open);
  Ended End();

  ScriptSource& source_;
  Reporter& reporter_;
  Workbench bench_;
  int depth_ = 0;  ///< of loops that wait for something shown
};

}  // namespace plexel
