#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <thread>

#include "window/x_desktop.h"

/// Types and clicks on an X server. Takes one command a line from standard input and answers each with one line, which
/// begins with "ok" or "error". Keys are codes of the kernel's input layer, places are pixels of the screen.
namespace plexel::window_test {

namespace {

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '"' || character == '\\') quoted += '\\';
    quoted += static_cast<unsigned char>(character) < 0x20 ? ' ' : character;
  }
  return quoted + '"';
}

std::string Told(const Box& box) {
  std::ostringstream out;
  out << '[' << box.left << ',' << box.top << ',' << box.width << ',' << box.height << ']';
  return out.str();
}

std::string Told(const WindowFacts& facts) {
  std::ostringstream out;
  out << "{\"id\":" << facts.id << ",\"title\":" << Quoted(facts.title) << ",\"client\":" << Told(facts.client)
      << ",\"active\":" << (facts.active ? "true" : "false") << ",\"popup\":" << (facts.popup ? "true" : "false")
      << '}';
  return out.str();
}

class Typist {
 public:
  /// The answer to one command, without its "ok".
  std::string Do(const std::string& line) {
    std::istringstream words(line);
    std::string name;
    words >> name;
    const auto command = commands_.find(name);
    if (command == commands_.end()) throw std::runtime_error("there is no command " + name);
    return command->second(words);
  }

 private:
  using Command = std::function<std::string(std::istringstream&)>;

  static int Number(std::istringstream& words) {
    int number = 0;
    if (!(words >> number)) throw std::runtime_error("a number is missing");
    return number;
  }
  static Box ReadBox(std::istringstream& words) {
    Box box;
    for (int* part : {&box.left, &box.top, &box.width, &box.height}) *part = Number(words);
    return box;
  }
  static std::string Rest(std::istringstream& words) {
    std::string rest;
    std::getline(words >> std::ws, rest);
    return rest;
  }

  /// Two acts of a hand never fall into one millisecond.
  void Pace() const { std::this_thread::sleep_for(pace_); }
  void Key(int evdev, bool down) {
    desktop_.Key(evdev, down);
    Pace();
  }
  void Click(int button) {
    for (const bool down : {true, false}) {
      desktop_.Button(button, down);
      Pace();
    }
  }

  std::string KeyUpOrDown(std::istringstream& words) {
    std::string way;
    words >> way;
    if (way != "down" && way != "up") throw std::runtime_error("a key goes down or up");
    for (int evdev = 0; words >> evdev;) Key(evdev, way == "down");
    return {};
  }
  std::string ButtonUpOrDown(std::istringstream& words) {
    std::string way;
    words >> way;
    if (way != "down" && way != "up") throw std::runtime_error("a button goes down or up");
    desktop_.Button(Number(words), way == "down");
    Pace();
    return {};
  }
  std::string Tap(std::istringstream& words) {
    for (int evdev = 0; words >> evdev;) {
      Key(evdev, true);
      Key(evdev, false);
    }
    return {};
  }
  /// Presses the keys in their order and lets go in the opposite one.
  std::string Chord(std::istringstream& words) {
    std::vector<int> keys;
    for (int evdev = 0; words >> evdev;) keys.push_back(evdev);
    for (const int key : keys) Key(key, true);
    while (!keys.empty()) {
      Key(keys.back(), false);
      keys.pop_back();
    }
    return {};
  }
  std::string Clicks(std::istringstream& words, int count) {
    const int button = Number(words);
    for (int click = 0; click < count; ++click) Click(button);
    return {};
  }
  std::string Held() {
    std::string held;
    for (const int key : desktop_.HeldKeys()) held += (held.empty() ? "" : " ") + std::to_string(key);
    return held;
  }

  std::string Received() {
    std::string received;
    for (const std::string& key : desktop_.ReceivedKeys()) received += (received.empty() ? "" : " ") + key;
    return received;
  }

  std::string Windows() {
    std::string told;
    for (const WindowFacts& facts : desktop_.Windows()) told += (told.empty() ? "" : ",") + Told(facts);
    return '[' + told + ']';
  }

