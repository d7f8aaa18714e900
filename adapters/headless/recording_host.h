#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "headless/event_host.h"

namespace plexel {

/// A host for tests: keeps all events and notices in their order.
class RecordingHost : public EventHost {
 public:
  explicit RecordingHost(Faults& faults) : EventHost(faults) {}

  /// Everything heard, notices included.
  const std::vector<HostEvent>& Heard() const { return heard_; }
  /// The events without the notices.
  std::vector<HostEvent> Events() const;
  /// The names of the events in their order, without the notices.
  std::vector<std::string> EventNames() const;
  /// The values of the notices in their order.
  std::vector<HostEvent::Value> Notices() const;
  int Count(std::string_view name) const;
  void Forget() { heard_.clear(); }

  /// Runs for each event and notice after it was kept, so that a test can act inside it.
  std::function<void(const HostEvent& event)> onEvent;

 protected:
  void Happened(HostEvent event) override;

 private:
  std::vector<HostEvent> heard_;
};

}  // namespace plexel
