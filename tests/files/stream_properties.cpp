#include "stream_properties.h"

#include <cstdint>
#include <optional>
#include <span>
#include <stdexcept>
#include <vector>

#include "element/property_table.h"
#include "files/element_stream.h"
#include "world/world.h"

namespace plexel {

namespace {

using Bytes = std::vector<std::uint8_t>;

void Require(bool holds, const char* property) {
  if (!holds) throw std::logic_error(property);
}

void CheckKeys(const FlatBag& bag) {
  std::size_t keys = 0;
  for (const PropertyRow& row : PropertyTable()) {
    const bool written = row.storage.writeOrder != 0;
    if (row.storage.key.empty()) continue;
    Require((bag.Find(row.storage.key) != nullptr) == written, "a stream has all keys that are saved and no others");
    keys += written ? 1 : 0;
  }
  Require(bag.Size() == keys, "a stream has no key twice");
}

struct Silent : ElementHost {
  Boolean CheckIfLedIsAlreadyDefined(std::int32_t&, std::int32_t&) override { return False; }
};

/// As a host loads it: from the front, by as many bytes as the head tells.
std::optional<FlatBag> Load(const Bytes& stream) {
  const std::optional<FlatBag> bag = BagOf(stream);
  if (stream.size() < StreamHeadSize) {
    Require(!bag, "a stream has a head");
    return bag;
  }
  const auto behind = BytesBehind(std::span(stream).first(StreamHeadSize));
  Require(!bag || (behind && *behind + StreamHeadSize == stream.size()), "a head tells the size");
  return bag;
}

void Check(World& world, const Bytes& stream) {
  const std::optional<FlatBag> bag = Load(stream);
  if (!bag) return;
  CheckKeys(*bag);
  Silent host;
  const auto element = world.component.Read("F1", host, *bag);
  ReadRest(*element, *bag);
  Require(StreamOf(*element) == stream, "what is loaded is saved as the same bytes");
}

}  // namespace

void CheckStream(World& world, std::string_view content) {
  const Bytes bytes(content.begin(), content.end());
  Check(world, bytes);
  const Bytes sealed = Sealed(bytes);
  Check(world, sealed);
  // Any damage is found.
  for (const std::size_t place : {std::size_t{0}, sealed.size() / 2, sealed.size() - 1}) {
    Bytes damaged = sealed;
    damaged[place] ^= 0x10U;
    Require(!BagOf(damaged), "a stream with another bit is refused");
  }
}

}  // namespace plexel
