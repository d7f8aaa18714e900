#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "element/element_host.h"
#include "headless/faults.h"

namespace plexel {

/// One event of an element, or a notice to its container, with its arguments in order.
struct HostEvent {
  using Value = std::variant<std::int32_t, double, std::string>;
  std::string element;
  std::string name;  ///< the event's name, "PropertyChanged" for a notice
  std::vector<Value> arguments;
  bool operator==(const HostEvent&) const = default;
};

/// A host that turns all that it hears into HostEvents and answers the container's question from a table.
class EventHost : public ElementHost {
 public:
  explicit EventHost(Faults& faults) : faults_(faults) {}

  void PropertyChanged(ctlPlexelBaseElement& element, const Notice& notice) override;
  Boolean CheckIfLedIsAlreadyDefined(std::int32_t& LEDType, std::int32_t& Layer) override;
  void DirectInputStatusChanged(ctlPlexelBaseElement& element, Boolean& bDirectInputStatus) override;
  void SendKeyDefinition(ctlPlexelBaseElement& element, KeyDefinition& definition) override;
  void MouseClicked(ctlPlexelBaseElement& element, std::int16_t& Button, std::int16_t& Shift, float& x,
                    float& Y) override;
  void MouseDblClicked(ctlPlexelBaseElement& element) override;
  void ProjectModified(ctlPlexelBaseElement& element) override;

  /// The container's answer for an LED function in a layer; False unless set. Gives the member back after
  /// TakeMemberAway.
  void LedDefined(std::int32_t type, std::int32_t layer, Boolean answer);
  /// The container lacks CheckIfLedIsAlreadyDefined from now on.
  void TakeMemberAway() { hasMember_ = false; }

 protected:
  /// Called for each event and notice, before a fault of its handler shows.
  virtual void Happened(HostEvent event) = 0;

 private:
  void Handle(Fault fault, HostEvent event);

  Faults& faults_;
  bool hasMember_ = true;
  std::map<std::pair<std::int32_t, std::int32_t>, Boolean> leds_;
};

}  // namespace plexel
