#pragma once

#include <optional>
#include <utility>

#include "files/file_error.h"

namespace plexel {

/// The error that an act throws, or nothing when it succeeds.
template <typename Act>
std::optional<FileError> FileErrorOf(Act&& act) {
  try {
    std::forward<Act>(act)();
  } catch (const FileError& error) {
    return error;
  }
  return std::nullopt;
}

}  // namespace plexel
