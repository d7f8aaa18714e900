#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "activex/container.h"
#include "activex/library.h"
#include "activex/open_dialog.h"
#include "win32/bstr.h"

namespace plexel::activex {

namespace {

/// Texts, each "text" with its number.
class Language : public TestObject<NoNames<IPlexelLanguage>> {
 public:
  HRESULT STDMETHODCALLTYPE GetText(LONG Number, BSTR* given) override {
    *given = FAILED(result) || isMute ? nullptr : SysAllocString((L"text " + std::to_wstring(Number)).c_str());
    return result;
  }
  HRESULT result = S_OK;
  bool isMute = false;  ///< its texts are null, which is an empty text
};

/// Settings that no files have.
class Settings : public TestObject<NoNames<IPlexelSettings>> {
 public:
  HRESULT STDMETHODCALLTYPE GetBasePath(BSTR* given) override { return Give("GetBasePath", L"Q:\\nowhere", given); }
  HRESULT STDMETHODCALLTYPE GetLanguageName(BSTR* given) override { return Give("GetLanguageName", L"Latin", given); }
  HRESULT STDMETHODCALLTYPE GetOption(LONG number, VARIANT_BOOL* given) override {
    asked.emplace("GetOption");
    constexpr LONG ShowX = 3;
    *given = number == ShowX ? VARIANT_TRUE : VARIANT_FALSE;
    return result;
  }
  HRESULT STDMETHODCALLTYPE GetParameter(LONG number, BSTR* given) override {
    return Give("GetParameter", std::to_wstring(number), given);
  }
  HRESULT STDMETHODCALLTYPE GetWindowPosition(LONG number, BSTR* given) override {
    constexpr LONG Top = 0, Left = 1;
    const wchar_t* const twips = number == Top ? L"750" : number == Left ? L"4500" : L"1200";
    return Give("GetWindowPosition", twips, given);
  }
  HRESULT result = S_OK;
  bool isMute = false;
  std::set<std::string> asked;

 private:
  HRESULT Give(const char* name, const std::wstring& text, BSTR* given) {
    asked.emplace(name);
    *given = FAILED(result) || isMute ? nullptr : SysAllocString(text.c_str());
    return result;
  }
};

/// A target system that has two LEDs, whatever its name.
class Capabilities : public TestObject<NoNames<IPlexelCapabilities>> {
 public:
  HRESULT STDMETHODCALLTYPE Ask(BSTR query, BSTR target, LONG* answer) override {
    const std::wstring name(query);
    asked.emplace(target);
    *answer = name == L"HasUserLed" || name == L"HasPowerLed" ? 1 : 0;
    return result;
  }
  HRESULT result = S_OK;
  std::set<std::wstring> asked;
};

/// What a look at an open dialog found.
struct Seen {
  std::wstring title;
  int x = 0, y = 0, leds = 0;
};

struct Services : testing::Test {
  Services() {
    container.Place(control.Get());
    control->putref_ParentWindow(static_cast<IDispatch*>(static_cast<NoNames<IDispatch>*>(&container)));
    control->put_ElementType(::RectLed);
    control->put_TargetSystem(Bstr(L"Standard").Get());
  }
  ~Services() override {
    container.TakeOut();
    control = nullptr;
    EXPECT_EQ(Library::Instance().CanUnload(), S_OK);
    EXPECT_EQ(container.holds + language.holds + settings.holds + capabilities.holds, 0U);
  }

  /// Offers a service from now on.
  void Offer(REFIID id, IUnknown* service) {
    container.services[NameOf(id)] = service;
    container.Object()->SetClientSite(&container);
  }
  void OfferAll() {
    Offer(__uuidof(IPlexelLanguage), &language);
    Offer(__uuidof(IPlexelSettings), &settings);
    Offer(__uuidof(IPlexelCapabilities), &capabilities);
  }
  void OfferNone() {
    container.services.clear();
    container.Object()->SetClientSite(&container);
  }
  /// Opens the configuration dialog, looks at it and closes it.
  Seen Look() {
    Seen seen;
    Soon([&] {
      const HWND dialog = DialogOver(container.window);
      RECT place{};
      GetWindowRect(dialog, &place);
      seen = {TitleOf(dialog), place.left, place.top, EntriesOf(PartOf(dialog, L"ComboBox"))};
      DoubleClickFirstCell(dialog);
      CloseBox(dialog);
    });
    EXPECT_EQ(control->OpenConfigurationDialog(), S_OK);
    return seen;
  }

