#include "project/panel_document.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>
#include <unordered_map>

#include "element/element_access.h"
#include "element/packed_codes.h"
#include "files/file_error.h"
#include "files/system_files.h"
#include "files/text_lines.h"
#include "platform/clean_up.h"
#include "project/project_read_ahead.h"
#include "services/shared_services.h"

namespace plexel {

namespace {

std::size_t HashOf(std::string_view content) { return std::hash<std::string_view>()(content); }

/// Gives the bag of an element the values that it has at rest, for those that selecting and zooming change.
void PutAtRest(FlatBag& bag) {
  bag.Store("FocusVisible", False);
  bag.Store("ZoomFactor", std::int16_t{PanelDocument::NormalZoom});
}

std::vector<std::uint8_t> Packed(const std::vector<SavedCodes>& codes) {
  std::vector<std::uint8_t> packed;
  CodeBuffers buffers{};
  for (const SavedCodes& saved : codes) {
    const auto number = static_cast<std::size_t>(saved.buffer);
    if (number < buffers.size()) buffers[number] = &saved.codes;
  }
  PackCodes(buffers, packed);
  return packed;
}

const ForeignValues& ForeignAt(const std::map<std::size_t, ForeignValues>& foreign, std::size_t place) {
  static const ForeignValues none;
  const auto found = foreign.find(place);
  return found == foreign.end() ? none : found->second;
}

/// Whether an act ends in a Failure.
template <typename Act>
bool Fails(Act&& act) {
  try {
    act();
    return false;
  } catch (const Failure&) {
    return true;
  }
}

/// A bag that knows how far an element has read it. An element stops at the first value that it cannot take.
class WatchedBag : public PropertyBag {
 public:
  explicit WatchedBag(const FlatBag& bag) : bag_(bag) {}
  const BagValue* Find(std::string_view key) const override { return bag_.Find(key); }
  const BagValue* FindOwn(std::size_t place, std::string_view key) const override {
    last_ = place;
    return bag_.FindOwn(place, key);
  }
  void Store(std::string_view, BagValue) override {}
  void Remove(std::string_view) override {}
  /// The key at which the reading ended too early; empty for none.
  std::string_view StoppedAt() const {
    if (last_ + 1 == StoredKeyCount) {  // behind the last one, a number, nothing tells whether it was taken
      const BagValue* const value = bag_.FindOwn(last_, StoredKey(last_));
      if (value == nullptr || !Fails([value] { static_cast<void>(BagToInt32(*value)); })) return {};
    }
    return StoredKey(last_);
  }

