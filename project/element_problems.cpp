#include "project/element_problems.h"

#include <algorithm>

#include "element/ctlPlexelBaseElement.h"
#include "project/definition.h"
#include "project/shared_values.h"
#include "services/led_offer.h"

namespace plexel {

namespace {

using Buffer = udtTactisBaseElement_TACTIS_SCANCODE;
using Values = std::vector<std::uint32_t>;

/// Collects the problems of one element.
class Check {
 public:
  Check(const ctlPlexelBaseElement& element, std::size_t number)
      : element_(element), number_(number), record_(element.TactisBaseElementScanCodeBuffer()) {}

  std::vector<Problem> Run() {
    for (std::int32_t layer = 1; layer <= LayerCount; ++layer) {
      CheckKeys(layer);
      CheckTexts(layer);
      CheckRoom(layer);
      CheckLed(layer);
    }
    return std::move(problems_);
  }

 private:
  void Find(ProblemRule rule, std::int32_t layer, Values values, std::optional<Direction> direction = {}) {
    problems_.push_back({rule, number_, {layer}, direction, {}, {}, std::move(values)});
  }

  void CheckKeys(std::int32_t layer) {
    if (PressBuffer(record_, layer)->NextValue <= 0 && ReleaseBuffer(record_, layer)->NextValue <= 0) return;
    const LayerReading reading = ReadLayer(record_, layer);
    if (!reading.stillDown.empty()) Find(ProblemRule::Held, layer, reading.stillDown);
    FindCodes(ProblemRule::ReleasedFirst, layer, reading,
              [](const KeyReport& report) { return report.deed == KeyDeed::Up && !report.wasDown; });
    FindCodes(ProblemRule::UnknownBytes, layer, reading,
              [](const KeyReport& report) { return report.deed == KeyDeed::Unknown; });
  }

  template <typename IsMeant>
  void FindCodes(ProblemRule rule, std::int32_t layer, const LayerReading& reading, IsMeant&& isMeant) {
    for (const Direction direction : {Direction::Press, Direction::Release}) {
      Values codes;
      for (const KeyReport& report : reading.reports) {
        if (report.at == direction && isMeant(report)) codes.push_back(report.code);
      }
      if (!codes.empty()) Find(rule, layer, std::move(codes), direction);
    }
  }

  void CheckTexts(std::int32_t layer) {
    struct Side {
      Direction direction;
      const std::string& text;
      std::int32_t groups;
    };
    const Side sides[] = {
        {Direction::Press, element_.PressKeyDefLayer(layer), CountGroups(*PressBuffer(record_, layer))},
        {Direction::Release, element_.ReleaseKeyDefLayer(layer), CountGroups(*ReleaseBuffer(record_, layer))}};
    for (const Side& side : sides) {
      if (!side.text.empty() && side.groups == 0) Find(ProblemRule::NoBytes, layer, {}, side.direction);
    }
    for (const Side& side : sides) {
      if (side.text.empty() && side.groups != 0) Find(ProblemRule::NoText, layer, {}, side.direction);
    }
    for (const Side& side : sides) {
      if (side.text.empty() || side.groups == 0) continue;
      const std::ptrdiff_t told = std::ranges::count(side.text, '[');
      if (told == side.groups) continue;
      Find(ProblemRule::GroupsDiffer, layer,
           {static_cast<std::uint32_t>(told), static_cast<std::uint32_t>(side.groups)}, side.direction);
    }
  }

  void CheckRoom(std::int32_t layer) {
    if (HasRoomFor(record_, layer, element_.VantaEnabled())) return;
    std::ptrdiff_t count = 0;
    for (const Buffer* buffer : {PressBuffer(record_, layer), ReleaseBuffer(record_, layer)}) {
      count += std::ranges::count_if(CountingBytes(*buffer), [](std::uint8_t byte) { return byte != Buffer::EndMark; });
    }
    Find(ProblemRule::OverLimit, layer, {static_cast<std::uint32_t>(count)});
  }

  void CheckLed(std::int32_t layer) {
    const enumLedType type = element_.LEDTypeLayer(layer);
    if (type == LedNotEnabled) return;
    if (!HasLed(element_.ElementType())) {
      Find(ProblemRule::LedWithoutLamp, layer, {static_cast<std::uint32_t>(type)});
    } else if (!LedIsOffered(type, element_.VantaEnabled(), element_.TargetSystem())) {
      Find(ProblemRule::LedNotOffered, layer, {static_cast<std::uint32_t>(type)});
    }
  }

  const ctlPlexelBaseElement& element_;
  std::size_t number_;
  const udtTactisBaseElement_ScanCodeInfo record_;
  std::vector<Problem> problems_;
};

}  // namespace

std::vector<Problem> OwnProblems(const ctlPlexelBaseElement& element, std::size_t number) {
  return Check(element, number).Run();
}

}  // namespace plexel
