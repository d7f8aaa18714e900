#include "activex/members.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "element/name_index.h"
#include "element/property_table.h"
#include "forms/ascii.h"

namespace plexel::activex {

namespace {

constexpr std::array<std::string_view, 0> none{};
constexpr std::array visible = {std::string_view("bVisible")};
constexpr std::array record = {std::string_view("udtTactisBaseElementInfo")};
constexpr std::array question = {std::string_view("LEDType"), std::string_view("Layer")};

constexpr std::array methods = {
    Method{"OpenPropertiesDialog", none},
    Method{"OpenConfigurationDialog", none},
    Method{"UpdateFocus", none},
    Method{"Refresh", none},
    Method{"ShowDefinedObject", visible},
    Method{"SetTactisBaseElementDefinition", record},
    Method{"CheckIfLedIsAlreadyDefined", question},
};

constexpr unsigned Lower(unsigned letter) {
  constexpr unsigned plain = 0x80;
  return letter < plain ? static_cast<unsigned char>(ascii::Lower(static_cast<char>(letter))) : letter;
}

/// The numbers of members by their names in any case: an open hash table.
class Index {
 public:
  Index() {
    const auto properties = PropertyTable();
    for (std::size_t row = 0; row < properties.size(); ++row) Add(properties[row].name, row + 1);
    for (std::size_t row = 0; row < methods.size(); ++row) Add(methods[row].name, properties.size() + row + 1);
  }

  DISPID Find(const wchar_t* asked) const {
    const std::size_t size = std::char_traits<wchar_t>::length(asked);
    if (size == 0) return DISPID_UNKNOWN;
    for (std::size_t slot = Slot(size, asked[0], asked[size - 1]); slots_[slot].number != 0; slot = Next(slot)) {
      if (slots_[slot].name.size() == size && SameName(slots_[slot].name, asked)) return slots_[slot].number;
    }
    return DISPID_UNKNOWN;
  }

 private:
  struct Entry {
    std::string_view name;
    DISPID number = 0;
  };
  static constexpr std::size_t SlotCount = 128;

  static std::size_t Slot(std::size_t size, unsigned first, unsigned last) {
    return FirstSlotOfName(size, Lower(first), Lower(last), SlotCount);
  }
  static std::size_t Next(std::size_t slot) { return (slot + 1) % SlotCount; }

  void Add(std::string_view name, std::size_t number) {
    std::size_t slot =
        Slot(name.size(), static_cast<unsigned char>(name.front()), static_cast<unsigned char>(name.back()));
    while (slots_[slot].number != 0) slot = Next(slot);
    slots_[slot] = {name, static_cast<DISPID>(number)};
  }

  std::array<Entry, SlotCount> slots_{};
};

}  // namespace

std::span<const Method> Methods() { return methods; }

bool SameName(std::string_view name, const wchar_t* asked) {
  for (const char letter : name) {
    if (Lower(static_cast<unsigned char>(letter)) != Lower(*asked++)) return false;
  }
  return *asked == L'\0';
}

DISPID PropertyNumber(std::string_view name) {
  const PropertyRow* const row = FindProperty(name);
  return row == nullptr ? DISPID_UNKNOWN : static_cast<DISPID>(row - PropertyTable().data() + 1);
}

DISPID MemberNumber(const wchar_t* name) {
  static const Index index;
  return index.Find(name);
}

}  // namespace plexel::activex