 private:
  const FlatBag& bag_;
  mutable std::size_t last_{};
};

}  // namespace

std::unique_ptr<PanelDocument> PanelDocument::New(const std::string& panelName, const Site& site) {
  const std::filesystem::path file = PanelFile(site.panelDirectory, panelName);
  std::unique_ptr<PanelDocument> document(new PanelDocument(panelName, ReadPanelText(file), file));
  for (const PanelPart& part : document->panel_->panel.parts) {
    if (part.element) document->AddNew(part, site);
  }
  document->Refresh();
  return document;
}

std::unique_ptr<PanelDocument> PanelDocument::Open(const std::filesystem::path& file, const Site& site) {
  const TextFile text(file, ReadWholeFile(file, ProjectLimit));
  ProjectReadAhead reader(text);
  const std::size_t hash = HashOf(text.Text());
  std::unique_ptr<PanelDocument> document =
      Of(reader.Panel(), reader.PanelText(), [&reader] { return reader.Next(); }, file, site);
  document->file_ = file;
  document->hash_ = hash;
  return document;
}

std::unique_ptr<PanelDocument> PanelDocument::Of(const Project& project, const std::filesystem::path& origin,
                                                 const Site& site) {
  auto element = project.elements.begin();
  const auto next = [&] { return element == project.elements.end() ? nullptr : &*element++; };
  return Of(project.panel, project.panelText, next, origin, site);
}

std::unique_ptr<PanelDocument> PanelDocument::Of(const std::string& panelName, const std::string& panelText,
                                                 const std::function<const ProjectElement*()>& next,
                                                 const std::filesystem::path& origin, const Site& site) {
  const bool carries = !panelText.empty();
  const std::filesystem::path panel = carries ? origin : PanelFile(site.panelDirectory, panelName);
  std::unique_ptr<PanelDocument> document(
      new PanelDocument(panelName, carries ? panelText : ReadPanelText(panel), panel));
  document->carriesPanel_ = document->fileCarriesPanel_ = carries;
  std::unordered_map<std::string_view, const PanelPart*> left;
  for (const PanelPart& part : document->panel_->panel.parts) {
    if (part.element) left.emplace(part.element->id, &part);
  }
  document->places_.reserve(left.size());
  while (const ProjectElement* const saved = next()) {
    const auto part = left.find(saved->place);
    if (part == left.end()) {
      throw FileError(origin, "the panel \"" + panelName + "\" has no place \"" + saved->place + '"');
    }
    document->AddSaved(*part->second, *saved, site);
    left.erase(part);
  }
  for (const PanelPart& part : document->panel_->panel.parts) {
    if (part.element && left.contains(part.element->id)) document->AddNew(part, site);
  }
  document->fileForeign_ = document->foreign_;
  if (!site.keepsSettings) document->Refresh();
  return document;
}

PanelDocument::~PanelDocument() {
  for (const Place& place : places_) {
    place.element->UserControl_Terminate();
    place.element->Detach();
  }
}

void PanelDocument::AddNew(const PanelPart& part, const Site& site) {
  const PanelElement& described = *part.element;
  const auto element = site.component.Create(described.id, site.host);
  element->ZoomFactor(static_cast<std::int16_t>(zoom_));
  element->SizeX(described.sizeX);
  element->OriginalPosX(part.box.left);
  element->TargetSystem(panel_->panel.targetSystem);
  element->HardwareNumberLed(described.hardwareNumberLed);
  element->HardwareNumberButton(described.hardwareNumberButton);
  for (std::size_t index = 0; index < described.hardwareNumberKeys.size(); ++index) {
    element->HardwareNumberKeyAt(static_cast<std::int32_t>(index), described.hardwareNumberKeys[index]);
  }
  SetWhatIsNotSaved(*element, part, site);
  places_.push_back({&part, element});
}

void PanelDocument::AddSaved(const PanelPart& part, const ProjectElement& saved, const Site& site) {
  const WatchedBag bag(saved.bag);
  const auto element = site.component.Read(saved.place, site.host, bag);
  if (!bag.StoppedAt().empty()) unread_.push_back(saved.place + ": " + std::string(bag.StoppedAt()));
  ElementAccess::Codes(*element, Packed(saved.codes));
  element->FocusVisible(False);
  element->ZoomFactor(static_cast<std::int16_t>(zoom_));
  SetWhatIsNotSaved(*element, part, site);
  saved.bag.ForEach([](std::string_view, const BagValue&) {},
                    [this](std::string_view key, const BagValue& value) {
                      foreign_[places_.size()].push_back({std::string(key), value});
                    });
  places_.push_back({&part, element});
}

void PanelDocument::SetWhatIsNotSaved(ctlPlexelBaseElement& element, const PanelPart& part, const Site& site) {
  element.ParentWindow(site.window);
  element.DPIFontScaleFactor(GetDpiScaleFactor());
  Describe(element, part);
}

void PanelDocument::Describe(ctlPlexelBaseElement& element, const PanelPart& part) {
  element.DeviceType(panel_->panel.deviceType);
  element.VantaEnabled(panel_->panel.vantaEnabled);
  element.OriginalPosY(part.box.top);
  element.ElementType(part.element->type);
  element.SizeY(part.element->sizeY);
}

void PanelDocument::UsePanel(std::shared_ptr<const DocumentPanel> panel) {
  panel_ = std::move(panel);
  std::unordered_map<std::string_view, const PanelPart*> parts;
  for (const PanelPart& part : panel_->panel.parts) {
    if (part.element) parts.emplace(part.element->id, &part);
  }
  for (Place& place : places_) {
    place.part = parts.at(place.element->Name());
    Describe(*place.element, *place.part);
  }
}

ProjectElement PanelDocument::ElementContent(std::size_t place) const {
  const ctlPlexelBaseElement& element = *places_.at(place).element;
  ProjectElement saved;
  saved.place = element.Name();
  element.UserControl_WriteProperties(saved.bag);
  PutAtRest(saved.bag);
  if (const auto foreign = foreign_.find(place); foreign != foreign_.end()) {
    for (const auto& [key, value] : foreign->second) saved.bag.Store(key, value);
  }
  saved.codes = CodesOf(element.TactisBaseElementScanCodeBuffer());
  return saved;
}

Project PanelDocument::Content() const {
  Project project;
  project.panel = panelName_;
  project.panelText = CarriedPanel();
  project.elements.reserve(places_.size());
  for (std::size_t place = 0; place < places_.size(); ++place) project.elements.push_back(ElementContent(place));
  return project;
}

void PanelDocument::Save(const std::filesystem::path& file) {
  const std::string text = ProjectFileText(file, Content());
  // Nothing fails once the file is written.
  std::filesystem::path saved = file;
  auto foreign = foreign_;
  std::optional<FileWarning> told;
  try {
    WriteWholeFile(file, text);
  } catch (const FileWarning& warning) {
    told = warning;
  }
  file_ = std::move(saved);
  hash_ = HashOf(text);
  fileForeign_ = std::move(foreign);
  filePanel_ = panel_;
  fileCarriesPanel_ = carriesPanel_;
  unsaved_.clear();
  fileIsOther_ = false;
  if (told) throw FileWarning(*told);
}

std::vector<PanelDifference> PanelDocument::InstalledPanelDiffers(const std::filesystem::path& panelDirectory) const {
  const std::filesystem::path file = PanelFile(panelDirectory, panelName_);
  std::error_code error;
  if (!std::filesystem::exists(file, error)) return {};
  return DifferencesOf(ThePanel(), ReadPanel(file));
}

PanelDocument::FileState PanelDocument::Compare(const KnownFile& known) {
  std::error_code error;
  const auto type = std::filesystem::status(known.file, error).type();
  if (type == std::filesystem::file_type::not_found) return {OnDisk::Gone};
  if (error) return {OnDisk::Unreadable, FileError(known.file, "cannot be read: " + error.message()).what()};
  try {
    return {HashOf(ReadWholeFile(known.file, ProjectLimit)) == known.hash ? OnDisk::Same : OnDisk::Other};
  } catch (const FileError& failure) {
    return {OnDisk::Unreadable, failure.what()};
  }
}

void PanelDocument::Become(StepKind kind, const PanelDocument& other) {
  RequireSamePanel(other);
  std::vector<std::size_t> all(places_.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  Change(kind, all, [&] {
    if (other.carriesPanel_ && other.panel_->text != panel_->text) UsePanel(other.panel_);
    carriesPanel_ = carriesPanel_ || other.carriesPanel_;
    ForEachPair(other, [](std::size_t, ElementChange change, ctlPlexelBaseElement& mine) { change.Exchange(mine); });
    foreign_ = ForeignOf(other);
  });
}

void PanelDocument::FileHolds(const PanelDocument& other) {
  RequireSamePanel(other);
  file_ = other.file_;
  hash_ = other.hash_;
  fileForeign_ = ForeignOf(other);
  filePanel_ = other.panel_;
  fileCarriesPanel_ = carriesPanel_;  // whether it does is no difference that is told
  fileIsOther_ = false;
  unsaved_.clear();
  ForEachPair(other, [this](std::size_t place, ElementChange change, const ctlPlexelBaseElement&) {
    unsaved_.emplace(place, std::move(change));
  });
}

void PanelDocument::FileIsLost(const std::filesystem::path& file) {
  file_ = file;
  hash_ = 0;
  fileIsOther_ = true;
  try {
    hash_ = HashOf(ReadWholeFile(file_, ProjectLimit));
  } catch (const FileError&) {  // what cannot be read is not known either
  }
}

bool PanelDocument::HasElementsOf(const PanelDocument& other) const {
  const auto names = [](const PanelDocument& document) {
    std::set<std::string_view> all;
    for (const Place& place : document.places_) all.insert(place.element->Name());
    return all;
  };
  return other.panelName_ == panelName_ && names(other) == names(*this);
}

void PanelDocument::RequireSamePanel(const PanelDocument& other) const {
  if (other.panelName_ != panelName_) {
    throw FileError(other.file_, "it is for the panel \"" + other.panelName_ + "\", not for \"" + panelName_ + '"');
  }
  if (HasElementsOf(other)) return;
  throw FileError(other.file_, "its panel \"" + panelName_ + "\" has other elements than the one that is open");
}

PanelDocument::Foreign PanelDocument::ForeignOf(const PanelDocument& other) const {
  if (other.foreign_.empty()) return {};
  std::unordered_map<std::string_view, std::size_t> mine;
  for (std::size_t place = 0; place < places_.size(); ++place) mine.emplace(places_[place].element->Name(), place);
  Foreign foreign;
  for (const auto& [place, values] : other.foreign_) {
    foreign.emplace(mine.at(other.places_[place].element->Name()), values);
  }
  return foreign;
}

template <typename Visit>
void PanelDocument::ForEachPair(const PanelDocument& other, Visit&& visit) {
  std::unordered_map<std::string_view, const ctlPlexelBaseElement*> theirs;
  for (const Place& place : other.places_) theirs.emplace(place.element->Name(), place.element.get());
  for (std::size_t place = 0; place < places_.size(); ++place) {
    ctlPlexelBaseElement& mine = *places_[place].element;
    ElementChange change(ValuesOf(*theirs.at(mine.Name())), ValuesOf(mine));
    if (!change.IsEmpty()) visit(place, std::move(change), mine);
  }
}

void PanelDocument::Change(StepKind kind, std::span<const std::size_t> places, const std::function<void()>& act) {
  std::vector<std::size_t> sorted(places.begin(), places.end());
  std::ranges::sort(sorted);
  sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
  std::vector<ElementValues> before;
  before.reserve(sorted.size());
  for (const std::size_t place : sorted) before.push_back(ValuesOf(*places_.at(place).element));
  const Foreign foreignBefore = foreign_;
  const std::shared_ptr<const DocumentPanel> panelBefore = panel_;
  const bool carriedBefore = carriesPanel_;
  ++changing_;
  AndThen(act, [&] {
    --changing_;
    Step step;
    for (std::size_t index = 0; index < sorted.size(); ++index) {
      const std::size_t place = sorted[index];
      const ElementValues now = ValuesOf(*places_[place].element);
      const bool foreignDiffers = ForeignAt(foreign_, place) != ForeignAt(foreignBefore, place);
      if (now == before[index] && !foreignDiffers) continue;
      step.parts.push_back({place, ElementChange(before[index], now)});
      if (foreignDiffers) step.parts.back().foreign = ForeignAt(foreignBefore, place);
    }
    if (panel_ != panelBefore) step.panel = panelBefore;
    if (carriesPanel_ != carriedBefore) step.carriesPanel = carriedBefore;
    if (step.parts.empty() && step.panel == nullptr && !step.carriesPanel) return;
    step.name = {kind, {}, step.parts.size()};
    if (step.parts.size() == 1) step.name.element = places_[step.parts.front().place].element->Name();
    history_.Add(std::move(step));
    Account(history_.ToUndo());
  });
}

void PanelDocument::Undo() {
  if (changing_ > 0 || !history_.CanUndo()) return;
  Step& step = history_.ToUndo();
  history_.Undone();
  Exchange(step);
}

void PanelDocument::Redo() {
  if (changing_ > 0 || !history_.CanRedo()) return;
  Step& step = history_.ToRedo();
  history_.Redone();
  Exchange(step);
}

void PanelDocument::Exchange(Step& step) {
  if (step.panel != nullptr) {
    std::shared_ptr<const DocumentPanel> held = panel_;
    UsePanel(std::move(step.panel));
    step.panel = std::move(held);
  }
  if (step.carriesPanel) std::swap(*step.carriesPanel, carriesPanel_);
  for (Step::Part& part : step.parts) {
    part.change.Exchange(*places_[part.place].element);
    if (!part.foreign) continue;
    ForeignValues held = ForeignAt(foreign_, part.place);
    foreign_.erase(part.place);
    if (!part.foreign->empty()) foreign_.emplace(part.place, std::move(*part.foreign));
    part.foreign = std::move(held);
  }
  Account(step);
}

void PanelDocument::Account(const Step& step) {
  std::vector<std::size_t> places;
  for (const Step::Part& part : step.parts) {
    places.push_back(part.place);
    ElementChange toFile = part.change;
    const auto found = unsaved_.find(part.place);
    toFile.Precede(found == unsaved_.end() ? ElementChange() : found->second, *places_[part.place].element);
    if (toFile.IsEmpty()) {
      unsaved_.erase(part.place);
    } else {
      unsaved_.insert_or_assign(part.place, std::move(toFile));
    }
  }
  if (step.panel != nullptr) {  // it is behind every place
    places.resize(places_.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
  }
  for (const auto& listener : listeners_) listener(places);
}

void PanelDocument::Listen(std::function<void(std::span<const std::size_t> places)> listener) {
  listeners_.push_back(std::move(listener));
}

int PanelDocument::PlaceOf(const ctlPlexelBaseElement& element) const {
  const auto place =
      std::find_if(places_.begin(), places_.end(), [&](const Place& one) { return one.element.get() == &element; });
  return place == places_.end() ? -1 : static_cast<int>(place - places_.begin());
}

const Surface& PanelDocument::SurfaceAt(std::size_t place) const {
  ctlPlexelBaseElement& element = *places_.at(place).element;
  if (element.ZoomFactor() != zoom_) element.ZoomFactor(static_cast<std::int16_t>(zoom_));
  return element.SurfaceObjects();
}

void PanelDocument::Refresh() {
  for (const Place& place : places_) place.element->Refresh();
}

bool PanelDocument::LedIsDefined(std::int32_t type, std::int32_t layer) const {
  if (layer < 1 || layer > LayerCount) return false;
  return std::any_of(places_.begin(), places_.end(),
                     [=](const Place& place) { return place.element->LEDTypeLayer(layer) == type; });
}

}  // namespace plexel
