#include "project/panel_difference.h"

#include <gtest/gtest.h>

#include <functional>

namespace plexel {
namespace {

using Kind = PanelDifference::Kind;

/// A key and a legend.
Panel TwoParts() {
  Panel panel;
  panel.parts.resize(2);
  panel.parts[0].kind = PanelPartKind::Key;
  panel.parts[0].box = {10, 10, 20, 20};
  panel.parts[0].element.emplace().id = "F1";
  panel.parts[1].kind = PanelPartKind::Legend;
  panel.parts[1].box = {50, 10, 20, 20};
  return panel;
}

std::vector<Kind> KindsBehind(const std::function<void(Panel&)>& change) {
  Panel changed = TwoParts();
  change(changed);
  std::vector<Kind> kinds;
  for (const PanelDifference& one : DifferencesOf(TwoParts(), changed)) kinds.push_back(one.kind);
  return kinds;
}

TEST(PanelDifference, EachThingThatChangesIsTold) {
  EXPECT_TRUE(KindsBehind([](Panel&) {}).empty());
  EXPECT_EQ(KindsBehind([](Panel& panel) { panel.parts[0].box.left = 11; }), std::vector<Kind>{Kind::Place});
  EXPECT_EQ(KindsBehind([](Panel& panel) { panel.parts[0].element->sizeX = 7; }), std::vector<Kind>{Kind::Place});
  EXPECT_EQ(KindsBehind([](Panel& panel) { panel.parts[0].element->sizeY = 7; }), std::vector<Kind>{Kind::Place});
  EXPECT_EQ(KindsBehind([](Panel& panel) { panel.parts[0].element->type = Led; }), std::vector<Kind>{Kind::Type});
  EXPECT_EQ(KindsBehind([](Panel& panel) { panel.parts[0].element->hardwareNumberLed = 7; }),
            std::vector<Kind>{Kind::Numbers});
  EXPECT_EQ(KindsBehind([](Panel& panel) { panel.parts[0].fillColor = 7; }), std::vector<Kind>{Kind::Drawing});
  EXPECT_EQ(KindsBehind([](Panel& panel) { panel.parts[1].box.left = 51; }), std::vector<Kind>{Kind::Drawing});
  EXPECT_EQ(KindsBehind([](Panel& panel) { panel.parts.pop_back(); }), std::vector<Kind>{Kind::Drawing});
}

}  // namespace
}  // namespace plexel
