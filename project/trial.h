#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <vector>

#include "project/key_reading.h"
#include "project/trial_pc.h"
#include "services/element_types.h"

namespace plexel {

/// A panel whose elements are pressed and let go by hand, and the PC that receives what they send. Elements are told by
/// their places.
///
/// A command for a layer that an element sends on press holds until that element is let go, for panels have none that
/// leads back. One that comes on release stays. An element that is held sends on release what the layer has on which
/// it was pressed.
class Trial {
 public:
  static constexpr std::size_t NoPlace = static_cast<std::size_t>(-1);
  static constexpr std::size_t MostEvents = 200;

  /// One press or release.
  struct Event {
    std::size_t place{};  ///< NoPlace when all was let go
    Direction at{};
    std::int32_t layer{};
    std::vector<std::uint8_t> bytes;  ///< what the panel sends, in order
    std::vector<KeyReport> reports;   ///< what the PC makes of it
  };

  /// Presses an element; nothing for one that is held already. The event holds until the next one.
  const Event* Press(std::size_t place, const udtTactisBaseElement_ScanCodeInfo& record);
  /// Lets an element go; nothing for one that is not held.
  const Event* Release(std::size_t place);
  /// All elements and keys come up, without what the elements send on release, and the chosen layer is back.
  const Event* LetGoOfAll();
  /// Chooses the layer that is in force while no element calls another, 1 to 4.
  void ChooseLayer(std::int32_t layer);
  /// Forgets events and text. What is down stays down.
  void Clear();

  /// The layer in force.
  std::int32_t Layer() const { return calls_.empty() ? layer_ : calls_.back().layer; }
  bool IsHeld(std::size_t place) const;
  bool AnyHeld() const { return !held_.empty(); }
  /// The keys that are down, in the order in which they went down.
  const std::vector<KeyCode>& Down() const { return reader_.Down(); }
  /// Those among them whose elements have been let go.
  std::vector<KeyCode> LeftDown() const;
  /// Whether an element that has been let go has left a key down.
  bool HasLeftDown(std::size_t place) const;
  /// Whether a LED of this function is lit: those of the locks and of the layers, else never.
  bool IsLit(enumLedType function) const;
  const TrialPc& Pc() const { return pc_; }

  /// The last MostEvents events, the latest last.
  const std::deque<Event>& Events() const { return events_; }
  /// All that these did, in order.
  std::vector<KeyReport> Reports() const;

 private:
  struct Held {
    std::size_t place{};
    std::int32_t layer{};
    udtTactisBaseElement_TACTIS_SCANCODE release;
  };
  /// A layer that an element calls while it is held.
  struct LayerCall {
    std::size_t place{};
    std::int32_t layer{};
  };
  const Event* Send(Event event, const udtTactisBaseElement_TACTIS_SCANCODE& codes);
  void Hear(std::size_t place, const KeyReport& report);
  const Event* Keep(Event event);

  KeyReader reader_;
  TrialPc pc_;
  std::int32_t chosen_ = 1, layer_ = 1;
  std::vector<LayerCall> calls_;
  std::vector<Held> held_;
  std::map<KeyCode, std::size_t> pressedBy_;  ///< the element that each key that is down was pressed by
  std::deque<Event> events_;
};

}  // namespace plexel
