#pragma once

#include <windows.h>

#include <string>

namespace plexel {

/// Another process that sends keys to the program in front, by the lines that plexel-key-sender reads.
class KeySender {
 public:
  KeySender();
  ~KeySender();
  KeySender(const KeySender&) = delete;
  KeySender& operator=(const KeySender&) = delete;

  /// Has lines sent; does not wait for it.
  void Send(const std::string& lines);

 private:
  PROCESS_INFORMATION process_ = {};
  HANDLE input_ = nullptr;
};

}  // namespace plexel
