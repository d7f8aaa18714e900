#include <gtest/gtest.h>
#include <olectl.h>

#include <algorithm>
#include <cstring>

#include "activex/container.h"
#include "activex/late.h"
#include "activex/library.h"
#include "activex/sinks.h"
#include "activex/text.h"

namespace plexel::activex {

namespace {

struct Element : testing::Test {
  ComPointer<_ctlPlexelBaseElement> control = Library::Instance().Create();
  Late late{control.Get()};
};

std::wstring Description() {
  ComPointer<IErrorInfo> error;
  Bstr text;
  if (GetErrorInfo(0, error.Out()) != S_OK) return {};
  error->GetDescription(text.Out());
  return std::wstring(ContentOf(text.Get()));
}

}  // namespace

TEST_F(Element, IsNewWhenItIsUsedWithoutBeingInitialised) {
  ::enumLedType led{};
  EXPECT_EQ(control->get_LEDTypeLayer4(&led), S_OK);
  EXPECT_EQ(led, ::LedNotEnabled);
  LONG number = 0;
  EXPECT_EQ(control->get_HardwareNumberKey7(&number), S_OK);
  EXPECT_EQ(number, -1);
  short size = 1;
  EXPECT_EQ(control->get_SizeX(&size), S_OK);
  EXPECT_EQ(size, 0);
  double scale = 0;
  EXPECT_EQ(control->get_DPIFontScaleFactor(&scale), S_OK);
  EXPECT_EQ(scale, 1.0);
}

TEST_F(Element, KeepsBooleansAsTheyAreGiven) {
  EXPECT_EQ(control->put_ShowX(1), S_OK);
  VARIANT_BOOL value = 0;
  EXPECT_EQ(control->get_ShowX(&value), S_OK);
  EXPECT_EQ(value, 1);
  EXPECT_EQ(late.Put(L"ShowX", Boolean16(7)), S_OK);
  EXPECT_EQ(control->get_ShowX(&value), S_OK);
  EXPECT_EQ(value, 7);
  EXPECT_EQ(late.Put(L"ShowX", 5), S_OK);  // a number is no boolean of 16 bits
  EXPECT_EQ(control->get_ShowX(&value), S_OK);
  EXPECT_EQ(value, VARIANT_TRUE);
}

TEST_F(Element, CarriesTextsOfAnyCharacters) {
  const std::wstring marks = L"[a\u2039\u203A] \u00E4\u64CD\U0001F600";
  EXPECT_EQ(control->put_PressKeyDefLayer1(Bstr(marks).Get()), S_OK);
  BSTR text = nullptr;
  EXPECT_EQ(control->get_PressKeyDefLayer1(&text), S_OK);
  EXPECT_EQ(Taken(text), marks);
  const std::wstring inside(L"a\0b", 3);
  EXPECT_EQ(control->put_ButtonNotes(Bstr(inside).Get()), S_OK);
  EXPECT_EQ(control->get_ButtonNotes(&text), S_OK);
  EXPECT_EQ(Taken(text), inside);
  EXPECT_EQ(control->put_ButtonNotes(nullptr), S_OK);
  EXPECT_EQ(control->get_ButtonNotes(&text), S_OK);
  EXPECT_EQ(Taken(text), L"");
}

TEST_F(Element, IsReachedByNamesInAnyCase) {
  EXPECT_EQ(late.Put(L"sizex", 20), S_OK);
  EXPECT_EQ(late.Get(L"SIZEX"), L"2:20");
  EXPECT_EQ(late.Get(L"FocusWidth"), L"17:0");
  EXPECT_EQ(late.Get(L"FocusColor"), L"3:0");
  EXPECT_EQ(late.Get(L"WizardOn"), L"11:0");
  EXPECT_EQ(late.Get(L"ElementType"), L"3:0");
  EXPECT_EQ(late.Get(L"DPIFontScaleFactor"), L"5:1");
  EXPECT_EQ(late.Put(L"TargetSystem", L"X"), S_OK);
  EXPECT_EQ(late.Get(L"TargetSystem"), L"8:X");
  EXPECT_EQ(late.Put(L"Siz", 20), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(late.Put(L"SizeXX", 20), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(late.Put(L"", 20), DISP_E_UNKNOWNNAME);
}

TEST_F(Element, ConvertsWhatScriptsGive) {
  EXPECT_EQ(late.Put(L"SizeX", L"12"), S_OK);
  EXPECT_EQ(late.Get(L"SizeX"), L"2:12");
  VARIANT number;
  VariantInit(&number);
  V_VT(&number) = VT_R8;
  V_R8(&number) = 2.5;
  EXPECT_EQ(late.Put(L"SizeX", number), S_OK);
  EXPECT_EQ(late.Get(L"SizeX"), L"2:2");
  short behind = 31;
  V_VT(&number) = VT_BYREF | VT_I2;
  V_I2REF(&number) = &behind;
  EXPECT_EQ(late.Put(L"SizeX", number), S_OK);
  EXPECT_EQ(late.Get(L"SizeX"), L"2:31");
  V_VT(&number) = VT_UI4;
  V_UI4(&number) = 0x8000000FU;
  EXPECT_EQ(late.Put(L"FocusColor", number), S_OK);
  OLE_COLOR colour = 0;
  EXPECT_EQ(control->get_FocusColor(&colour), S_OK);
  EXPECT_EQ(colour, 0x8000000FU);
}

TEST_F(Element, RefusesWhatDoesNotConvert) {
  EXPECT_EQ(late.Put(L"SizeX", L"twelve"), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(late.Put(L"SizeX", 40000), DISP_E_OVERFLOW);
  EXPECT_EQ(late.Put(L"FocusWidth", 256), DISP_E_OVERFLOW);
  VARIANT value;
  VariantInit(&value);
  for (const int type :
       {int{VT_EMPTY}, int{VT_NULL}, int{VT_ERROR}, int{VT_UNKNOWN}, int{VT_DISPATCH}, VT_ARRAY | VT_I4,
        VT_BYREF | VT_I4, VT_BYREF | VT_VARIANT, VT_BYREF | VT_BSTR, int{VT_RECORD}, int{VT_CARRAY}, 0x7FFF}) {
    V_VT(&value) = static_cast<VARTYPE>(type);
    for (const wchar_t* name : {L"SizeX", L"ElementType", L"ShowX", L"ButtonNotes", L"DPIFontScaleFactor",
                                L"FocusWidth", L"TactisBaseElementScanCodeBuffer"}) {
      const HRESULT result = late.Put(name, value);
      EXPECT_TRUE(FAILED(result) || type == VT_EMPTY || type == VT_ERROR) << type << " " << std::hex << result;
    }
    V_BSTR(&value) = nullptr;
  }
  EXPECT_EQ(late.Get(L"SizeX"), L"2:0");
}

TEST_F(Element, TellsWhatWentWrongAndWhere) {
  EXPECT_EQ(control->put_ZoomFactor(100), S_OK);
  EXPECT_EQ(control->put_SizeX(20), S_OK);
  SetErrorInfo(0, nullptr);
  const HRESULT overflow = STD_CTL_SCODE(6);
  ::enumXSize unnamed{};
  std::memset(&unnamed, 0x7F, sizeof unnamed);
  EXPECT_EQ(control->put_XElementSize(unnamed), overflow);
  EXPECT_EQ(Description().substr(0, 14), L"XElementSize: ");
  EXPECT_EQ(late.Put(L"XElementSize", 0x7FFFFFFE), DISP_E_EXCEPTION);
  EXPECT_EQ(late.code, overflow);
  EXPECT_EQ(late.source, L"PlexelBaseElement.ctlPlexelBaseElement");
  EXPECT_EQ(late.description.substr(0, 14), L"XElementSize: ");
  EXPECT_EQ(late.Get(L"XElementSize"), L"3:2147483646");  // a setter stores before it acts
  EXPECT_EQ(As<ISupportErrorInfo>(control)->InterfaceSupportsErrorInfo(__uuidof(_ctlPlexelBaseElement)), S_OK);
  EXPECT_EQ(As<ISupportErrorInfo>(control)->InterfaceSupportsErrorInfo(__uuidof(IOleObject)), S_FALSE);
}

TEST_F(Element, TakesAFormAsItsParentAndNothingElse) {
  Container form;
  ComPointer<IDispatch> parent;
  EXPECT_EQ(control->get_ParentWindow(parent.Out()), S_OK);
  EXPECT_FALSE(parent);
  EXPECT_EQ(control->putref_ParentWindow(static_cast<IDispatch*>(static_cast<NoNames<IDispatch>*>(&form))), S_OK);
  EXPECT_EQ(control->get_ParentWindow(parent.Out()), S_OK);
  EXPECT_TRUE(parent);
  struct : TestObject<NoNames<IDispatch>> {
  } other;
  EXPECT_EQ(control->putref_ParentWindow(&other), S_OK);
  EXPECT_EQ(other.holds, 0U);
  EXPECT_EQ(control->get_ParentWindow(parent.Out()), S_OK);
  EXPECT_EQ(parent.Get(), static_cast<IDispatch*>(static_cast<NoNames<IDispatch>*>(&form)));
  parent = nullptr;
  VARIANT nothing;
  VariantInit(&nothing);
  V_VT(&nothing) = VT_DISPATCH;
  V_DISPATCH(&nothing) = nullptr;
  EXPECT_EQ(late.Put(L"ParentWindow", nothing, DISPATCH_PROPERTYPUTREF), S_OK);
  EXPECT_EQ(control->get_ParentWindow(parent.Out()), S_OK);
  EXPECT_FALSE(parent);
  EXPECT_EQ(form.holds, 0U);
}

TEST_F(Element, AsksTheContainerForLedsByName) {
  VARIANT_BOOL answer = VARIANT_TRUE;
  EXPECT_EQ(control->CheckIfLedIsAlreadyDefined(::PowerLed, 2, &answer), STD_CTL_SCODE(438));
  EXPECT_EQ(answer, VARIANT_FALSE);
  Container container;
  container.Place(control.Get());
  container.defined = {{::PowerLed, 2}};
  EXPECT_EQ(control->CheckIfLedIsAlreadyDefined(::PowerLed, 2, &answer), S_OK);
  EXPECT_EQ(answer, VARIANT_TRUE);
  EXPECT_EQ(control->CheckIfLedIsAlreadyDefined(::PowerLed, 1, &answer), S_OK);
  EXPECT_EQ(answer, VARIANT_FALSE);
  VARIANT late16;
  VariantInit(&late16);
  EXPECT_EQ(late.Call(L"CheckIfLedIsAlreadyDefined", {Number(::PowerLed), Number(2)}, &late16), S_OK);
  EXPECT_EQ(V_VT(&late16), VT_BOOL);
  EXPECT_EQ(V_BOOL(&late16), VARIANT_TRUE);
  EXPECT_EQ(late.Call(L"CheckIfLedIsAlreadyDefined", {Number(1)}), DISP_E_BADPARAMCOUNT);
  container.answersLeds = false;
  EXPECT_EQ(control->CheckIfLedIsAlreadyDefined(::PowerLed, 2, &answer), STD_CTL_SCODE(438));
}

TEST_F(Element, AsksTheParentOfItsExtendedControlFirst) {
  struct Extended : TestObject<NoNames<IDispatch>> {
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* numbers) override {
      *numbers = std::wstring(names[0]) == L"Parent" ? 9 : DISPID_UNKNOWN;
      return *numbers == 9 ? S_OK : DISP_E_UNKNOWNNAME;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* answer, EXCEPINFO*,
                                     UINT*) override {
      V_VT(answer) = VT_DISPATCH;
      return parent->QueryInterface(__uuidof(IDispatch), reinterpret_cast<void**>(&V_DISPATCH(answer)));
    }
    IUnknown* parent = nullptr;
  } extended;
  Container container, parent;
  extended.parent = static_cast<IOleClientSite*>(&parent);
  container.extended = &extended;
  parent.defined = {{::RunLed, 3}};
  container.Place(control.Get());
  VARIANT_BOOL answer = VARIANT_FALSE;
  EXPECT_EQ(control->CheckIfLedIsAlreadyDefined(::RunLed, 3, &answer), S_OK);
  EXPECT_EQ(answer, VARIANT_TRUE);
  EXPECT_EQ(std::count(container.calls.begin(), container.calls.end(), "CheckIfLedIsAlreadyDefined"), 0);
}

}  // namespace plexel::activex
