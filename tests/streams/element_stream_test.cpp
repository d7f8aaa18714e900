#include "activex/element_stream.h"

#include <gtest/gtest.h>

#include "world/world.h"

namespace plexel {
namespace {

TEST(ElementStream, BringsBackAnElement) {
  World world;
  const auto element = world.component.Create("F1", world.host);
  element->ElementType(RectLed);
  element->SizeX(-7);
  element->PressKeyDefLayer1("[a\u2039\u203A]");
  element->ShowX(Boolean::Raw(7));
  const auto stream = activex::StreamOf(*element);
  const auto bag = activex::BagOf(stream);
  ASSERT_TRUE(bag);
  const auto other = world.component.Read("F2", world.host, *bag);
  activex::ReadRest(*other, *bag);
  EXPECT_EQ(other->SizeX(), -7);
  EXPECT_EQ(other->PressKeyDefLayer1(), "[a\u2039\u203A]");
  EXPECT_EQ(other->ShowX().Value(), 7);
  EXPECT_EQ(activex::StreamOf(*other), stream);
}

TEST(ElementStream, AnyByteThatIsLostOrAddedIsFound) {
  World world;
  const auto stream = activex::StreamOf(*world.component.Create("F1", world.host));
  for (std::size_t place = 0; place < stream.size(); ++place) {
    auto shorter = stream;
    shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(place));
    EXPECT_FALSE(activex::BagOf(shorter)) << place;
    auto longer = stream;
    longer.insert(longer.begin() + static_cast<std::ptrdiff_t>(place), 1, 0x5AU);
    EXPECT_FALSE(activex::BagOf(longer)) << place;
  }
}

}  // namespace
}  // namespace plexel
