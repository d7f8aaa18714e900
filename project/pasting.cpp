#include "project/pasting.h"

#include <array>
#include <map>

#include "files/file_error.h"
#include "platform/failure.h"
#include "project/project_export.h"
#include "project/project_import.h"
#include "project/shared_values.h"

namespace plexel {

namespace {

constexpr const char* Origin = "clipboard";

}  // namespace

std::string CopiedText(const PanelDocument& document, std::span<const std::size_t> places) {
  Project project;
  project.panel = document.PanelName();
  for (const std::size_t place : places) project.elements.push_back(document.ElementContent(place));
  return ExportProject(project);
}

std::vector<ElementRecord> DefinitionsIn(std::string_view text) {
  std::vector<ElementRecord> definitions;
  for (const ProjectElement& element : ImportProject(Origin, text).elements) {
    try {
      definitions.push_back(DefinitionOf(element));
    } catch (const Failure& failure) {
      throw FileError(Origin, element.place + ": " + failure.what());
    }
  }
  return definitions;
}

Pasting::Pasting(PanelDocument& document, std::vector<ElementRecord> definitions, std::span<const std::size_t> places,
                 LayerSet layers)
    : document_(document),
      definitions_(std::move(definitions)),
      places_(places.begin(), places.end()),
      layers_(layers) {}

Pasting Pasting::Swap(PanelDocument& document, std::size_t first, std::size_t second) {
  const auto record = [&](std::size_t place) {
    return document.Places().at(place).element->TactisBaseElementScanCodeBuffer();
  };
  return Pasting(document, {record(second), record(first)}, std::array{first, second});
}

std::vector<Misfit> Pasting::Misfits() const {
  std::vector<Misfit> misfits;
  for (std::size_t index = 0; index < places_.size(); ++index) {
    const std::vector<Misfit> found = MisfitsOf(*document_.Places()[places_[index]].element, For(index), layers_);
    misfits.insert(misfits.end(), found.begin(), found.end());
  }
  return misfits;
}

std::vector<Misfit> Pasting::LedsTwice() const {
  const auto& places = document_.Places();
  std::vector<const ElementRecord*> pasted(places.size());
  for (std::size_t index = 0; index < places_.size(); ++index) pasted[places_[index]] = &For(index);
  // Of each function on each layer the first two elements that will show it: who shows it beside any other.
  std::map<std::pair<std::int32_t, std::int32_t>, std::vector<std::size_t>> shown;
  const auto ledOf = [&](std::size_t place, std::int32_t layer) {
    const ctlPlexelBaseElement& element = *places[place].element;
    if (!HasLed(element.ElementType())) return LedNotEnabled;
    const bool changes = pasted[place] != nullptr && layers_.Has(layer);
    return changes ? LedOf(*pasted[place], layer) : element.LEDTypeLayer(layer);
  };
  for (std::size_t place = 0; place < places.size(); ++place) {
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      std::vector<std::size_t>& holders = shown[{layer, ledOf(place, layer)}];
      if (holders.size() < 2) holders.push_back(place);
    }
  }
  std::vector<Misfit> twice;
  for (const std::size_t place : places_) {
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      const enumLedType led = ledOf(place, layer);
      const std::vector<std::size_t>& holders = shown[{layer, led}];
      if (led == LedNotEnabled || !layers_.Has(layer) || holders.size() < 2) continue;
      const std::size_t other = holders[0] == place ? holders[1] : holders[0];
      twice.push_back({Misfit::Kind::LedTwice, places[place].element->Name(), layer, places[other].element->Name()});
      break;
    }
  }
  return twice;
}

void Pasting::Do(StepKind kind, bool withLeds) {
  document_.Change(kind, places_, [&] {
    for (std::size_t index = 0; index < places_.size(); ++index) {
      Define(*document_.Places()[places_[index]].element, For(index), layers_, withLeds);
    }
  });
}

}  // namespace plexel
