#include "project/key_reading.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace plexel {
namespace {

using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;
using Deed = KeyDeed;

/// A buffer whose last byte is the one at NextValue.
Buffer Bytes(std::initializer_list<std::uint8_t> bytes) {
  Buffer buffer = InitialCodes();
  for (const std::uint8_t byte : bytes) buffer.Value[static_cast<std::size_t>(++buffer.NextValue)] = byte;
  return buffer;
}

/// What a press buffer does, as "down 14 up 14".
std::string Read(const Buffer& buffer) {
  constexpr const char* names[] = {"down ", "up ", "repeat ", "panel ", "unknown "};
  KeyReader reader;
  std::vector<KeyReport> reports;
  reader.Read(buffer, Direction::Press, reports);
  std::string text;
  for (const KeyReport& report : reports) {
    if (!text.empty()) text += ", ";
    text += names[static_cast<std::size_t>(report.deed)] + CodeText(report.code);
  }
  return text;
}
std::string Read(std::initializer_list<std::uint8_t> bytes) { return Read(Bytes(bytes)); }

TEST(KeyReading, PlainKeysGoDownAndComeUp) {
  EXPECT_EQ(Read({0x1C, 0xF0, 0x1C, 0xFF}), "down 1C, up 1C");
  EXPECT_EQ(Read({0x01, 0x7F, 0x83, 0x84, 0xFF}), "down 01, down 7F, down 83, down 84");
  EXPECT_EQ(Read({0xF0, 0x83, 0xF0, 0x84, 0xFF}), "up 83, up 84");
}

TEST(KeyReading, BytesOutsideTheKeysAreUnknown) {
  EXPECT_EQ(Read({0x00, 0x80, 0x82, 0x85, 0xDF, 0xFF}), "unknown 00, unknown 80, unknown 82, unknown 85, unknown DF");
}

TEST(KeyReading, ExtendedKeysGoDownAndComeUp) {
  EXPECT_EQ(Read({0xE0, 0x74, 0xE0, 0xF0, 0x74, 0xFF}), "down E0 74, up E0 74");
  EXPECT_EQ(Read({0xE0, 0x01, 0xE0, 0x7F, 0xFF}), "down E0 01, down E0 7F");
}

TEST(KeyReading, NoExtendedKeyLiesBehind7F) {
  EXPECT_EQ(Read({0xE0, 0x83, 0xFF}), "unknown E0, down 83");
  EXPECT_EQ(Read({0xE0, 0xF0, 0x84, 0xFF}), "unknown E0, up 84");
  EXPECT_EQ(Read({0xE0, 0x00, 0xFF}), "unknown E0, unknown 00");
}

TEST(KeyReading, ShiftsThatKeyboardsInventAreNothing) {
  EXPECT_EQ(Read({0xE0, 0x12, 0xE0, 0x6B, 0xE0, 0xF0, 0x6B, 0xE0, 0xF0, 0x12, 0xFF}), "down E0 6B, up E0 6B");
  EXPECT_EQ(Read({0xE0, 0xF0, 0x59, 0xE0, 0x59, 0xFF}), "");
  EXPECT_EQ(Read({0x12, 0x59, 0xFF}), "down 12, down 59");
}

TEST(KeyReading, PauseGoesDownAndComesUpAtOnce) {
  EXPECT_EQ(Read({0xE1, 0x14, 0x77, 0xE1, 0xF0, 0x14, 0xF0, 0x77, 0xFF}), "down E1 14 77, up E1 14 77");
}

TEST(KeyReading, APauseThatIsNotWholeIsAnUnknownByteAndItsKeys) {
  EXPECT_EQ(Read({0xE1, 0x14, 0x77, 0xFF}), "unknown E1, down 14, down 77");
  EXPECT_EQ(Read({0xE1, 0x14, 0x77, 0xFF, 0xE1, 0xF0, 0x14, 0xF0, 0x77, 0xFF}),
            "unknown E1, down 14, down 77, unknown E1, up 14, up 77");
}

TEST(KeyReading, PanelCommandsAreNoKeys) {
  EXPECT_EQ(Read({0xF1, 0xF2, 0xF3, 0xF4, 0xF5, 0xF6, 0xF9, 0xFB, 0xFE, 0xFF}),
            "panel F1, panel F2, panel F3, panel F4, panel F5, panel F6, panel F9, panel FB, panel FE");
  EXPECT_EQ(Read({0xF7, 0xF8, 0xFA, 0xFC, 0xFD, 0xFF}), "unknown F7, unknown F8, unknown FA, unknown FC, unknown FD");
}

TEST(KeyReading, APrefixThatNothingFollowsIsUnknown) {
  EXPECT_EQ(Read({0xF0, 0xFF}), "unknown F0");
  EXPECT_EQ(Read({0xE0, 0xFF}), "unknown E0");
  EXPECT_EQ(Read({0xE0, 0xF0, 0xFF}), "unknown E0, unknown F0");
  EXPECT_EQ(Read({0xF0, 0xF1, 0xFF}), "unknown F0, panel F1");
  EXPECT_EQ(Read({0xF0, 0xF0, 0x1C, 0xFF}), "unknown F0, up 1C");
}

TEST(KeyReading, AGroupEndsWhatItLeavesUnfinished) {
  EXPECT_EQ(Read({0xF0, 0xFF, 0x1C, 0xFF}), "unknown F0, down 1C");
  EXPECT_EQ(Read({0xE0, 0xFF, 0x74, 0xFF}), "unknown E0, down 74");
  EXPECT_EQ(Read({0xE0, 0xF0, 0xFF, 0x74, 0xFF}), "unknown E0, unknown F0, down 74");
}

TEST(KeyReading, AKeyThatGoesDownAgainRepeats) {
  EXPECT_EQ(Read({0x1C, 0x1C, 0xFF, 0x1C, 0xFF}), "down 1C, repeat 1C, repeat 1C");
  EXPECT_EQ(Read({0x1C, 0xF0, 0x1C, 0x1C, 0xFF}), "down 1C, up 1C, down 1C");
  EXPECT_EQ(Read({0x14, 0xE0, 0x14, 0xFF}), "down 14, down E0 14");
}

TEST(KeyReading, TellsOfEachKeyWhetherItWasDownAhead) {
  KeyReader reader;
  std::vector<KeyReport> reports;
  reader.Read(Bytes({0x1C, 0x1C, 0xF0, 0x1C, 0xF0, 0x1C, 0xF1, 0xFF}), Direction::Release, reports);
  EXPECT_EQ(reports, (std::vector<KeyReport>{{Direction::Release, KeyDeed::Down, 0x1C, false},
                                             {Direction::Release, KeyDeed::Repeat, 0x1C, true},
                                             {Direction::Release, KeyDeed::Up, 0x1C, true},
                                             {Direction::Release, KeyDeed::Up, 0x1C, false},
                                             {Direction::Release, KeyDeed::Panel, 0xF1, false}}));
}

TEST(KeyReading, TheIndex0AndWhatLiesBehindNextValueDoNotCount) {
  Buffer buffer = Bytes({0x1C, 0xFF});
  buffer.Value[0] = 0x14;
  buffer.Value[3] = 0x23;
  EXPECT_EQ(Read(buffer), "down 1C");
}

TEST(KeyReading, ANextValueOutsideTheBufferIsReadToItsEndOnly) {
  Buffer buffer = Bytes({0x1C, 0xFF});
  buffer.NextValue = -5;
  EXPECT_EQ(Read(buffer), "");
  EXPECT_EQ(CountGroups(buffer), 0);
  buffer.Value.fill(0x1C);
  buffer.NextValue = 2'000'000'000;
  EXPECT_EQ(CountingBytes(buffer).size(), 88u);
  EXPECT_EQ(CountGroups(buffer), 1);
}

TEST(KeyReading, GroupsAreCountedByTheirEndMarks) {
  EXPECT_EQ(CountGroups(InitialCodes()), 0);
  EXPECT_EQ(CountGroups(Buffer()), 0);
  EXPECT_EQ(CountGroups(Bytes({0x1C, 0xFF})), 1);
  EXPECT_EQ(CountGroups(Bytes({0x1C, 0xFF, 0xF0, 0x1C, 0xFF})), 2);
  EXPECT_EQ(CountGroups(Bytes({0xFF})), 1) << "a group of no bytes";
  EXPECT_EQ(CountGroups(Bytes({0x1C, 0xFF, 0x1C})), 2) << "bytes behind the last end mark";
}

TEST(KeyReading, WhatPressLeavesDownReleaseLetsGo) {
  udtTactisBaseElement_ScanCodeInfo record;
  record.strLayer2PressScanCode = Bytes({0x14, 0x1C, 0xFF});
  record.strLayer2ReleaseScanCode = Bytes({0xF0, 0x1C, 0xFF});
  const LayerReading reading = ReadLayer(record, 2);
  const std::vector<KeyReport> expected = {{Direction::Press, Deed::Down, 0x14, false},
                                           {Direction::Press, Deed::Down, 0x1C, false},
                                           {Direction::Release, Deed::Up, 0x1C, true}};
  EXPECT_EQ(reading.reports, expected);
  EXPECT_EQ(reading.stillDown, std::vector<KeyCode>{0x14});
}

TEST(KeyReading, KeysStayDownInTheOrderOfGoingDown) {
  udtTactisBaseElement_ScanCodeInfo record;
  record.strLayer1PressScanCode = Bytes({0x23, 0x14, 0x1C, 0xF0, 0x14, 0x14, 0xFF});
  EXPECT_EQ(ReadLayer(record, 1).stillDown, (std::vector<KeyCode>{0x23, 0x1C, 0x14}));
}

TEST(KeyReading, ALayerThatThereIsNotSendsNothing) {
  for (const std::int32_t layer : {0, 5, -1}) EXPECT_TRUE(ReadLayer({}, layer).reports.empty());
}

TEST(KeyReading, CodesAreToldAsHexadecimalBytes) {
  EXPECT_EQ(CodeText(0), "00");
  EXPECT_EQ(CodeText(0x0E), "0E");
  EXPECT_EQ(CodeText(0xE001), "E0 01");
  EXPECT_EQ(CodeText(PauseKey), "E1 14 77");
}

}  // namespace
}  // namespace plexel
