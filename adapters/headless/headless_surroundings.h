#pragma once

#include "headless/headless_platform.h"
#include "headless/headless_services.h"
#include "services/surroundings.h"

namespace plexel {

/// A host's services in memory. They fail with the faults of the platform, and saved positions come from its registry.
class HeadlessSurroundings : public Surroundings {
 public:
  /// The platform must outlive the surroundings.
  explicit HeadlessSurroundings(HeadlessPlatform& platform)
      : language_(platform.faults),
        settings_(platform.faults, platform.UserRegistry()),
        capabilities_(platform.faults),
        parameterFiles_(platform.faults) {}
  HeadlessLanguage& Language() override { return language_; }
  HeadlessSettings& Settings() override { return settings_; }
  HeadlessCapabilities& Capabilities() override { return capabilities_; }
  HeadlessParameterFiles& ParameterFiles() override { return parameterFiles_; }

 private:
  HeadlessLanguage language_;
  HeadlessSettings settings_;
  HeadlessCapabilities capabilities_;
  HeadlessParameterFiles parameterFiles_;
};

}  // namespace plexel
