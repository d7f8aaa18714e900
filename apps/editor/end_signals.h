#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace plexel {

/// Hears when the program is ended from outside: by SIGTERM, SIGINT or SIGHUP, and by the end of the desktop's session.
/// One at a time.
class EndSignals : public QObject {
 public:
  /// `keep` is called in the event loop; behind a signal the program then ends without questions, and at the end of the
  /// session the desktop ends it.
  explicit EndSignals(std::function<void()> keep);
  ~EndSignals() override;

  /// Whether a signal has ended the program: an event loop must not be entered any more.
  bool Heard() const { return heard_; }

 private:
  std::function<void()> keep_;
  std::unique_ptr<QSocketNotifier> notifier_;
  bool heard_ = false;
};

}  // namespace plexel