  std::string Picture(std::istringstream& words) {
    const Box box = ReadBox(words);
    const std::string name = Rest(words);
    const Pixels pixels = desktop_.Read(box);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(name.c_str(), "wb"), &std::fclose);
    if (!file) throw std::runtime_error("cannot write " + name);
    std::fprintf(file.get(), "P6\n%d %d\n255\n", box.width, box.height);
    for (const std::uint32_t value : pixels.values) {
      for (const unsigned shift : {16U, 8U, 0U}) std::fputc(static_cast<int>(value >> shift & 0xFFU), file.get());
    }
    if (std::ferror(file.get()) != 0) throw std::runtime_error("cannot write " + name);
    return {};
  }
  /// How many pixels of a box have a colour, and the box around them.
  std::string Colour(std::istringstream& words) {
    const Box box = ReadBox(words);
    std::uint32_t wanted = 0;
    if (!(words >> std::hex >> wanted)) throw std::runtime_error("a colour is missing");
    const Pixels pixels = desktop_.Read(box);
    int count = 0, left = box.width, top = box.height, right = -1, bottom = -1;
    for (int y = 0; y < box.height; ++y) {
      for (int x = 0; x < box.width; ++x) {
        if (pixels.values[static_cast<std::size_t>(y * box.width + x)] != wanted) continue;
        ++count;
        left = std::min(left, x);
        top = std::min(top, y);
        right = std::max(right, x);
        bottom = std::max(bottom, y);
      }
    }
    const Box around = count == 0 ? Box{} : Box{box.left + left, box.top + top, right - left + 1, bottom - top + 1};
    return "{\"count\":" + std::to_string(count) + ",\"box\":" + Told(around) + '}';
  }

  XDesktop desktop_;
  std::chrono::milliseconds pace_{3};
  const std::map<std::string, Command> commands_ = {
      {"key", [this](auto& words) { return KeyUpOrDown(words); }},
      {"tap", [this](auto& words) { return Tap(words); }},
      {"chord", [this](auto& words) { return Chord(words); }},
      {"held", [this](auto&) { return Held(); }},
      {"received", [this](auto&) { return Received(); }},
      {"grabbed", [this](auto&) { return std::string(desktop_.KeyboardIsGrabbed() ? "true" : "false"); }},
      {"pace",
       [this](auto& words) {
         pace_ = std::chrono::milliseconds(Number(words));
         return std::string();
       }},
      {"sleep",
       [](auto& words) {
         std::this_thread::sleep_for(std::chrono::milliseconds(Number(words)));
         return std::string();
       }},
      {"move",
       [this](auto& words) {
         const int x = Number(words);
         desktop_.MoveTo(x, Number(words));
         Pace();
         return std::string();
       }},
      {"button", [this](auto& words) { return ButtonUpOrDown(words); }},
      {"click", [this](auto& words) { return Clicks(words, 1); }},
      {"dblclick", [this](auto& words) { return Clicks(words, 2); }},
      {"answered", [this](auto&) { return std::string(desktop_.WindowManagerAnswers() ? "true" : "false"); }},
      {"windows", [this](auto&) { return Windows(); }},
      {"open-window",
       [this](auto& words) {
         const Box box = ReadBox(words);
         desktop_.Open(Rest(words), box);
         return std::string();
       }},
      {"drop",
       [this](auto& words) {
         const int window = Number(words), x = Number(words), y = Number(words);
         desktop_.Drop(static_cast<xcb_window_t>(window), x, y, Rest(words));
         return std::string();
       }},
      {"activate",
       [this](auto& words) {
         desktop_.Activate(static_cast<xcb_window_t>(Number(words)));
         return std::string();
       }},
      {"close",
       [this](auto& words) {
         desktop_.Close(static_cast<xcb_window_t>(Number(words)));
         return std::string();
       }},
      {"screen", [this](auto&) { return Told(desktop_.Screen()); }},
      {"picture", [this](auto& words) { return Picture(words); }},
      {"colour", [this](auto& words) { return Colour(words); }},
  };
};

int Run() {
  Typist typist;
  for (std::string line; std::getline(std::cin, line);) {
    std::string answer;
    try {
      answer = "ok " + typist.Do(line);
    } catch (const std::runtime_error& error) {
      answer = std::string("error ") + error.what();
    }
    std::cout << answer << std::endl;
  }
  return 0;
}

}  // namespace

}  // namespace plexel::window_test

int main() {
  try {
    return plexel::window_test::Run();
  } catch (const std::exception& error) {
    std::cerr << "typist: " << error.what() << '\n';
    return 1;
  }
}
