#include "cli/reporter.h"

#include <string>

namespace plexel {

void Reporter::Succeed(Json fields) {
  Json answer;
  answer["ok"] = true;
  answer.update(fields);
  Write(std::move(answer));
}

void Reporter::Fail(const std::string& error) {
  anyFailed_ = true;
  Json answer;
  answer["ok"] = false;
  answer["error"] = error;
  Write(std::move(answer));
}

void Reporter::Write(Json fields) {
  Json object;
  object["line"] = line_;
  object.update(fields);
  const std::string text = object.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
  const bool written = std::fwrite(text.data(), 1, text.size(), output_) == text.size();
  if (std::fflush(output_) != 0 || !written) anyFailed_ = true;
}

}  // namespace plexel
