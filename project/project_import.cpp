#include "project/project_import.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "files/file_error.h"
#include "files/number_text.h"
#include "files/place_set.h"
#include "files/project_syntax.h"
#include "forms/characters.h"
#include "platform/failure.h"
#include "project/code_bytes.h"
#include "project/exchange_words.h"
#include "project/json_reader.h"
#include "project/json_text.h"

namespace plexel {

namespace {

namespace words = exchange_words;
using Json = nlohmann::ordered_json;

/// A value of the document with the way to it.
class Spot {
 public:
  Spot(const std::filesystem::path& file, const Json& document) : file_(file), value_(document) {}

  const Json& Value() const { return value_; }

  [[noreturn]] void Refuse(const std::string& reason) const {
    const std::string pointer = Pointer();
    throw FileError(file_, pointer + (pointer.empty() ? "" : ": ") + reason);
  }

  const Json::object_t& Object() const {
    if (!value_.is_object()) Refuse("must be an object");
    return value_.get_ref<const Json::object_t&>();
  }

  /// Calls `action(spot)` for each item of a list.
  template <typename Action>
  void ForEachItem(Action&& action) const {
    if (!value_.is_array()) Refuse("must be a list");
    std::size_t index = 0;
    for (const Json& item : value_) action(Spot(this, item, {}, index++));
  }

  /// The member of an object that must have it.
  Spot Member(std::string_view name) const {
    const std::optional<Spot> member = Find(name);
    if (!member) Refuse("must have the member \"" + std::string(name) + "\"");
    return *member;
  }
  std::optional<Spot> Find(std::string_view name) const {
    for (const auto& [key, value] : Object()) {
      if (key == name) return Spot(this, value, key, {});
    }
    return std::nullopt;
  }
  Spot Of(const Json::object_t::value_type& member) const { return Spot(this, member.second, member.first, {}); }

  void AllowOnly(std::initializer_list<std::string_view> names) const {
    for (const auto& member : Object()) {
      if (std::find(names.begin(), names.end(), member.first) == names.end()) Of(member).Refuse("is unknown here");
    }
  }

  const std::string& String(const char* wanted) const {
    if (!value_.is_string()) Refuse(std::string("must be ") + wanted);
    return value_.get_ref<const std::string&>();
  }

  /// The bytes of the value's texts and of its name.
  std::size_t Size() const {
    std::size_t size = name_.size();
    if (value_.is_string()) size += value_.get_ref<const std::string&>().size();
    if (value_.is_object()) {
      for (const auto& member : Object()) size += Of(member).Size();
    }
    return size;
  }

  std::string Text() const {
    std::optional<std::string> text = FromJsonText(String("a text"));
    if (!text) Refuse("must have bytes in hexadecimal behind U+FFFD");
    return *std::move(text);
  }

  template <typename Number>
  Number Whole(std::int32_t low = std::numeric_limits<Number>::min(),
               std::int32_t high = std::numeric_limits<Number>::max()) const {
    const double number = value_.is_number() ? value_.get<double>() : std::numeric_limits<double>::quiet_NaN();
    if (number >= low && number <= high && std::trunc(number) == number) return static_cast<Number>(number);
    if (low == high) Refuse("must be " + std::to_string(low));
    Refuse("must be a whole number from " + std::to_string(low) + " to " + std::to_string(high));
  }

 private:
  Spot(const Spot* parent, const Json& value, std::string_view name, std::size_t index)
      : file_(parent->file_), parent_(parent), value_(value), name_(name), index_(index) {}

  std::string Pointer() const {
    if (parent_ == nullptr) return {};
    return parent_->Pointer() + '/' + (parent_->value_.is_array() ? std::to_string(index_) : PointerPart(name_));
  }

