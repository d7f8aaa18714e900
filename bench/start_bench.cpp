// From the start of a program to its first picture: the editor with a project, and in turn with it the peers, an empty
// window of the toolkit and one with a line of text, for which the toolkit looks at the fonts of the system. All run as
// processes of their own on the X server that DISPLAY names, where nothing else may be to be seen.
//
//   plexel_bench_start ROUNDS PROGRAM WORD ...

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QScreen>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
constexpr std::string_view PeerWord = "--window", TextPeerWord = "--window-with-text";

/// The peers: a window of the toolkit as large as the editor's, with nothing or a line of text in it.
int ShowWindow(int count, char** words, bool text) {
  QApplication application(count, words);
  QMainWindow window;
  if (text) window.setCentralWidget(new QLabel("Plexel"));
  window.resize(QSize(1360, 940).boundedTo(window.screen()->availableSize() - QSize(60, 60)));
  window.show();
  return QApplication::exec();
}

struct Free {
  void operator()(void* memory) const { std::free(memory); }
};

/// The middle of the screen, looked at from outside.
class ScreenWatch {
 public:
  ScreenWatch() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_) != 0) throw std::runtime_error("the X server does not answer");
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
  }
  ~ScreenWatch() { xcb_disconnect(connection_); }
  ScreenWatch(const ScreenWatch&) = delete;
  ScreenWatch& operator=(const ScreenWatch&) = delete;

  /// The colours of a few pixels round the middle.
  std::vector<std::uint8_t> Look() const {
    constexpr int edge = 8;
    const auto cookie = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root,
                                      static_cast<std::int16_t>(screen_->width_in_pixels / 2),
                                      static_cast<std::int16_t>(screen_->height_in_pixels / 2), edge, edge, ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, Free> reply(xcb_get_image_reply(connection_, cookie, nullptr));
    if (!reply) throw std::runtime_error("the screen cannot be looked at");
    const std::uint8_t* const data = xcb_get_image_data(reply.get());
    return {data, data + xcb_get_image_data_length(reply.get())};
  }

  /// Waits until the middle shows something else than before, or the same again.
  void Await(const std::vector<std::uint8_t>& ground, bool same) const {
    constexpr std::chrono::seconds patience(20);
    constexpr std::chrono::microseconds pause(500);
    for (const auto end = Clock::now() + patience; (Look() == ground) != same; std::this_thread::sleep_for(pause)) {
      if (Clock::now() > end) throw std::runtime_error("nothing has come to be seen on the screen");
    }
  }

 private:
  xcb_connection_t* connection_;
  const xcb_screen_t* screen_;
};

/// A program that is being run, ended with this object.
class Process {
 public:
  explicit Process(std::vector<std::string> words) {
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    id_ = ::fork();
    if (id_ < 0) throw std::runtime_error("no process can be made");
    if (id_ > 0) return;
    ::execvp(arguments.front(), arguments.data());
    ::_exit(127);
  }
  ~Process() {
    ::kill(id_, SIGKILL);
    ::waitpid(id_, nullptr, 0);
  }
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

 private:
  pid_t id_;
};

/// Milliseconds from the start of a program to its picture.
double StartTime(const ScreenWatch& screen, const std::vector<std::string>& words) {
  const std::vector<std::uint8_t> ground = screen.Look();
  std::chrono::duration<double, std::milli> taken{};
  {
    const auto start = Clock::now();
    const Process process(words);
    screen.Await(ground, false);
    taken = Clock::now() - start;
  }
  screen.Await(ground, true);
  return taken.count();
}

double Median(std::vector<double> times) {
  std::ranges::sort(times);
  return times[times.size() / 2];
}

int Measure(int rounds, const std::vector<std::string>& program) {
  const std::string self = std::filesystem::canonical("/proc/self/exe").string();
  const std::vector<std::string> peer = {self, std::string(PeerWord)}, textPeer = {self, std::string(TextPeerWord)};
  // No configuration and no unsaved work of the user's own.
  std::string home = (std::filesystem::temp_directory_path() / "plexel_bench_XXXXXX").string();
  if (::mkdtemp(home.data()) == nullptr) throw std::runtime_error("no directory can be made");
  ::setenv("XDG_CONFIG_HOME", home.c_str(), 1);
  ::setenv("XDG_STATE_HOME", home.c_str(), 1);
  ::setenv("QT_QPA_PLATFORM", "xcb", 1);
  const ScreenWatch screen;
  StartTime(screen, program);
  StartTime(screen, peer);
  std::vector<double> ours, peers, textPeers, shares, textShares;
  for (int round = 0; round < rounds; ++round) {
    ours.push_back(StartTime(screen, program));
    peers.push_back(StartTime(screen, peer));
    textPeers.push_back(StartTime(screen, textPeer));
    shares.push_back(ours.back() / peers.back());
    textShares.push_back(ours.back() / textPeers.back());
  }
  std::filesystem::remove_all(home);
  std::cout << "start to the first picture, medians of " << rounds << ": " << Median(ours) << " ms, an empty window "
            << Median(peers) << " ms, " << Median(shares) << " times; one with a line of text " << Median(textPeers)
            << " ms, " << Median(textShares) << " times\n";
  return 0;
}

}  // namespace

int main(int count, char** words) {
  if (count == 2 && words[1] == PeerWord) return ShowWindow(count, words, false);
  if (count == 2 && words[1] == TextPeerWord) return ShowWindow(count, words, true);
  try {
    const int rounds = count > 2 ? std::atoi(words[1]) : 0;
    if (rounds < 1) throw std::runtime_error("the call is: plexel_bench_start ROUNDS PROGRAM WORD ...");
    return Measure(rounds, {words + 2, words + count});
  } catch (const std::exception& failure) {
    std::cerr << "plexel_bench_start: " << failure.what() << '\n';
    return 1;
  }
}
