#include <gtest/gtest.h>
#include <oleacc.h>

#include "element/ctlPlexelBaseElement.h"
#include "services/dialogs.h"
#include "win32/bstr.h"
#include "win32/desk.h"

namespace plexel {

namespace {

VARIANT Child(LONG number) {
  VARIANT child = {};
  child.vt = VT_I4;
  child.lVal = number;
  return child;
}

std::wstring NameOf(IAccessible& object, LONG child) {
  Bstr text;
  object.get_accName(Child(child), text.Out());
  return std::wstring(ContentOf(text.Get()));
}

std::wstring ValueOf(IAccessible& object, LONG child) {
  Bstr text;
  object.get_accValue(Child(child), text.Out());
  return std::wstring(ContentOf(text.Get()));
}

LONG RoleOf(IAccessible& object, LONG child) {
  VARIANT role = {};
  object.get_accRole(Child(child), &role);
  return role.lVal;
}

LONG StateOf(IAccessible& object, LONG child) {
  VARIANT state = {};
  object.get_accState(Child(child), &state);
  return state.lVal;
}

IAccessible* AccessibleOf(HWND window) {
  void* object = nullptr;
  EXPECT_EQ(AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &object), S_OK);
  return static_cast<IAccessible*>(object);
}

/// The configuration dialog, in which a step looks at what readers of the screen see.
void InDialog(const std::function<void(Desk&)>& look) {
  CoInitialize(nullptr);
  {
    Desk desk;
    const auto element = desk.Element(RectLed);
    desk.Until("the dialog opens", [&] { return desk.IsOpen(dialogs::frmConfigurationDialog); });
    desk.Then("a look", [&] { look(desk); });
    desk.Then("close", [&] { desk.Close(); });
    element->OpenConfigurationDialog();
    EXPECT_TRUE(desk.Done());
  }
  CoUninitialize();
}

}  // namespace

TEST(Accessible, TheGridIsATableOfNamedCells) {
  InDialog([](Desk& desk) {
    IAccessible* const grid = AccessibleOf(desk.WindowOf("msgScanCodes"));
    ASSERT_NE(grid, nullptr);
    LONG count = 0;
    EXPECT_EQ(grid->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 15);
    EXPECT_EQ(RoleOf(*grid, CHILDID_SELF), ROLE_SYSTEM_TABLE);
    EXPECT_EQ(NameOf(*grid, CHILDID_SELF), L"What the key sends in each layer");
    EXPECT_EQ(RoleOf(*grid, 2), ROLE_SYSTEM_COLUMNHEADER);
    EXPECT_EQ(NameOf(*grid, 2), L"Press");
    EXPECT_EQ(RoleOf(*grid, 4), ROLE_SYSTEM_ROWHEADER);
    EXPECT_EQ(RoleOf(*grid, 5), ROLE_SYSTEM_CELL);
    EXPECT_EQ(NameOf(*grid, 5), L"Layer 1, Press");
    EXPECT_EQ(ValueOf(*grid, 5), L"[Ctrl Left+a\u2039\u203A]");
    EXPECT_EQ(NameOf(*grid, 9), L"Layer 2, Release");
    EXPECT_EQ(ValueOf(*grid, 9), L"[Shift Left\u203A]");
    EXPECT_NE(StateOf(*grid, 5) & STATE_SYSTEM_FOCUSED, 0);
    EXPECT_EQ(StateOf(*grid, 9) & STATE_SYSTEM_FOCUSED, 0);
    EXPECT_NE(grid->get_accName(Child(16), nullptr), S_OK);
    BSTR text = nullptr;
    EXPECT_EQ(grid->get_accName(Child(16), &text), E_INVALIDARG);
    grid->Release();
  });
}

TEST(Accessible, ReadersOfTheScreenMoveOnTheGridAndStartCapture) {
  InDialog([](Desk& desk) {
    IAccessible* const grid = AccessibleOf(desk.WindowOf("msgScanCodes"));
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(9)), S_OK);
    EXPECT_EQ(desk.Find<Grid>("msgScanCodes").Row(), 2);
    EXPECT_EQ(desk.Find<Grid>("msgScanCodes").Col(), 2);
    VARIANT focus = {};
    EXPECT_EQ(grid->get_accFocus(&focus), S_OK);
    EXPECT_EQ(focus.lVal, 9);
    EXPECT_EQ(grid->accSelect(SELFLAG_TAKEFOCUS, Child(1)), E_INVALIDARG);
    LONG left = 0, top = 0, width = 0, height = 0;
    EXPECT_EQ(grid->accLocation(&left, &top, &width, &height, Child(9)), S_OK);
    VARIANT hit = {};
    EXPECT_EQ(grid->accHitTest(left + width / 2, top + height / 2, &hit), S_OK);
    EXPECT_EQ(hit.lVal, 9);
    VARIANT next = {};
    EXPECT_EQ(grid->accNavigate(NAVDIR_UP, Child(9), &next), S_OK);
    EXPECT_EQ(next.lVal, 6);
    EXPECT_EQ(grid->accNavigate(NAVDIR_RIGHT, Child(9), &next), S_FALSE);
    EXPECT_EQ(grid->accDoDefaultAction(Child(9)), S_OK);
    EXPECT_TRUE(desk.platform.Modal().Captures());
    grid->Release();
  });
}

TEST(Accessible, WhatOutlivesTheGridAnswersNothing) {
  IAccessible* kept = nullptr;
  CoInitialize(nullptr);
  InDialog([&](Desk& desk) { kept = AccessibleOf(desk.WindowOf("msgScanCodes")); });
  ASSERT_NE(kept, nullptr);
  LONG count = 0;
  EXPECT_TRUE(FAILED(kept->get_accChildCount(&count)));
  BSTR text = nullptr;
  EXPECT_TRUE(FAILED(kept->get_accName(Child(1), &text)));
  EXPECT_EQ(kept->Release(), 0U);
  CoUninitialize();
}

TEST(Accessible, ButtonsListsAndFieldsHaveTheirNames) {
  InDialog([](Desk& desk) {
    IAccessible* const button = AccessibleOf(desk.WindowOf("cmdOK"));
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(NameOf(*button, CHILDID_SELF), L"OK");
    button->Release();
    // Whoever looks for the name of a list or a field takes the label right ahead of it.
    EXPECT_EQ(GetWindow(desk.WindowOf("cmbLEDTypes(1)"), GW_HWNDPREV), desk.WindowOf("Label3"));
    EXPECT_EQ(GetWindow(desk.WindowOf("txtButtonNotes"), GW_HWNDPREV), desk.WindowOf("Label1"));
  });
}

}  // namespace plexel
