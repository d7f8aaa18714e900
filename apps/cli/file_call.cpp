#include "cli/file_call.h"

#include <algorithm>
#include <iostream>
#include <optional>

#include "cli/exit_status.h"
#include "files/file_error.h"

namespace plexel {

namespace {

bool Holds(const std::vector<std::string_view>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

/// The parts of a call; nothing for one that does not fit the form.
std::optional<FileCall> Understand(const FileCallForm& form, std::span<const std::string> arguments) {
  FileCall call;
  bool onlyFiles = false;
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    const std::string& word = arguments[index];
    if (onlyFiles || word == "-" || !word.starts_with('-')) {
      call.files.push_back(word);
    } else if (word == "--") {
      onlyFiles = true;
    } else if (Holds(form.switches, word)) {
      call.switches.insert(word);
    } else if (Holds(form.options, word) && index + 1 < arguments.size() && !call.options.contains(word)) {
      call.options[word] = arguments[++index];
    } else {
      return std::nullopt;
    }
  }
  if (call.files.size() < form.least || call.files.size() > form.most) return std::nullopt;
  return call;
}

int RefuseCall(const FileCallForm& form) {
  std::cerr << form.help.substr(0, form.help.find('\n')) << '\n';
  return WrongCall;
}

}  // namespace

int RunFileCall(const FileCallForm& form, std::span<const std::string> arguments,
                const std::function<int(const FileCall& call)>& act) {
  if (arguments.size() == 1 && arguments.front() == "--help") {
    std::cout << form.help << std::flush;
    return std::cout ? AllSucceeded : WrongCall;
  }
  const std::optional<FileCall> call = Understand(form, arguments);
  if (!call) return RefuseCall(form);
  try {
    return act(*call);
  } catch (const FileError& error) {
    std::cerr << error.what() << '\n';
    return WrongCall;
  }
}

}  // namespace plexel
