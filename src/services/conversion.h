#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace plexel {

/// Numbers out of text and between types. Text is read as a decimal number with blanks around it, a sign, a fraction
/// and an exponent, or as "&H" and hexadecimal digits. Fractions are rounded to the nearest integer, ties to the even
/// one. What is no number is a Failure (Conversion), what does not fit a Failure (Overflow).

double TextToNumber(std::string_view text);
std::int32_t TextToInt32(std::string_view text);
std::uint8_t TextToUInt8(std::string_view text);
float TextToSingle(std::string_view text);

std::int32_t RoundToInt32(double value);
std::int16_t RoundToInt16(double value);
std::uint8_t RoundToUInt8(double value);

/// The shortest decimal text that reads back as the same single-precision number, without an exponent up to seven
/// digits: "1530", "22.5".
std::string SingleToText(float value);

}  // namespace plexel
