#include <windows.h>

#include <iostream>
#include <sstream>
#include <string>

namespace {

bool SendMouse(const std::string& act, std::istringstream& words) {
  std::string button = "left";
  if (act != "drag") words >> button;
  if (act != "release") {
    int x = 0, y = 0;
    words >> x >> y;
    SetCursorPos(x, y);
  }
  const bool down = act == "press";
  INPUT input = {};
  input.type = INPUT_MOUSE;
  if (act == "drag") {
    input.mi.dwFlags = MOUSEEVENTF_MOVE;
  } else if (button == "turn") {
    input.mi.dwFlags = MOUSEEVENTF_WHEEL;
    input.mi.mouseData = static_cast<DWORD>(-WHEEL_DELTA);
  } else if (button == "right") {
    input.mi.dwFlags = down ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_RIGHTUP;
  } else {
    input.mi.dwFlags = down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP;
  }
  return SendInput(1, &input, sizeof input) == 1;
}

}  // namespace

/// Reads lines from its input and sends what they say as a keyboard would:
///   down VK SCAN [e]    a key goes down, by its virtual key and scan code in hexadecimal; "e" for an extended one
///   up VK SCAN [e]      a key goes up
///   press left|right|turn X Y    a button of the mouse goes down at a point of the screen, or the wheel turns down
///   drag X Y            the mouse moves there
///   release left|right  the button goes up
/// Each line is answered by "done", or "refused" when the system does not take it.
int main() {
  std::string line;
  while (std::getline(std::cin, line)) {
    std::istringstream words(line);
    std::string word, extended;
    words >> word;
    bool taken = true;
    if (word == "press" || word == "drag" || word == "release") {
      taken = SendMouse(word, words);
    } else {
      unsigned virtualKey = 0, scanCode = 0;
      words >> std::hex >> virtualKey >> scanCode >> extended;
      INPUT input = {};
      input.type = INPUT_KEYBOARD;
      input.ki.wVk = static_cast<WORD>(virtualKey);
      input.ki.wScan = static_cast<WORD>(scanCode);
      input.ki.dwFlags = (word == "up" ? KEYEVENTF_KEYUP : 0U) | (extended == "e" ? KEYEVENTF_EXTENDEDKEY : 0U);
      taken = SendInput(1, &input, sizeof input) == 1;
    }
    std::cout << (taken ? "done" : "refused") << std::endl;
  }
  return 0;
}
