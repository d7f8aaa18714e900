#include <gtest/gtest.h>

#include <stdexcept>

#include "element/ctlPlexelBaseElement.h"
#include "services/dialogs.h"
#include "win32/desk.h"
#include "win32/grid_view.h"

namespace plexel {

namespace {

BOOL CALLBACK CountWindow(HWND, LPARAM count) {
  ++*reinterpret_cast<int*>(count);
  return TRUE;
}

int WindowsOfThread() {
  int count = 0;
  EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&count));
  return count;
}

void DoubleClickFirstCell(Desk& desk) {
  const auto& view = static_cast<const GridView&>(*desk.Top().ViewOf(desk.TopForm().Find("msgScanCodes")));
  const RECT cell = view.CellRect(1, 1);
  Desk::Press(view.Outer(), cell.left + 5, cell.top + 5, true);
}

void UntilOpen(Desk& desk) {
  desk.Until("the dialog opens", [&] { return desk.IsOpen(dialogs::frmConfigurationDialog); });
}

}  // namespace

TEST(Modal, TheHostsWindowTakesNothingWhileADialogIsOpen) {
  Desk desk;
  const auto element = desk.Element(RectLed);
  const int before = WindowsOfThread();
  UntilOpen(desk);
  desk.Then("a look", [&] {
    EXPECT_FALSE(IsWindowEnabled(desk.window->Handle()));
    EXPECT_EQ(GetWindow(desk.Top().Window(), GW_OWNER), desk.window->Handle());
    EXPECT_TRUE(IsWindowEnabled(desk.Top().Window()));
  });
  desk.Then("close", [&] { desk.Close(); });
  element->OpenConfigurationDialog();
  EXPECT_TRUE(IsWindowEnabled(desk.window->Handle()));
  EXPECT_EQ(GetActiveWindow(), desk.window->Handle());
  EXPECT_EQ(WindowsOfThread(), before);
  EXPECT_TRUE(desk.Done());
}

TEST(Modal, ADialogEndsWithTheWindowUnderIt) {
  Desk desk;
  const auto element = desk.Element(RectLed);
  const std::string press = element->PressKeyDefLayer1();
  UntilOpen(desk);
  desk.Then("capture", [&] { DoubleClickFirstCell(desk); });
  desk.Then("the host's window goes", [&] { DestroyWindow(desk.window->Handle()); });
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
  EXPECT_EQ(desk.platform.Modal().Topmost(), nullptr);
  EXPECT_FALSE(desk.platform.Modal().Captures());
  EXPECT_EQ(element->PressKeyDefLayer1(), press);
  element->ParentWindow(nullptr);
  UntilOpen(desk);
  desk.Then("close", [&] { desk.Close(); });
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done()) << "the next one opens";
}

TEST(Modal, WhatAHandlerThrowsGoesToWhoeverOpenedTheDialog) {
  Desk desk;
  const auto element = desk.Element(RectLed);
  bool throws = true;
  desk.host.onEvent = [&](const HostEvent& event) {
    if (throws && event.name == "DirectInputStatusChanged") throw std::runtime_error("the host is at an end");
  };
  UntilOpen(desk);
  desk.Then("capture", [&] { DoubleClickFirstCell(desk); });
  EXPECT_THROW(element->OpenConfigurationDialog(), std::runtime_error);
  throws = false;
  EXPECT_EQ(desk.platform.Modal().Topmost(), nullptr);
  EXPECT_FALSE(desk.platform.Modal().Captures());
  EXPECT_TRUE(IsWindowEnabled(desk.window->Handle()));
  UntilOpen(desk);
  desk.Then("close", [&] { desk.Close(); });
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done()) << "the next one opens";
}

TEST(Modal, AFailureOfAnActIsToldAndTheDialogStays) {
  Desk desk;
  const auto element = desk.Element(RectLed);
  UntilOpen(desk);
  desk.Then("a failing button", [&] {
    desk.Find<CommandButton>("cmdHelp").OnClick = [] { throw Failure(FailureKind::Handler, "no help"); };
    Desk::Press(desk.WindowOf("cmdHelp"), 10, 10);
  });
  desk.Then("a look", [&] {
    EXPECT_TRUE(desk.IsOpen(dialogs::frmConfigurationDialog));
    EXPECT_EQ(desk.failures, std::vector<std::string>{"no help"});
  });
  desk.Then("close", [&] { desk.Close(); });
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
}

TEST(Modal, TheEndOfTheProgramEndsTheDialogAndGoesOn) {
  Desk desk;
  const auto element = desk.Element(RectLed);
  UntilOpen(desk);
  desk.Then("the end", [] { PostQuitMessage(7); });
  element->OpenConfigurationDialog();
  EXPECT_EQ(desk.platform.Modal().Topmost(), nullptr);
  MSG message = {};
  EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
  EXPECT_EQ(message.wParam, 7U);
}

TEST(Modal, AMovedDialogOpensWhereItWas) {
  Desk desk;
  const auto element = desk.Element(RectLed);
  const auto place = [&] {
    RECT now;
    GetWindowRect(desk.Top().Window(), &now);
    return std::pair(now.left, now.top);
  };
  UntilOpen(desk);
  desk.Then("a move", [&] { SetWindowPos(desk.Top().Window(), nullptr, 333, 222, 0, 0, SWP_NOSIZE | SWP_NOZORDER); });
  desk.Then("the model knows", [&] {
    EXPECT_EQ(desk.TopForm().Left(), 333 * desk.platform.TheScreen().TwipsPerPixelX());
    EXPECT_EQ(desk.TopForm().Top(), 222 * desk.platform.TheScreen().TwipsPerPixelY());
  });
  desk.Then("close", [&] { desk.Close(); });
  element->OpenConfigurationDialog();
  UntilOpen(desk);
  desk.Then("a look", [&] { EXPECT_EQ(place(), std::pair(333L, 222L)); });
  desk.Then("close", [&] { desk.Close(); });
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
}

TEST(Modal, AnOptionThatGetsTheFocusBackIsNotChosenByThat) {
  Desk desk;
  const auto element = desk.Element(RectLed);
  UntilOpen(desk);
  desk.Then("the focus on another option", [&] {
    Hand(desk.TopForm()).Focus(*desk.TopForm().Find("optCodeType(1)"));
    SetFocus(desk.Top().Window());
    EXPECT_EQ(GetFocus(), desk.WindowOf("optCodeType(1)"));
  });
  desk.Then("a look", [&] { EXPECT_FALSE(desk.Find<OptionButton>("optCodeType(1)").Value()); });
  desk.Then("close", [&] { desk.Close(); });
  element->OpenConfigurationDialog();
  EXPECT_TRUE(desk.Done());
}

}  // namespace plexel
