#include "cli/values_json.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

#include "forms/ascii.h"

namespace plexel {

namespace {

template <typename... Cases>
struct Match : Cases... {
  using Cases::operator()...;
};

constexpr double LargestExact = 9007199254740992.0;

/// The double that the shortest decimal text of a single-precision number stands for.
double Shortest(float value) {
  std::array<char, 64> text{};
  const auto result = std::to_chars(text.data(), text.data() + text.size() - 1, value);
  *result.ptr = '\0';
  return std::strtod(text.data(), nullptr);
}

/// Adds a number of at least two hexadecimal digits to a row of them.
void AppendHex(std::string& row, std::uint32_t value) {
  std::array<char, 16> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (!row.empty()) row.push_back(' ');
  if (result.ptr == digits.data() + 1) row.push_back('0');
  for (const char* digit = digits.data(); digit != result.ptr; ++digit) {
    row.push_back(ascii::Upper(*digit));
  }
}

Json ToJson(const GridCells& cells) {
  Json rows = Json::array();
  for (const auto& row : cells) {
    Json cellsOfRow = Json::array();
    for (const GridCell& cell : row) {
      Json one;
      one["Text"] = cell.text;
      one["ForeColor"] = cell.foreColor;
      one["BackColor"] = cell.backColor;
      cellsOfRow.push_back(std::move(one));
    }
    rows.push_back(std::move(cellsOfRow));
  }
  return rows;
}

Json ToJson(const std::vector<bool>& values) {
  Json list = Json::array();
  for (const bool value : values) list.push_back(BooleanToJson(value));
  return list;
}

Json ToJson(const SurfaceShape& shape) {
  Json json;
  json["Left"] = NumberToJson(shape.Left);
  json["Top"] = NumberToJson(shape.Top);
  json["Width"] = NumberToJson(shape.Width);
  json["Height"] = NumberToJson(shape.Height);
  json["BorderColor"] = shape.BorderColor;
  json["BorderWidth"] = shape.BorderWidth;
  json["Visible"] = BooleanToJson(shape.Visible);
  return json;
}

Json ToJson(const SurfaceLine& line) {
  Json json;
  json["X1"] = NumberToJson(line.X1);
  json["Y1"] = NumberToJson(line.Y1);
  json["X2"] = NumberToJson(line.X2);
  json["Y2"] = NumberToJson(line.Y2);
  json["BorderColor"] = line.BorderColor;
  json["BorderWidth"] = line.BorderWidth;
  json["Visible"] = BooleanToJson(line.Visible);
  return json;
}

Json ToJson(const BagValue& value) {
  return std::visit(
      Match{[](Boolean held) { return BooleanToJson(held); }, [](double held) { return NumberToJson(held); },
            [](const std::string& held) { return Json(held); }, [](auto held) { return Json(std::int32_t{held}); }},
      value);
}

/// The names of the types in the order of BagValue.
constexpr std::array<const char*, std::variant_size_v<BagValue>> bagTypes = {"int16",   "int32", "uint8",
                                                                             "boolean", "float", "string"};

void AddSequence(Json& answer, const std::string& name, const CodeSequence& sequence) {
  std::size_t count = sequence.codes.size();
  while (count > 0 && sequence.codes[count - 1] == 0) --count;
  std::string text;
  for (std::size_t i = 0; i < count; ++i) AppendHex(text, static_cast<std::uint32_t>(sequence.codes[i]));
  answer[name] = text;
  answer[name + "Length"] = sequence.length;
}

}  // namespace

Json NumberToJson(double value) {
  if (std::trunc(value) == value && std::abs(value) <= LargestExact) return Json(static_cast<std::int64_t>(value));
  const auto single = static_cast<float>(value);
  return Json(double{single} == value ? Shortest(single) : value);
}

std::string BytesToText(const std::uint8_t* bytes, std::size_t count) {
  std::string text;
  text.reserve(count * 3);
  for (std::size_t i = 0; i < count; ++i) AppendHex(text, bytes[i]);
  return text;
}

Json ToJson(const HostEvent::Value& value) {
  return std::visit(Match{[](double held) { return NumberToJson(held); }, [](const auto& held) { return Json(held); }},
                    value);
}

Json ToJson(const Description& description) {
  Json json = Json::object();
  for (const auto& [name, value] : description) {
    json[name] = std::visit(
        Match{[](bool held) { return BooleanToJson(held); }, [](double held) { return NumberToJson(held); },
              [](const GridCells& held) { return ToJson(held); },
              [](const std::vector<bool>& held) { return ToJson(held); }, [](const auto& held) { return Json(held); }},
        value);
  }
  return json;
}

Json ToJson(const MemoryBag& bag) {
  Json rows = Json::array();
  for (const auto& [key, value] : bag.All()) {
    rows.push_back(Json::array({Json(key), Json(bagTypes.at(value.index())), ToJson(value)}));
  }
  return rows;
}

Json ToJson(const Surface& surface) {
  Json json;
  json["Width"] = NumberToJson(surface.Width);
  json["Height"] = NumberToJson(surface.Height);
  json["shpOval"] = ToJson(surface.shpOval);
  json["shpRect"] = ToJson(surface.shpRect);
  json["linX1"] = ToJson(surface.linX1);
  json["linX2"] = ToJson(surface.linX2);
  json["linOK1"] = ToJson(surface.linOK1);
  json["linOK2"] = ToJson(surface.linOK2);
  return json;
}

Json ToJson(const udtTactisBaseElement_TACTIS_SCANCODE& code) {
  Json json;
  json["Value"] = BytesToText(code.Value.data(), code.Value.size());
  json["NextValue"] = code.NextValue;
  return json;
}

void AddCodes(Json& answer, const KeyCodes& codes) {
  AddSequence(answer, "make", codes.make);
  AddSequence(answer, "break", codes.breaking);
}

}  // namespace plexel
