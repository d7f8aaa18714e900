#include "cli/reporter.h"

#include <utility>

namespace plexel {

void Reporter::Succeed(const Json& fields) {
  Json answer;
  answer["ok"] = true;
  answer.update(fields);
  Write(answer);
}

void Reporter::Fail(const std::string& error) {
  anyFailed_ = true;
  Json answer;
  answer["ok"] = false;
  answer["error"] = error;
  Write(answer);
}

void Reporter::Defer(Json fields) { deferred_ = Deferred{line_, std::move(fields), {}}; }

void Reporter::Settle(const std::string& error) {
  if (!deferred_) return;
  Deferred kept = std::move(*deferred_);
  deferred_.reset();
  const Current current(*this, kept.line);
  if (error.empty()) {
    Succeed(kept.fields);
  } else {
    Fail(error);
  }
  Put(kept.behind);
}

void Reporter::Write(const Json& fields) {
  Json object;
  object["line"] = line_;
  object.update(fields);
  const std::string text = object.dump(-1, ' ', false, Json::error_handler_t::replace) + '\n';
  if (deferred_) {
    deferred_->behind += text;
  } else {
    Put(text);
  }
}

void Reporter::Put(const std::string& text) {
  const bool written = std::fwrite(text.data(), 1, text.size(), output_) == text.size();
  if (std::fflush(output_) != 0 || !written) anyFailed_ = true;
}

}  // namespace plexel