  Container container;
  Language language;
  Settings settings;
  Capabilities capabilities;
  ComPointer<_ctlPlexelBaseElement> control = Library::Instance().Create();
};

}  // namespace

TEST_F(Services, TheTextsOfTheDialogsAreTheHosts) {
  const std::wstring before = Look().title;
  Offer(__uuidof(IPlexelLanguage), &language);
  EXPECT_EQ(Look().title, L"text 2005");
  OfferNone();
  EXPECT_EQ(Look().title, before);
  EXPECT_NE(before.substr(0, 4), L"text");
  EXPECT_NE(before, L"");
}

TEST_F(Services, TheSettingsOfTheDialogsAreTheHosts) {
  const Seen before = Look();
  Offer(__uuidof(IPlexelSettings), &settings);
  const Seen hosts = Look();
  EXPECT_EQ(hosts.x, 300);
  EXPECT_EQ(hosts.y, 50);
  EXPECT_NE(before.x, hosts.x);
  EXPECT_EQ(hosts.title, before.title);
  EXPECT_EQ(settings.asked, (std::set<std::string>{"GetBasePath", "GetLanguageName", "GetOption", "GetParameter",
                                                   "GetWindowPosition"}));
  settings.asked.clear();
  OfferNone();
  Look();
  EXPECT_TRUE(settings.asked.empty());
}

TEST_F(Services, AnElementIsBroughtIntoLineWithTheHostsSettings) {
  unsigned char fileWidth = 0, width = 0;
  OLE_COLOR colour = 0;
  VARIANT_BOOL cross = VARIANT_FALSE;
  EXPECT_EQ(control->Refresh(), S_OK);
  control->get_FocusWidth(&fileWidth);
  EXPECT_GT(fileWidth, 0);
  control->put_FocusWidth(99);
  Offer(__uuidof(IPlexelSettings), &settings);
  EXPECT_EQ(control->Refresh(), S_OK);
  control->get_FocusWidth(&width);
  control->get_FocusColor(&colour);
  control->get_ShowX(&cross);
  EXPECT_EQ(width, 1);  // its number
  EXPECT_EQ(colour, OLE_COLOR{2});
  EXPECT_EQ(cross, VARIANT_TRUE);
  OfferNone();
  EXPECT_EQ(control->Refresh(), S_OK);
  control->get_FocusColor(&colour);
  EXPECT_EQ(colour, OLE_COLOR{255});
}

TEST_F(Services, TheCapabilitiesOfTargetSystemsAreTheHosts) {
  const int before = Look().leds;
  Offer(__uuidof(IPlexelCapabilities), &capabilities);
  const int hosts = Look().leds;
  EXPECT_EQ(capabilities.asked, std::set<std::wstring>{L"Standard"});
  EXPECT_EQ(hosts, 2);
  EXPECT_EQ(before, 4);
  OfferNone();
  EXPECT_EQ(Look().leds, before);
}

TEST_F(Services, AllThreeAreAskedTogetherAndLetGoOfWithTheSite) {
  OfferAll();
  const Seen seen = Look();
  EXPECT_EQ(seen.title, L"text 2005");
  EXPECT_EQ(seen.x, 300);
  EXPECT_EQ(seen.leds, 2);
  container.Object()->SetClientSite(nullptr);
  EXPECT_EQ(language.holds + settings.holds + capabilities.holds, 0U);
  control->putref_ParentWindow(nullptr);
}

TEST_F(Services, AnotherControlHasThoseOfItsOwnHost) {
  OfferAll();
  Container other;
  const auto second = Library::Instance().Create();
  ASSERT_EQ(other.Place(second.Get()), S_OK);
  EXPECT_EQ(second->Refresh(), S_OK);
  EXPECT_EQ(control->Refresh(), S_OK);
  OLE_COLOR first = 0, next = 0;
  control->get_FocusColor(&first);
  second->get_FocusColor(&next);
  EXPECT_EQ(first, OLE_COLOR{2});
  EXPECT_EQ(next, OLE_COLOR{255});
}

TEST_F(Services, ThoseThatFailLeaveTheDialogUsable) {
  language.result = settings.result = capabilities.result = E_ACCESSDENIED;
  OfferAll();
  Seen seen;
  Soon([&] {
    const HWND dialog = DialogOver(container.window);
    seen.leds = EntriesOf(PartOf(dialog, L"ComboBox"));
    DoubleClickFirstCell(dialog);
    CloseBox(dialog);
  });
  EXPECT_EQ(control->OpenConfigurationDialog(), S_OK);
  EXPECT_LE(seen.leds, 1);
  EXPECT_EQ(control->Refresh(), S_OK);
  EXPECT_EQ(DialogOver(container.window), nullptr);
}

TEST_F(Services, ANullTextIsAnEmptyOne) {
  language.isMute = settings.isMute = true;
  OfferAll();
  EXPECT_EQ(Look().title, L"");
  EXPECT_EQ(control->Refresh(), S_OK);
}

TEST_F(Services, AHostMayTakeThemAwayWhileTheDialogIsOpen) {
  OfferAll();
  Soon([&] {
    const HWND dialog = DialogOver(container.window);
    OfferNone();
    EXPECT_EQ(language.holds + settings.holds + capabilities.holds, 0U);
    DoubleClickFirstCell(dialog);
    CloseBox(dialog);
  });
  EXPECT_EQ(control->OpenConfigurationDialog(), S_OK);
}

}  // namespace plexel::activex
