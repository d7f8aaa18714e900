#include "scancodes/named_sequences.h"

#include <algorithm>

#include "scancodes/key_translation.h"
#include "services/conversion.h"
#include "services/shared_services.h"
#include "services/surroundings.h"

namespace plexel {

namespace {

constexpr std::string_view fileName = "NonStandardScancodes.cfg";

std::string UpperCase(std::string text) {
  std::ranges::transform(text, text.begin(), [](char character) {
    return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
  });
  return text;
}

/// The value of a hexadecimal digit, -1 for any other character.
int DigitValue(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  return -1;
}

std::string SectionOf(std::int32_t number) { return "SCANCODE" + std::to_string(number); }

std::string ItemOf(const std::string& value, std::int32_t index) {
  std::string item;
  Surroundings::Current().ParameterFiles().GetItem(index, value, item);
  return item;
}

}  // namespace

std::int64_t ConvertHex(std::string_view H) {
  constexpr std::size_t digits = 8;
  if (H.size() >= 2 && H[0] == '&' && (H[1] == 'H' || H[1] == 'h')) H.remove_prefix(2);
  if (H.size() > digits) H.remove_prefix(H.size() - digits);
  std::int64_t number = 0;
  for (const char digit : H) {
    const int value = DigitValue(digit);
    if (value < 0) return 0;
    number = number * 16 + value;
  }
  return number;
}

NamedSequences::NamedSequences()
    : file_(GetBasePath() + "\\" + std::string(fileName)),
      nameKey_(UpperCase(GetLanguageName()) == "GERMAN" ? GermanNameKey : EnglishNameKey) {
  Surroundings::Current().ParameterFiles().SetDelimiter(":");
}

std::optional<std::string> NamedSequences::NameOf(std::int32_t number) const {
  std::string value;
  std::int32_t status = 0;
  Surroundings::Current().ParameterFiles().ReadEntry(file_, SectionOf(number), nameKey_, value, 0, status);
  if (status != 0) return std::nullopt;
  return ItemOf(value, 1);
}

std::optional<std::int32_t> NamedSequences::NumberOf(std::string_view name) const {
  std::int32_t number = 0;
  std::optional<std::string> found = std::string();
  while (found && *found != name) found = NameOf(++number);
  return found ? std::optional(number) : std::nullopt;
}

KeyCodes NamedSequences::ReadCodes(std::int32_t number) const {
  return {ReadSequence(number, MakeKey), ReadSequence(number, BreakKey)};
}

CodeSequence NamedSequences::ReadSequence(std::int32_t number, std::string_view key) const {
  std::string value;
  std::int32_t status = 0;
  Surroundings::Current().ParameterFiles().ReadEntry(file_, SectionOf(number), key, value, 0, status);
  CodeSequence sequence;
  while (sequence.length < CodeSequence::Size) {
    const std::string item = ItemOf(value, sequence.length + 1);
    if (item.empty()) break;
    sequence.Append(RoundToInt32(static_cast<double>(ConvertHex(item))));
  }
  return sequence;
}

}  // namespace plexel
