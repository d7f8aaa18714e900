#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "scancodes/code_sequence.h"

/// The set 2 sequences of every key of set 1, with the deviations from the published set that the panels expect.
namespace plexel::scan_code_table {

/// Most keys send one of two forms, made of one code; the others are listed.
enum class Form : std::uint8_t {
  Plain,     ///< code / F0 code
  Extended,  ///< E0 code / E0 F0 code
  Listed,
};

struct KeySequences {
  Form form = Form::Listed;
  std::uint8_t code = 0;      ///< of the first two forms
  FixedCodes make, breaking;  ///< of a listed key
};

/// What decides between the variants of a key.
enum class Rule : std::uint8_t {
  None,     ///< not translated
  Fixed,    ///< nothing
  Sided,    ///< the extended flag: left, right
  Cursor,   ///< the virtual key, then Shift, then Num Lock
  Divide,   ///< the virtual key, then Shift
  Print,    ///< Shift or Ctrl, then Alt
  NumLock,  ///< the virtual key, then Ctrl
};

/// Places of the variants, by rule.
namespace variant {
inline constexpr std::size_t Only = 0;
inline constexpr std::size_t Left = 0, Right = 1;
inline constexpr std::size_t CursorShift = 0, CursorNumLock = 1, CursorPlain = 2, CursorPad = 3;
inline constexpr std::size_t DivideShift = 0, DividePlain = 1, DivideMainBlock = 2;
inline constexpr std::size_t PrintShiftOrCtrl = 0, PrintAlt = 1, PrintPlain = 2;
inline constexpr std::size_t NumLockKey = 0, PauseCtrl = 1, PausePlain = 2;
}  // namespace variant

struct Row {
  Rule rule = Rule::None;
  std::uint8_t navigationKey = 0;  ///< virtual key that makes it a key of the cursor block
  std::array<KeySequences, 4> variants{};
};

consteval KeySequences Simple(std::uint8_t code) { return {Form::Plain, code, {}, {}}; }
consteval KeySequences Extended(std::uint8_t code) { return {Form::Extended, code, {}, {}}; }
consteval KeySequences Listed(const FixedCodes& make, const FixedCodes& breaking) {
  return {Form::Listed, 0, make, breaking};
}

consteval Row FixedRow(const KeySequences& sequences) { return {Rule::Fixed, 0, {sequences}}; }
consteval Row SidedRow(std::uint8_t code) { return {Rule::Sided, 0, {Simple(code), Extended(code)}}; }
consteval Row CursorRow(std::uint8_t code, std::uint8_t navigationKey) {
  return {Rule::Cursor,
          navigationKey,
          {Listed({0xE0, 0xF0, 0x12, 0xE0, code}, {0xE0, 0xF0, code, 0xE0, 0x12}),
           Listed({0xE0, 0x12, 0xE0, code}, {0xE0, 0xF0, code, 0xE0, 0xF0, 0x12}), Extended(code), Simple(code)}};
}

struct ScanCodePair {
  std::uint8_t scanCode, code;
};
inline constexpr ScanCodePair plainKeys[] = {
    {0x01, 0x76}, {0x02, 0x16}, {0x03, 0x1E}, {0x04, 0x26}, {0x05, 0x25}, {0x06, 0x2E}, {0x07, 0x36}, {0x08, 0x3D},
    {0x09, 0x3E}, {0x0A, 0x46}, {0x0B, 0x45}, {0x0C, 0x4E}, {0x0D, 0x55}, {0x0E, 0x66}, {0x0F, 0x0D}, {0x10, 0x15},
    {0x11, 0x1D}, {0x12, 0x24}, {0x13, 0x2D}, {0x14, 0x2C}, {0x15, 0x35}, {0x16, 0x3C}, {0x17, 0x43}, {0x18, 0x44},
    {0x19, 0x4D}, {0x1A, 0x54}, {0x1B, 0x5B}, {0x1E, 0x1C}, {0x1F, 0x1B}, {0x20, 0x23}, {0x21, 0x2B}, {0x22, 0x34},
    {0x23, 0x33}, {0x24, 0x3B}, {0x25, 0x42}, {0x26, 0x4B}, {0x27, 0x4C}, {0x28, 0x52}, {0x29, 0x0E}, {0x2A, 0x12},
    {0x2B, 0x5D}, {0x2C, 0x1A}, {0x2D, 0x22}, {0x2E, 0x21}, {0x2F, 0x2A}, {0x30, 0x32}, {0x31, 0x31}, {0x32, 0x3A},
    {0x33, 0x41}, {0x34, 0x49}, {0x36, 0x59}, {0x37, 0x7C}, {0x39, 0x29}, {0x3A, 0x58}, {0x3B, 0x05}, {0x3C, 0x06},
    {0x3D, 0x04}, {0x3E, 0x0C}, {0x3F, 0x03}, {0x40, 0x0B}, {0x41, 0x83}, {0x42, 0x0A}, {0x43, 0x01}, {0x44, 0x09},
    {0x46, 0x7E}, {0x4A, 0x7B}, {0x4C, 0x73}, {0x4E, 0x79}, {0x56, 0x61}, {0x57, 0x78}, {0x58, 0x07}, {0x64, 0x08},
    {0x65, 0x10}, {0x66, 0x18}, {0x67, 0x20}, {0x68, 0x28}, {0x69, 0x30}, {0x6A, 0x38}, {0x6B, 0x40}, {0x6C, 0x48},
    {0x6D, 0x50}, {0x6E, 0x57}, {0x76, 0x5F}};

struct CursorKey {
  std::uint8_t scanCode, navigationKey, code;
};
inline constexpr CursorKey cursorKeys[] = {
    {0x47, 0x24, 0x6C}, {0x48, 0x26, 0x75}, {0x49, 0x21, 0x7D}, {0x4B, 0x25, 0x6B}, {0x4D, 0x27, 0x74},
    {0x4F, 0x23, 0x69}, {0x50, 0x28, 0x72}, {0x51, 0x22, 0x7A}, {0x52, 0x2D, 0x70}, {0x53, 0x2E, 0x71}};

using Table = std::array<Row, 0x77>;

consteval Table BuildTable() {
  using namespace variant;
  Table table{};
  for (const ScanCodePair& key : plainKeys) table[key.scanCode] = FixedRow(Simple(key.code));
  table[0x1C] = SidedRow(0x5A);
  table[0x1D] = SidedRow(0x14);
  table[0x38] = SidedRow(0x11);
  table[0x5B] = FixedRow(Extended(0x1F));
  table[0x5C] = FixedRow(Extended(0x27));
  table[0x5D] = FixedRow(Extended(0x2F));
  for (const CursorKey& key : cursorKeys) table[key.scanCode] = CursorRow(key.code, key.navigationKey);

  // Four cells of the cursor block leave the scheme.
  table[0x4B].variants[CursorNumLock].make.length = FixedCodes::Untouched;
  table[0x4F].variants[CursorShift].make = {0xE0, 0xF0, 0x12, 0x12, 0xE0, 0x69};
  table[0x50].variants[CursorNumLock].breaking.codes[3] = 0x40;
  table[0x52].variants[CursorNumLock].make = {0xE0, 0x12, 0x70};

  table[0x35] = {
      Rule::Divide, 0, {Listed({0xE0, 0xF0, 0x12, 0x4A}, {0xE0, 0x12, 0xF0, 0x4A}), Extended(0x4A), Simple(0x4A)}};
  table[0x00] = {
      Rule::Print,
      0,
      {Extended(0x7C), Simple(0x84), Listed({0xE0, 0x12, 0xE0, 0x7C}, {0xE0, 0xF0, 0x7C, 0xE0, 0xF0, 0x12})}};
  table[0x45] = {
      Rule::NumLock,
      0,
      {Simple(0x77), Listed(FixedCodes{0xE0, 0x7E, 0xE0, 0xF0, 0x7E}.OfLength(4), FixedCodes{0x00}.OfLength(1)),
       Listed({0xE1, 0x14, 0x77, 0xE1, 0xF0, 0x14, 0xF0, 0x77}, FixedCodes{0x00}.OfLength(0))}};
  return table;
}

inline constexpr Table table = BuildTable();

consteval std::size_t CountRows(Rule rule) {
  std::size_t count = 0;
  for (const Row& row : table) count += row.rule == rule ? 1U : 0U;
  return count;
}
static_assert(CountRows(Rule::Fixed) == std::size(plainKeys) + 3, "no plain key is overwritten or listed twice");
static_assert(CountRows(Rule::Sided) == 3);
static_assert(CountRows(Rule::Cursor) == std::size(cursorKeys));
static_assert(CountRows(Rule::Divide) + CountRows(Rule::Print) + CountRows(Rule::NumLock) == 3);
static_assert(table[0x54].rule == Rule::None && table[0x5A].rule == Rule::None && table[0x75].rule == Rule::None);

}  // namespace plexel::scan_code_table
