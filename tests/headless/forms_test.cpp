#include <gtest/gtest.h>

#include <stdexcept>

#include "forms/hand.h"
#include "headless/key_road.h"
#include "platform/failure.h"
#include "world/world.h"

namespace plexel {
namespace {

/// Keeps the key events that reach it.
class KeyForm : public Form {
 public:
  KeyForm() : Form("frmKeys") {
    KeyPreview(true);
    box.Place(0, 0, 1000, 300);
  }
  void OnKeyDown(std::int16_t& keyCode, std::int16_t shift) override { downs.emplace_back(keyCode, shift); }
  void OnKeyPress(std::int16_t& keyAscii) override { presses.push_back(keyAscii); }
  TextBox box{*this, "txtBox"};
  std::vector<std::pair<std::int16_t, std::int16_t>> downs;
  std::vector<std::int16_t> presses;
};

class Shown : public testing::Test, protected World {
 protected:
  KeyRoad road{platform};
  KeyForm form;

  /// Shows the form, acts on it and closes it.
  template <typename Act>
  void Show(Act act) {
    platform.Modal().onRun = [act](Form& shown) {
      act();
      shown.Unload();
    };
    form.ShowModal(nullptr);
  }
  void Press(std::int32_t virtualKey, std::int32_t scanCode, bool down = true) {
    road.Send({virtualKey, scanCode, false, down, 0});
  }
};

TEST_F(Shown, AFormIsTopmostWhileItRuns) {
  Show([this] { EXPECT_EQ(platform.Modal().Topmost(), &form); });
  EXPECT_EQ(platform.Modal().Topmost(), nullptr);
}

TEST_F(Shown, ShowingAndClosingAreTold) {
  std::vector<std::string> told;
  platform.Modal().onShown = [&told](Form& shown, Window*) { told.push_back("shown " + shown.Name()); };
  platform.Modal().onClosed = [&told](Form& closed) { told.push_back("closed " + closed.Name()); };
  Show([] {});
  EXPECT_EQ(told, (std::vector<std::string>{"shown frmKeys", "closed frmKeys"}));
}

TEST_F(Shown, AFormThatNobodyClosesIsADefect) {
  int rounds = 0;
  platform.Modal().onRun = [&rounds](Form&) { ++rounds; };
  EXPECT_THROW(form.ShowModal(nullptr), std::logic_error);
  EXPECT_EQ(rounds, HeadlessModalLoop::IdleRounds);
}

TEST_F(Shown, AFormThatNobodyActsOnIsADefect) { EXPECT_THROW(form.ShowModal(nullptr), std::logic_error); }

TEST_F(Shown, AFormIsNotShownWhileShowingFails) {
  platform.faults.Turn(Fault::Show, true);
  EXPECT_THROW(form.ShowModal(nullptr), Failure);
  EXPECT_FALSE(form.IsShown());
}

TEST_F(Shown, AKeyReachesTheFormWithItsShiftStateAndCharacter) {
  Show([this] {
    Press(0x10, 0x2A);
    Press(0x41, 0x1E);
  });
  EXPECT_EQ(form.downs, (std::vector<std::pair<std::int16_t, std::int16_t>>{{0x10, 1}, {0x41, 1}}));
  EXPECT_EQ(form.presses, std::vector<std::int16_t>{'A'});
  EXPECT_EQ(form.box.Text(), "A");
}

TEST_F(Shown, AKeyThatGoesToTheHooksOnlyReachesNoForm) {
  Show([this] { road.ToHooks({0x41, 0x1E, false, true, 0}); });
  EXPECT_TRUE(form.downs.empty());
  EXPECT_TRUE(platform.Keys().IsDown(0x41));
}

TEST_F(Shown, AKeyThatTheLowLevelHookKeepsReachesNoForm) {
  platform.Hooks().Install(HookKind::LowLevelKeyboard, [](std::int32_t, std::int32_t, std::intptr_t) { return -1; });
  bool kept = false;
  Show([this, &kept] { kept = road.Send({0x41, 0x1E, false, true, 0}); });
  EXPECT_TRUE(kept);
  EXPECT_TRUE(form.downs.empty());
}

TEST_F(Shown, TheHooksSeeTheKeyAheadOfTheForm) {
  static std::size_t downsAtHook = 99;
  static KeyForm* shown = nullptr;
  shown = &form;
  platform.Hooks().Install(HookKind::Keyboard, [](std::int32_t, std::int32_t, std::intptr_t) {
    downsAtHook = shown->downs.size();
    return 0;
  });
  Show([this] { Press(0x41, 0x1E); });
  EXPECT_EQ(downsAtHook, 0U);
  EXPECT_EQ(form.downs.size(), 1U);
}

}  // namespace
}  // namespace plexel
