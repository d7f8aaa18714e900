#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "services/element_types.h"

namespace plexel {

/// The bytes of code buffers, read as the keyboard controller of a PC reads them.

/// A key by what it sends going down, in scan code set 2: 0x14, 0xE074, 0xE11477.
using KeyCode = std::uint32_t;
inline constexpr KeyCode PauseKey = 0xE11477;

/// Two-digit upper-case hexadecimal numbers with blanks between them: "E0 74".
std::string CodeText(KeyCode code);

/// The two buffers of a layer.
enum class Direction : std::uint8_t { Press, Release };

/// What the bytes do. A key that goes down while it is down repeats; Panel is a command to the panel itself.
enum class KeyDeed : std::uint8_t { Down, Up, Repeat, Panel, Unknown };

struct KeyReport {
  Direction at{};
  KeyDeed deed{};
  KeyCode code = 0;      ///< the key; of Panel and Unknown the one byte
  bool wasDown = false;  ///< whether the key was down ahead of this
  bool operator==(const KeyReport&) const = default;
};

/// The bytes of a buffer that count: from index 1 to NextValue. A NextValue outside the buffer counts as its nearest
/// end.
std::span<const std::uint8_t> CountingBytes(const udtTactisBaseElement_TACTIS_SCANCODE& buffer);
/// The groups among them: one for each end mark, and one for bytes behind the last.
std::int32_t CountGroups(const udtTactisBaseElement_TACTIS_SCANCODE& buffer);

/// Reads buffers one after the other and keeps in mind which keys are down.
class KeyReader {
 public:
  /// Appends what the groups of a buffer do. Reading never stops: a byte that is nothing is Unknown by itself.
  void Read(const udtTactisBaseElement_TACTIS_SCANCODE& buffer, Direction at, std::vector<KeyReport>& reports);
  /// The keys that are down, in the order in which they went down.
  const std::vector<KeyCode>& Down() const { return down_; }
  /// Lets all keys go.
  void Reset() { down_.clear(); }

 private:
  void ReadGroup(std::span<const std::uint8_t> group, Direction at, std::vector<KeyReport>& reports);
  KeyReport Report(Direction at, KeyDeed deed, KeyCode code);

  std::vector<KeyCode> down_;
};

/// What a PC receives when an element is pressed and let go. A layer outside 1 to 4 sends nothing.
struct LayerReading {
  std::vector<KeyReport> reports;
  std::vector<KeyCode> stillDown;
};
LayerReading ReadLayer(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer);

}  // namespace plexel
