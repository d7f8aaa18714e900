#pragma once

#include "platform/window.h"

namespace plexel {

/// The host's window behind ParentWindow.
class HostForm : public HostObject, public Window {
 public:
  Window* AsForm() override { return this; }
  std::string WindowName() const override { return "HostForm"; }
};

/// An object of the host that is no form.
class PlainHostObject : public HostObject {
 public:
  Window* AsForm() override { return nullptr; }
};

}  // namespace plexel
