#pragma once

#include <filesystem>
#include <memory>

#include "keyboard/key_sender.h"

namespace plexel {

/// Sends through the kernel's input layer, as a keyboard of its own that lasts as long as the sender: whatever runs in
/// front gets the keys, on Wayland too. Null when the user may not write the device, or there is none.
std::unique_ptr<KeySender> KeySenderOfKernel(const std::filesystem::path& device = "/dev/uinput");

}  // namespace plexel
