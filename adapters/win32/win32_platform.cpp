#include "win32/win32_platform.h"

#include <utility>

#include "win32/win32_ports.h"

namespace plexel {

Win32Platform::Win32Platform() : ports_(std::make_unique<Ports>(nullptr)) {}
Win32Platform::Win32Platform(Registry& registry) : ports_(std::make_unique<Ports>(&registry)) {}
Win32Platform::~Win32Platform() = default;

KeyboardHooks& Win32Platform::Hooks() { return ports_->hooks; }
KeyState& Win32Platform::Keys() { return ports_->keys; }
KeyboardLayout& Win32Platform::Layout() { return ports_->layout; }
Registry& Win32Platform::UserRegistry() { return ports_->registry; }
Screen& Win32Platform::TheScreen() { return ports_->screen; }
OsVersion& Win32Platform::Version() { return ports_->version; }
HelpViewer& Win32Platform::Help() { return ports_->help; }
ModalLoop& Win32Platform::Modal() { return ports_->modal; }
MessageBoxes& Win32Platform::Messages() { return ports_->messages; }
EventPump& Win32Platform::Events() { return ports_->events; }

void Win32Platform::CloseDialogs() { ports_->modal.TakeAllAway(); }

void Win32Platform::Report(const std::string& what) { ports_->modal.Report(what); }
void Win32Platform::OnFailure(std::function<void(const std::string&)> show) {
  ports_->modal.onFailure = std::move(show);
}

}  // namespace plexel
