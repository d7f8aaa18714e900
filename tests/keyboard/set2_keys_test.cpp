#include "keyboard/set2_keys.h"

#include <gtest/gtest.h>

#include <map>

#include "keyboard/key_table.h"
#include "scancodes/scan_code_table.h"

namespace plexel {
namespace {

TEST(Set2Keys, CodesAreKeysOfTheirPlace) {
  const std::map<std::uint32_t, int> known = {
      {0x1C, 30},      {0x16, 2},     {0x76, 1},  {0x5A, 28},    {0xE05A, 96},  {0x14, 29},    {0xE014, 97},
      {0x11, 56},      {0xE011, 100}, {0x12, 42}, {0x59, 54},    {0xE01F, 125}, {0xE027, 126}, {0xE02F, 127},
      {0x4A, 53},      {0xE04A, 98},  {0x7C, 55}, {0xE07C, 99},  {0x84, 99},    {0x77, 69},    {0x7E, 70},
      {0xE11477, 119}, {0xE07E, 119}, {0x70, 82}, {0xE070, 110}, {0xE071, 111}, {0x75, 72},    {0xE075, 103},
      {0xE074, 106},   {0x05, 59},    {0x07, 88}, {0x08, 183},   {0x5F, 194},   {0x61, 86},    {0x58, 58},
      {0x29, 57},      {0x66, 14},    {0x0D, 15}, {0x83, 65},    {0xE023, 113}, {0xE032, 115}};
  for (const auto& [code, evdev] : known) EXPECT_EQ(KeyOfSet2(code), evdev) << std::hex << code;
}

TEST(Set2Keys, EveryPlainKeyOfTheTableIsAKey) {
  for (const auto& key : scan_code_table::plainKeys) {
    const auto found = KeyOfSet2(key.code);
    ASSERT_TRUE(found) << int(key.code);
    EXPECT_EQ(FindKeyPosition(*found)->scanCode, key.scanCode);
  }
  for (const auto& key : scan_code_table::cursorKeys) {
    EXPECT_TRUE(KeyOfSet2(key.code));
    EXPECT_TRUE(KeyOfSet2(0xE000U | key.code));
  }
}

TEST(Set2Keys, OtherCodesAreNoKey) {
  for (const std::uint32_t code : {0x00U, 0x02U, 0xF1U, 0xE012U, 0xE059U, 0xE000U, 0xE077U, 0xE11400U}) {
    EXPECT_EQ(KeyOfSet2(code), std::nullopt) << std::hex << code;
  }
}

}  // namespace
}  // namespace plexel
