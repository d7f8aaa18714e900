#include "cli/script_program.h"

#include <cstdio>
#include <cstring>
#include <iostream>
#include <optional>
#include <system_error>

#include "cli/exit_status.h"
#include "cli/script.h"
#include "files/byte_input.h"
#include "files/path_text.h"

namespace plexel {

namespace {

constexpr const char* Usage = "usage: plexel script [--base DIR] [FILE]\n";

struct Call {
  std::optional<std::string> base, file;
};

/// The words of the call; nothing when they are wrong.
std::optional<Call> Understand(std::span<const std::string> arguments) {
  Call call;
  bool onlyFiles = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& word = arguments[i];
    const bool isOption = !onlyFiles && word.starts_with('-');
    if (isOption && word == "--") {
      onlyFiles = true;
    } else if (isOption && word == "--base" && !call.base && i + 1 < arguments.size()) {
      call.base = arguments[++i];
    } else if (!isOption && !call.file) {
      call.file = word;
    } else {
      return std::nullopt;
    }
  }
  return call;
}

}  // namespace

int RunScript(std::span<const std::string> arguments) {
  const std::optional<Call> call = Understand(arguments);
  if (!call) {
    std::cerr << Usage;
    return WrongCall;
  }
  try {
    std::optional<ByteInput> input;
    if (call->file) {
      input.emplace(PathOf(*call->file));
    } else {
      input.emplace();
    }
    ScriptSource source(*input);
    Reporter reporter(stdout);
    Script script(source, reporter);
    if (call->base) script.BasePath(*call->base);
    script.Run();
    return reporter.AnyFailed() ? SomeFailed : AllSucceeded;
  } catch (const std::system_error& error) {
    std::cerr << "plexel: " << call->file.value_or("standard input") << ": " << error.code().message() << '\n';
    return WrongCall;
  }
}

}  // namespace plexel
