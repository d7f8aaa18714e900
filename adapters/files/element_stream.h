#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "element/ctlPlexelBaseElement.h"
#include "files/flat_bag.h"

namespace plexel {

/// An element as bytes: what it stores in a bag under its 38 keys, each with its value, those at their default too, so
/// that it comes back as it was. The format says its version and ends in a checksum of all that is ahead of it: any
/// damage is found.

/// The bytes: a head of StreamHeadSize, then as many as it tells.
std::vector<std::uint8_t> StreamOf(const ctlPlexelBaseElement& element);

inline constexpr std::size_t StreamHeadSize = 12;
/// How many bytes follow a head; nothing when it is no head of this format.
std::optional<std::size_t> BytesBehind(std::span<const std::uint8_t> head);

/// The stream of values that have been written one behind the other: with its head and its checksum.
std::vector<std::uint8_t> Sealed(std::span<const std::uint8_t> values);

/// The values of a whole stream, head included; nothing when it is damaged.
std::optional<FlatBag> BagOf(std::span<const std::uint8_t> stream);

/// Gives an element that was read from a bag those values that a failing setter kept it from.
void ReadRest(ctlPlexelBaseElement& element, const FlatBag& bag);

}  // namespace plexel
