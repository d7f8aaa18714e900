#include "cli/script.h"

#include "cli/commands.h"

namespace plexel {

Script::Script(ScriptSource& source, Reporter& reporter) : source_(source), reporter_(reporter), bench_(reporter) {
  bench_.runWhile = [this](const std::function<bool()>& open) { RunWhile(open); };
}

void Script::Run() {
  try {
    RunWhile([] { return true; });
  } catch (const Ended&) {  // every command that waited has answered
  }
}

void Script::RunWhile(const std::function<bool()>& open) {
  ScriptLine line;
  while (open()) {
    if (!source_.Next(line)) throw Ended{bench_.FrontName()};
    Execute(line);
  }
}

void Script::Execute(const ScriptLine& line) {
  const Reporter::Current current(reporter_, line.number);
  try {
    Json answer = CarryOut(line);
    const std::string shown = bench_.FrontName();
    if (!shown.empty() && source_.AtEnd()) throw Ended{shown};
    reporter_.Succeed(std::move(answer));
  } catch (const Ended& ended) {
    reporter_.Fail("the script ended while " + ended.shown + " was shown");
    throw;
  } catch (const std::runtime_error& error) {
    reporter_.Fail(error.what());
  }
}

Json Script::CarryOut(const ScriptLine& line) {
  Json answer = Json::object();
  RunCommand(bench_, SplitWords(line.text), answer);
  return answer;
}

}  // namespace plexel
