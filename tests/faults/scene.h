#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "forms/hand.h"
#include "headless/key_road.h"
#include "world/world.h"

namespace plexel {

/// One user, one element, and a row of acts. An act that fails is passed over, as a user would go on.
class Scene : public World {
 public:
  using Act = std::function<void(Scene&, Form&)>;

  Scene() {
    Speak();
    for (int query = 0; query < CapabilityCount; ++query)
      surroundings.Capabilities().Set("*", static_cast<Capability>(query), 1);
    surroundings.Settings().Option(1, True);
    surroundings.Settings().Option(9, True);
    platform.Messages().onShow = [](std::string_view, std::int32_t, std::string_view) { return MessageAnswer::OK; };
    element->ElementType(OvalLed);
    element->PressKeyDefLayer1("[before]");
    element->ButtonNotes("before");
  }
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  /// Plays the acts on whatever form is on top, one each time a form waits for the user; then closes what is left. What
  /// is thrown and is no Failure goes through all of it.
  void Play(const std::vector<Act>& acts) {
    platform.Modal().onRun = [this, acts, next = std::size_t{0}](Form& form) mutable {
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

  std::shared_ptr<ctlPlexelBaseElement> element = component.Create("F1", host);
};

inline Scene::Act Click(std::string name) {
  return [name](Scene&, Form& form) {
    if (Control* control = form.Find(name)) Hand(form).Click(*control);
  };
}

inline Scene::Act DblClick(std::string name) {
  return [name](Scene&, Form& form) {
    if (Control* control = form.Find(name)) Hand(form).DblClick(*control);
  };
}

inline Scene::Act Tap(std::int32_t virtualKey, std::int32_t scanCode) {
  return [=](Scene& scene, Form&) { scene.Tap(virtualKey, scanCode); };
}

inline Scene::Act Menu(std::string name) {
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

inline const std::vector<Road>& Roads() {
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

inline void Play(Scene& scene, const Road& road) {
  scene.element->WizardOn(road.wizard);
  scene.Play(road.acts);
}

}  // namespace plexel
