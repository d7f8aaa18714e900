#include "element/packed_codes.h"

#include <array>
#include <cstring>

namespace plexel {

namespace {

using Info = udtTactisBaseElement_ScanCodeInfo;
using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;

constexpr std::size_t mostBytes = std::tuple_size_v<CodeBuffers> * (1 + sizeof(Buffer::NextValue) + Buffer::Size);
/// In place of a number of bytes: the buffer is as it is in a new element.
constexpr std::uint8_t untouched = 0xFF;
static_assert(Buffer::Size < untouched, "the number of bytes is kept in one byte");

constexpr Buffer initialCodes = InitialCodes();

/// Calls `visit` for the eight buffers of a record, press before release, layer by layer.
template <typename Record, typename Visit>
void ForEachBuffer(Record& record, Visit&& visit) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    visit(*PressBuffer(record, layer));
    visit(*ReleaseBuffer(record, layer));
  }
}

/// How many bytes there are up to the last that is not 0.
std::size_t LengthOf(const Buffer& buffer) {
  std::size_t length = buffer.Value.size();
  for (std::uint64_t word = 0; length >= sizeof(word); length -= sizeof(word)) {
    std::memcpy(&word, &buffer.Value[length - sizeof(word)], sizeof(word));
    if (word != 0) break;
  }
  while (length > 0 && buffer.Value[length - 1] == 0) --length;
  return length;
}

}  // namespace

void PackCodes(const Info& record, std::vector<std::uint8_t>& packed) {
  CodeBuffers buffers{};
  std::size_t number = 0;
  ForEachBuffer(record, [&](const Buffer& buffer) { buffers[number++] = &buffer; });
  PackCodes(buffers, packed);
}

void PackCodes(const CodeBuffers& buffers, std::vector<std::uint8_t>& packed) {
  std::array<std::uint8_t, mostBytes> bytes{};
  std::size_t size = 0;
  bool anyTouched = false;
  for (const Buffer* const buffer : buffers) {
    if (buffer == nullptr || *buffer == initialCodes) {
      bytes[size++] = untouched;
      continue;
    }
    anyTouched = true;
    const std::size_t length = LengthOf(*buffer);
    bytes[size++] = static_cast<std::uint8_t>(length);
    std::memcpy(&bytes[size], &buffer->NextValue, sizeof(buffer->NextValue));
    std::memcpy(&bytes[size] + sizeof(buffer->NextValue), buffer->Value.data(), length);
    size += sizeof(buffer->NextValue) + length;
  }
  packed.assign(bytes.data(), bytes.data() + (anyTouched ? size : 0));
}

void UnpackCodes(const std::vector<std::uint8_t>& packed, Info& record) {
  const std::uint8_t* from = packed.data();
  ForEachBuffer(record, [&](Buffer& buffer) {
    const std::uint8_t length = packed.empty() ? untouched : *from++;
    if (length == untouched) {
      buffer = initialCodes;
      return;
    }
    std::memcpy(&buffer.NextValue, from, sizeof(buffer.NextValue));
    from += sizeof(buffer.NextValue);
    buffer.Value.fill(0);
    std::memcpy(buffer.Value.data(), from, length);
    from += length;
  });
}

}  // namespace plexel
