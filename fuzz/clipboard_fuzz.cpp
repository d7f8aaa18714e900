// Feeds any text to a project as if it came from the clipboard, and checks what must hold then.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "project/clipboard_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static plexel::Clipboard clipboard;
  clipboard.Check(std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}
