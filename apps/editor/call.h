#pragma once

#include <QString>
#include <optional>

namespace plexel {

/// What the words of the editor's call ask for.
struct Call {
  QString project;            ///< the file to open, empty for none
  QString pdf;                ///< the file to write a report of the project to instead of opening it, empty for none
  std::optional<int> status;  ///< set when no window is wanted: the exit status, 0 for an answer, 2 for a wrong call
  QString answer;             ///< then, for the user
};

/// Understands the words of the call. Needs no display and no application object; the toolkit's own options are left
/// to the toolkit.
Call Understand(int argc, char** argv);

}  // namespace plexel
