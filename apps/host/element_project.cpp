#include "host/element_project.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

#include "files/file_error.h"
#include "host/com_error.h"
#include "win32/bstr.h"

namespace plexel::host {

namespace {

using Element = ::_ctlPlexelBaseElement;

constexpr SHORT WholeSize = 100;  ///< percent

constexpr std::array keyNumbers = {&Element::put_HardwareNumberKey,  &Element::put_HardwareNumberKey1,
                                   &Element::put_HardwareNumberKey2, &Element::put_HardwareNumberKey3,
                                   &Element::put_HardwareNumberKey4, &Element::put_HardwareNumberKey5,
                                   &Element::put_HardwareNumberKey6, &Element::put_HardwareNumberKey7};
constexpr std::array ledTypes = {&Element::get_LEDTypeLayer1, &Element::get_LEDTypeLayer2, &Element::get_LEDTypeLayer3,
                                 &Element::get_LEDTypeLayer4};

/// What a new element has of its panel's description and a saved one brings along.
void SetWhatIsSaved(Element& element, const PanelPart& part, const Panel& panel) {
  const PanelElement& described = *part.element;
  Check(element.put_SizeX(described.sizeX), "SizeX");
  Check(element.put_OriginalPosX(part.box.left), "OriginalPosX");
  Check(element.put_TargetSystem(Bstr(panel.targetSystem).Get()), "TargetSystem");
  Check(element.put_HardwareNumberLed(described.hardwareNumberLed), "HardwareNumberLed");
  Check(element.put_HardwareNumberButton(described.hardwareNumberButton), "HardwareNumberButton");
  for (std::size_t index = 0; index < keyNumbers.size(); ++index) {
    Check((element.*keyNumbers.at(index))(described.hardwareNumberKeys.at(index)), "HardwareNumberKey");
  }
}

/// What every element has of its panel's description, and is not saved.
void SetWhatIsNotSaved(Element& element, const PanelPart& part, const Panel& panel, Container& container) {
  if (container.frame != nullptr) {
    Check(element.putref_ParentWindow(static_cast<DispatchPart<IDispatch>*>(&container)), "ParentWindow");
  }
  Check(element.put_DeviceType(panel.deviceType), "DeviceType");
  Check(element.put_VantaEnabled(panel.vantaEnabled.Value()), "VantaEnabled");
  Check(element.put_OriginalPosY(part.box.top), "OriginalPosY");
  Check(element.put_ElementType(static_cast<::enumTactisBaseElementType>(part.element->type)), "ElementType");
  Check(element.put_SizeY(part.element->sizeY), "SizeY");
}

}  // namespace

std::unique_ptr<ElementProject> ElementProject::New(const std::string& panel,
                                                    const std::filesystem::path& panelDirectory, Container& container) {
  const std::filesystem::path file = PanelFile(panelDirectory, panel);
  std::unique_ptr<ElementProject> project(new ElementProject(panel, ReadPanelText(file), file));
  for (const PanelPart& part : project->panel_.parts) {
    if (part.element) project->AddNew(part, container);
  }
  project->Refresh();
  return project;
}

std::unique_ptr<ElementProject> ElementProject::Open(const std::filesystem::path& file,
                                                     const std::filesystem::path& panelDirectory,
                                                     Container& container) {
  const Project read = ReadProject(file);
  const bool carries = !read.panelText.empty();
  const std::filesystem::path panel = carries ? file : PanelFile(panelDirectory, read.panel);
  std::unique_ptr<ElementProject> project(
      new ElementProject(read.panel, carries ? read.panelText : ReadPanelText(panel), panel));
  project->file_ = file;
  project->carriesPanel_ = carries;
  std::map<std::string_view, const PanelPart*> left;
  for (const PanelPart& part : project->panel_.parts) {
    if (part.element) left.emplace(part.element->id, &part);
  }
  for (const ProjectElement& saved : read.elements) {
    const auto part = left.find(saved.place);
    if (part == left.end()) {
      throw FileError(file, "the panel \"" + read.panel + "\" has no place \"" + saved.place + '"');
    }
    project->AddSaved(*part->second, saved, container);
    left.erase(part);
  }
  for (const PanelPart& part : project->panel_.parts) {
    if (part.element && left.contains(part.element->id)) project->AddNew(part, container);
  }
  return project;
}

void ElementProject::AddNew(const PanelPart& part, Container& container) {
  Place place{&part, std::make_unique<PlacedControl>(container, part.element->id)};
  place.control->InitNew();
  Element& element = place.control->Element();
  Check(element.put_ZoomFactor(WholeSize), "ZoomFactor");
  SetWhatIsSaved(element, part, panel_);
  SetWhatIsNotSaved(element, part, panel_, container);
  places_.push_back(std::move(place));
}

void ElementProject::AddSaved(const PanelPart& part, const ProjectElement& saved, Container& container) {
  Place place{&part, std::make_unique<PlacedControl>(container, saved.place)};
  const std::string unread = place.control->Load(saved.bag);
  if (!unread.empty()) unread_.push_back(saved.place + ": " + unread);
  place.control->Codes(saved.codes);
  Element& element = place.control->Element();
  Check(element.put_FocusVisible(VARIANT_FALSE), "FocusVisible");
  Check(element.put_ZoomFactor(WholeSize), "ZoomFactor");
  SetWhatIsNotSaved(element, part, panel_, container);
  saved.bag.ForEach([](std::string_view, const BagValue&) {},
                    [&place](std::string_view key, const BagValue& value) { place.foreign.emplace_back(key, value); });
  places_.push_back(std::move(place));
}

Project ElementProject::Content() const {
  Project project;
  project.panel = panelName_;
  if (carriesPanel_) project.panelText = panelText_;
  for (const Place& place : places_) {
    ProjectElement saved{place.control->Name(), place.control->Save(), place.control->Codes()};
    saved.bag.Store("FocusVisible", False);
    saved.bag.Store("ZoomFactor", std::int16_t{WholeSize});
    for (const auto& [key, value] : place.foreign) saved.bag.Store(key, value);
    project.elements.push_back(std::move(saved));
  }
  return project;
}

void ElementProject::Save(const std::filesystem::path& file) {
  WriteProject(file, Content());
  file_ = file;
}

PlacedControl* ElementProject::Find(const std::string& name) const {
  const auto found =
      std::ranges::find_if(places_, [&name](const Place& place) { return place.control->Name() == name; });
  return found == places_.end() ? nullptr : found->control.get();
}

void ElementProject::Refresh() {
  for (const Place& place : places_) Check(place.control->Element().Refresh(), "Refresh");
}

void ElementProject::Scale(double factor) {
  for (const Place& place : places_) {
    Check(place.control->Element().put_DPIFontScaleFactor(factor), "DPIFontScaleFactor");
    Check(place.control->Element().put_ZoomFactor(WholeSize), "ZoomFactor");  // which lays it out anew
  }
}

bool ElementProject::LedIsDefined(LONG type, LONG layer) const {
  if (layer < 1 || layer > static_cast<LONG>(ledTypes.size())) return false;
  const auto shown = ledTypes.at(static_cast<std::size_t>(layer - 1));
  return std::ranges::any_of(places_, [=](const Place& place) {
    ::enumLedType shows{};
    Check((place.control->Element().*shown)(&shows), "LEDTypeLayer");
    return static_cast<LONG>(shows) == type;
  });
}

}  // namespace plexel::host
