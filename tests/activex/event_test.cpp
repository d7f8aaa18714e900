#include <gtest/gtest.h>
#include <olectl.h>

#include "activex/container.h"
#include "activex/late.h"
#include "activex/library.h"
#include "activex/sinks.h"
#include "win32/bstr.h"

namespace plexel::activex {

namespace {

using Lines = std::vector<std::wstring>;

struct Events : testing::Test {
  ComPointer<_ctlPlexelBaseElement> control = Library::Instance().Create();
  EventSink sink;
  NoticeSink notices;
};

}  // namespace

TEST_F(Events, ANoticeThatNamesAPropertyTellsItsNumberAndOthersMarkTheControlChanged) {
  const Connection connection(control.Get(), __uuidof(IPropertyNotifySink), &notices);
  ASSERT_EQ(connection.Result(), S_OK);
  const auto stream = As<IPersistStreamInit>(control);
  ASSERT_EQ(stream->InitNew(), S_OK);
  notices.heard.clear();
  control->put_ShowX(VARIANT_TRUE);
  control->put_SizeX(3);
  control->put_ZoomFactor(100);
  control->put_ButtonNotes(Bstr(L"x").Get());
  control->put_VantaEnabled(VARIANT_TRUE);
  // The zoom applies the sizes again.
  EXPECT_EQ(notices.heard, (std::vector<DISPID>{41, DISPID_UNKNOWN, 13, DISPID_UNKNOWN, DISPID_UNKNOWN, 44}));
  EXPECT_EQ(stream->IsDirty(), S_OK);
}

TEST_F(Events, ATextThatIsAValueNamesNoPropertyUnlessItIsAName) {
  const Connection connection(control.Get(), __uuidof(IPropertyNotifySink), &notices);
  control->put_WizardOn(VARIANT_TRUE);
  notices.heard.clear();
  control->put_PressKeyDefLayer1(Bstr(L"[a]").Get());
  EXPECT_EQ(notices.heard, std::vector<DISPID>{DISPID_UNKNOWN});
}

TEST_F(Events, TheMouseIsToldInTwips) {
  Container container;
  ASSERT_EQ(container.Place(control.Get(), true), S_OK);
  const Connection connection(control.Get(), __uuidof(__ctlPlexelBaseElement), &sink);
  ASSERT_EQ(connection.Result(), S_OK);
  const HWND window = container.ControlWindow();
  ASSERT_NE(window, nullptr);
  SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 5));
  SendMessageW(window, WM_LBUTTONUP, MK_CONTROL, MAKELPARAM(3, 5));
  SendMessageW(window, WM_RBUTTONUP, MK_SHIFT, MAKELPARAM(4, -2));
  SendMessageW(window, WM_MBUTTONUP, 0, 0);
  SendMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, 0);
  SendMessageW(window, WM_LBUTTONUP, 0, 0);
  EXPECT_EQ(sink.heard, (Lines{L"MouseClicked|2:1|2:2|4:45|4:75", L"MouseClicked|2:2|2:1|4:60|4:-30",
                               L"MouseClicked|2:4|2:0|4:0|4:0", L"MouseDblClicked", L"MouseClicked|2:1|2:0|4:0|4:0"}));
}

TEST_F(Events, APressOfAnyButtonGivesTheKeys) {
  for (const UINT press : {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONDOWN}) {
    Container container;
    const auto pressed = Library::Instance().Create();
    ASSERT_EQ(container.Place(pressed.Get()), S_OK);
    SetFocus(container.window);
    container.calls.clear();
    const Connection connection(pressed.Get(), __uuidof(__ctlPlexelBaseElement), &sink);
    sink.heard.clear();
    SendMessageW(container.ControlWindow(), press, 0, 0);
    EXPECT_EQ(GetFocus(), container.ControlWindow());
    EXPECT_TRUE(container.active);
    EXPECT_EQ(container.calls, (std::vector<std::string>{"OnUIActivate", "SetActiveObject", "OnFocus"}));
    ASSERT_EQ(sink.heard.size(), 1U);
    EXPECT_EQ(sink.heard[0].substr(0, 18), L"SendKeyDefinition|");
    // Another press changes nothing of that.
    SendMessageW(container.ControlWindow(), press, 0, 0);
    EXPECT_EQ(sink.heard.size(), 1U);
    SetFocus(container.window);
    SendMessageW(container.ControlWindow(), press, 0, 0);
    EXPECT_EQ(GetFocus(), container.ControlWindow());
    EXPECT_EQ(sink.heard.size(), 2U);
    ReleaseCapture();
  }
}

