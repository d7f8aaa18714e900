#include "cli/script.h"

#include "cli/commands.h"

namespace plexel {

namespace {

class Deeper {
 public:
  explicit Deeper(int& depth) : depth_(depth) { ++depth_; }
  ~Deeper() { --depth_; }
  Deeper(const Deeper&) = delete;
  Deeper& operator=(const Deeper&) = delete;

 private:
  int& depth_;
};

}  // namespace

Script::Script(ScriptSource& source, Reporter& reporter) : source_(source), reporter_(reporter), bench_(reporter) {
  bench_.runWhile = [this](const Open& open) {
    const Deeper deeper(depth_);
    RunWhile(open);
  };
}

void Script::Run() {
  try {
    RunWhile([] { return true; });
  } catch (const Ended& ended) {
    reporter_.Settle(ended.reason);
  }
}

void Script::RunWhile(const Open& open) {
  ScriptLine line;
  while (open()) {
    if (!source_.Next(line)) throw End();
    Execute(line, open);
  }
}

void Script::Execute(const ScriptLine& line, const Open& open) {
  const Reporter::Current current(reporter_, line.number);
  try {
    Json answer = Json::object();
    RunCommand(bench_, SplitWords(line.text), answer);
    Succeed(std::move(answer), open);
  } catch (const Ended& ended) {
    reporter_.Settle(ended.reason);
    reporter_.Fail(ended.reason);
    throw;
  } catch (const std::runtime_error& error) {
    reporter_.Fail(error.what());
  }
}

void Script::Succeed(Json answer, const Open& open) {
  const bool last = depth_ > 0 && source_.AtEnd();
  if (last && open()) throw End();
  if (last && !reporter_.IsDeferring()) {
    // The commands that wait go on now, and close what is shown, or leave it, or show something new.
    reporter_.Defer(std::move(answer));
  } else {
    reporter_.Succeed(answer);
  }
}

Script::Ended Script::End() {
  reporter_.EndReports();
  const std::string shown = bench_.FrontName();
  return Ended{shown.empty() ? std::string() : "the script ended while " + shown + " was shown"};
}

}  // namespace plexel
