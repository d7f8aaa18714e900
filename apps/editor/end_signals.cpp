#include "editor/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QSessionManager>
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

EndSignals::EndSignals(std::function<bool()> keep, std::function<bool()> ask)
    : keep_(std::move(keep)), ask_(std::move(ask)) {
  if (::pipe2(channel.data(), O_CLOEXEC | O_NONBLOCK) != 0) throw std::runtime_error("there is no pipe for signals");
  notifier_ = std::make_unique<QSocketNotifier>(channel[0], QSocketNotifier::Read);
  connect(notifier_.get(), &QSocketNotifier::activated, this, [this] {
    for (char byte = 0; ::read(channel[0], &byte, 1) > 0;) {
    }
    End();
  });
  connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& session) { EndOfSession(session); });
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
  if (heard_ || asking_) return;
  asking_ = true;
  heard_ = keep_() || ask_();
  asking_ = false;
  if (heard_) QApplication::exit(0);
}

void EndSignals::EndOfSession(QSessionManager& session) {
  if (keep_()) return;
  if (session.allowsInteraction()) {
    const bool may = ask_();
    session.release();
    if (may) return;
  }
  session.cancel();
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
