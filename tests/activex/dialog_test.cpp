#include <gtest/gtest.h>

#include <functional>

#include "activex/container.h"
#include "activex/library.h"
#include "activex/sinks.h"
#include "activex/text.h"

namespace plexel::activex {

namespace {

std::function<void()> onTimer;

void CALLBACK TimerProcedure(HWND, UINT, UINT_PTR timer, DWORD) {
  KillTimer(nullptr, timer);
  std::exchange(onTimer, nullptr)();
}

/// Does something from within the message loop of whatever is open.
void Soon(std::function<void()> act) {
  constexpr UINT Milliseconds = 300;
  onTimer = std::move(act);
  SetTimer(nullptr, 0, Milliseconds, TimerProcedure);
}

/// The dialog over a window, with its title.
HWND DialogOver(HWND owner) {
  HWND found = nullptr;
  while ((found = FindWindowExW(nullptr, found, nullptr, nullptr)) != nullptr) {
    if (GetWindow(found, GW_OWNER) == owner && IsWindowVisible(found) != FALSE) return found;
  }
  return nullptr;
}

std::wstring TitleOf(HWND window) {
  wchar_t title[200] = {};
  GetWindowTextW(window, title, 200);
  return title;
}

/// A service of texts, each "text" with its number.
class Language : public TestObject<NoNames<IPlexelLanguage>> {
 public:
  HRESULT STDMETHODCALLTYPE GetText(LONG Number, BSTR* given) override {
    *given = SysAllocString((L"text " + std::to_wstring(Number)).c_str());
    return result;
  }
  HRESULT result = S_OK;
};

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

TEST_F(Dialogs, SpeakTheHostsLanguage) {
  Language language;
  container.services[NameOf(__uuidof(IPlexelLanguage))] = &language;
  container.Object()->SetClientSite(&container);
  std::wstring title;
  Soon([&] {
    title = TitleOf(DialogOver(container.window));
    SendMessageW(DialogOver(container.window), WM_CLOSE, 0, 0);
  });
  EXPECT_EQ(control->OpenConfigurationDialog(), S_OK);
  EXPECT_EQ(title.substr(0, 5), L"text ") << std::string(title.begin(), title.end());
  container.TakeOut();
  EXPECT_EQ(language.holds, 0U);
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

}  // namespace plexel::activex
