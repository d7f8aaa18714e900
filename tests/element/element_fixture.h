#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "element/ctlPlexelBaseElement.h"
#include "headless/headless_surroundings.h"
#include "headless/host_window.h"
#include "headless/memory_bag.h"
#include "headless/recording_host.h"
#include "services/module_state.h"

namespace plexel {

/// One element in headless surroundings, with a module state of its own.
class ElementTest : public testing::Test {
 protected:
  using Values = std::vector<HostEvent::Value>;
  using Names = std::vector<std::string>;

  ElementTest() {
    Module() = ModuleState();
    element = ctlPlexelBaseElement::Create("A", host);
    host.Forget();
  }
  ~ElementTest() override { Module() = ModuleState(); }

  std::shared_ptr<ctlPlexelBaseElement> Load(MemoryBag::Entries entries) {
    return ctlPlexelBaseElement::Read("B", host, MemoryBag(std::move(entries)));
  }
  const Surface& Shown() const { return element->SurfaceObjects(); }

  HeadlessPlatform platform;
  HeadlessSurroundings surroundings{platform};
  RecordingHost host{platform.faults};

 private:
  Platform::Use usePlatform_{platform};
  Surroundings::Use useSurroundings_{surroundings};

 protected:
  std::shared_ptr<ctlPlexelBaseElement> element;
};

/// The kind of the failure that an act throws.
template <typename Act>
FailureKind KindOf(Act&& act) {
  try {
    act();
  } catch (const Failure& failure) {
    return failure.Kind();
  }
  ADD_FAILURE() << "no failure";
  return FailureKind::Handler;
}

}  // namespace plexel
