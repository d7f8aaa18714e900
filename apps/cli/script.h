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
  /// The script has ended while something was shown. Unwinds all commands that wait for it; it is no failure of the
  /// system, so that nothing on the way can clear it.
  struct Ended {
    std::string shown;
  };

  void RunWhile(const std::function<bool()>& open);
  void Execute(const ScriptLine& line);
  Json CarryOut(const ScriptLine& line);

  ScriptSource& source_;
  Reporter& reporter_;
  Workbench bench_;
};

}  // namespace plexel
