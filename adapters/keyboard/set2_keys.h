#pragma once

#include <cstdint>
#include <optional>

namespace plexel {

/// The key that sends a code of scan code set 2 going down, such as 0x14, 0xE074 or 0xE11477, as a code of the kernel's
/// input layer; nothing for a code that no key of a PC sends.
std::optional<int> KeyOfSet2(std::uint32_t code);

}  // namespace plexel
