#pragma once

#include <string>

namespace plexel {

/// A window that can own a modal form: one of the system's forms or the host's window.
class Window {
 public:
  virtual ~Window() = default;
  /// A name for logs and tests.
  virtual std::string WindowName() const = 0;
};

/// An object that a host hands in from outside, of which only one thing is asked: whether it is a form.
class HostObject {
 public:
  virtual ~HostObject() = default;
  /// The window behind this object, or null when the object is no form.
  virtual Window* AsForm() = 0;
};

}  // namespace plexel
