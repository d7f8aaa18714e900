#include "project/definition.h"

#include <array>

#include "element/property_bag.h"
#include "platform/clean_up.h"
#include "platform/failure.h"
#include "project/shared_values.h"
#include "scancodes/element_codes.h"
#include "services/code_limit.h"
#include "services/module_state.h"

namespace plexel {

namespace {

using Text = std::string ElementRecord::*;
constexpr std::array<Text, LayerCount> pressTexts = {
    &ElementRecord::strLayer1PressString, &ElementRecord::strLayer2PressString, &ElementRecord::strLayer3PressString,
    &ElementRecord::strLayer4PressString};
constexpr std::array<Text, LayerCount> releaseTexts = {
    &ElementRecord::strLayer1ReleaseString, &ElementRecord::strLayer2ReleaseString,
    &ElementRecord::strLayer3ReleaseString, &ElementRecord::strLayer4ReleaseString};
constexpr std::array<enumLedType ElementRecord::*, LayerCount> leds = {
    &ElementRecord::lngLEDTypeLayer1, &ElementRecord::lngLEDTypeLayer2, &ElementRecord::lngLEDTypeLayer3,
    &ElementRecord::lngLEDTypeLayer4};

template <typename Member>
auto& Of(const std::array<Member, LayerCount>& members, auto& record, std::int32_t layer) {
  return record.*members.at(static_cast<std::size_t>(layer - 1));
}

std::string StoredText(const FlatBag& bag, const std::string& key) {
  const BagValue* const value = bag.Find(key);
  return value == nullptr ? std::string() : BagToString(*value);
}

std::int32_t StoredNumber(const FlatBag& bag, const std::string& key, std::int32_t otherwise) {
  const BagValue* const value = bag.Find(key);
  return value == nullptr ? otherwise : BagToInt32(*value);
}

bool Sends(const ElementRecord& definition, std::int32_t layer) {
  return !Of(pressTexts, definition, layer).empty() || !Of(releaseTexts, definition, layer).empty() ||
         PressBuffer(definition, layer)->NextValue != 0 || ReleaseBuffer(definition, layer)->NextValue != 0;
}

/// Calls `find(kind, layer)` for the first layer of which a fact holds.
template <typename Holds, typename Find>
void FirstLayer(const LayerSet& layers, Holds&& holds, Find&& find) {
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    if (!layers.Has(layer) || !holds(layer)) continue;
    find(layer);
    return;
  }
}

}  // namespace

LayerSet::LayerSet(const std::vector<std::int32_t>& layers) : bits_(0) {
  for (const std::int32_t layer : layers) bits_ |= 1U << static_cast<unsigned>(layer);
}

ElementRecord EmptyDefinition() {
  ElementRecord record;
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    *PressBuffer(record, layer) = *ReleaseBuffer(record, layer) = InitialCodes();
    Of(leds, record, layer) = LedNotEnabled;
  }
  return record;
}

ElementRecord DefinitionOf(const ProjectElement& element) {
  ElementRecord record = EmptyDefinition();
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    const std::string number = std::to_string(layer);
    Of(pressTexts, record, layer) = StoredText(element.bag, "PressKeyDefLayer" + number);
    Of(releaseTexts, record, layer) = StoredText(element.bag, "ReleaseKeyDefLayer" + number);
    Of(leds, record, layer) = static_cast<enumLedType>(StoredNumber(element.bag, "LedType" + number, LedNotEnabled));
  }
  record.strBaseElementNotes = StoredText(element.bag, "ButtonNotes");
  record.enumWizardButtonType = static_cast<enumWizardOptions>(StoredNumber(element.bag, "WizardOptions", NormalKey));
  PutCodes(element.codes, record);
  return record;
}

bool HasRoomFor(const ElementRecord& record, std::int32_t layer, Boolean vantaEnabled) {
  const AtEnd restored([limit = Module().lngMaxScanCodes] { Module().lngMaxScanCodes = limit; });
  Module().lngMaxScanCodes = MaxScanCodesFor(vantaEnabled);
  try {
    return HasRoomForCodes(layer, record, 0);
  } catch (const Failure&) {
    return false;
  }
}

namespace {

void CopyKeys(const ElementRecord& from, std::int32_t layer, ElementRecord& to, std::int32_t onto) {
  Of(pressTexts, to, onto) = Of(pressTexts, from, layer);
  Of(releaseTexts, to, onto) = Of(releaseTexts, from, layer);
  *PressBuffer(to, onto) = *PressBuffer(from, layer);
  *ReleaseBuffer(to, onto) = *ReleaseBuffer(from, layer);
}

}  // namespace

void CopyLayer(const ElementRecord& from, std::int32_t layer, ElementRecord& to, std::int32_t onto) {
  CopyKeys(from, layer, to, onto);
  Of(leds, to, onto) = Of(leds, from, layer);
}

enumLedType LedOf(const ElementRecord& record, std::int32_t layer) { return Of(leds, record, layer); }

void Define(ctlPlexelBaseElement& element, const ElementRecord& definition, const LayerSet& layers, bool withLeds) {
  const enumTactisBaseElementType kind = element.ElementType();
  if (kind == Key) return;
  ElementRecord record = element.TactisBaseElementScanCodeBuffer();
  for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
    if (!layers.Has(layer)) continue;
    if (kind != Led && HasRoomFor(definition, layer, element.VantaEnabled()))
      CopyKeys(definition, layer, record, layer);
    if (withLeds && HasLed(kind)) Of(leds, record, layer) = Of(leds, definition, layer);
  }
  if (layers.IsAll()) {
    record.strBaseElementNotes = definition.strBaseElementNotes;
    record.enumWizardButtonType = definition.enumWizardButtonType;
  }
  element.SetTactisBaseElementDefinition(record);
}

std::vector<Misfit> MisfitsOf(const ctlPlexelBaseElement& element, const ElementRecord& definition,
                              const LayerSet& layers) {
  std::vector<Misfit> misfits;
  const auto find = [&](Misfit::Kind kind) {
    return [&misfits, &element, kind](std::int32_t layer) { misfits.push_back({kind, element.Name(), layer, {}}); };
  };
  const auto sends = [&](std::int32_t layer) { return Sends(definition, layer); };
  const auto shows = [&](std::int32_t layer) { return Of(leds, definition, layer) != LedNotEnabled; };
  const enumTactisBaseElementType kind = element.ElementType();
  if (kind == Key) {
    misfits.push_back({Misfit::Kind::KeySwitch, element.Name(), 0, {}});
    return misfits;
  }
  if (kind == Led) {
    FirstLayer(layers, sends, find(Misfit::Kind::NoKey));
  } else {
    FirstLayer(
        layers, [&](std::int32_t layer) { return !HasRoomFor(definition, layer, element.VantaEnabled()); },
        find(Misfit::Kind::OverLimit));
  }
  if (!HasLed(kind)) FirstLayer(layers, shows, find(Misfit::Kind::NoLed));
  return misfits;
}

}  // namespace plexel
