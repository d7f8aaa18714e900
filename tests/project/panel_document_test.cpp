#include "project/panel_document.h"

#include "project/open_document.h"

namespace plexel {
namespace {

using LedsOfADocument = OpenDocument;

TEST_F(LedsOfADocument, AreDefinedInTheLayersInWhichAnElementShowsThem) {
  Element("L1").LEDTypeLayer2(UserLed);
  for (std::int32_t layer = -1; layer <= LayerCount + 1; ++layer) {
    EXPECT_EQ(document->LedIsDefined(UserLed, layer), layer == 2) << layer;
  }
  EXPECT_FALSE(document->LedIsDefined(AlarmLed, 2));
  Element("L2").LEDTypeLayer1(AlarmLed);
  Element("L2").LEDTypeLayer4(AlarmLed);
  for (std::int32_t layer = 0; layer <= LayerCount + 1; ++layer) {
    EXPECT_EQ(document->LedIsDefined(AlarmLed, layer), layer == 1 || layer == 4) << layer;
  }
}

}  // namespace
}  // namespace plexel
