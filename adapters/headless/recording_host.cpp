#include "headless/recording_host.h"

#include <algorithm>
#include <iterator>

namespace plexel {

namespace {
constexpr std::string_view NoticeName = "PropertyChanged";
}

std::vector<HostEvent> RecordingHost::Events() const {
  std::vector<HostEvent> events;
  std::copy_if(heard_.begin(), heard_.end(), std::back_inserter(events),
               [](const HostEvent& event) { return event.name != NoticeName; });
  return events;
}

std::vector<std::string> RecordingHost::EventNames() const {
  std::vector<std::string> names;
  for (const HostEvent& event : heard_) {
    if (event.name != NoticeName) names.push_back(event.name);
  }
  return names;
}

std::vector<HostEvent::Value> RecordingHost::Notices() const {
  std::vector<HostEvent::Value> values;
  for (const HostEvent& event : heard_) {
    if (event.name == NoticeName) values.push_back(event.arguments.front());
  }
  return values;
}

int RecordingHost::Count(std::string_view name) const {
  return static_cast<int>(
      std::count_if(heard_.begin(), heard_.end(), [name](const HostEvent& event) { return event.name == name; }));
}

void RecordingHost::Happened(HostEvent event) {
  heard_.push_back(std::move(event));
  const HostEvent copy = heard_.back();
  if (onEvent) onEvent(copy);
}

}  // namespace plexel
