#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "project/key_reading.h"

namespace plexel {

/// A PC of the US layout, as far as a trial needs one: its lock keys and the text that is typed. It knows Shift, the
/// lock keys, Return, Tab and Backspace. Dead keys, input by character codes and shortcuts type nothing.
class TrialPc {
 public:
  void Hear(const KeyReport& report);

  bool CapsLock() const { return capsLock_; }
  bool NumLock() const { return numLock_; }
  bool ScrollLock() const { return scrollLock_; }
  /// UTF-8; of a long text the end.
  const std::string& Text() const { return text_; }
  void ClearText() { text_.clear(); }
  static constexpr std::size_t LongestText = 2000;

 private:
  bool IsDown(KeyCode code) const { return down_.contains(code); }
  void Type(KeyCode code);

  std::set<KeyCode> down_;
  bool capsLock_ = false, numLock_ = false, scrollLock_ = false;
  std::string text_;
};

}  // namespace plexel
