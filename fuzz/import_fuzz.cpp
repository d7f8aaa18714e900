// Feeds any content to the import of projects and checks its properties.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "project/import_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  plexel::CheckImport(std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}
