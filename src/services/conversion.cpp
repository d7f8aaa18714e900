#include "services/conversion.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "forms/ascii.h"
#include "platform/failure.h"

namespace plexel {

namespace {

[[noreturn]] void FailConversion(std::string_view text) {
  throw Failure(FailureKind::Conversion, "\"" + std::string(text) + "\" is no number");
}

[[noreturn]] void FailOverflow(const std::string& what) {
  throw Failure(FailureKind::Overflow, what + " does not fit its type");
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::size_t SkipDigits(std::string_view text, std::size_t position) {
  while (position < text.size() && IsDigit(text[position])) ++position;
  return position;
}

/// Whether the text is digits with at most one point among them and perhaps an exponent.
bool IsUnsignedDecimal(std::string_view text) {
  std::size_t position = SkipDigits(text, 0);
  bool hasDigits = position > 0;
  if (position < text.size() && text[position] == '.') {
    const std::size_t end = SkipDigits(text, position + 1);
    hasDigits = hasDigits || end > position + 1;
    position = end;
  }
  if (!hasDigits) return false;
  if (position == text.size()) return true;
  if (text[position] != 'e' && text[position] != 'E') return false;
  ++position;
  if (position < text.size() && (text[position] == '+' || text[position] == '-')) ++position;
  return position < text.size() && SkipDigits(text, position) == text.size();
}

/// Whether a decimal that left the range of its type is too small rather than too large: the place of its first digit
/// that counts, moved by the exponent, lies behind the point.
bool IsTiny(std::string_view text) {
  const auto mantissaEnd = std::min(text.find_first_of("eE"), text.size());
  const std::string_view mantissa = text.substr(0, mantissaEnd);
  const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<std::int64_t>(mantissa.find_first_not_of("0."));
  std::string_view exponentText = text.substr(std::min(mantissaEnd + 1, text.size()));
  const bool negative = exponentText.starts_with('-');
  if (exponentText.starts_with('+')) exponentText.remove_prefix(1);
  std::int64_t exponent = 0;
  const auto [stop, error] = std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
  if (error == std::errc::result_out_of_range) return negative;
  return point - first + exponent <= 0;
}

template <typename Number>
Number ParseHexadecimal(std::string_view digits, std::string_view text) {
  std::uint64_t value = 0;
  const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (digits.empty() || stop != digits.data() + digits.size()) FailConversion(text);
  if (error == std::errc::result_out_of_range) FailOverflow(std::string(text));
  return static_cast<Number>(value);
}

template <typename Number>
Number Parse(std::string_view text) {
  std::string_view rest = WithoutBlanks(text);
  if (ascii::TakeHexMark(rest)) return ParseHexadecimal<Number>(rest, text);
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);
  if (!IsUnsignedDecimal(rest)) FailConversion(text);
  Number value = 0;
  const auto [stop, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
  if (error == std::errc::result_out_of_range) {
    if (!IsTiny(rest)) FailOverflow(std::string(text));
    value = 0;
  }
  return negative ? -value : value;
}

template <typename Integer>
Integer RoundTo(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
    FailOverflow(std::to_string(value));
  }
  return static_cast<Integer>(rounded);
}

}  // namespace

double TextToNumber(std::string_view text) { return Parse<double>(text); }
std::int32_t TextToInt32(std::string_view text) { return RoundToInt32(TextToNumber(text)); }
std::uint8_t TextToUInt8(std::string_view text) { return RoundToUInt8(TextToNumber(text)); }
float TextToSingle(std::string_view text) { return Parse<float>(text); }

std::int32_t RoundToInt32(double value) { return RoundTo<std::int32_t>(value); }
std::int16_t RoundToInt16(double value) { return RoundTo<std::int16_t>(value); }
std::uint8_t RoundToUInt8(double value) { return RoundTo<std::uint8_t>(value); }

std::string SingleToText(float value) {
  constexpr float smallest = 1e-4F, tooManyDigits = 1e7F;
  if (value == 0) return "0";
  const float size = std::fabs(value);
  const auto format =
      size >= smallest && size < tooManyDigits ? std::chars_format::fixed : std::chars_format::scientific;
  std::array<char, 32> text{};
  const auto result = std::to_chars(text.data(), text.data() + text.size(), value, format);
  return std::string(text.data(), result.ptr);
}

}  // namespace plexel
