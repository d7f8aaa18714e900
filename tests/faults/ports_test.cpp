#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

#include "component/component.h"
#include "element/ctlPlexelBaseElement.h"
#include "forms/hand.h"
#include "headless/headless_platform.h"
#include "headless/headless_surroundings.h"
#include "headless/key_road.h"
#include "headless/recording_host.h"
#include "services/module_state.h"

namespace plexel {
namespace {

/// One user, one element, and a row of acts. An act that fails is passed over, as a user would go on.
class Scene {
 public:
  using Act = std::function<void(Scene&, Form&)>;

  Scene() : surroundings_(platform), usePlatform_(platform), useSurroundings_(surroundings_), host(platform.faults) {
    RegisterForms(FormDirectory::Instance());
    surroundings_.Language().Source([] {
      HeadlessLanguage::Texts texts;
      for (std::int32_t number = 1; number < 11000; ++number) texts[number] = "text " + std::to_string(number);
      return texts;
    });
    for (int query = 0; query < CapabilityCount; ++query)
      surroundings_.Capabilities().Set("*", static_cast<Capability>(query), 1);
    surroundings_.Settings().Option(1, True);
    surroundings_.Settings().Option(9, True);
    platform.Messages().onShow = [](std::string_view, std::int32_t, std::string_view) { return MessageAnswer::OK; };
    element = ctlPlexelBaseElement::Create("F1", host);
    element->ElementType(OvalLed);
    element->PressKeyDefLayer1("[before]");
    element->ButtonNotes("before");
  }
  ~Scene() { Module() = ModuleState(); }
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  /// Plays the acts on whatever form is on top, one each time a form waits for the user; then closes what is left.
  void Play(const std::vector<Act>& acts) {
    std::size_t next = 0;
    platform.Modal().onRun = [&](Form& form) {
      if (next < acts.size()) {
        Try([&] { acts[next++](*this, form); });
      } else {
        Try([&] { Hand(form).Close(); });
      }
    };
    Try([&] { element->OpenConfigurationDialog(); });
  }

  static void Try(const std::function<void()>& act) {
    try {
      act();
    } catch (const Failure&) {  // the fault reached the user's act; he goes on
    }
  }

  void Tap(std::int32_t virtualKey, std::int32_t scanCode) {
    KeyRoad road(platform);
    Try([&] { road.Send({virtualKey, scanCode, false, true, 0}); });
    Try([&] { road.Send({virtualKey, scanCode, false, false, 0}); });
  }

  HeadlessPlatform platform;

 private:
  HeadlessSurroundings surroundings_;
  Platform::Use usePlatform_;
  Surroundings::Use useSurroundings_;

 public:
  RecordingHost host;
  std::shared_ptr<ctlPlexelBaseElement> element;
};

Scene::Act Click(std::string name) {
  return [name](Scene&, Form& form) {
    if (Control* control = form.Find(name)) Hand(form).Click(*control);
  };
}

Scene::Act DblClick(std::string name) {
  return [name](Scene&, Form& form) {
    if (Control* control = form.Find(name)) Hand(form).DblClick(*control);
  };
}

Scene::Act Tap(std::int32_t virtualKey, std::int32_t scanCode) {
  return [=](Scene& scene, Form&) { scene.Tap(virtualKey, scanCode); };
}

Scene::Act Menu(std::string name) {
  return [name](Scene&, Form& form) {
    auto* grid = dynamic_cast<Grid*>(form.Find("msgScanCodes"));
    if (grid == nullptr) return;
    Hand(form).MouseDown(*grid, 2, 0, 10, 10);
    if (auto* entry = dynamic_cast<MenuItem*>(form.Find(name))) Hand(form).Menu(*entry);
  };
}

struct Road {
  std::string_view name;
  bool wizard;
  std::vector<Scene::Act> acts;
};

const std::vector<Road>& Roads() {
  static const std::vector<Road> roads = {
      {"capture and OK",
       false,
       {DblClick("msgScanCodes"), Tap(0x41, 0x1E), DblClick("msgScanCodes"), Tap(0x08, 0x0E), Click("cmdOK")}},
      {"capture and Cancel", false, {DblClick("msgScanCodes"), Tap(0x41, 0x1E), Click("cmdCancel")}},
      {"special dialogs",
       false,
       {Menu("MNU_SPECIALKEY"), Click("cmdOK"), Menu("MNU_POPUP_WINDOWSKEY"), Click("cmdHelp"), Click("cmdOK"),
        Menu("MNU_POPUP_ASCII"), Click("msgASCIICodes"), Click("cmdOK"), Menu("MNU_POPUP_NONSTANDARDCODE"),
        Click("cmdOK"), Menu("MNU_POPUP_COPY"), Menu("MNU_POPUP_PASTE"), Click("cmdOK")}},
      {"wizard to its end",
       true,
       {Click("optKeyType(1)"), DblClick("txtScanCodes"), Tap(0x41, 0x1E), DblClick("txtScanCodes"),
        Click("cmdForward"), Click("cmdForward"), Click("cmdBack"), Click("cmdForward"), Click("cmdOK")}},
      {"wizard cancelled",
       true,
       {Click("optKeyType(2)"), Click("labLimitations"), Click("cmdDeleteKEY"), Click("cmdCancel")}},
  };
  return roads;
}

void Play(Scene& scene, const Road& road) {
  scene.element->WizardOn(road.wizard);
  scene.Play(road.acts);
}

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
  EXPECT_EQ(shown, "frmConfigurationDialog");
  EXPECT_TRUE(scene.element->TactisBaseElementScanCodeBuffer() == before);
  EXPECT_TRUE(scene.platform.Modal().Shown().empty());
  EXPECT_EQ(Module().bDirectInputActive, False);
}

class EachRoad : public ::testing::TestWithParam<std::size_t> {};

TEST_P(EachRoad, SurvivesEveryPortFailingOnceAtEachOfItsCalls) {
  const Road& road = Roads()[GetParam()];
  std::array<std::int64_t, Faults::Count> calls{};
  {
    Scene scene;
    scene.platform.faults.Reset();
    Play(scene, road);
    for (std::size_t fault = 0; fault < Faults::Count; ++fault)
      calls[fault] = scene.platform.faults.Calls(static_cast<Fault>(fault));
  }
  std::int64_t played = 0;
  for (std::size_t fault = 0; fault < Faults::Count; ++fault) {
    for (std::int64_t call = 1; call <= calls[fault]; ++call) {
      SCOPED_TRACE(std::string(road.name) + ": " + std::string(Faults::Names[fault]) + " fails at call " +
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
  for (std::size_t fault = 0; fault < Faults::Count; ++fault) {
    SCOPED_TRACE(std::string(Roads()[GetParam()].name) + ": " + std::string(Faults::Names[fault]) + " fails always");
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
