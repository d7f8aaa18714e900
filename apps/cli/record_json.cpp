#include "cli/record_json.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "cli/command_error.h"
#include "cli/values_json.h"
#include "files/text_lines.h"
#include "forms/ascii.h"

namespace plexel {

namespace {

using Record = udtTactisBaseElement_ScanCodeInfo;
using Code = udtTactisBaseElement_TACTIS_SCANCODE;

[[noreturn]] void Refuse(const std::string& field, const char* wanted) {
  throw CommandError("the value of " + Excerpt(field) + " is no " + wanted);
}

std::int32_t ToInt32(const std::string& field, const Json& value) {
  if (!value.is_number_integer()) Refuse(field, "whole number");
  const bool large = value.is_number_unsigned() && value.get<std::uint64_t>() > INT32_MAX;
  const auto number = large ? std::int64_t{INT32_MAX} + 1 : value.get<std::int64_t>();
  if (number < INT32_MIN || number > INT32_MAX) Refuse(field, "number of 32 bits");
  return static_cast<std::int32_t>(number);
}

std::string ToText(const std::string& field, const Json& value) {
  if (!value.is_string()) Refuse(field, "text");
  return value.get<std::string>();
}

/// How one field of the record is shown and changed.
struct Field {
  const char* name;
  Json (*get)(const Record&);
  void (*set)(Record&, const std::string& name, const Json&);
};

template <auto member>
consteval Field Row(const char* name) {
  return {name,
          [](const Record& record) {
            using Type = std::remove_cvref_t<decltype(record.*member)>;
            if constexpr (std::is_same_v<Type, Code>) {
              return ToJson(record.*member);
            } else if constexpr (std::is_same_v<Type, std::string>) {
              return Json(record.*member);
            } else {
              return Json(static_cast<std::int32_t>(record.*member));
            }
          },
          [](Record& record, const std::string& field, const Json& value) {
            using Type = std::remove_cvref_t<decltype(record.*member)>;
            if constexpr (std::is_same_v<Type, Code>) {
              ChangeFields(record.*member, value);
            } else if constexpr (std::is_same_v<Type, std::string>) {
              record.*member = ToText(field, value);
            } else {
              record.*member = static_cast<Type>(ToInt32(field, value));
            }
          }};
}

constexpr auto fields = std::to_array<Field>({Row<&Record::enumWizardButtonType>("enumWizardButtonType"),
                                              Row<&Record::enumBaseElementType>("enumBaseElementType"),
                                              Row<&Record::lngLEDTypeLayer1>("lngLEDTypeLayer1"),
                                              Row<&Record::lngLEDTypeLayer2>("lngLEDTypeLayer2"),
                                              Row<&Record::lngLEDTypeLayer3>("lngLEDTypeLayer3"),
                                              Row<&Record::lngLEDTypeLayer4>("lngLEDTypeLayer4"),
                                              Row<&Record::lngLedHardwareNumber>("lngLedHardwareNumber"),
                                              Row<&Record::lngButtonHardwareNumber>("lngButtonHardwareNumber"),
                                              Row<&Record::lngKeyHardwareNumber>("lngKeyHardwareNumber"),
                                              Row<&Record::lngKeyHardwareNumber1>("lngKeyHardwareNumber1"),
                                              Row<&Record::lngKeyHardwareNumber2>("lngKeyHardwareNumber2"),
                                              Row<&Record::lngKeyHardwareNumber3>("lngKeyHardwareNumber3"),
                                              Row<&Record::lngKeyHardwareNumber4>("lngKeyHardwareNumber4"),
                                              Row<&Record::lngKeyHardwareNumber5>("lngKeyHardwareNumber5"),
                                              Row<&Record::lngKeyHardwareNumber6>("lngKeyHardwareNumber6"),
                                              Row<&Record::lngKeyHardwareNumber7>("lngKeyHardwareNumber7"),
                                              Row<&Record::strLayer1PressScanCode>("strLayer1PressScanCode"),
                                              Row<&Record::strLayer1ReleaseScanCode>("strLayer1ReleaseScanCode"),
                                              Row<&Record::strLayer2PressScanCode>("strLayer2PressScanCode"),
                                              Row<&Record::strLayer2ReleaseScanCode>("strLayer2ReleaseScanCode"),
                                              Row<&Record::strLayer3PressScanCode>("strLayer3PressScanCode"),
                                              Row<&Record::strLayer3ReleaseScanCode>("strLayer3ReleaseScanCode"),
                                              Row<&Record::strLayer4PressScanCode>("strLayer4PressScanCode"),
                                              Row<&Record::strLayer4ReleaseScanCode>("strLayer4ReleaseScanCode"),
                                              Row<&Record::strLayer1PressString>("strLayer1PressString"),
                                              Row<&Record::strLayer2PressString>("strLayer2PressString"),
                                              Row<&Record::strLayer3PressString>("strLayer3PressString"),
                                              Row<&Record::strLayer4PressString>("strLayer4PressString"),
                                              Row<&Record::strLayer1ReleaseString>("strLayer1ReleaseString"),
                                              Row<&Record::strLayer2ReleaseString>("strLayer2ReleaseString"),
                                              Row<&Record::strLayer3ReleaseString>("strLayer3ReleaseString"),
                                              Row<&Record::strLayer4ReleaseString>("strLayer4ReleaseString"),
                                              Row<&Record::strBaseElementNotes>("strBaseElementNotes")});

std::uint8_t HexDigit(char digit) {
  if (const std::uint8_t value = ascii::HexValue(digit); value != ascii::NoDigit) return value;
  throw CommandError(std::string("\"") + Excerpt(std::string_view(&digit, 1)) + "\" is no hexadecimal digit");
}

}  // namespace

Json ToJson(const udtTactisBaseElement_ScanCodeInfo& record) {
  Json json;
  for (const Field& field : fields) json[field.name] = field.get(record);
  return json;
}

void ChangeFields(udtTactisBaseElement_ScanCodeInfo& record, const Json& values) {
  for (const auto& [name, value] : values.items()) {
    const auto field =
        std::find_if(fields.begin(), fields.end(), [&name = name](const Field& one) { return name == one.name; });
    if (field == fields.end()) throw CommandError("the record has no field " + Excerpt(name));
    field->set(record, name, value);
  }
}

void ChangeFields(udtTactisBaseElement_TACTIS_SCANCODE& code, const Json& values) {
  if (!values.is_object()) throw CommandError("a code buffer is an object with Value and NextValue");
  for (const auto& [name, value] : values.items()) {
    if (name == "Value") {
      const std::vector<std::uint8_t> bytes = TextToBytes(ToText(name, value), code.Value.size());
      std::copy(bytes.begin(), bytes.end(), code.Value.begin());
    } else if (name == "NextValue") {
      code.NextValue = ToInt32(name, value);
    } else {
      throw CommandError("a code buffer has no field " + Excerpt(name));
    }
  }
}

std::vector<std::uint8_t> TextToBytes(std::string_view text, std::size_t most) {
  std::vector<std::uint8_t> bytes;
  std::size_t position = 0;
  while ((position = text.find_first_not_of(' ', position)) != std::string_view::npos) {
    const std::size_t end = std::min(text.find(' ', position), text.size());
    if (end - position != 2) {
      throw CommandError("\"" + Excerpt(text.substr(position, end - position)) + "\" is no two-digit number");
    }
    if (bytes.size() == most) throw CommandError("more than " + std::to_string(most) + " bytes");
    bytes.push_back(static_cast<std::uint8_t>(HexDigit(text[position]) * 16 + HexDigit(text[position + 1])));
    position = end;
  }
  return bytes;
}

CodeSequence SequenceOf(const Json& value) {
  Json bytes = value, length;
  if (value.is_object()) {
    bytes = "";
    for (const auto& [name, member] : value.items()) {
      if (name != "bytes" && name != "length") throw CommandError("a sequence has no field " + Excerpt(name));
      (name == "bytes" ? bytes : length) = member;
    }
  }
  const std::vector<std::uint8_t> row = TextToBytes(ToText("bytes", bytes), CodeSequence::Size);
  CodeSequence sequence;
  std::copy(row.begin(), row.end(), sequence.codes.begin());
  sequence.length = length.is_null() ? static_cast<std::int32_t>(row.size()) : ToInt32("length", length);
  return sequence;
}

}  // namespace plexel
