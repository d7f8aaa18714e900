#include "editor/layer_room.h"

#include <algorithm>

#include "platform/clean_up.h"
#include "platform/failure.h"
#include "project/key_reading.h"
#include "scancodes/element_codes.h"
#include "services/code_limit.h"
#include "services/module_state.h"

namespace plexel {

namespace {

using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;

std::int32_t UsedBytes(const Buffer& buffer) {
  return static_cast<std::int32_t>(
      std::ranges::count_if(CountingBytes(buffer), [](std::uint8_t byte) { return byte != Buffer::EndMark; }));
}

/// A buffer that does not say where it ends has no room.
std::int32_t FreeBytes(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer) {
  std::int32_t count = 0;
  try {
    while (HasRoomForCodes(layer, record, count + 1)) ++count;
  } catch (const Failure&) {
    return 0;
  }
  return count;
}

}  // namespace

LayerRoom RoomOf(const udtTactisBaseElement_ScanCodeInfo& record, std::int32_t layer) {
  return {UsedBytes(*PressBuffer(record, layer)) + UsedBytes(*ReleaseBuffer(record, layer)), FreeBytes(record, layer)};
}

LayerRoom RoomOf(const ctlPlexelBaseElement& element, const udtTactisBaseElement_ScanCodeInfo& record,
                 std::int32_t layer) {
  const AtEnd restored([limit = Module().lngMaxScanCodes] { Module().lngMaxScanCodes = limit; });
  Module().lngMaxScanCodes = MaxScanCodesFor(element.VantaEnabled());
  return RoomOf(record, layer);
}

}  // namespace plexel