TEST_F(Events, APressGivesNoKeysToAControlWhoseContainerKeepsThem) {
  Container container;
  container.canTakeKeys = E_ACCESSDENIED;
  ASSERT_EQ(container.Place(control.Get()), S_OK);
  const Connection connection(control.Get(), __uuidof(__ctlPlexelBaseElement), &sink);
  SetFocus(container.window);
  SendMessageW(container.ControlWindow(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
  SendMessageW(container.ControlWindow(), WM_LBUTTONUP, 0, 0);
  EXPECT_EQ(GetFocus(), container.window);
  EXPECT_FALSE(container.active);
  EXPECT_EQ(sink.heard, Lines{L"MouseClicked|2:1|2:0|4:0|4:0"});
}

TEST_F(Events, TheFocusSendsTheDefinition) {
  Container container;
  control->put_PressKeyDefLayer1(Bstr(L"[a]").Get());
  control->put_ReleaseKeyDefLayer4(Bstr(L"[z]").Get());
  control->put_LEDTypeLayer3(::RunLed);
  const Connection connection(control.Get(), __uuidof(__ctlPlexelBaseElement), &sink);
  ASSERT_EQ(container.Place(control.Get(), true), S_OK);
  EXPECT_EQ(sink.heard, Lines{L"SendKeyDefinition|8:[a]|8:|8:|8:|8:|8:|8:|8:[z]|3:13|3:13|3:14|3:13"});
  EXPECT_EQ(GetFocus(), container.ControlWindow());
  EXPECT_TRUE(container.active);
}

TEST_F(Events, AreNotRaisedWhileTheyAreFrozen) {
  Container container;
  container.Place(control.Get());
  const Connection connection(control.Get(), __uuidof(__ctlPlexelBaseElement), &sink);
  const auto frozen = As<IOleControl>(control);
  frozen->FreezeEvents(TRUE);
  frozen->FreezeEvents(TRUE);
  frozen->FreezeEvents(FALSE);
  SendMessageW(container.ControlWindow(), WM_LBUTTONUP, 0, 0);
  EXPECT_TRUE(sink.heard.empty());
  frozen->FreezeEvents(FALSE);
  frozen->FreezeEvents(FALSE);
  SendMessageW(container.ControlWindow(), WM_LBUTTONUP, 0, 0);
  EXPECT_EQ(sink.heard.size(), 1U);
}

TEST_F(Events, ReachEverySinkAndNoneThatHasGone) {
  Container container;
  container.Place(control.Get());
  EventSink second;
  Connection first(control.Get(), __uuidof(__ctlPlexelBaseElement), &sink);
  const Connection other(control.Get(), __uuidof(__ctlPlexelBaseElement), &second);
  sink.onEvent = [&](DISPID) { first.End(); };
  sink.answer = DISP_E_EXCEPTION;
  SendMessageW(container.ControlWindow(), WM_LBUTTONUP, 0, 0);
  SendMessageW(container.ControlWindow(), WM_LBUTTONUP, 0, 0);
  EXPECT_EQ(sink.heard.size(), 1U);
  EXPECT_EQ(second.heard.size(), 2U);
  EXPECT_EQ(sink.holds, 0U);
}

TEST_F(Events, AFailingHandlerReachesNoCaller) {
  Container container;
  container.Place(control.Get(), true);
  const Connection connection(control.Get(), __uuidof(__ctlPlexelBaseElement), &sink);
  sink.answer = DISP_E_EXCEPTION;
  SendMessageW(container.ControlWindow(), WM_LBUTTONUP, 0, 0);
  SendMessageW(container.ControlWindow(), WM_LBUTTONDBLCLK, 0, 0);
  EXPECT_EQ(sink.heard.size(), 2U);
  short size = 0;
  EXPECT_EQ(control->get_SizeX(&size), S_OK);
}

TEST_F(Events, ConnectionsAreListedAndEnd) {
  const auto container = As<IConnectionPointContainer>(control);
  ComPointer<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(points.Out()), S_OK);
  IConnectionPoint* found[3] = {};
  ULONG count = 0;
  EXPECT_EQ(points->Next(3, found, &count), S_FALSE);
  ASSERT_EQ(count, 2U);
  IID kind{};
  EXPECT_EQ(found[0]->GetConnectionInterface(&kind), S_OK);
  EXPECT_EQ(kind, __uuidof(__ctlPlexelBaseElement));
  DWORD cookie = 0;
  ASSERT_EQ(found[0]->Advise(static_cast<IDispatch*>(&sink), &cookie), S_OK);
  ComPointer<IEnumConnections> connections;
  ASSERT_EQ(found[0]->EnumConnections(connections.Out()), S_OK);
  CONNECTDATA connection{};
  EXPECT_EQ(connections->Next(1, &connection, nullptr), S_OK);
  EXPECT_EQ(connection.dwCookie, cookie);
  connection.pUnk->Release();
  EXPECT_EQ(connections->Next(1, &connection, nullptr), S_FALSE);
  connections = nullptr;
  EXPECT_EQ(found[0]->Unadvise(cookie), S_OK);
  EXPECT_EQ(found[0]->Unadvise(cookie), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(sink.holds, 0U);
  struct : TestObject<IOleWindow> {
    HRESULT STDMETHODCALLTYPE GetWindow(HWND*) override { return E_FAIL; }
    HRESULT STDMETHODCALLTYPE ContextSensitiveHelp(WINBOOL) override { return E_FAIL; }
  } noSink;
  EXPECT_EQ(found[0]->Advise(&noSink, &cookie), CONNECT_E_CANNOTCONNECT);
  EXPECT_EQ(found[1]->Advise(&noSink, &cookie), CONNECT_E_CANNOTCONNECT);
  found[0]->Release();
  found[1]->Release();
  ComPointer<IConnectionPoint> none;
  EXPECT_EQ(container->FindConnectionPoint(__uuidof(IOleObject), none.Out()), CONNECT_E_NOCONNECTION);
}

}  // namespace plexel::activex
