#pragma once

#include <optional>
#include <span>
#include <string>

namespace plexel::host {

/// What the program is called for.
struct Call {
  enum class Work { Window, SaveAs, Check, Help, Version };
  Work work = Work::Window;
  std::string project, target;  ///< UTF-8; empty for none
};

/// How the program is called.
extern const char* const Usage;

/// Reads the words behind the program's name; nothing for a call that is wrong.
std::optional<Call> Understand(std::span<const std::string> words);

}  // namespace plexel::host
