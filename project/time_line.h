#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "project/key_reading.h"

namespace plexel {

/// What a PC receives as rows: one a key, a panel function or an unknown byte, each with one mark an event.

/// The first five as KeyDeed has them: what the event does to the row. Else the key is down or up meanwhile.
enum class TimeMark : std::uint8_t { GoesDown, ComesUp, Repeats, Command, Unknown, Held, Idle };
constexpr TimeMark MarkOf(KeyDeed deed) { return static_cast<TimeMark>(deed); }
static_assert(MarkOf(KeyDeed::Repeat) == TimeMark::Repeats && MarkOf(KeyDeed::Unknown) == TimeMark::Unknown);

/// What a key is once the event of a mark is over: Held or Idle.
TimeMark Behind(TimeMark mark);

struct TimeRow {
  KeyDeed kind = KeyDeed::Down;  ///< Down for a key, or Panel, or Unknown
  KeyCode code{};
  std::vector<TimeMark> marks;  ///< as many as there are events
};

/// The rows of events in the order in which they come up. Keys of `down` that no event is about lead, held all along;
/// a key whose first event finds it down is held ahead of it.
std::vector<TimeRow> TimeRows(std::span<const KeyReport> reports, std::span<const KeyCode> down = {});

}  // namespace plexel
