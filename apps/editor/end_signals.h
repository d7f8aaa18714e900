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
  /// `keep` is called in the event loop, behind a signal and when the session is about to end; the program then ends
  /// without questions, behind a signal at once and in a session when that tells it to.
  explicit EndSignals(std::function<void()> keep);
  ~EndSignals() override;

  /// Whether a signal or the session has ended the program: an event loop must not be entered any more.
  bool Heard() const { return heard_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void End();

  std::function<void()> keep_;
  std::unique_ptr<QSocketNotifier> notifier_;
  bool heard_ = false;
};

}  // namespace plexel