  const std::filesystem::path& file_;
  const Spot* parent_ = nullptr;
  const Json& value_;
  std::string_view name_;
  std::size_t index_{};
};

double ReadDouble(const Spot& spot) {
  if (spot.Value().is_number()) return spot.Value().get<double>();
  const auto* const text = spot.Value().get_ptr<const std::string*>();
  const auto ends = std::end(words::FloatTexts);
  if (text == nullptr || std::find(std::begin(words::FloatTexts), ends, *text) == ends) {
    spot.Refuse("must be a number, \"inf\", \"-inf\", \"nan\" or \"-nan\"");
  }
  return ParseNumber<double>(*text).value();
}

/// How a value of a type is read.
struct TypeRow {
  std::string_view type;
  BagValue (*read)(const Spot&);
};
constexpr std::array types = {
    TypeRow{project_syntax::Int16, [](const Spot& spot) { return BagValue(spot.Whole<std::int16_t>()); }},
    TypeRow{project_syntax::Int32, [](const Spot& spot) { return BagValue(spot.Whole<std::int32_t>()); }},
    TypeRow{project_syntax::UInt8, [](const Spot& spot) { return BagValue(spot.Whole<std::uint8_t>()); }},
    TypeRow{project_syntax::BooleanType,
            [](const Spot& spot) { return BagValue(Boolean::Raw(spot.Whole<std::int16_t>())); }},
    TypeRow{project_syntax::Double, [](const Spot& spot) { return BagValue(ReadDouble(spot)); }},
    TypeRow{project_syntax::Text, [](const Spot& spot) { return BagValue(spot.Text()); }}};

BagValue ReadValue(const Spot& spot) {
  if (spot.Object().size() != 1) spot.Refuse("must be an object with one member, the type of the value");
  const Spot value = spot.Of(spot.Object().front());
  for (const TypeRow& row : types) {
    if (row.type == spot.Object().front().first) return row.read(value);
  }
  value.Refuse("is no type of a value");
}

/// Refuses a text that makes a line longer than a project file has them; `project` holds it and nothing else.
template <typename Project>
void RequireShort(const Spot& spot, Project&& project) {
  constexpr std::size_t surelyShort = 100000;
  if (spot.Size() <= surelyShort) return;
  try {
    FormatProject(project());
  } catch (const Failure&) {
    spot.Refuse("is too long for a project");
  }
}

void ReadProperties(const Spot& properties, ProjectElement& element) {
  for (const auto& member : properties.Object()) {
    const Spot spot = properties.Of(member);
    const std::optional<std::string> key = FromJsonText(member.first);
    if (!key) spot.Refuse("must have bytes in hexadecimal behind U+FFFD");
    if (key->empty()) spot.Refuse("is a value without a key");
    BagValue value = ReadValue(spot);
    RequireShort(spot, [&] {
      Project alone{{}, {{}}};
      alone.elements.front().bag.Store(*key, value);
      return alone;
    });
    if (!element.bag.StoreNew(*key, std::move(value))) spot.Refuse("stands twice");
  }
}

SavedCodes ReadCodes(const Spot& spot, const std::vector<SavedCodes>& others) {
  spot.AllowOnly({words::Buffer, words::Next, words::Bytes});
  constexpr auto& names = project_syntax::BufferNames;
  const Spot buffer = spot.Member(words::Buffer);
  const auto name = std::find(names.begin(), names.end(), buffer.String("the name of a code buffer"));
  if (name == names.end()) buffer.Refuse("must be the name of a code buffer");
  SavedCodes saved{static_cast<std::int32_t>(name - names.begin()), InitialCodes()};
  const bool twice = std::any_of(others.begin(), others.end(),
                                 [&saved](const SavedCodes& other) { return other.buffer == saved.buffer; });
  if (twice) buffer.Refuse("stands twice");
  saved.codes.NextValue = spot.Member(words::Next).Whole<std::int32_t>(0, saved.codes.Size - 1);
  const Spot bytes = spot.Member(words::Bytes);
  constexpr const char* wanted = "a row of at most 89 two-digit hexadecimal numbers with a blank between them";
  if (!PutBytes(bytes.String(wanted), saved.codes)) bytes.Refuse(std::string("must be ") + wanted);
  return saved;
}

ProjectElement ReadElement(const Spot& spot, PlaceSet& places) {
  spot.AllowOnly({words::Place, words::Properties, words::Codes});
  ProjectElement element;
  const Spot place = spot.Member(words::Place);
  element.place = place.Text();
  RequireShort(place, [&] { return Project{{}, {element}}; });
  if (!places.Insert(element.place)) place.Refuse("stands twice");
  ReadProperties(spot.Member(words::Properties), element);
  if (const std::optional<Spot> codes = spot.Find(words::Codes)) {
    codes->ForEachItem([&element](const Spot& item) { element.codes.push_back(ReadCodes(item, element.codes)); });
  }
  return element;
}

void ReadPanelText(const Spot& spot, Project& project) {
  spot.ForEachItem([&project](const Spot& item) {
    const std::string line = item.Text();
    if (line.find_first_of("\r\n") != std::string::npos) item.Refuse("must be one line");
    RequireShort(item, [&line] { return Project{{}, {}, line}; });
    project.panelText.append(line) += '\n';
  });
  if (project.panelText.empty()) spot.Refuse("must have a line");
}

}  // namespace

Project ImportProject(const std::filesystem::path& file, std::string_view content) {
  const Json document = ReadJson(file, content);
  const Spot root(file, document);
  root.AllowOnly({words::Format, words::Panel, words::Elements});
  root.Member(words::Format).Whole<std::int32_t>(words::FormatVersion, words::FormatVersion);
  const Spot panel = root.Member(words::Panel);
  panel.AllowOnly({words::Name, words::Text});
  Project project;
  const Spot name = panel.Member(words::Name);
  project.panel = name.Text();
  RequireShort(name, [&] { return project; });
  if (const std::optional<Spot> text = panel.Find(words::Text)) ReadPanelText(*text, project);
  PlaceSet places;
  root.Member(words::Elements).ForEachItem([&](const Spot& spot) {
    project.elements.push_back(ReadElement(spot, places));
  });
  return project;
}

}  // namespace plexel
