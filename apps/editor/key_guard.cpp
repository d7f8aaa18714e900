#include "editor/key_guard.h"

#include <unistd.h>

#include <array>
#include <bitset>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <memory>

#include "keyboard/key_sender.h"
#include "keyboard/uinput_key_sender.h"

namespace plexel {

namespace {

/// One key on its way to the guard: its code, and whether it goes down.
using Message = std::array<unsigned char, 2>;

/// Beside Wayland an X server reaches its own programs alone, and the kernel all of them, where the user may.
std::unique_ptr<KeySender> Sender() {
  const char* const wayland = std::getenv("WAYLAND_DISPLAY");
  if (wayland != nullptr && *wayland != '\0') {
    if (auto sender = KeySenderOfKernel()) return sender;
  }
  return KeySenderOfXServer();
}

/// False at the end of the input.
bool Read(Message& message) {
  std::size_t count = 0;
  while (count < message.size()) {
    const ssize_t got = ::read(STDIN_FILENO, message.data() + count, message.size() - count);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return false;
    count += static_cast<std::size_t>(got);
  }
  return true;
}

}  // namespace

KeyGuard::KeyGuard(const QString& program) : program_(program) {
  connect(&guard_, &QProcess::finished, this, [this](int, QProcess::ExitStatus how) {
    refused_ = how == QProcess::NormalExit;
    if (const auto& tell = refused_ ? onEnd : onKilled) tell();
  });
  connect(&guard_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart) return;
    refused_ = true;
    if (onEnd) onEnd();
  });
  guard_.setProcessChannelMode(QProcess::ForwardedChannels);
  Start();
}

void KeyGuard::Start() { guard_.start(program_, {Word}); }

KeyGuard::~KeyGuard() {
  onEnd = onKilled = nullptr;
  if (guard_.state() == QProcess::NotRunning) return;
  guard_.closeWriteChannel();
  guard_.waitForFinished();
}

void KeyGuard::Send(int evdev, bool down) {
  if (refused_) return;
  if (guard_.state() == QProcess::NotRunning) Start();
  const std::array<char, 2> message = {static_cast<char>(evdev), static_cast<char>(down)};
  guard_.write(message.data(), message.size());
}

int RunKeyGuard() {
  // What ends the program in front, or all of a terminal, must not end the guard ahead of it.
  for (const int ending : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) std::signal(ending, SIG_IGN);
  const auto sender = Sender();
  if (!sender) return 1;
  std::bitset<256> down;
  for (Message message{}; Read(message);) {
    const bool goesDown = message[1] != 0;
    if (sender->Send(message[0], goesDown)) down[message[0]] = goesDown;
  }
  for (std::size_t key = 0; key < down.size(); ++key) {
    if (down[key]) sender->Send(static_cast<int>(key), false);
  }
  return 0;
}

}  // namespace plexel
