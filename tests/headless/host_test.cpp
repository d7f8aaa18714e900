#include <gtest/gtest.h>

#include "element/element_access.h"
#include "headless/memory_bag.h"
#include "platform/failure.h"
#include "world/world.h"

namespace plexel {
namespace {

class Host : public testing::Test, protected World {
 protected:
  std::shared_ptr<ctlPlexelBaseElement> element = component.Create("A", host);
};

TEST_F(Host, EventsAndNoticesKeepTheirOrder) {
  host.Forget();
  element->SizeX(20);
  element->UserControl_DblClick();
  element->ZoomFactor(0);
  ASSERT_GE(host.Heard().size(), 3U);
  EXPECT_EQ(host.Heard()[0], (HostEvent{"A", "PropertyChanged", {20}}));
  EXPECT_EQ(host.Heard()[1], (HostEvent{"A", "MouseDblClicked", {}}));
  EXPECT_EQ(host.Heard()[2], (HostEvent{"A", "PropertyChanged", {std::string("ZoomFactor")}}));
  EXPECT_EQ(host.EventNames(), std::vector<std::string>{"MouseDblClicked"});
}

TEST_F(Host, AFailingHandlerHasHeardItsEvent) {
  platform.faults.Turn("handler:ProjectModified", true);
  EXPECT_THROW(ElementAccess::RaiseProjectModified(*element), Failure);
  EXPECT_EQ(host.Count("ProjectModified"), 1);
}

TEST_F(Host, TheContainerAnswersFromItsTable) {
  host.LedDefined(RunLed, 2, True);
  EXPECT_EQ(element->CheckIfLedIsAlreadyDefined(RunLed, 2), True);
  EXPECT_EQ(element->CheckIfLedIsAlreadyDefined(RunLed, 1), False);
}

TEST_F(Host, AContainerWithoutTheMemberFails) {
  host.TakeMemberAway();
  try {
    element->CheckIfLedIsAlreadyDefined(RunLed, 2);
    FAIL() << "no failure";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.Kind(), FailureKind::NoSuchMember);
  }
}

TEST_F(Host, OnlyTheHostsFormIsAForm) {
  HostForm form;
  PlainHostObject object;
  EXPECT_EQ(form.AsForm(), &form);
  EXPECT_EQ(form.WindowName(), "HostForm");
  EXPECT_EQ(object.AsForm(), nullptr);
}

TEST_F(Host, ABagKeepsTheOrderOfStoring) {
  MemoryBag bag;
  bag.Store("B", std::int32_t{1});
  bag.Store("A", std::int32_t{2});
  bag.Store("B", std::int32_t{3});
  ASSERT_EQ(bag.All().size(), 2U);
  EXPECT_EQ(bag.All()[0].first, "B");
  EXPECT_EQ(*bag.Find("B"), BagValue(std::int32_t{3}));
  EXPECT_EQ(bag.Find("C"), nullptr);
}

}  // namespace
}  // namespace plexel
