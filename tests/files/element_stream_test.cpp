#include "files/element_stream.h"

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
  const auto stream = StreamOf(*element);
  const auto bag = BagOf(stream);
  ASSERT_TRUE(bag);
  const auto other = world.component.Read("F2", world.host, *bag);
  ReadRest(*other, *bag);
  EXPECT_EQ(other->SizeX(), -7);
  EXPECT_EQ(other->PressKeyDefLayer1(), "[a\u2039\u203A]");
  EXPECT_EQ(other->ShowX().Value(), 7);
  EXPECT_EQ(StreamOf(*other), stream);
}

TEST(ElementStream, BeginsWithItsMarkAndItsVersion) {
  World world;
  const auto stream = StreamOf(*world.component.Create("F1", world.host));
  ASSERT_GE(stream.size(), 8U);
  EXPECT_EQ(std::vector<int>(stream.begin(), stream.begin() + 8), (std::vector<int>{'P', 'l', 'x', 'E', 1, 0, 0, 0}));
}

TEST(ElementStream, AnyByteThatIsLostOrAddedIsFound) {
  World world;
  const auto stream = StreamOf(*world.component.Create("F1", world.host));
  for (std::size_t place = 0; place < stream.size(); ++place) {
    auto shorter = stream;
    shorter.erase(shorter.begin() + static_cast<std::ptrdiff_t>(place));
    EXPECT_FALSE(BagOf(shorter)) << place;
    auto longer = stream;
    longer.insert(longer.begin() + static_cast<std::ptrdiff_t>(place), 1, 0x5AU);
    EXPECT_FALSE(BagOf(longer)) << place;
  }
}

TEST(ElementStream, AHeadIsOfItsSizeAndHasTheMark) {
  World world;
  const auto stream = StreamOf(*world.component.Create("F1", world.host));
  const std::span<const std::uint8_t> bytes(stream);
  EXPECT_EQ(BytesBehind(bytes.first(StreamHeadSize)), stream.size() - StreamHeadSize);
  EXPECT_FALSE(BytesBehind(bytes.first(StreamHeadSize - 1)));
  EXPECT_FALSE(BytesBehind(bytes.first(StreamHeadSize + 1)));
  EXPECT_FALSE(BytesBehind({}));
  EXPECT_FALSE(BytesBehind(bytes.subspan(1, StreamHeadSize)));
}

}  // namespace
}  // namespace plexel
