#include "host/container.h"

#include <PlexelBaseElement.h>
#include <gtest/gtest.h>

#include "host/control_site.h"
#include "host/language_offer.h"
#include "win32/bstr.h"
#include "win32/variant.h"
#include "win32/wide_text.h"

namespace plexel::host {

namespace {

using Microsoft::WRL::ComPtr;

class Numbered : public LanguageService {
 public:
  void GetText(std::int32_t number, std::string& text) override {
    if (number < 0) throw std::runtime_error("no such text");
    text = "text " + std::to_string(number);
  }
};

/// Asks as controls do: by name, with references to the two numbers.
HRESULT Ask(Container& container, LONG type, LONG layer, VARIANT_BOOL& answer) {
  ComPtr<IDispatch> object;
  container.QueryInterface(__uuidof(IDispatch), reinterpret_cast<void**>(object.GetAddressOf()));
  wchar_t name[] = L"checkIfLedIsAlreadyDefined";
  LPOLESTR asked = name;
  DISPID member = 0;
  if (const HRESULT result = object->GetIDsOfNames(IID_NULL, &asked, 1, 0, &member); FAILED(result)) return result;
  VARIANTARG arguments[2] = {};
  V_VT(&arguments[1]) = V_VT(&arguments[0]) = VT_BYREF | VT_I4;
  V_I4REF(&arguments[1]) = &type;
  V_I4REF(&arguments[0]) = &layer;
  DISPPARAMS both = {arguments, nullptr, 2, 0};
  Variant given;
  const HRESULT result = object->Invoke(member, IID_NULL, 0, DISPATCH_METHOD, &both, &given.Get(), nullptr, nullptr);
  answer = V_BOOL(&given.Get());
  return result;
}

}  // namespace

TEST(Container, AnswersByNameWhetherAnLedIsDefined) {
  const ComPtr<Container> container(new Container);
  container->ledIsDefined = [](LONG type, LONG layer) { return type == 3 && layer == 2; };
  VARIANT_BOOL answer = 1;
  EXPECT_EQ(Ask(*container.Get(), 3, 2, answer), S_OK);
  EXPECT_EQ(answer, VARIANT_TRUE);
  EXPECT_EQ(Ask(*container.Get(), 2, 3, answer), S_OK);
  EXPECT_EQ(answer, VARIANT_FALSE);
}

TEST(Container, AnAnswerThatFailsIsAFailedCall) {
  const ComPtr<Container> container(new Container);
  container->ledIsDefined = [](LONG, LONG) -> bool { throw std::runtime_error("no answer"); };
  VARIANT_BOOL answer = 0;
  EXPECT_EQ(Ask(*container.Get(), 3, 2, answer), E_FAIL);
}

TEST(Container, IsAFormByItsWindow) {
  const ComPtr<Container> container(new Container);
  container->frame = GetDesktopWindow();
  ComPtr<IOleWindow> form;
  ASSERT_EQ(container.Get()->QueryInterface(__uuidof(IOleWindow), reinterpret_cast<void**>(form.GetAddressOf())), S_OK);
  HWND window = nullptr;
  EXPECT_EQ(form->GetWindow(&window), S_OK);
  EXPECT_EQ(window, GetDesktopWindow());
}

TEST(ControlSite, OffersTheLanguageAndNothingElse) {
  Numbered texts;
  const ComPtr<Container> container(new Container);
  container->language = new LanguageOffer(texts);
  const ComPtr<ControlSite> site(new ControlSite(*container.Get(), "F1"));
  ComPtr<IPlexelLanguage> language;
  ASSERT_EQ(site->QueryService(__uuidof(IPlexelLanguage), __uuidof(IPlexelLanguage),
                               reinterpret_cast<void**>(language.GetAddressOf())),
            S_OK);
  Bstr text, none;
  EXPECT_EQ(language->GetText(7, text.Out()), S_OK);
  EXPECT_EQ(ContentOf(text.Get()), L"text 7");
  EXPECT_EQ(language->GetText(-1, none.Out()), E_FAIL);
  void* other = nullptr;
  EXPECT_EQ(site->QueryService(__uuidof(IPlexelSettings), __uuidof(IPlexelSettings), &other), E_NOINTERFACE);
  EXPECT_EQ(other, nullptr);
}

TEST(ControlSite, GoesWhenNobodyHoldsItAndLetsTheContainerGo) {
  const ComPtr<Container> container(new Container);
  ComPtr<ControlSite> site(new ControlSite(*container.Get(), "F1"));
  EXPECT_EQ(container->Holds(), 2U);
  site = nullptr;
  EXPECT_EQ(container->Holds(), 1U);
}

TEST(ElementEvent, IsToldAsACallWithItsArguments) {
  VARIANTARG arguments[4] = {};
  float y = 90.5F, x = 150;
  SHORT shift = 1, button = 2;
  V_VT(&arguments[3]) = V_VT(&arguments[2]) = VT_BYREF | VT_I2;
  V_VT(&arguments[1]) = V_VT(&arguments[0]) = VT_BYREF | VT_R4;
  V_I2REF(&arguments[3]) = &button;
  V_I2REF(&arguments[2]) = &shift;
  V_R4REF(&arguments[1]) = &x;
  V_R4REF(&arguments[0]) = &y;
  EXPECT_EQ(EventOf(MouseClicked, {arguments, nullptr, 4, 0}).call, "MouseClicked(2, 1, 150, 90.5)");
  EXPECT_EQ(EventOf(ProjectModified, {}).call, "ProjectModified()");
  EXPECT_EQ(EventOf(99, {}).call, "");
}

}  // namespace plexel::host
