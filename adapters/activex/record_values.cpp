#include "activex/record_values.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <type_traits>

#include "platform/clean_up.h"
#include "win32/bstr.h"

namespace plexel::activex {

namespace {

using Inside = udtTactisBaseElement_ScanCodeInfo;
using Outside = RecordOutside;

/// The fields of one name, inside and outside.
template <typename InsideField, typename OutsideField>
struct Pair {
  InsideField Inside::* inside;
  OutsideField Outside::* outside;
};
template <typename InsideField, typename OutsideField>
Pair(InsideField Inside::*, OutsideField Outside::*) -> Pair<InsideField, OutsideField>;

constexpr std::tuple pairs = {
    Pair{&Inside::enumWizardButtonType, &Outside::enumWizardButtonType},
    Pair{&Inside::enumBaseElementType, &Outside::enumBaseElementType},
    Pair{&Inside::lngLEDTypeLayer1, &Outside::lngLEDTypeLayer1},
    Pair{&Inside::lngLEDTypeLayer2, &Outside::lngLEDTypeLayer2},
    Pair{&Inside::lngLEDTypeLayer3, &Outside::lngLEDTypeLayer3},
    Pair{&Inside::lngLEDTypeLayer4, &Outside::lngLEDTypeLayer4},
    Pair{&Inside::lngLedHardwareNumber, &Outside::lngLedHardwareNumber},
    Pair{&Inside::lngButtonHardwareNumber, &Outside::lngButtonHardwareNumber},
    Pair{&Inside::lngKeyHardwareNumber, &Outside::lngKeyHardwareNumber},
    Pair{&Inside::lngKeyHardwareNumber1, &Outside::lngKeyHardwareNumber1},
    Pair{&Inside::lngKeyHardwareNumber2, &Outside::lngKeyHardwareNumber2},
    Pair{&Inside::lngKeyHardwareNumber3, &Outside::lngKeyHardwareNumber3},
    Pair{&Inside::lngKeyHardwareNumber4, &Outside::lngKeyHardwareNumber4},
    Pair{&Inside::lngKeyHardwareNumber5, &Outside::lngKeyHardwareNumber5},
    Pair{&Inside::lngKeyHardwareNumber6, &Outside::lngKeyHardwareNumber6},
    Pair{&Inside::lngKeyHardwareNumber7, &Outside::lngKeyHardwareNumber7},
    Pair{&Inside::strLayer1PressScanCode, &Outside::strLayer1PressScanCode},
    Pair{&Inside::strLayer1ReleaseScanCode, &Outside::strLayer1ReleaseScanCode},
    Pair{&Inside::strLayer2PressScanCode, &Outside::strLayer2PressScanCode},
    Pair{&Inside::strLayer2ReleaseScanCode, &Outside::strLayer2ReleaseScanCode},
    Pair{&Inside::strLayer3PressScanCode, &Outside::strLayer3PressScanCode},
    Pair{&Inside::strLayer3ReleaseScanCode, &Outside::strLayer3ReleaseScanCode},
    Pair{&Inside::strLayer4PressScanCode, &Outside::strLayer4PressScanCode},
    Pair{&Inside::strLayer4ReleaseScanCode, &Outside::strLayer4ReleaseScanCode},
    Pair{&Inside::strLayer1PressString, &Outside::strLayer1PressString},
    Pair{&Inside::strLayer2PressString, &Outside::strLayer2PressString},
    Pair{&Inside::strLayer3PressString, &Outside::strLayer3PressString},
    Pair{&Inside::strLayer4PressString, &Outside::strLayer4PressString},
    Pair{&Inside::strLayer1ReleaseString, &Outside::strLayer1ReleaseString},
    Pair{&Inside::strLayer2ReleaseString, &Outside::strLayer2ReleaseString},
    Pair{&Inside::strLayer3ReleaseString, &Outside::strLayer3ReleaseString},
    Pair{&Inside::strLayer4ReleaseString, &Outside::strLayer4ReleaseString},
    Pair{&Inside::strBaseElementNotes, &Outside::strBaseElementNotes},
};
static_assert(std::tuple_size_v<decltype(pairs)> == 33);

using CodesOutside = ::udtTactisBaseElement_TACTIS_SCANCODE;
using CodesInside = udtTactisBaseElement_TACTIS_SCANCODE;
static_assert(std::extent_v<decltype(CodesOutside::Value)> == CodesInside::Size);

template <typename To, typename From>
void Move(const From& from, To& to) {
  to = static_cast<To>(from);
}

void Move(const CodesOutside& from, CodesInside& to) {
  std::copy(std::begin(from.Value), std::end(from.Value), to.Value.begin());
  to.NextValue = from.NextValue;
}

void Move(const CodesInside& from, CodesOutside& to) {
  std::copy(from.Value.begin(), from.Value.end(), std::begin(to.Value));
  to.NextValue = from.NextValue;
}

void Move(const BSTR& from, std::string& to) { to = NarrowOf(from); }

void Move(const std::string& from, BSTR& to) { to = from.empty() ? nullptr : NewBstr(from); }

/// Calls with the two fields of each name.
template <typename InsideRecord, typename OutsideRecord, typename Visit>
void ForEach(InsideRecord& inside, OutsideRecord& outside, Visit&& visit) {
  std::apply([&](const auto&... pair) { (visit(inside.*pair.inside, outside.*pair.outside), ...); }, pairs);
}

void FreeTexts(Outside& record) {
  Inside none;
  ForEach(none, record, [](const auto&, auto& field) {
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(field)>, BSTR>)
      SysFreeString(std::exchange(field, nullptr));
  });
}

}  // namespace

Inside FromOutside(const Outside& given) {
  Inside info;
  ForEach(info, given, [](auto& inside, const auto& outside) { Move(outside, inside); });
  return info;
}

void ToOutside(const Inside& info, Outside& given) {
  given = {};
  OrUndo([&] { ForEach(info, given, [](const auto& inside, auto& outside) { Move(inside, outside); }); },
         [&] { FreeTexts(given); });
}

}  // namespace plexel::activex
