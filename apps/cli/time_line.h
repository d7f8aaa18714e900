#pragma once

#include <string>

#include "project/key_reading.h"

namespace plexel {

/// What a PC receives as lines for people: one row a key, one column an event, press and release side by side. A key
/// goes down at "▼", repeats at "▽", comes up at "▲" and is down in between; "◆" is a command to the panel and "?" an
/// unknown byte. A row whose key stays down ends in words that say so.
std::string TimeLine(const LayerReading& reading);

}  // namespace plexel
