#pragma once

#include <exception>
#include <ostream>
#include <string>

namespace plexel::host {

/// The facts of a check, each a line.
class Facts {
 public:
  explicit Facts(std::ostream& told) : told_(told) {}

  /// Runs what finds out: it gives nothing when the fact holds, else what was seen instead. An exception is seen too.
  template <typename Find>
  void Try(const char* fact, Find&& find) {
    std::string seen;
    try {
      seen = find();
    } catch (const std::exception& failure) {
      seen = failure.what();
    }
    told_ << (seen.empty() ? "ok: " : "failed: ") << fact << (seen.empty() ? "" : ": ") << seen << std::endl;
    hold_ = hold_ && seen.empty();
  }
  bool Hold() const { return hold_; }

 private:
  std::ostream& told_;
  bool hold_ = true;
};

}  // namespace plexel::host
