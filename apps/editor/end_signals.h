#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>

class QSessionManager;

namespace plexel {

/// Hears when the program is ended from outside: by SIGTERM, SIGINT or SIGHUP, and by the end of the desktop's session.
/// One at a time.
class EndSignals : public QObject {
 public:
  /// `keep` is called in the event loop, behind a signal and when the session is about to end; the program then ends
  /// without questions, behind a signal at once and in a session when that tells it to. Where it gives false, since not
  /// everything can be kept, `ask` closes the program as its user does, with all questions; while that gives false the
  /// program goes on.
  EndSignals(std::function<bool()> keep, std::function<bool()> ask);
  ~EndSignals() override;

  /// Whether a signal or the session has ended the program: an event loop must not be entered any more.
  bool Heard() const { return heard_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void End();
  void EndOfSession(QSessionManager& session);

  std::function<bool()> keep_, ask_;
  std::unique_ptr<QSocketNotifier> notifier_;
  bool heard_ = false, asking_ = false;
};

}  // namespace plexel
