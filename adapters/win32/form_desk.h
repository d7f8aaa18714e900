#pragma once

#include <exception>
#include <functional>
#include <string>

namespace plexel {

/// What the views of open forms share.
class FormDesk {
 public:
  virtual ~FormDesk() = default;
  /// Makes every open form show what its model says, now; the loop does so once more when nothing waits.
  virtual void SyncAll() = 0;
  /// Whether a keyboard hook runs, and keys are kept from the windows.
  virtual bool Captures() const = 0;
  /// Tells the user, and a debugger, of a failure that came out of one of his acts.
  virtual void Report(const std::string& what) = 0;
  /// Ends the form in front, whose showing then throws what came out of one of the user's acts.
  virtual void Abandon(std::exception_ptr thrown) = 0;
  /// Runs what the system calls so that nothing is thrown through it: a Failure is told to the user, and anything else
  /// ends the form in front and goes on to whoever has shown it.
  void Contain(const std::function<void()>& act) noexcept;
};

}  // namespace plexel
