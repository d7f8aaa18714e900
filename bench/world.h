#pragma once

#include "component/component.h"
#include "element/ctlPlexelBaseElement.h"
#include "headless/headless_platform.h"
#include "headless/headless_surroundings.h"

namespace bench {

/// A host that counts the notices.
class SilentHost : public plexel::ElementHost {
 public:
  plexel::Boolean CheckIfLedIsAlreadyDefined(std::int32_t&, std::int32_t&) override { return false; }
  void PropertyChanged(plexel::ctlPlexelBaseElement&, const plexel::Notice&) override { ++notices; }
  std::int64_t notices = 0;
};

/// The headless platform and surroundings in force, with all dialogs.
struct World {
  plexel::HeadlessPlatform platform;
  plexel::HeadlessSurroundings surroundings{platform};
  plexel::Component component{platform, surroundings};
  SilentHost host;
};

World& TheWorld();

}  // namespace bench
