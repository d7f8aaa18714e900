#include "script_properties.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "cli/json.h"
#include "cli/script.h"
#include "cli/words.h"

namespace plexel {

namespace {

using Commands = std::map<std::size_t, std::string>;

constexpr auto NamesFiles = std::to_array<std::string_view>({"open", "save", "base"});

void Require(bool holds, const std::string& property) {
  if (!holds) throw std::logic_error(property);
}

/// A file without a name that holds a script.
class HeldScript {
 public:
  explicit HeldScript(std::string_view content) : descriptor_(memfd_create("script", MFD_CLOEXEC)) {
    if (descriptor_ < 0 || write(descriptor_, content.data(), content.size()) != static_cast<ssize_t>(content.size()))
      throw std::system_error(errno, std::generic_category());
  }
  ~HeldScript() { close(descriptor_); }
  HeldScript(const HeldScript&) = delete;
  HeldScript& operator=(const HeldScript&) = delete;

  std::string Place() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

 private:
  int descriptor_;
};

/// The commands as the language reads them, by their lines.
Commands CommandsOf(const HeldScript& script) {
  ByteInput input(script.Place());
  ScriptSource source(input);
  Commands commands;
  for (ScriptLine line; source.Next(line);) commands[line.number] = line.text;
  return commands;
}

bool NamesFile(const std::string& command) {
  try {
    const std::vector<Word> words = SplitWords(command);
    return !words.empty() && std::ranges::find(NamesFiles, words.front().text) != NamesFiles.end();
  } catch (const std::runtime_error&) {
    return false;  // the language refuses it too
  }
}

/// The script with an empty line for each command that names a file.
std::string Harmless(const Commands& commands) {
  std::string text;
  std::size_t number = 1;
  for (const auto& [line, command] : commands) {
    text.append(line - number, '\n');
    number = line;
    if (!NamesFile(command)) text += command;
  }
  return text + '\n';
}

std::string Told(const HeldScript& script) {
  char* bytes = nullptr;
  std::size_t size = 0;
  std::FILE* const output = open_memstream(&bytes, &size);
  if (output == nullptr) throw std::system_error(errno, std::generic_category());
  try {
    ByteInput input(script.Place());
    ScriptSource source(input);
    Reporter reporter(output);
    Script(source, reporter).Run();
  } catch (...) {
    std::fclose(output);
    std::free(bytes);
    throw;
  }
  std::fclose(output);
  std::string told(bytes, size);
  std::free(bytes);
  return told;
}

void CheckAnswers(const Commands& commands, const std::string& told) {
  std::map<std::size_t, int> answers;
  std::istringstream lines(told);
  for (std::string line; std::getline(lines, line);) {
    const Json object = Json::parse(line, nullptr, false);
    Require(object.is_object(), "a line that is told is a JSON object");
    const std::size_t number = object.value("line", std::size_t{0});
    Require(commands.contains(number), "what is told has the number of a command");
    if (object.contains("ok")) {
      Require(object["ok"].is_boolean() && object["ok"] != object.contains("error"), "a failure has its reason");
      ++answers[number];
    }
  }
  for (const auto& [number, command] : commands) Require(answers[number] == 1, "one answer to: " + command);
}

}  // namespace

void CheckScript(std::string_view content) {
  const HeldScript script(Harmless(CommandsOf(HeldScript(content))));
  const std::string told = Told(script);
  CheckAnswers(CommandsOf(script), told);
  Require(Told(script) == told, "a second run tells the same");
}

}  // namespace plexel
