#include "project/trial.h"

#include <algorithm>
#include <array>

#include "scancodes/special_functions.h"

namespace plexel {

namespace {

/// The layer that a command byte calls, 0 for none.
std::int32_t LayerOfCommand(KeyCode byte) {
  for (const enumSpecialKeyFunctions function : {Layer2, Layer3, Layer4}) {
    if (SpecialFunctions()[function].code == byte) return function - Layer2 + 2;
  }
  return 0;
}

}  // namespace

const Trial::Event* Trial::Press(std::size_t place, const udtTactisBaseElement_ScanCodeInfo& record) {
  if (IsHeld(place)) return nullptr;
  const std::int32_t layer = Layer();
  held_.push_back({place, layer, *ReleaseBuffer(record, layer)});
  return Send({place, Direction::Press, layer, {}, {}}, *PressBuffer(record, layer));
}

const Trial::Event* Trial::Release(std::size_t place) {
  const auto held = std::ranges::find(held_, place, &Held::place);
  if (held == held_.end()) return nullptr;
  const Held element = *held;
  held_.erase(held);
  std::erase_if(calls_, [place](const LayerCall& call) { return call.place == place; });
  return Send({place, Direction::Release, element.layer, {}, {}}, element.release);
}

const Trial::Event* Trial::Send(Event event, const udtTactisBaseElement_TACTIS_SCANCODE& codes) {
  std::ranges::copy_if(CountingBytes(codes), std::back_inserter(event.bytes),
                       [](std::uint8_t byte) { return byte != udtTactisBaseElement_TACTIS_SCANCODE::EndMark; });
  reader_.Read(codes, event.at, event.reports);
  for (const KeyReport& report : event.reports) Hear(event.place, report);
  return Keep(std::move(event));
}

void Trial::Hear(std::size_t place, const KeyReport& report) {
  pc_.Hear(report);
  if (report.deed == KeyDeed::Down) pressedBy_[report.code] = place;
  if (report.deed == KeyDeed::Up) pressedBy_.erase(report.code);
  const std::int32_t layer = report.deed == KeyDeed::Panel ? LayerOfCommand(report.code) : 0;
  if (layer == 0) return;
  if (report.at == Direction::Press) {
    calls_.push_back({place, layer});
  } else {
    layer_ = layer;
  }
}

const Trial::Event* Trial::LetGoOfAll() {
  Event event{NoPlace, Direction::Release, Layer(), {}, {}};
  for (const KeyCode code : reader_.Down()) event.reports.push_back({event.at, KeyDeed::Up, code, true});
  for (const KeyReport& report : event.reports) Hear(NoPlace, report);
  reader_.Reset();
  held_.clear();
  calls_.clear();
  layer_ = chosen_;
  return Keep(std::move(event));
}

void Trial::ChooseLayer(std::int32_t layer) { chosen_ = layer_ = layer; }

void Trial::Clear() {
  events_.clear();
  pc_.ClearText();
}

const Trial::Event* Trial::Keep(Event event) {
  events_.push_back(std::move(event));
  if (events_.size() > MostEvents) events_.pop_front();
  return &events_.back();
}

bool Trial::IsHeld(std::size_t place) const { return std::ranges::find(held_, place, &Held::place) != held_.end(); }

std::vector<KeyCode> Trial::LeftDown() const {
  std::vector<KeyCode> left;
  std::ranges::copy_if(Down(), std::back_inserter(left), [this](KeyCode code) { return !IsHeld(pressedBy_.at(code)); });
  return left;
}

bool Trial::HasLeftDown(std::size_t place) const {
  return !IsHeld(place) && std::ranges::any_of(pressedBy_, [place](const auto& one) { return one.second == place; });
}

bool Trial::IsLit(enumLedType function) const {
  if (function == CapsLockLed) return pc_.CapsLock();
  if (function == NumLockLed) return pc_.NumLock();
  if (function == ScrollLockLed) return pc_.ScrollLock();
  return function == Layer1Led + Layer() - 1;
}

std::vector<KeyReport> Trial::Reports() const {
  std::vector<KeyReport> reports;
  for (const Event& event : events_) reports.insert(reports.end(), event.reports.begin(), event.reports.end());
  return reports;
}

}  // namespace plexel
