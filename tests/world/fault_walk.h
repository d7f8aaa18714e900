#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

#include "world/file_faults.h"

namespace plexel {

/// What goes wrong with files: no rights, a full disk, a folder that has vanished, a medium that cannot be written, a
/// network that does not answer.
inline constexpr std::array fileErrors = {EACCES, ENOSPC, ENOENT, EROFS, EIO};

/// The words for an error of the system.
inline std::string ReasonOf(int error) { return std::generic_category().message(error); }

/// Lets each operation on files of an act fail once, with each error: `prepare`, then `act` with the next operation
/// below the directory failing, then `check` with that error, until an act comes to its end without a failing one.
/// Returns how many operations have failed.
template <typename Prepare, typename Act, typename Check>
int FailEachFileOperation(const std::filesystem::path& directory, Prepare&& prepare, Act&& act, Check&& check) {
  constexpr int most = 1000;
  int failed = 0;
  for (const int error : fileErrors) {
    for (int number = 1;; ++number) {
      prepare();
      std::string operation;
      {
        const FileFaults faults(directory, number, error);
        act();
        operation = faults.Failed();
      }
      const ::testing::ScopedTrace trace(__FILE__, __LINE__,
                                         operation + " (" + std::to_string(number) + "): " + ReasonOf(error));
      check(error);
      if (operation.empty()) break;
      ++failed;
      if (number == most || ::testing::Test::HasFailure()) {
        ADD_FAILURE() << "the walk ended here";
        return failed;
      }
    }
  }
  return failed;
}

}  // namespace plexel
