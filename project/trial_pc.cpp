#include "project/trial_pc.h"

#include <algorithm>
#include <array>

#include "forms/ascii.h"

namespace plexel {

namespace {

constexpr KeyCode leftShift = 0x12, rightShift = 0x59, backspace = 0x66;
constexpr KeyCode capsLock = 0x58, numLock = 0x77, scrollLock = 0x7E;
/// Ctrl, Alt and the Windows keys: with one of them a key is a shortcut.
constexpr auto shortcutKeys = std::to_array<KeyCode>({0x14, 0xE014, 0x11, 0xE011, 0xE01F, 0xE027});

/// In place of a character with Shift: the key types with Num Lock alone, and with Shift nothing.
constexpr char OfPad = 0;

/// What a key types.
struct CharacterRow {
  KeyCode code;
  char plain, shifted;
};
constexpr auto rows = std::to_array<CharacterRow>(
    {{0x0D, '\t', '\t'}, {0x0E, '`', '~'},    {0x15, 'q', 'Q'},   {0x16, '1', '!'},   {0x1A, 'z', 'Z'},
     {0x1B, 's', 'S'},   {0x1C, 'a', 'A'},    {0x1D, 'w', 'W'},   {0x1E, '2', '@'},   {0x21, 'c', 'C'},
     {0x22, 'x', 'X'},   {0x23, 'd', 'D'},    {0x24, 'e', 'E'},   {0x25, '4', '$'},   {0x26, '3', '#'},
     {0x29, ' ', ' '},   {0x2A, 'v', 'V'},    {0x2B, 'f', 'F'},   {0x2C, 't', 'T'},   {0x2D, 'r', 'R'},
     {0x2E, '5', '%'},   {0x31, 'n', 'N'},    {0x32, 'b', 'B'},   {0x33, 'h', 'H'},   {0x34, 'g', 'G'},
     {0x35, 'y', 'Y'},   {0x36, '6', '^'},    {0x3A, 'm', 'M'},   {0x3B, 'j', 'J'},   {0x3C, 'u', 'U'},
     {0x3D, '7', '&'},   {0x3E, '8', '*'},    {0x41, ',', '<'},   {0x42, 'k', 'K'},   {0x43, 'i', 'I'},
     {0x44, 'o', 'O'},   {0x45, '0', ')'},    {0x46, '9', '('},   {0x49, '.', '>'},   {0x4A, '/', '?'},
     {0x4B, 'l', 'L'},   {0x4C, ';', ':'},    {0x4D, 'p', 'P'},   {0x4E, '-', '_'},   {0x52, '\'', '"'},
     {0x54, '[', '{'},   {0x55, '=', '+'},    {0x5A, '\n', '\n'}, {0x5B, ']', '}'},   {0x5D, '\\', '|'},
     {0x61, '<', '>'},   {0x69, '1', OfPad},  {0x6B, '4', OfPad}, {0x6C, '7', OfPad}, {0x70, '0', OfPad},
     {0x71, '.', OfPad}, {0x72, '2', OfPad},  {0x73, '5', OfPad}, {0x74, '6', OfPad}, {0x75, '8', OfPad},
     {0x79, '+', '+'},   {0x7A, '3', OfPad},  {0x7B, '-', '-'},   {0x7C, '*', '*'},   {0x7D, '9', OfPad},
     {0xE04A, '/', '/'}, {0xE05A, '\n', '\n'}});
static_assert(std::ranges::is_sorted(rows, {}, &CharacterRow::code));

constexpr bool IsLetter(char character) { return ascii::Upper(character) != character; }

}  // namespace

void TrialPc::Hear(const KeyReport& report) {
  if (report.deed == KeyDeed::Up) down_.erase(report.code);
  if (report.deed != KeyDeed::Down && report.deed != KeyDeed::Repeat) return;
  if (report.deed == KeyDeed::Down) {
    down_.insert(report.code);
    if (report.code == capsLock) capsLock_ = !capsLock_;
    if (report.code == numLock) numLock_ = !numLock_;
    if (report.code == scrollLock) scrollLock_ = !scrollLock_;
  }
  Type(report.code);
}

void TrialPc::Type(KeyCode code) {
  if (std::ranges::any_of(shortcutKeys, [this](KeyCode key) { return IsDown(key); })) return;
  if (code == backspace && !text_.empty()) text_.pop_back();
  const auto* const row = std::ranges::lower_bound(rows, code, {}, &CharacterRow::code);
  if (row == rows.end() || row->code != code) return;
  const bool shift = IsDown(leftShift) || IsDown(rightShift);
  if (row->shifted == OfPad && (shift || !numLock_)) return;
  const bool upper = IsLetter(row->plain) ? shift != capsLock_ : shift;
  text_ += upper ? row->shifted : row->plain;
  text_.erase(0, text_.size() - std::min(text_.size(), LongestText));
}

}  // namespace plexel
