#include "services/surroundings.h"

#include <array>

#include "platform/failure.h"

namespace plexel {

namespace {

constexpr std::array<std::string_view, CapabilityCount> capabilityNames = {"HasBackgroundLightDarker",
                                                                           "HasBackgroundLightLighter",
                                                                           "HasContrastLower",
                                                                           "HasContrastHigher",
                                                                           "HasLayer4Key",
                                                                           "HasLayer3Key",
                                                                           "HasLayer2Key",
                                                                           "HasWarmStart",
                                                                           "HasSystemReset",
                                                                           "HasAlarmLed",
                                                                           "HasScrollLockLed",
                                                                           "HasPanelLockedLed",
                                                                           "HasLayer4Led",
                                                                           "HasLayer3Led",
                                                                           "HasLayer2Led",
                                                                           "HasLayer1Led",
                                                                           "HasRunLed",
                                                                           "HasNumLockLed",
                                                                           "HasCapsLockLed",
                                                                           "HasPowerLed",
                                                                           "HasTemperatureLed",
                                                                           "HasHarddiskLed",
                                                                           "HasUserLed"};
static_assert(static_cast<int>(Capability::HasUserLed) == CapabilityCount - 1);

}  // namespace

std::string_view CapabilityName(Capability query) { return capabilityNames.at(static_cast<std::size_t>(query)); }

Surroundings* Surroundings::current_ = nullptr;

Surroundings& Surroundings::Current() {
  if (current_ == nullptr) throw Failure(FailureKind::ObjectNotSet, "no surroundings are in force");
  return *current_;
}

}  // namespace plexel
