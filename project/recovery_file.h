#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "files/project_file.h"
#include "files/text_lines.h"

namespace plexel {

/// What a recovery file tells ahead of the project that it holds.
struct RecoveryHead {
  std::filesystem::path file;  ///< of the project; empty when it was never saved
  std::int64_t time{};         ///< of the writing, seconds since 1970
};

/// The text of a head; the text of a project follows it.
std::string FormatRecoveryHead(const RecoveryHead& head);

/// A recovery file that was read whole.
struct RecoveryFile {
  RecoveryHead head;
  Project project;
};
/// FileError with the line for anything that is no whole and proper recovery file.
RecoveryFile ParseRecovery(const TextFile& text);

}  // namespace plexel
