#include <gtest/gtest.h>

#include <array>
#include <string>

#include "faults/scene.h"
#include "services/dialogs.h"

namespace plexel {
namespace {

/// After any fault the next opening must work as if nothing had happened, and its Cancel must change nothing.
void ExpectHealthy(Scene& scene) {
  scene.platform.faults.Reset();
  const udtTactisBaseElement_ScanCodeInfo before = scene.element->TactisBaseElementScanCodeBuffer();
  scene.element->WizardOn(False);
  std::string shown;
  scene.Play({[&](Scene& again, Form& form) {
                shown = form.Name();
                Hand(form).DblClick(*form.Find("msgScanCodes"));
                again.Tap(0x42, 0x30);
              },
              Click("cmdCancel")});
  EXPECT_EQ(shown, dialogs::frmConfigurationDialog);
  EXPECT_TRUE(scene.element->TactisBaseElementScanCodeBuffer() == before);
  EXPECT_TRUE(scene.platform.Modal().Shown().empty());
  EXPECT_EQ(Module().bDirectInputActive, False);
}

class EachRoad : public ::testing::TestWithParam<std::size_t> {};

TEST_P(EachRoad, SurvivesEveryPortFailingOnceAtEachOfItsCalls) {
  const Road& road = Roads()[GetParam()];
  std::array<std::int64_t, FaultTable.size()> calls{};
  {
    Scene scene;
    scene.platform.faults.Reset();
    Play(scene, road);
    for (std::size_t fault = 0; fault < FaultTable.size(); ++fault)
      calls[fault] = scene.platform.faults.Calls(static_cast<Fault>(fault));
  }
  std::int64_t played = 0;
  for (std::size_t fault = 0; fault < FaultTable.size(); ++fault) {
    for (std::int64_t call = 1; call <= calls[fault]; ++call) {
      SCOPED_TRACE(std::string(road.name) + ": " + std::string(FaultTable[fault].name) + " fails at call " +
                   std::to_string(call));
      Scene scene;
      scene.platform.faults.Reset();
      scene.platform.faults.Arm(static_cast<Fault>(fault), call);
      Play(scene, road);
      EXPECT_TRUE(scene.platform.Modal().Shown().empty());
      ExpectHealthy(scene);
      ++played;
    }
  }
  EXPECT_GT(played, 50);
}

TEST_P(EachRoad, SurvivesEveryPortFailingAllTheTime) {
  for (std::size_t fault = 0; fault < FaultTable.size(); ++fault) {
    SCOPED_TRACE(std::string(Roads()[GetParam()].name) + ": " + std::string(FaultTable[fault].name) + " fails always");
    Scene scene;
    scene.platform.faults.Reset();
    scene.platform.faults.Turn(static_cast<Fault>(fault), true);
    Play(scene, Roads()[GetParam()]);
    EXPECT_TRUE(scene.platform.Modal().Shown().empty());
    ExpectHealthy(scene);
  }
}

INSTANTIATE_TEST_SUITE_P(Ports, EachRoad, ::testing::Range(std::size_t{0}, Roads().size()));

}  // namespace
}  // namespace plexel
