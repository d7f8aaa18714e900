#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "headless/memory_bag.h"
#include "world/world.h"

namespace plexel {

/// One element in a world of its own.
class ElementTest : public testing::Test, protected World {
 protected:
  using Values = std::vector<HostEvent::Value>;
  using Names = std::vector<std::string>;

  ElementTest() { host.Forget(); }

  std::shared_ptr<ctlPlexelBaseElement> Load(MemoryBag::Entries entries) {
    return component.Read("B", host, MemoryBag(std::move(entries)));
  }
  const Surface& Shown() const { return element->SurfaceObjects(); }

  std::shared_ptr<ctlPlexelBaseElement> element = component.Create("A", host);
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
