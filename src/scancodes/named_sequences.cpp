#include "scancodes/named_sequences.h"

#include <algorithm>

#include "forms/ascii.h"
#include "scancodes/key_translation.h"
#include "services/conversion.h"
#include "services/shared_services.h"
#include "services/surroundings.h"

namespace plexel {

namespace {

constexpr std::string_view fileName = "NonStandardScancodes.cfg";

std::string SectionOf(std::int32_t number) { return "SCANCODE" + std::to_string(number); }

std::string ItemOf(const std::string& value, std::int32_t index) {
  std::string item;
  Surroundings::Current().ParameterFiles().GetItem(index, value, item);
  return item;
}

}  // namespace

std::int64_t ConvertHex(std::string_view H) {
  constexpr std::size_t digits = 8;
  ascii::TakeHexMark(H);
  if (H.size() > digits) H.remove_prefix(H.size() - digits);
  std::int64_t number = 0;
  for (const char digit : H) {
    const std::uint8_t value = ascii::HexValue(digit);
    if (value == ascii::NoDigit) return 0;
    number = number * 16 + value;
  }
  return number;
}

NamedSequences::NamedSequences()
    : file_(GetBasePath() + "\\" + std::string(fileName)),
      nameKey_(ascii::Same(GetLanguageName(), "German") ? GermanNameKey : EnglishNameKey) {
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
