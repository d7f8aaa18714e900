#include "editor/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <array>
#include <cerrno>
#include <csignal>
#include <stdexcept>

namespace plexel {

namespace {

/// The signal handler writes one byte, and the event loop reads it.
std::array<int, 2> channel = {-1, -1};
constexpr std::array endings = {SIGTERM, SIGINT, SIGHUP};

extern "C" void TellSignal(int) {
  const int error = errno;
  const char byte = 0;
  [[maybe_unused]] const ssize_t written = ::write(channel[1], &byte, 1);
  errno = error;
}

}  // namespace

EndSignals::EndSignals(std::function<void()> keep) : keep_(std::move(keep)) {
  if (::pipe2(channel.data(), O_CLOEXEC | O_NONBLOCK) != 0) throw std::runtime_error("there is no pipe for signals");
  notifier_ = std::make_unique<QSocketNotifier>(channel[0], QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
    notifier_->setEnabled(false);
    End();
  });
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) { keep_(); });
  qApp->installEventFilter(this);
  for (const int ending : endings) std::signal(ending, TellSignal);
}

bool EndSignals::eventFilter(QObject* watched, QEvent* event) {
  // The session tells the program to go, once everybody has kept what he has. Windows would ask questions then, which
  // nobody is there to answer.
  if (watched != qApp || event->type() != QEvent::Quit) return QObject::eventFilter(watched, event);
  End();
  return true;
}

void EndSignals::End() {
  heard_ = true;
  keep_();
  QApplication::exit(0);
}

EndSignals::~EndSignals() {
  for (const int ending : endings) std::signal(ending, SIG_DFL);
  notifier_.reset();
  for (int& end : channel) {
    ::close(end);
    end = -1;
  }
}

}  // namespace plexel
