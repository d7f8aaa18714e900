#include <gtest/gtest.h>

#include <random>

#include "element/ctlPlexelBaseElement.h"
#include "services/dialogs.h"
#include "win32/desk.h"
#include "win32/shown_form.h"

namespace plexel {

namespace {

/// Keys as messages of the queue, as they come when no hook keeps them.
void PostKey(WPARAM virtualKey) {
  const HWND target = GetFocus();
  const auto scanCode = static_cast<LPARAM>(MapVirtualKeyW(static_cast<UINT>(virtualKey), MAPVK_VK_TO_VSC));
  PostMessageW(target, WM_KEYDOWN, virtualKey, 1 | (scanCode << 16U));
  PostMessageW(target, WM_KEYUP, virtualKey,
               static_cast<LPARAM>(0xC0000001U | (static_cast<unsigned>(scanCode) << 16U)));
}

}  // namespace

TEST(KeyboardWalk, WhateverIsPressedTheWindowsShowWhatTheModelSays) {
  constexpr unsigned Seed = 20240611;
  constexpr int Steps = 400;
  constexpr WPARAM Choice[] = {VK_TAB,   VK_TAB,  VK_TAB,    VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END,
                               VK_PRIOR, VK_NEXT, VK_DELETE, VK_BACK, 'A',      'X',   '7',     VK_SPACE};
  std::mt19937 random(Seed);
  Desk desk;
  int looked = 0;
  for (const auto type : {RectLed, Led}) {
    const auto element = desk.Element(type);
    desk.Until("the dialog opens", [&] { return desk.IsOpen(dialogs::frmConfigurationDialog); });
    for (int step = 0; step < Steps / 2; ++step) {
      desk.Then("a key", [&] {
        // Space on the way out would end the walk.
        const Control* const focus = desk.TopForm().Focus();
        const bool leaves = focus != nullptr && (focus->Name() == "cmdOK" || focus->Name() == "cmdCancel");
        const WPARAM key = Choice[random() % std::size(Choice)];
        PostKey(leaves ? VK_TAB : key);
      });
      desk.Then("a look", [&] {
        if (!desk.IsOpen(dialogs::frmConfigurationDialog)) return;
        ++looked;
        for (const std::string& difference : DifferencesOf(desk.Top()))
          ADD_FAILURE() << "seed " << Seed << ": " << difference;
      });
    }
    desk.Then("close", [&] { desk.Close(); });
    element->OpenConfigurationDialog();
  }
  EXPECT_TRUE(desk.Done());
  EXPECT_EQ(looked, Steps);
}

}  // namespace plexel
