#include "services/element_types.h"

namespace plexel {

namespace {

using Info = udtTactisBaseElement_ScanCodeInfo;
using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;

constexpr std::array<Buffer Info::*, LayerCount> pressBuffers = {
    &Info::strLayer1PressScanCode, &Info::strLayer2PressScanCode, &Info::strLayer3PressScanCode,
    &Info::strLayer4PressScanCode};
constexpr std::array<Buffer Info::*, LayerCount> releaseBuffers = {
    &Info::strLayer1ReleaseScanCode, &Info::strLayer2ReleaseScanCode, &Info::strLayer3ReleaseScanCode,
    &Info::strLayer4ReleaseScanCode};

template <typename Record>
auto Select(Record& info, const std::array<Buffer Info::*, LayerCount>& buffers, std::int32_t layer)
    -> decltype(&(info.*buffers[0])) {
  if (layer < 1 || layer > LayerCount) return nullptr;
  return &(info.*buffers[static_cast<std::size_t>(layer - 1)]);
}

}  // namespace

Buffer* PressBuffer(Info& info, std::int32_t layer) { return Select(info, pressBuffers, layer); }
Buffer* ReleaseBuffer(Info& info, std::int32_t layer) { return Select(info, releaseBuffers, layer); }
const Buffer* PressBuffer(const Info& info, std::int32_t layer) { return Select(info, pressBuffers, layer); }
const Buffer* ReleaseBuffer(const Info& info, std::int32_t layer) { return Select(info, releaseBuffers, layer); }

Buffer* CellBuffer(Info& info, std::int32_t row, std::int32_t col) {
  if (col == 1) return PressBuffer(info, row);
  if (col == 2) return ReleaseBuffer(info, row);
  return nullptr;
}

void ZeroAllBuffers(Info& info) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    *PressBuffer(info, layer) = Buffer{};
    *ReleaseBuffer(info, layer) = Buffer{};
  }
}

}  // namespace plexel
