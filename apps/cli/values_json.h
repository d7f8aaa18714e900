#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

#include "cli/json.h"
#include "element/property_bag.h"
#include "element/property_table.h"
#include "element/surface.h"
#include "forms/property_value.h"
#include "headless/event_host.h"
#include "headless/memory_bag.h"
#include "scancodes/code_sequence.h"
#include "services/element_types.h"

namespace plexel {

static_assert(std::is_same_v<HostEvent::Value, PropertyData>);

/// How the values of the system stand in answers. Booleans are its own 16-bit values; whole numbers have no fraction.

Json NumberToJson(double value);
inline Json BooleanToJson(Boolean value) { return Json(value.Value()); }
/// Two-digit upper-case hexadecimal numbers with blanks between them.
std::string BytesToText(const std::uint8_t* bytes, std::size_t count);

/// An argument of an event, or the value of a property.
Json ToJson(const HostEvent::Value& value);
Json ToJson(const Description& description);
Json ToJson(const MemoryBag& bag);
Json ToJson(const Surface& surface);
Json ToJson(const udtTactisBaseElement_TACTIS_SCANCODE& code);

/// Puts both sequences of codes with their lengths beside them into an answer, without the zeros at their ends.
void AddCodes(Json& answer, const KeyCodes& codes);

}  // namespace plexel
