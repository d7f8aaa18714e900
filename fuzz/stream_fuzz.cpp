// Feeds any bytes to the reader of element streams and checks its properties.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "files/stream_properties.h"
#include "world/world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static plexel::World world;  // making it takes longer than reading
  plexel::CheckStream(world, std::string_view(reinterpret_cast<const char*>(data), size));
  return 0;
}
