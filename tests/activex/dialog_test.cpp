#include <gtest/gtest.h>

#include <memory>

#include "activex/container.h"
#include "activex/library.h"
#include "activex/open_dialog.h"
#include "activex/sinks.h"

namespace plexel::activex {

namespace {

struct Dialogs : testing::Test {
  Dialogs() {
    container.Place(control.Get());
    control->putref_ParentWindow(static_cast<IDispatch*>(static_cast<NoNames<IDispatch>*>(&container)));
    control->put_ElementType(::Rect);
    events = std::make_unique<Connection>(control.Get(), __uuidof(__ctlPlexelBaseElement), &sink);
    container.calls.clear();
  }
  ~Dialogs() override {
    events.reset();
    container.TakeOut();
    control = nullptr;
    EXPECT_EQ(Library::Instance().CanUnload(), S_OK);
    EXPECT_EQ(container.holds + sink.holds, 0U);
    EXPECT_TRUE(IsWindow(container.window) == FALSE || IsWindowEnabled(container.window) != FALSE);
  }

  Container container;
  EventSink sink;
  ComPointer<_ctlPlexelBaseElement> control = Library::Instance().Create();
  std::unique_ptr<Connection> events;
};

}  // namespace

TEST_F(Dialogs, OpenOverTheParentWindowAndSendTheDefinition) {
  std::wstring title;
  Soon([&] {
    const HWND dialog = DialogOver(container.window);
    title = TitleOf(dialog);
    SendMessageW(dialog, WM_CLOSE, 0, 0);
  });
  EXPECT_EQ(control->OpenConfigurationDialog(), S_OK);
  EXPECT_NE(title, L"");
  ASSERT_EQ(sink.heard.size(), 1U);
  EXPECT_EQ(sink.heard[0].substr(0, 17), L"SendKeyDefinition");
}

TEST_F(Dialogs, ReturnOpensOneWhileTheFocusIsShown) {
  control->put_FocusVisible(VARIANT_TRUE);
  container.Object()->DoVerb(OLEIVERB_UIACTIVATE, nullptr, &container, 0, nullptr, nullptr);
  ASSERT_TRUE(container.active);
  sink.heard.clear();
  bool open = false;
  Soon([&] {
    open = DialogOver(container.window) != nullptr;
    SendMessageW(DialogOver(container.window), WM_CLOSE, 0, 0);
  });
  MSG key{};
  key.hwnd = container.ControlWindow();
  key.message = WM_KEYDOWN;
  key.wParam = VK_RETURN;
  EXPECT_EQ(container.active->TranslateAccelerator(&key), S_OK);
  Container::Pump();
  EXPECT_TRUE(open);
  key.wParam = VK_TAB;
  EXPECT_EQ(container.active->TranslateAccelerator(&key), S_FALSE);
  CONTROLINFO info{};
  info.cb = sizeof info;
  EXPECT_EQ(As<IOleControl>(control)->GetControlInfo(&info), S_OK);
  EXPECT_EQ(info.dwFlags, DWORD{CTRLINFO_EATS_RETURN});
}

TEST_F(Dialogs, CloseWhenTheHostLetsGoOfTheControl) {
  Soon([&] {
    events.reset();
    container.TakeOut();
    control = nullptr;
  });
  auto* const raw = control.Get();
  EXPECT_EQ(raw->OpenConfigurationDialog(), S_OK);
  EXPECT_FALSE(control);
  EXPECT_EQ(DialogOver(container.window), nullptr);
}

TEST_F(Dialogs, CloseWhenTheControlIsClosed) {
  Soon([&] { container.Object()->Close(OLECLOSE_NOSAVE); });
  EXPECT_EQ(control->OpenPropertiesDialog(), S_OK);
  EXPECT_EQ(DialogOver(container.window), nullptr);
  EXPECT_EQ(control->put_SizeX(3), S_OK);
}

TEST_F(Dialogs, CloseWhenTheWindowOfTheHostGoes) {
  Soon([&] { DestroyWindow(container.window); });
  EXPECT_EQ(control->OpenConfigurationDialog(), S_OK);
  EXPECT_EQ(control->put_SizeX(3), S_OK);
}

TEST_F(Dialogs, TheHostMayLetGoWhenTheDialogHasClosed) {
  sink.onEvent = [&](DISPID) {
    events.reset();
    container.TakeOut();
    control = nullptr;
  };
  Soon([&] { SendMessageW(DialogOver(container.window), WM_CLOSE, 0, 0); });
  auto* const raw = control.Get();
  EXPECT_EQ(raw->OpenConfigurationDialog(), S_OK);
  EXPECT_FALSE(control);
}

TEST_F(Dialogs, TheHostMayLetGoInEachHandlerThatADialogCalls) {
  const auto record = [](HWND dialog) { DoubleClickFirstCell(dialog); };
  const auto stopRecording = [](HWND dialog) {
    DoubleClickFirstCell(dialog);
    DoubleClickFirstCell(dialog);
  };
  const auto closeWhileRecording = [](HWND dialog) {
    DoubleClickFirstCell(dialog);
    CloseBox(dialog);
  };
  const auto store = [](HWND dialog) { Press(PartOf(dialog, L"Button", L"OK")); };
  struct Way {
    const wchar_t* event;  ///< the beginning of its line
    std::function<void(HWND)> act;
  };
  const std::vector<Way> ways = {{L"DirectInputStatusChanged|11:-1", record},
                                 {L"DirectInputStatusChanged|11:0", stopRecording},
                                 {L"DirectInputStatusChanged|11:0", closeWhileRecording},
                                 {L"ProjectModified", store},
                                 {L"SendKeyDefinition", store},
                                 {L"notice", store}};
  // The host lets go of the control, closes it first, or destroys its own window.
  for (int leaving = 0; leaving < 3; ++leaving) {
    for (const Way& way : ways) {
      Container site;
      EventSink heard;
      NoticeSink notices;
      auto element = Library::Instance().Create();
      auto* const raw = element.Get();
      site.Place(raw);
      raw->putref_ParentWindow(static_cast<IDispatch*>(static_cast<NoNames<IDispatch>*>(&site)));
      raw->put_ElementType(::RectLed);
      auto connection = std::make_unique<Connection>(raw, __uuidof(__ctlPlexelBaseElement), &heard);
      auto changes = std::make_unique<Connection>(raw, __uuidof(IPropertyNotifySink), &notices);
      int told = 0;
      const auto leave = [&] {
        if (told++ > 0) return;
        if (leaving == 2) DestroyWindow(site.window);
        if (leaving != 0) site.TakeOut();
        connection.reset();
        changes.reset();
        if (leaving == 0) site.TakeOut();
        element = nullptr;
      };
      const std::wstring event = way.event;
      if (event == L"notice") {
        notices.onChanged = [&](DISPID) { leave(); };
      } else {
        heard.onEvent = [&](DISPID) {
          if (heard.heard.back().rfind(event, 0) == 0) leave();
        };
      }
      Soon([&] { way.act(DialogOver(site.window)); });
      EXPECT_EQ(raw->OpenConfigurationDialog(), S_OK);
      const std::string name(event.begin(), event.end());
      EXPECT_GE(told, 1) << name << " " << leaving;
      EXPECT_FALSE(element) << name << " " << leaving;
      EXPECT_EQ(DialogOver(site.window), nullptr) << name << " " << leaving;
      EXPECT_TRUE(leaving == 2 || IsWindowEnabled(site.window) != FALSE) << name << " " << leaving;
      EXPECT_EQ(site.holds, 0U) << name << " " << leaving;
      EXPECT_EQ(heard.holds + notices.holds, 0U) << name << " " << leaving;
    }
  }
}

TEST_F(Dialogs, TheWizardsLastPageMayLoseItsHostToo) {
  control->put_WizardOn(VARIANT_TRUE);
  sink.onEvent = [&](DISPID) {
    if (sink.heard.back() != L"ProjectModified") return;
    events.reset();
    container.TakeOut();
    control = nullptr;
  };
  // A page opens the next one within the press.
  Soon([&] {
    Soon([&] {
      Soon([&] { Press(PartOf(GetActiveWindow(), L"Button", L"OK")); });
      Press(PartOf(GetActiveWindow(), L"Button", L"Next"));
    });
    Press(PartOf(GetActiveWindow(), L"Button", L"Next"));
  });
  auto* const raw = control.Get();
  EXPECT_EQ(raw->OpenConfigurationDialog(), S_OK);
  EXPECT_FALSE(control);
  EXPECT_EQ(DialogOver(container.window), nullptr);
}

}  // namespace plexel::activex
