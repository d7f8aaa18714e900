#include "project/key_reading.h"

#include <algorithm>
#include <array>

#include "forms/ascii.h"
#include "scancodes/special_functions.h"

namespace plexel {

namespace {

using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;
using Bytes = std::span<const std::uint8_t>;

constexpr std::uint8_t extendedPrefix = 0xE0, breakPrefix = 0xF0;
/// Shifts that keyboards invent around the keys of the cursor block.
constexpr KeyCode falseLeftShift = 0xE012, falseRightShift = 0xE059;
constexpr auto pauseBytes = std::to_array<std::uint8_t>({0xE1, 0x14, 0x77, 0xE1, 0xF0, 0x14, 0xF0, 0x77});

constexpr bool IsExtendedKey(std::uint8_t byte) { return byte >= 0x01 && byte <= 0x7F; }
constexpr bool IsPlainKey(std::uint8_t byte) { return IsExtendedKey(byte) || byte == 0x83 || byte == 0x84; }
bool IsPanelCommand(std::uint8_t byte) {
  return std::ranges::any_of(SpecialFunctions(), [byte](const SpecialFunction& one) { return one.code == byte; });
}

/// One thing that bytes do, at the start of what is left of a group.
struct Piece {
  std::size_t length{};
  KeyDeed deed{};  ///< Down also for a repeat
  KeyCode code{};
};

Piece FirstPiece(Bytes bytes) {
  std::size_t place = 0;
  const bool extended = bytes[0] == extendedPrefix;
  if (extended) ++place;
  const bool up = place < bytes.size() && bytes[place] == breakPrefix;
  if (up) ++place;
  if (place < bytes.size() && (extended ? IsExtendedKey(bytes[place]) : IsPlainKey(bytes[place]))) {
    const KeyCode code = (extended ? KeyCode{extendedPrefix} << 8U : 0U) | bytes[place];
    return {place + 1, up ? KeyDeed::Up : KeyDeed::Down, code};
  }
  if (bytes.size() >= pauseBytes.size() && std::equal(pauseBytes.begin(), pauseBytes.end(), bytes.begin())) {
    return {pauseBytes.size(), KeyDeed::Down, PauseKey};
  }
  return {1, IsPanelCommand(bytes[0]) ? KeyDeed::Panel : KeyDeed::Unknown, bytes[0]};
}

}  // namespace

std::string CodeText(KeyCode code) {
  std::string text;
  for (const unsigned shift : {16U, 8U, 0U}) {
    const KeyCode rest = code >> shift;
    if (rest == 0 && shift != 0) continue;
    if (!text.empty()) text += ' ';
    text += ascii::HexDigits[rest >> 4U & 0xFU];
    text += ascii::HexDigits[rest & 0xFU];
  }
  return text;
}

Bytes CountingBytes(const Buffer& buffer) {
  const std::int32_t count = std::clamp(buffer.NextValue, 0, Buffer::Size - 1);
  return Bytes(buffer.Value).subspan(1, static_cast<std::size_t>(count));
}

std::int32_t CountGroups(const Buffer& buffer) {
  const Bytes bytes = CountingBytes(buffer);
  const auto ends = static_cast<std::int32_t>(std::ranges::count(bytes, Buffer::EndMark));
  return bytes.empty() || bytes.back() == Buffer::EndMark ? ends : ends + 1;
}

void KeyReader::Read(const Buffer& buffer, Direction at, std::vector<KeyReport>& reports) {
  for (Bytes bytes = CountingBytes(buffer); !bytes.empty();) {
    const auto length = static_cast<std::size_t>(std::ranges::find(bytes, Buffer::EndMark) - bytes.begin());
    ReadGroup(bytes.first(length), at, reports);
    bytes = bytes.subspan(std::min(length + 1, bytes.size()));
  }
}

void KeyReader::ReadGroup(Bytes group, Direction at, std::vector<KeyReport>& reports) {
  while (!group.empty()) {
    const Piece piece = FirstPiece(group);
    group = group.subspan(piece.length);
    if (piece.code == falseLeftShift || piece.code == falseRightShift) continue;
    reports.push_back(Report(at, piece.deed, piece.code));
    if (piece.code == PauseKey) reports.push_back(Report(at, KeyDeed::Up, piece.code));  // its bytes do both
  }
}

/// Commands to the panel and bytes that are unknown are no keys, and never down.
KeyReport KeyReader::Report(Direction at, KeyDeed deed, KeyCode code) {
  const auto place = std::ranges::find(down_, code);
  const bool wasDown = place != down_.end();
  if (deed == KeyDeed::Down) {
    if (wasDown) return {at, KeyDeed::Repeat, code, true};
    down_.push_back(code);
  } else if (wasDown) {
    down_.erase(place);
  }
  return {at, deed, code, wasDown};
}

LayerReading ReadLayer(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer) {
  LayerReading reading;
  KeyReader reader;
  if (const Buffer* press = PressBuffer(record, layer)) reader.Read(*press, Direction::Press, reading.reports);
  if (const Buffer* release = ReleaseBuffer(record, layer)) reader.Read(*release, Direction::Release, reading.reports);
  reading.stillDown = reader.Down();
  return reading;
}

}  // namespace plexel
