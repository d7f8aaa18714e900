#include "element/ctlPlexelBaseElement.h"

#include "element/property_access.h"
#include "platform/failure.h"

namespace plexel {

namespace {

using E = ctlPlexelBaseElement;
using property_access::Setter;

constexpr std::array<Setter<enumLedType>, LayerCount> ledTypeSetters = {&E::LEDTypeLayer1, &E::LEDTypeLayer2,
                                                                        &E::LEDTypeLayer3, &E::LEDTypeLayer4};
constexpr std::array<Setter<const std::string&>, LayerCount> releaseSetters = {
    &E::ReleaseKeyDefLayer1, &E::ReleaseKeyDefLayer2, &E::ReleaseKeyDefLayer3, &E::ReleaseKeyDefLayer4};
constexpr std::array<Setter<const std::string&>, LayerCount> pressSetters = {
    &E::PressKeyDefLayer1, &E::PressKeyDefLayer2, &E::PressKeyDefLayer3, &E::PressKeyDefLayer4};
constexpr std::array<Setter<std::int32_t>, 8> keyNumberSetters = {
    &E::HardwareNumberKey,  &E::HardwareNumberKey1, &E::HardwareNumberKey2, &E::HardwareNumberKey3,
    &E::HardwareNumberKey4, &E::HardwareNumberKey5, &E::HardwareNumberKey6, &E::HardwareNumberKey7};

/// An entry of an array whose first number is given; Failure (Index) outside it.
template <typename Array>
auto& Entry(Array& array, std::int32_t number, std::int32_t first) {
  const auto index = static_cast<std::int64_t>(number) - first;
  if (index < 0 || index >= static_cast<std::int64_t>(array.size())) {
    throw Failure(FailureKind::Index, "number " + std::to_string(number) + " is out of range");
  }
  return array[static_cast<std::size_t>(index)];
}

}  // namespace

enumLedType E::LEDTypeLayer(std::int32_t layer) const { return Entry(ledTypes_, layer, 1); }
void E::LEDTypeLayer(std::int32_t layer, enumLedType value) { (this->*Entry(ledTypeSetters, layer, 1))(value); }

const std::string& E::ReleaseKeyDefLayer(std::int32_t layer) const { return Entry(releaseKeyDefs_, layer, 1); }
void E::ReleaseKeyDefLayer(std::int32_t layer, const std::string& value) {
  (this->*Entry(releaseSetters, layer, 1))(value);
}

const std::string& E::PressKeyDefLayer(std::int32_t layer) const { return Entry(pressKeyDefs_, layer, 1); }
void E::PressKeyDefLayer(std::int32_t layer, const std::string& value) {
  (this->*Entry(pressSetters, layer, 1))(value);
}

std::int32_t E::HardwareNumberKeyAt(std::int32_t index) const { return Entry(hardwareNumberKeys_, index, 0); }
void E::HardwareNumberKeyAt(std::int32_t index, std::int32_t value) {
  (this->*Entry(keyNumberSetters, index, 0))(value);
}

}  // namespace plexel
