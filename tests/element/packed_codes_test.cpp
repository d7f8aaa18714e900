#include "element/packed_codes.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace plexel {
namespace {

using Info = udtTactisBaseElement_ScanCodeInfo;
using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;
using PackedCodes = std::vector<std::uint8_t>;

/// What comes back into a record that held something else before.
Info Handed(const PackedCodes& codes) {
  Info record;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    PressBuffer(record, layer)->Value.fill(0x5A);
    ReleaseBuffer(record, layer)->NextValue = 7;
  }
  UnpackCodes(codes, record);
  return record;
}

Info KeptAndHanded(const Info& record) {
  PackedCodes codes;
  PackCodes(record, codes);
  return Handed(codes);
}

TEST(PackedCodes, OfANewElementAreEndMarksInTheFirst45Bytes) {
  const Info record = Handed(PackedCodes());
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    for (const Buffer* const buffer : {PressBuffer(record, layer), ReleaseBuffer(record, layer)}) {
      EXPECT_EQ(buffer->NextValue, 0);
      for (std::size_t index = 0; index < buffer->Value.size(); ++index) {
        EXPECT_EQ(buffer->Value[index], index < 45 ? 0xFF : 0) << "layer " << layer << ", index " << index;
      }
    }
  }
}

TEST(PackedCodes, ZeroedBuffersStayZero) { EXPECT_EQ(KeptAndHanded(Info{}), Info{}); }

TEST(PackedCodes, ASingleByteIsKeptAtEachPlace) {
  Info record;
  for (std::size_t place = 0; place < record.strLayer1PressScanCode.Value.size(); ++place) {
    record.strLayer1PressScanCode.Value[place] = 1;
    EXPECT_EQ(KeptAndHanded(record), record) << place;
    record.strLayer1PressScanCode.Value[place] = 0;
  }
}

TEST(PackedCodes, OfAZeroedBufferAreNoBytes) {
  PackedCodes zeroed, one;
  Info record;
  PackCodes(record, zeroed);
  record.strLayer1PressScanCode.Value[0] = 0x1C;
  PackCodes(record, one);
  EXPECT_EQ(one.size(), zeroed.size() + 1);
}

TEST(PackedCodes, OneTouchedBufferLeavesTheOthersAsTheyWere) {
  Info record = Handed(PackedCodes());
  record.strLayer3ReleaseScanCode = {{0xFF, 0xF0, 0x1C, 0xFF}, 3};
  EXPECT_EQ(KeptAndHanded(record), record);
}

TEST(PackedCodes, AFullBufferIsKeptWhole) {
  Info record;
  record.strLayer1PressScanCode.Value.fill(0xFF);
  record.strLayer4ReleaseScanCode.Value.fill(1);
  EXPECT_EQ(KeptAndHanded(record), record);
}

TEST(PackedCodes, TheLastIndexMayBeAnyNumber) {
  Info record;
  record.strLayer1PressScanCode.NextValue = std::numeric_limits<std::int32_t>::min();
  record.strLayer2ReleaseScanCode.NextValue = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(KeptAndHanded(record), record);
}

TEST(PackedCodes, TheLastRecordCounts) {
  Info first;
  first.strLayer1PressScanCode.Value.fill(9);
  PackedCodes codes;
  PackCodes(first, codes);
  PackCodes(Info{}, codes);
  EXPECT_EQ(Handed(codes), Info{});
  PackCodes(Handed(PackedCodes()), codes);
  EXPECT_EQ(Handed(codes), Handed(PackedCodes()));
}

TEST(PackedCodes, BuffersByThemselvesArePackedAsInARecord) {
  Info record;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    *PressBuffer(record, layer) = *ReleaseBuffer(record, layer) = InitialCodes();
  }
  PressBuffer(record, 2)->Value[3] = 0x1C;
  ReleaseBuffer(record, 4)->NextValue = 7;
  CodeBuffers buffers{};
  buffers[2] = PressBuffer(record, 2);
  buffers[7] = ReleaseBuffer(record, 4);
  std::vector<std::uint8_t> one, other;
  PackCodes(record, one);
  PackCodes(buffers, other);
  EXPECT_EQ(one, other);
  PackCodes(CodeBuffers{}, other);
  EXPECT_TRUE(other.empty());
}

TEST(PackedCodes, AnyBytesComeBack) {
  std::mt19937 random(20);
  for (int round = 0; round < 500; ++round) {
    Info record;
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      for (Buffer* const buffer : {PressBuffer(record, layer), ReleaseBuffer(record, layer)}) {
        if (random() % 4 == 0) {
          *buffer = InitialCodes();
          continue;
        }
        const std::size_t length = random() % (buffer->Value.size() + 1);
        for (std::size_t index = 0; index < length; ++index) {
          buffer->Value[index] = static_cast<std::uint8_t>(random() % 3 * 0x7F);
        }
        buffer->NextValue = static_cast<std::int32_t>(random());
      }
    }
    ASSERT_EQ(KeptAndHanded(record), record) << "round " << round;
  }
}

}  // namespace
}  // namespace plexel
