#pragma once

#include <QProcess>
#include <functional>

namespace plexel {

/// Sends keys to the desktop by a program of its own, the guard, which lets all of them go when this program ends in
/// whatever way.
class KeyGuard : public QObject {
 public:
  /// The word by which the editor's program is started as the guard.
  static constexpr const char* Word = "--key-guard";

  /// Starts a program as the guard.
  explicit KeyGuard(const QString& program);
  /// Behind this all keys are up.
  ~KeyGuard() override;

  /// A key, by its code of the kernel's input layer, goes down or comes up.
  void Send(int evdev, bool down);
  /// The guard could not start, or the desktop takes no keys.
  std::function<void()> onEnd;
  /// Somebody has ended the guard, and what was down still is. The next key that is sent starts another one.
  std::function<void()> onKilled;

 private:
  void Start();

  QString program_;
  QProcess guard_;
  bool refused_ = false;  ///< the desktop takes no keys
};

/// What the guard does: sends the keys that standard input tells until that ends, and lets go of what is down then. The
/// status to end with: 1 when the desktop takes no keys.
int RunKeyGuard();

}  // namespace plexel
