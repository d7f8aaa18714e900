#pragma once

#include <windows.h>

#include <string>

namespace plexel::host {

/// The list of what the controls have told, the latest below.
class EventList {
 public:
  /// The window goes with its parent.
  explicit EventList(HWND parent);
  HWND Handle() const { return list_; }
  /// Adds a line, UTF-8. The oldest go when there are many.
  void Add(const std::string& line);

 private:
  HWND list_;
  int widest_ = 0;
};

}  // namespace plexel::host
