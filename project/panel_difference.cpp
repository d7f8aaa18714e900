#include "project/panel_difference.h"

#include <tuple>
#include <unordered_map>

namespace plexel {

namespace {

using Kind = PanelDifference::Kind;

auto SettingsOf(const Panel& panel) {
  return std::tie(panel.title, panel.width, panel.height, panel.targetSystem, panel.deviceType, panel.vantaEnabled);
}

auto LookOf(const PanelPart& part) {
  return std::tie(part.kind, part.fillColor, part.lineColor, part.cornerRadius, part.legend, part.legendColor,
                  part.legendSize, part.legendAlignment);
}

bool IsDrawnAlike(const Panel& first, const Panel& second) {
  if (first.parts.size() != second.parts.size()) return false;
  for (std::size_t index = 0; index < first.parts.size(); ++index) {
    const PanelPart &one = first.parts[index], &other = second.parts[index];
    if (LookOf(one) != LookOf(other) || (!one.element && one.box != other.box)) return false;
  }
  return true;
}

std::unordered_map<std::string_view, const PanelPart*> ElementsOf(const Panel& panel) {
  std::unordered_map<std::string_view, const PanelPart*> elements;
  for (const PanelPart& part : panel.parts) {
    if (part.element) elements.emplace(part.element->id, &part);
  }
  return elements;
}

auto NumbersOf(const PanelElement& element) {
  return std::tie(element.hardwareNumberKeys, element.hardwareNumberLed, element.hardwareNumberButton);
}

}  // namespace

std::vector<PanelDifference> DifferencesOf(const Panel& first, const Panel& second) {
  std::vector<PanelDifference> differences;
  if (SettingsOf(first) != SettingsOf(second)) differences.push_back({Kind::Settings, {}});
  if (!IsDrawnAlike(first, second)) differences.push_back({Kind::Drawing, {}});
  auto left = ElementsOf(second);
  for (const PanelPart& part : first.parts) {
    if (!part.element) continue;
    const PanelElement& element = *part.element;
    const auto found = left.find(element.id);
    if (found == left.end()) {
      differences.push_back({Kind::Removed, element.id});
      continue;
    }
    const PanelPart& other = *found->second;
    const bool sameSize = element.sizeX == other.element->sizeX && element.sizeY == other.element->sizeY;
    if (part.box != other.box || !sameSize) differences.push_back({Kind::Place, element.id});
    if (element.type != other.element->type) differences.push_back({Kind::Type, element.id});
    if (NumbersOf(element) != NumbersOf(*other.element)) differences.push_back({Kind::Numbers, element.id});
    left.erase(found);
  }
  for (const PanelPart& part : second.parts) {
    if (part.element && left.contains(part.element->id)) differences.push_back({Kind::Added, part.element->id});
  }
  return differences;
}

}  // namespace plexel
