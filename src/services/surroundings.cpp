#include "services/surroundings.h"

#include <algorithm>

#include "platform/failure.h"

namespace plexel {

std::optional<Capability> CapabilityNamed(std::string_view name) {
  const auto* const row = std::ranges::find(CapabilityTable, name, &CapabilityRow::name);
  return row == CapabilityTable.end() ? std::nullopt : std::optional(row->query);
}

Surroundings* Surroundings::current_ = nullptr;

Surroundings& Surroundings::Current() {
  if (current_ == nullptr) throw Failure(FailureKind::ObjectNotSet, "no surroundings are in force");
  return *current_;
}

}  // namespace plexel
