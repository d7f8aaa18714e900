#include <windows.h>

#include <iostream>
#include <sstream>
#include <string>

/// Reads lines from its input and sends what they say as a keyboard would:
///   down VK SCAN [e]    a key goes down, by its virtual key and scan code in hexadecimal; "e" for an extended one
///   up VK SCAN [e]      a key goes up
///   wait MILLISECONDS
/// Each line is answered by "done", or "refused" when the system does not take it.
int main() {
  std::string line;
  while (std::getline(std::cin, line)) {
    std::istringstream words(line);
    std::string word, extended;
    words >> word;
    bool taken = true;
    if (word == "wait") {
      DWORD milliseconds = 0;
      words >> milliseconds;
      Sleep(milliseconds);
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
