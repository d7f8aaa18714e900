#include "project/difference.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "element/property_table.h"
#include "files/project_syntax.h"
#include "platform/failure.h"
#include "project/code_bytes.h"

namespace plexel {

namespace {

using Code = udtTactisBaseElement_TACTIS_SCANCODE;

/// A value as an element reads it for a property of this type; as it is when it does not convert.
BagValue Converted(PropertyType type, const BagValue& value) {
  try {
    switch (type) {
      case PropertyType::Int16:
        return BagToInt16(value);
      case PropertyType::Int32:
        return BagToInt32(value);
      case PropertyType::UInt8:
        return BagToUInt8(value);
      case PropertyType::Bool:
        return BagToBoolean(value);
      default:  // a text, since nothing else is stored
        return BagToString(value);
    }
  } catch (const Failure&) {  // what an element cannot read is compared as it stands
  }
  return value;
}

/// The value of an element's own key, its default when it is not stored.
BagValue Read(const FlatBag& bag, const PropertyRow& row) {
  if (const BagValue* const stored = bag.Find(row.storage.key)) return Converted(row.type, *stored);
  if (row.type == PropertyType::String) return std::string();
  return Converted(row.type, row.storage.readDefault);
}

/// The rows of the stored properties in the order of reading.
const std::vector<const PropertyRow*>& StoredRows() {
  static const auto rows = [] {
    std::vector<const PropertyRow*> made(StoredKeyCount);
    for (const PropertyRow& row : PropertyTable()) {
      if (row.storage.readOrder != 0) made.at(static_cast<std::size_t>(row.storage.readOrder - 1)) = &row;
    }
    return made;
  }();
  return rows;
}

/// Whether two stored values are one: floats by their bits or both no number.
bool Same(const BagValue& a, const BagValue& b) {
  const auto *first = std::get_if<double>(&a), *second = std::get_if<double>(&b);
  if (first == nullptr || second == nullptr) return a == b;
  if (std::isnan(*first) && std::isnan(*second)) return true;
  return *first == *second && std::signbit(*first) == std::signbit(*second);
}

/// The foreign keys of two bags: as the first has them, then those that only the second has.
std::vector<std::string> ForeignKeys(const FlatBag& first, const FlatBag& second) {
  std::vector<std::string> keys;
  const auto pass = [](std::string_view, const BagValue&) {};
  first.ForEach(pass, [&keys](std::string_view key, const BagValue&) { keys.emplace_back(key); });
  second.ForEach(pass, [&](std::string_view key, const BagValue&) {
    if (first.Find(key) == nullptr) keys.emplace_back(key);
  });
  return keys;
}

/// The buffer of a number, in the state of a new element when it is not saved.
Code BufferOf(const ProjectElement& element, std::int32_t number) {
  const auto saved = std::find_if(element.codes.begin(), element.codes.end(),
                                  [number](const SavedCodes& one) { return one.buffer == number; });
  return saved == element.codes.end() ? InitialCodes() : saved->codes;
}

class Comparison {
 public:
  std::vector<ProjectDifference> Run(const Project& first, const Project& second) {
    if (first.panel != second.panel) Add(DifferenceKind::Panel, {}, first.panel, second.panel);
    if (first.panelText != second.panelText) Add(DifferenceKind::PanelText, {}, first.panelText, second.panelText);
    std::unordered_map<std::string_view, const ProjectElement*> others;
    for (const ProjectElement& element : second.elements) others.emplace(element.place, &element);
    for (const ProjectElement& element : first.elements) {
      element_ = &element.place;
      if (const auto other = others.find(element.place); other != others.end()) {
        Compare(element, *other->second);
        others.erase(other);
      } else {
        Add(DifferenceKind::OnlyFirst, {}, std::nullopt, std::nullopt);
      }
    }
    for (const ProjectElement& element : second.elements) {
      element_ = &element.place;
      if (others.contains(element.place)) Add(DifferenceKind::OnlySecond, {}, std::nullopt, std::nullopt);
    }
    return std::move(differences_);
  }

 private:
  void Add(DifferenceKind kind, std::string_view name, std::optional<BagValue> from, std::optional<BagValue> to) {
    differences_.push_back({kind,
                            element_ == nullptr ? std::string() : *element_,
                            std::string(name),
                            std::move(from),
                            std::move(to),
                            {},
                            {}});
  }

  void Compare(const ProjectElement& first, const ProjectElement& second) {
    for (const PropertyRow* const row : StoredRows()) {
      BagValue from = Read(first.bag, *row), to = Read(second.bag, *row);
      if (!Same(from, to)) Add(DifferenceKind::Property, row->storage.key, std::move(from), std::move(to));
    }
    for (const std::string& key : ForeignKeys(first.bag, second.bag)) CompareForeign(key, first.bag, second.bag);
    for (std::size_t number = 0; number < project_syntax::BufferNames.size(); ++number) {
      CompareCodes(number, BufferOf(first, static_cast<std::int32_t>(number)),
                   BufferOf(second, static_cast<std::int32_t>(number)));
    }
  }

  void CompareForeign(const std::string& key, const FlatBag& first, const FlatBag& second) {
    const BagValue *const from = first.Find(key), *const to = second.Find(key);
    if (from != nullptr && to != nullptr && Same(*from, *to)) return;
    const auto held = [](const BagValue* value) { return value == nullptr ? std::nullopt : std::optional(*value); };
    Add(DifferenceKind::Property, key, held(from), held(to));
  }

  void CompareCodes(std::size_t number, const Code& first, const Code& second) {
    if (first == second) return;
    Add(DifferenceKind::Codes, project_syntax::BufferNames.at(number), BytesText(first, 0, LastInUse(first)),
        BytesText(second, 0, LastInUse(second)));
    std::size_t last = first.Value.size() - 1;
    while (last > 0 && first.Value[last] == second.Value[last]) --last;
    if (last <= std::max(LastInUse(first), LastInUse(second))) return;
    differences_.back().fromBehind = BytesText(first, LastInUse(first) + 1, last);
    differences_.back().toBehind = BytesText(second, LastInUse(second) + 1, last);
  }

  const std::string* element_ = nullptr;
  std::vector<ProjectDifference> differences_;
};

}  // namespace

std::vector<ProjectDifference> DifferencesOf(const Project& first, const Project& second) {
  return Comparison().Run(first, second);
}

}  // namespace plexel
