#pragma once

#include "component/component.h"
#include "element/ctlPlexelBaseElement.h"
#include "headless/headless_platform.h"
#include "headless/headless_surroundings.h"

namespace bench {

/// A host that listens to nothing.
class SilentHost : public plexel::ElementHost {
 public:
  void PropertyChanged(plexel::ctlPlexelBaseElement&, const plexel::Notice&) override { ++notices; }
  plexel::Boolean CheckIfLedIsAlreadyDefined(std::int32_t&, std::int32_t&) override { return plexel::False; }
  void DirectInputStatusChanged(plexel::ctlPlexelBaseElement&, plexel::Boolean&) override {}
  void SendKeyDefinition(plexel::ctlPlexelBaseElement&, plexel::KeyDefinition&) override {}
  void MouseClicked(plexel::ctlPlexelBaseElement&, std::int16_t&, std::int16_t&, float&, float&) override {}
  void MouseDblClicked(plexel::ctlPlexelBaseElement&) override {}
  void ProjectModified(plexel::ctlPlexelBaseElement&) override {}
  std::int64_t notices = 0;
};

/// The headless platform and surroundings in force, with all dialogs.
struct World {
  World() : surroundings(platform), usePlatform(platform), useSurroundings(surroundings) {
    plexel::RegisterForms(plexel::FormDirectory::Instance());
  }
  plexel::HeadlessPlatform platform;
  plexel::HeadlessSurroundings surroundings;
  plexel::Platform::Use usePlatform;
  plexel::Surroundings::Use useSurroundings;
  SilentHost host;
};

World& TheWorld();

}  // namespace bench
