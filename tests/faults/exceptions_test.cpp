#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <string>

#include "faults/scene.h"
#include "forms/form_directory.h"
#include "headless/recording_host.h"
#include "services/dialogs.h"

namespace plexel {
namespace {

/// An exception that nobody in the component can know.
struct Foreign {
  int number = 0;
};

struct Kind {
  const char* name;
  void (*thrower)();
};
constexpr std::array<Kind, 4> kinds = {{{"a runtime error", [] { throw std::runtime_error("thrown"); }},
                                        {"a number", [] { throw 5; }},
                                        {"a class of its own", [] { throw Foreign(); }},
                                        {"a failure", [] { throw Failure(FailureKind::Handler, "thrown"); }}}};

/// Plays a road with one thing thrown in it; true when the exception reached the caller.
bool Reaches(Scene& scene, const Road& road) {
  try {
    Play(scene, road);
  } catch (const std::exception&) {
    return true;
  } catch (int) {
    return true;
  } catch (const Foreign&) {
    return true;
  }
  return false;
}

void ExpectNothingLeft(Scene& scene) {
  EXPECT_EQ(scene.platform.UserRegistry().OpenKeys(), 0);
  EXPECT_FALSE(scene.platform.Hooks().Installed(HookKind::Keyboard));
  EXPECT_FALSE(scene.platform.Hooks().Installed(HookKind::LowLevelKeyboard));
  EXPECT_EQ(Module().lngKeyboardHook, 0);
  EXPECT_EQ(Module().lngLowLevelHook, 0);
  EXPECT_EQ(Module().bDirectInputActive, False);
  EXPECT_TRUE(scene.platform.Modal().Shown().empty());
  for (const FormName name : dialogs::All) {
    EXPECT_EQ(FormDirectory::Instance().Open(name), nullptr) << std::string_view(name);
  }
}

/// The next openings work: the dialog with capture to its end, the wizard, and the properties.
void ExpectOpenable(Scene& scene) {
  scene.platform.faults.Reset();
  scene.host.onEvent = nullptr;
  scene.host.Forget();
  std::vector<std::string> shown;
  scene.platform.Modal().onShown = [&](Form& form, Window*) { shown.push_back(form.Name()); };
  scene.element->WizardOn(false);
  scene.Play({DblClick("msgScanCodes"), Tap(0x42, 0x30), DblClick("msgScanCodes"), Click("cmdOK")});
  EXPECT_EQ(scene.host.Count("DirectInputStatusChanged"), 2);
  EXPECT_EQ(scene.host.Count("ProjectModified"), 1);
  EXPECT_EQ(scene.host.Count("SendKeyDefinition"), 1);
  scene.element->WizardOn(true);
  scene.element->WizardOptions(NormalKey);
  scene.Play({Click("cmdForward"), Click("cmdForward"), Click("cmdOK")});
  Scene::Try([&] { scene.element->OpenPropertiesDialog(); });
  EXPECT_EQ(shown, (std::vector<std::string>{dialogs::frmConfigurationDialog, dialogs::frmButtonWizardPage1,
                                             dialogs::frmButtonWizardPage2, dialogs::frmButtonWizardPage3,
                                             dialogs::frmPropertiesButton}));
}

class EachRoadThrown : public ::testing::TestWithParam<std::size_t> {
 protected:
  const Road& road_ = Roads()[GetParam()];
};

/// Throws at the n-th thing that the host hears, for every n.
TEST_P(EachRoadThrown, AHandlerThatThrowsLeavesNothingBehind) {
  std::size_t heard = 0;
  {
    Scene scene;
    scene.host.Forget();
    Play(scene, road_);
    heard = scene.host.Heard().size();
  }
  ASSERT_GT(heard, 20U);
  std::size_t reached = 0;
  for (std::size_t place = 1; place <= heard; ++place) {
    const Kind& kind = kinds[place % kinds.size()];
    Scene scene;
    std::string event;
    std::size_t count = 0;
    scene.host.onEvent = [&](const HostEvent& one) {
      if (++count != place) return;
      event = one.name;
      kind.thrower();
    };
    reached += Reaches(scene, road_) ? 1 : 0;
    SCOPED_TRACE(std::string(road_.name) + ": " + event + " throws " + kind.name + " at " + std::to_string(place));
    EXPECT_FALSE(event.empty());
    ExpectNothingLeft(scene);
    ExpectOpenable(scene);
  }
  EXPECT_GT(reached, heard / 2);
}

/// The same for the events alone, with every kind of exception.
TEST_P(EachRoadThrown, AnEventHandlerMayThrowAnything) {
  std::vector<HostEvent> events;
  {
    Scene scene;
    Play(scene, road_);
    events = scene.host.Events();
  }
  ASSERT_FALSE(events.empty());
  for (std::size_t place = 1; place <= events.size(); ++place) {
    for (const Kind& kind : kinds) {
      SCOPED_TRACE(std::string(road_.name) + ": " + events[place - 1].name + " throws " + kind.name);
      Scene scene;
      std::size_t count = 0;
      bool thrown = false;
      scene.host.onEvent = [&](const HostEvent& one) {
        if (one.name == "PropertyChanged" || ++count != place) return;
        thrown = true;
        kind.thrower();
      };
      const bool reached = Reaches(scene, road_);
      EXPECT_TRUE(thrown);
      EXPECT_EQ(reached, std::string_view(kind.name) != "a failure");
      ExpectNothingLeft(scene);
      ExpectOpenable(scene);
    }
  }
}

/// Every port of the platform and every service throws at each of its calls in turn, and so does the container.
TEST_P(EachRoadThrown, APortThatThrowsLeavesNothingBehind) {
  std::array<std::int64_t, FaultTable.size()> calls{};
  {
    Scene scene;
    scene.platform.faults.Reset();
    Play(scene, road_);
    for (std::size_t fault = 0; fault < FaultTable.size(); ++fault)
      calls[fault] = scene.platform.faults.Calls(static_cast<Fault>(fault));
  }
  std::int64_t played = 0;
  for (std::size_t fault = 0; fault < FaultTable.size(); ++fault) {
    for (std::int64_t call = 1; call <= calls[fault]; ++call) {
      const Kind& kind = kinds[static_cast<std::size_t>(call) % (kinds.size() - 1)];
      SCOPED_TRACE(std::string(road_.name) + ": " + std::string(FaultTable[fault].name) + " throws " + kind.name +
                   " at call " + std::to_string(call));
      Scene scene;
      scene.platform.faults.Reset();
      scene.platform.faults.Thrown(kind.thrower);
      scene.platform.faults.Arm(static_cast<Fault>(fault), call);
      EXPECT_TRUE(Reaches(scene, road_));
      ExpectNothingLeft(scene);
      ExpectOpenable(scene);
      ++played;
    }
  }
  EXPECT_GT(played, 50);
}

INSTANTIATE_TEST_SUITE_P(Exceptions, EachRoadThrown, ::testing::Range(std::size_t{0}, Roads().size()));

TEST(Exceptions, EndTheDialogWithoutItsQuestionsAndTellTheHostThatCaptureIsOff) {
  Scene scene;
  scene.platform.Modal().onRun = [&](Form& form) {
    Hand(form).DblClick(*form.Find("msgScanCodes"));
    ASSERT_TRUE(scene.platform.Hooks().Installed(HookKind::Keyboard));
    scene.host.Forget();
    throw Foreign{7};
  };
  EXPECT_THROW(scene.element->OpenConfigurationDialog(), Foreign);
  EXPECT_EQ(scene.host.EventNames(), std::vector<std::string>{"DirectInputStatusChanged"});
  EXPECT_TRUE(scene.platform.UserRegistry().Stored().empty());
  ExpectNothingLeft(scene);
}

TEST(Exceptions, OfAHostsOwnCallsPassThrough) {
  Scene scene;
  scene.host.onEvent = [](const HostEvent&) { throw Foreign{7}; };
  EXPECT_THROW(scene.element->SizeX(5), Foreign);
  EXPECT_THROW(scene.element->UserControl_MouseUp(1, 0, 0, 0), Foreign);
  EXPECT_THROW(scene.element->UserControl_DblClick(), Foreign);
  EXPECT_THROW(scene.element->UserControl_GotFocus(), Foreign);
  scene.host.onEvent = nullptr;
  EXPECT_EQ(scene.element->SizeX(), 5);
  ExpectOpenable(scene);
}

TEST(Exceptions, OfThePropertiesDialogLeaveNothingBehind) {
  Scene scene;
  scene.platform.Modal().onRun = [](Form&) { throw 5; };
  EXPECT_THROW(scene.element->OpenPropertiesDialog(), int);
  ExpectNothingLeft(scene);
  ExpectOpenable(scene);
}

}  // namespace
}  // namespace plexel
