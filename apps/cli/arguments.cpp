#include "cli/arguments.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "cli/command_error.h"
#include "cli/record_json.h"
#include "files/text_lines.h"
#include "forms/ascii.h"

namespace plexel {

namespace {

[[noreturn]] void Refuse(const Word& word, const char* wanted) {
  const std::string shown = word.json ? word.json->dump(-1, ' ', false, Json::error_handler_t::replace) : word.text;
  throw CommandError("\"" + Excerpt(shown) + "\" is no " + wanted);
}

bool IsDigits(std::string_view digits, int base) {
  return !digits.empty() && std::ranges::all_of(digits, [base](char c) { return ascii::HexValue(c) < base; });
}

}  // namespace

bool ParseInteger(const std::string& text, int bits, std::int64_t& value) {
  std::string_view digits = text;
  const bool negative = digits.starts_with('-');
  if (negative) digits.remove_prefix(1);
  const bool hexadecimal = digits.starts_with("0x") || digits.starts_with("0X");
  if (hexadecimal) digits.remove_prefix(2);
  const int base = hexadecimal ? 16 : 10;
  if (!IsDigits(digits, base)) return false;
  std::uint64_t magnitude = 0;
  const std::errc error = std::from_chars(digits.data(), digits.data() + digits.size(), magnitude, base).ec;
  if (error == std::errc::result_out_of_range) magnitude = std::numeric_limits<std::uint64_t>::max();

  const std::uint64_t signBit = std::uint64_t{1} << static_cast<unsigned>(bits - 1);
  const std::uint64_t largest = negative ? signBit : hexadecimal ? 2 * signBit - 1 : signBit - 1;
  if (magnitude > largest) throw CommandError(text + " does not fit " + std::to_string(bits) + " bits");
  const bool pattern = !negative && magnitude >= signBit;
  value = static_cast<std::int64_t>(negative ? 0 - magnitude : pattern ? magnitude - 2 * signBit : magnitude);
  return true;
}

const Word& Arguments::Take() {
  if (!More()) throw CommandError("an argument is missing");
  return words_[next_++];
}

std::string Arguments::Text() {
  const Word& word = Take();
  if (!word.IsText()) Refuse(word, "text");
  return word.text;
}

std::int64_t Arguments::Integer(int bits) {
  const Word& word = Take();
  std::int64_t value = 0;
  if (word.json || !ParseInteger(word.text, bits, value)) Refuse(word, "whole number");
  return value;
}

std::int32_t Arguments::Int32() { return static_cast<std::int32_t>(Integer(32)); }
std::int16_t Arguments::Int16() { return static_cast<std::int16_t>(Integer(16)); }

std::int32_t Arguments::UpTo(std::int32_t last, const char* what) {
  const std::int32_t value = Int32();
  if (value >= 0 && value <= last) return value;
  throw CommandError(std::to_string(value) + " is no " + what + ", 0 to " + std::to_string(last));
}

std::int32_t Arguments::Bits32() {
  const std::int64_t value = Integer(64);
  if (value < INT32_MIN || value > UINT32_MAX) throw CommandError(std::to_string(value) + " does not fit 32 bits");
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

float Arguments::Single() {
  const Word& word = Take();
  std::int64_t whole = 0;
  if (!word.json && ParseInteger(word.text, 32, whole)) return static_cast<float>(whole);
  float value = 0;
  const char* end = word.text.data() + word.text.size();
  const auto result = std::from_chars(word.text.data(), end, value);
  if (word.json || word.text.empty() || result.ptr != end || result.ec != std::errc() || !std::isfinite(value)) {
    Refuse(word, "number");
  }
  return value;
}

const Json& Arguments::Object() {
  const Word& word = Take();
  if (!word.json || !word.json->is_object()) Refuse(word, "JSON object");
  return *word.json;
}

KeyCodes Arguments::Codes() {
  KeyCodes codes;
  for (CodeSequence* sequence : {&codes.make, &codes.breaking}) {
    if (!More()) break;
    const Word& word = Take();
    *sequence = SequenceOf(word.json ? *word.json : Json(word.text));
  }
  return codes;
}

bool Arguments::Choice(const char* first, const char* second) {
  const Word& word = Take();
  if (word.json || (word.text != first && word.text != second)) {
    throw CommandError("\"" + Excerpt(word.text) + "\" is neither " + first + " nor " + second);
  }
  return word.text == first;
}

}  // namespace plexel
