#include "project/key_code_names.h"

#include <algorithm>
#include <array>

#include "scancodes/key_names.h"
#include "scancodes/scan_code_table.h"
#include "scancodes/special_functions.h"

namespace plexel {

namespace {

/// A key with the fixed name of its virtual key.
struct FixedRow {
  KeyCode code;
  std::uint8_t virtualKey;
};
constexpr auto fixedRows = std::to_array<FixedRow>(
    {{0x01, 0x78},   {0x03, 0x74},   {0x04, 0x72},   {0x05, 0x70},   {0x06, 0x71},   {0x07, 0x7B},   {0x08, 0x7C},
     {0x09, 0x79},   {0x0A, 0x77},   {0x0B, 0x75},   {0x0C, 0x73},   {0x0D, 0x09},   {0x10, 0x7D},   {0x11, 0x12},
     {0x12, 0x10},   {0x14, 0x11},   {0x18, 0x7E},   {0x20, 0x7F},   {0x28, 0x80},   {0x29, 0x20},   {0x30, 0x81},
     {0x38, 0x82},   {0x40, 0x83},   {0x48, 0x84},   {0x50, 0x85},   {0x57, 0x86},   {0x58, 0x14},   {0x59, 0x10},
     {0x5A, 0x0D},   {0x5F, 0x87},   {0x66, 0x08},   {0x69, 0x61},   {0x6B, 0x64},   {0x6C, 0x67},   {0x70, 0x60},
     {0x72, 0x62},   {0x73, 0x65},   {0x74, 0x66},   {0x75, 0x68},   {0x76, 0x1B},   {0x77, 0x90},   {0x78, 0x7A},
     {0x79, 0x6B},   {0x7A, 0x63},   {0x7B, 0x6D},   {0x7C, 0x6A},   {0x7D, 0x69},   {0x7E, 0x91},   {0x83, 0x76},
     {0x84, 0x2C},   {0xE011, 0x12}, {0xE014, 0x11}, {0xE01F, 0x5B}, {0xE027, 0x5C}, {0xE02F, 0x5D}, {0xE04A, 0x6F},
     {0xE05A, 0x0D}, {0xE069, 0x23}, {0xE06B, 0x25}, {0xE06C, 0x24}, {0xE070, 0x2D}, {0xE071, 0x2E}, {0xE072, 0x28},
     {0xE074, 0x27}, {0xE075, 0x26}, {0xE07A, 0x22}, {0xE07C, 0x2C}, {0xE07D, 0x21}, {0xE07E, 0x13}, {PauseKey, 0x13}});
static_assert(std::ranges::is_sorted(fixedRows, {}, &FixedRow::code));

/// A key whose name is what the layout gives it.
struct TypedRow {
  KeyCode code;
  std::string_view text;
};
constexpr auto typedRows = std::to_array<TypedRow>({{0x0E, "`"},       {0x15, "q"},
                                                    {0x16, "1"},       {0x1A, "z"},
                                                    {0x1B, "s"},       {0x1C, "a"},
                                                    {0x1D, "w"},       {0x1E, "2"},
                                                    {0x21, "c"},       {0x22, "x"},
                                                    {0x23, "d"},       {0x24, "e"},
                                                    {0x25, "4"},       {0x26, "3"},
                                                    {0x2A, "v"},       {0x2B, "f"},
                                                    {0x2C, "t"},       {0x2D, "r"},
                                                    {0x2E, "5"},       {0x31, "n"},
                                                    {0x32, "b"},       {0x33, "h"},
                                                    {0x34, "g"},       {0x35, "y"},
                                                    {0x36, "6"},       {0x3A, "m"},
                                                    {0x3B, "j"},       {0x3C, "u"},
                                                    {0x3D, "7"},       {0x3E, "8"},
                                                    {0x41, ","},       {0x42, "k"},
                                                    {0x43, "i"},       {0x44, "o"},
                                                    {0x45, "0"},       {0x46, "9"},
                                                    {0x49, "."},       {0x4A, "/"},
                                                    {0x4B, "l"},       {0x4C, ";"},
                                                    {0x4D, "p"},       {0x4E, "-"},
                                                    {0x52, "'"},       {0x54, "Squared Bracket Open"},
                                                    {0x55, "="},       {0x5B, "Squared Bracket Close"},
                                                    {0x5D, "\\"},      {0x61, "<"},
                                                    {0x71, "Numpad ."}});
static_assert(std::ranges::is_sorted(typedRows, {}, &TypedRow::code));

constexpr auto codes = [] {
  std::array<KeyCode, fixedRows.size() + typedRows.size()> all{};
  const auto typed = std::ranges::transform(fixedRows, all.begin(), &FixedRow::code).out;
  std::ranges::transform(typedRows, typed, &TypedRow::code);
  std::ranges::sort(all);
  return all;
}();

/// The row of a key, null when there is none.
template <typename Rows>
const auto* RowOf(const Rows& rows, KeyCode code) {
  const auto* const row = std::ranges::lower_bound(rows, code, {}, &Rows::value_type::code);
  return row != rows.end() && row->code == code ? row : nullptr;
}

/// The scan code of set 1, which tells the two Shift keys apart; 0 for a key that is not plain.
std::int32_t ScanCodeOf(KeyCode code) {
  const auto* found = std::ranges::find(scan_code_table::plainKeys, code,
                                        [](const scan_code_table::ScanCodePair& pair) { return KeyCode{pair.code}; });
  return found == std::end(scan_code_table::plainKeys) ? 0 : found->scanCode;
}

std::int32_t ExtendedFlagOf(KeyCode code) { return code >> 8U == 0xE0 ? 1 : 0; }

constexpr std::array<std::string_view, NoSpecialFunction> functionNames = {"SystemReset",
                                                                           "BackgroundLightLigther",
                                                                           "BackgroundLightDarker",
                                                                           "ContrastHigher",
                                                                           "ContrastLower",
                                                                           "Layer2",
                                                                           "Layer3",
                                                                           "Layer4",
                                                                           "WarmStart"};

}  // namespace

std::span<const KeyCode> NamedKeys() { return codes; }

std::string KeyNameOf(KeyCode code) {
  if (const TypedRow* const typed = RowOf(typedRows, code)) return std::string(typed->text);
  if (const FixedRow* const fixed = RowOf(fixedRows, code)) {
    return std::string(FixedKeyName(fixed->virtualKey, ScanCodeOf(code), ExtendedFlagOf(code)));
  }
  return CodeText(code);
}

std::string_view PanelFunctionNameOf(KeyCode byte) {
  for (const SpecialFunction& one : SpecialFunctions()) {
    if (one.code == byte) return functionNames[static_cast<std::size_t>(one.function)];
  }
  return {};
}

}  // namespace plexel
