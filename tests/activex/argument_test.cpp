#include <gtest/gtest.h>
#include <olectl.h>

#include <array>
#include <set>
#include <string>
#include <vector>

#include "activex/container.h"
#include "activex/late.h"
#include "activex/library.h"
#include "activex/sinks.h"
#include "activex/text.h"
#include "win32/variant.h"

namespace plexel::activex {

namespace {

struct Arguments : testing::Test {
  ~Arguments() override {
    control = nullptr;
    EXPECT_EQ(Library::Instance().CanUnload(), S_OK);
  }
  ComPointer<_ctlPlexelBaseElement> control = Library::Instance().Create();
};

/// A sink of whoever looks at the control.
struct ViewSink : TestObject<IAdviseSink> {
  void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {}
  void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override {}
  void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
  void STDMETHODCALLTYPE OnSave() override {}
  void STDMETHODCALLTYPE OnClose() override {}
};

VARIANT Empty(int type) {
  VARIANT value{};
  V_VT(&value) = static_cast<VARTYPE>(type);
  return value;
}

/// Values of every type that there is, by itself and by reference, of none, and of types that there are not; what they
/// would point to is missing.
std::vector<VARIANT> ValuesOfEveryType() {
  std::vector<VARIANT> values;
  for (int type = 0; type < 80; ++type) {
    for (const int kind : {0, int{VT_BYREF}, int{VT_ARRAY}, VT_ARRAY | VT_BYREF, int{VT_VECTOR}, int{VT_RESERVED}}) {
      values.push_back(Empty(type | kind));
    }
  }
  values.push_back(Empty(0x0FFF));
  values.push_back(Empty(0xFFFF));
  return values;
}

/// The values of all properties in which the control can be asked, as text.
std::vector<std::wstring> AllValues(IDispatch* element, int properties) {
  std::vector<std::wstring> values;
  for (DISPID member = 1; member <= properties; ++member) {
    Variant value, text;
    DISPPARAMS none{};
    element->Invoke(member, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value.Get(), nullptr, nullptr);
    const bool shown = SUCCEEDED(VariantChangeType(&text.Get(), &value.Get(), 0, VT_BSTR));
    values.emplace_back(shown ? ContentOf(V_BSTR(&text.Get())) : L"");
  }
  return values;
}

constexpr int Properties = 45, Members = 52;
/// Members that open a dialog when all is well.
const std::set<DISPID> dialogs = {46, 47};

}  // namespace

TEST_F(Arguments, NullInAnyOneOfThemIsRefusedByTheObject) {
  const auto object = As<IOleObject>(control);
  ViewSink sink;
  DWORD number = 1;
  SIZEL size{};
  EXPECT_EQ(object->Advise(nullptr, &number), E_POINTER);
  EXPECT_EQ(object->Advise(&sink, nullptr), E_POINTER);
  EXPECT_EQ(object->SetHostNames(nullptr, L"document"), E_POINTER);
  EXPECT_EQ(object->SetHostNames(L"program", nullptr), S_OK);
  EXPECT_EQ(object->SetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
  EXPECT_EQ(object->GetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
  EXPECT_EQ(object->GetMiscStatus(DVASPECT_CONTENT, nullptr), E_POINTER);
  EXPECT_EQ(object->GetUserType(USERCLASSTYPE_FULL, nullptr), E_POINTER);
  EXPECT_EQ(object->GetMoniker(OLEGETMONIKER_ONLYIFTHERE, OLEWHICHMK_OBJREL, nullptr), E_POINTER);
  EXPECT_EQ(object->GetClipboardData(0, nullptr), E_POINTER);
  const RECT rect{};
  const auto place = As<IOleInPlaceObject>(control);
  EXPECT_EQ(place->SetObjectRects(nullptr, &rect), E_POINTER);
  EXPECT_EQ(place->SetObjectRects(&rect, nullptr), E_POINTER);
  Container container;
  const auto active = As<IOleInPlaceActiveObject>(control);
  EXPECT_EQ(active->ResizeBorder(nullptr, static_cast<IOleInPlaceFrame*>(&container), TRUE), E_POINTER);
  EXPECT_EQ(active->ResizeBorder(&rect, nullptr, TRUE), E_POINTER);
  const auto view = As<IViewObject2>(control);
  const RECTL bounds{0, 0, 10, 10};
  const HDC screen = GetDC(nullptr);
  EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, nullptr, &bounds, nullptr, nullptr, 0),
            E_POINTER);
  EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, screen, nullptr, nullptr, nullptr, 0),
            E_POINTER);
  ReleaseDC(nullptr, screen);
  EXPECT_EQ(view->GetExtent(DVASPECT_CONTENT, -1, nullptr, nullptr), E_POINTER);
  EXPECT_EQ(view->GetColorSet(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, nullptr), E_POINTER);
  EXPECT_EQ(view->Freeze(DVASPECT_CONTENT, -1, nullptr, nullptr), E_NOTIMPL);
  IAdviseSink* none = &sink;
  EXPECT_EQ(view->GetAdvise(nullptr, nullptr, &none), S_OK);
  EXPECT_EQ(none, nullptr);
  EXPECT_EQ(view->GetExtent(DVASPECT_ICON, -1, nullptr, &size), DV_E_DVASPECT);
  EXPECT_EQ(As<IProvideClassInfo2>(control)->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr), E_POINTER);
  EXPECT_EQ(sink.holds, 0U);
}

TEST_F(Arguments, NullInAnyOneOfThemIsRefusedByConnectionsAndLists) {
  const auto container = As<IConnectionPointContainer>(control);
  EventSink sink;
  DWORD number = 1;
  EXPECT_EQ(container->FindConnectionPoint(__uuidof(IPropertyNotifySink), nullptr), E_POINTER);
  ComPointer<IConnectionPoint> point;
  ASSERT_EQ(container->FindConnectionPoint(__uuidof(__ctlPlexelBaseElement), point.Out()), S_OK);
  EXPECT_EQ(point->Advise(nullptr, &number), E_POINTER);
  EXPECT_EQ(point->Advise(static_cast<IDispatch*>(&sink), nullptr), E_POINTER);
  EXPECT_EQ(point->GetConnectionInterface(nullptr), E_POINTER);
  EXPECT_EQ(point->GetConnectionPointContainer(nullptr), E_POINTER);
  EXPECT_EQ(point->EnumConnections(nullptr), E_POINTER);
  EXPECT_EQ(point->Unadvise(0), CONNECT_E_NOCONNECTION);
  EXPECT_EQ(point->QueryInterface(__uuidof(IUnknown), nullptr), E_POINTER);
  ComPointer<IEnumConnections> connections;
  ASSERT_EQ(point->EnumConnections(connections.Out()), S_OK);
  CONNECTDATA data[2] = {};
  EXPECT_EQ(connections->Next(1, nullptr, &number), E_POINTER);
  EXPECT_EQ(connections->Next(2, data, nullptr), E_POINTER);
  EXPECT_EQ(connections->Clone(nullptr), E_POINTER);
  EXPECT_EQ(connections->Skip(1), S_FALSE);
  EXPECT_EQ(connections->QueryInterface(__uuidof(IUnknown), nullptr), E_POINTER);
  ComPointer<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(points.Out()), S_OK);
  IConnectionPoint* found[2] = {};
  EXPECT_EQ(points->Next(1, nullptr, &number), E_POINTER);
  EXPECT_EQ(points->Next(2, found, nullptr), E_POINTER);
  EXPECT_EQ(points->Clone(nullptr), E_POINTER);
  const auto factory = Library::Instance().Factory();
  EXPECT_EQ(factory->CreateInstance(nullptr, __uuidof(IUnknown), nullptr), E_POINTER);
  EXPECT_EQ(factory->QueryInterface(__uuidof(IUnknown), nullptr), E_POINTER);
  EXPECT_EQ(sink.holds, 0U);
}

TEST_F(Arguments, NullInAnyOneOfThemIsRefusedByCallsByName) {
  UINT count = 0;
  auto* name = const_cast<wchar_t*>(L"SizeX");
  wchar_t* nothing = nullptr;
  DISPID number = 0;
  DISPPARAMS none{};
  EXPECT_EQ(control->GetTypeInfoCount(nullptr), E_POINTER);
  EXPECT_EQ(control->GetTypeInfo(0, 0, nullptr), E_POINTER);
  EXPECT_EQ(control->GetIDsOfNames(IID_NULL, nullptr, 1, 0, &number), E_POINTER);
  EXPECT_EQ(control->GetIDsOfNames(IID_NULL, &name, 1, 0, nullptr), E_POINTER);
  EXPECT_EQ(control->GetIDsOfNames(IID_NULL, &nothing, 1, 0, &number), E_POINTER);
  EXPECT_EQ(control->GetIDsOfNames(IID_NULL, &name, 0, 0, &number), E_INVALIDARG);
  EXPECT_EQ(control->GetTypeInfoCount(&count), S_OK);
  for (DISPID member = 1; member <= Members; ++member) {
    if (dialogs.count(member) != 0) continue;
    EXPECT_EQ(control->Invoke(member, IID_NULL, 0, DISPATCH_PROPERTYGET | DISPATCH_METHOD, nullptr, nullptr, nullptr,
                              nullptr),
              E_POINTER)
        << member;
    // Without a place for the answer, the error and the argument in question.
    for (const WORD way : {WORD{DISPATCH_PROPERTYGET}, WORD{DISPATCH_PROPERTYPUT}, WORD{DISPATCH_PROPERTYPUTREF},
                           WORD{DISPATCH_METHOD}}) {
      (void)control->Invoke(member, IID_NULL, 0, way, &none, nullptr, nullptr, nullptr);
      for (const UINT arguments : {1U, 2U, 3U, 0xFFFFFFFFU}) {
        DISPPARAMS missing{nullptr, nullptr, arguments, 0};
        if (way == DISPATCH_PROPERTYGET && member <= Properties) {
          EXPECT_EQ(control->Invoke(member, IID_NULL, 0, way, &missing, nullptr, nullptr, nullptr),
                    DISP_E_BADPARAMCOUNT);
        } else {
          EXPECT_TRUE(FAILED(control->Invoke(member, IID_NULL, 0, way, &missing, nullptr, nullptr, nullptr)))
              << member << " " << way;
        }
        VARIANT value = Number(1);
        DISPPARAMS unnamed{&value, nullptr, 1, 1};
        if (way != DISPATCH_PROPERTYGET) {
          EXPECT_TRUE(FAILED(control->Invoke(member, IID_NULL, 0, way, &unnamed, nullptr, nullptr, nullptr)))
              << member << " " << way;
        }
      }
    }
  }
  EXPECT_EQ(Late(control.Get()).Get(L"SizeX"), L"2:0");
}

TEST_F(Arguments, NullInAnyOneOfThemIsRefusedByRecords) {
  VARIANT value;
  ASSERT_EQ(Late(control.Get()).Get(L"TactisBaseElementScanCodeBuffer", value), S_OK);
  IRecordInfo& info = *V_RECORDINFO(&value);
  void* const data = V_RECORD(&value);
  VARIANT field;
  VariantInit(&field);
  const wchar_t* const name = L"lngLEDTypeLayer2";
  EXPECT_EQ(info.RecordInit(nullptr), E_POINTER);
  EXPECT_EQ(info.RecordClear(nullptr), E_POINTER);
  EXPECT_EQ(info.RecordCopy(nullptr, data), E_POINTER);
  EXPECT_EQ(info.RecordCopy(data, nullptr), E_POINTER);
  EXPECT_EQ(info.GetGuid(nullptr), E_POINTER);
  EXPECT_EQ(info.GetName(nullptr), E_POINTER);
  EXPECT_EQ(info.GetSize(nullptr), E_POINTER);
  EXPECT_EQ(info.GetTypeInfo(nullptr), E_POINTER);
  EXPECT_EQ(info.GetField(nullptr, name, &field), E_POINTER);
  EXPECT_EQ(info.GetField(data, nullptr, &field), E_POINTER);
  EXPECT_EQ(info.GetField(data, name, nullptr), E_POINTER);
  EXPECT_EQ(info.GetFieldNoCopy(nullptr, name, &field, nullptr), E_POINTER);
  EXPECT_EQ(info.GetFieldNoCopy(data, nullptr, &field, nullptr), E_POINTER);
  EXPECT_EQ(info.GetFieldNoCopy(data, name, nullptr, nullptr), E_POINTER);
  for (const bool copies : {true, false}) {
    const auto put = [&](void* into, const wchar_t* which, VARIANT* what) {
      return copies ? info.PutField(INVOKE_PROPERTYPUT, into, which, what)
                    : info.PutFieldNoCopy(INVOKE_PROPERTYPUT, into, which, what);
    };
    EXPECT_EQ(put(nullptr, name, &field), E_POINTER);
    EXPECT_EQ(put(data, nullptr, &field), E_POINTER);
    EXPECT_EQ(put(data, name, nullptr), E_POINTER);
  }
  EXPECT_EQ(info.GetFieldNames(nullptr, nullptr), E_POINTER);
  EXPECT_EQ(info.IsMatchingType(nullptr), FALSE);
  void* copy = nullptr;
  EXPECT_EQ(info.RecordCreateCopy(nullptr, &copy), E_POINTER);
  EXPECT_EQ(info.RecordCreateCopy(data, nullptr), E_POINTER);
  EXPECT_EQ(info.RecordDestroy(nullptr), E_POINTER);
  // Values of every type into every field: they are taken or refused, and the record stays whole.
  ULONG count = 0;
  info.GetFieldNames(&count, nullptr);
  std::vector<BSTR> names(count);
  ASSERT_EQ(info.GetFieldNames(&count, names.data()), S_OK);
  for (const BSTR one : names) {
    for (VARIANT wrong : ValuesOfEveryType()) (void)info.PutField(INVOKE_PROPERTYPUT, data, one, &wrong);
    SysFreeString(one);
  }
  EXPECT_EQ(info.RecordCreateCopy(data, &copy), S_OK);
  EXPECT_EQ(info.RecordDestroy(copy), S_OK);
  VariantClear(&value);
}

TEST_F(Arguments, AValueOfAWrongTypeIsRefusedByEveryPropertyAndChangesNoOther) {
  const auto before = AllValues(control.Get(), Properties);
  int refused = 0, taken = 0;
  for (DISPID member = 1; member <= Properties; ++member) {
    for (VARIANT value : ValuesOfEveryType()) {
      for (const WORD way : {WORD{DISPATCH_PROPERTYPUT}, WORD{DISPATCH_PROPERTYPUTREF}}) {
        DISPID put = DISPID_PROPERTYPUT;
        DISPPARAMS arguments{&value, &put, 1, 1};
        EXCEPINFO trouble{};
        UINT wrong = 77;
        const HRESULT result = control->Invoke(member, IID_NULL, 0, way, &arguments, nullptr, &trouble, &wrong);
        (FAILED(result) ? refused : taken)++;
        if (result == DISP_E_EXCEPTION) {
          EXPECT_TRUE(FAILED(trouble.scode)) << member;
          EXPECT_NE(Taken(trouble.bstrDescription), L"") << member;
          SysFreeString(trouble.bstrSource);
        }
      }
    }
    DISPPARAMS none{};
    EXPECT_EQ(control->Invoke(member, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr), S_OK);
  }
  EXPECT_GT(refused, 20'000);
  EXPECT_GT(taken, 1'000);  // numbers of other widths, and what counts as nothing
  // What converts is nothing or 0: an element with other values alone is left.
  As<IPersistStreamInit>(control)->InitNew();
  EXPECT_EQ(AllValues(control.Get(), Properties), before);
}

TEST_F(Arguments, AValueOfAWrongTypeIsRefusedByEveryMethod) {
  Container container;
  ASSERT_EQ(container.Place(control.Get()), S_OK);
  for (DISPID member = Properties + 1; member <= Members; ++member) {
    if (dialogs.count(member) != 0) continue;
    for (VARIANT value : ValuesOfEveryType()) {
      for (const UINT count : {1U, 2U}) {
        VARIANT values[2] = {value, value};
        DISPPARAMS arguments{values, nullptr, count, 0};
        VARIANT answer;
        VariantInit(&answer);
        (void)control->Invoke(member, IID_NULL, 0, DISPATCH_METHOD, &arguments, &answer, nullptr, nullptr);
        EXPECT_TRUE(V_VT(&answer) == VT_EMPTY || V_VT(&answer) == VT_BOOL) << member;
      }
    }
  }
  VARIANT text = Empty(VT_BSTR);
  EXPECT_EQ(Late(control.Get()).Call(L"ShowDefinedObject", {text}), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(Late(control.Get()).Call(L"SetTactisBaseElementDefinition", {Empty(VT_RECORD)}), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(Late(control.Get()).Call(L"CheckIfLedIsAlreadyDefined", {Empty(VT_UNKNOWN), Number(1)}),
            DISP_E_TYPEMISMATCH);
  container.TakeOut();
}

TEST_F(Arguments, AValueOfAWrongTypeInABagEndsItsReading) {
  struct Bag : TestObject<IPropertyBag> {
    HRESULT STDMETHODCALLTYPE Read(LPCOLESTR, VARIANT* value, IErrorLog*) override {
      *value = given;
      return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Write(LPCOLESTR, VARIANT*) override { return S_OK; }
    VARIANT given{};
  } bag;
  for (const VARIANT& value : ValuesOfEveryType()) {
    bag.given = value;
    EXPECT_EQ(As<IPersistPropertyBag>(control)->Load(&bag, nullptr), S_OK) << V_VT(&value);
    EXPECT_EQ(As<IPersistPropertyBag>(control)->Save(&bag, TRUE, TRUE), S_OK) << V_VT(&value);
  }
  EXPECT_EQ(bag.holds, 0U);
}

TEST_F(Arguments, AnAnswerOfAWrongTypeFromTheHostIsNoAnswer) {
  struct Answering : Container {
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID* numbers) override {
      *numbers = 5;
      return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* answer, EXCEPINFO*,
                                     UINT*) override {
      if (answer != nullptr) *answer = given;
      return S_OK;
    }
    VARIANT given{};
  } site;
  ASSERT_EQ(site.Place(control.Get()), S_OK);
  site.lacking = {__uuidof(IOleWindow)};  // its window is asked for by name
  auto* const form = static_cast<IDispatch*>(static_cast<NoNames<IDispatch>*>(&site));
  int refused = 0;
  for (const VARIANT& value : ValuesOfEveryType()) {
    site.given = value;
    VARIANT_BOOL defined = VARIANT_TRUE;
    if (FAILED(control->CheckIfLedIsAlreadyDefined(::PowerLed, 1, &defined))) {
      ++refused;
      EXPECT_EQ(defined, VARIANT_FALSE) << V_VT(&value);
    }
    EXPECT_EQ(control->putref_ParentWindow(form), S_OK) << V_VT(&value);
    EXPECT_EQ(control->putref_ParentWindow(nullptr), S_OK);
    InvalidateRect(site.ControlWindow(), nullptr, FALSE);
    UpdateWindow(site.ControlWindow());
  }
  EXPECT_GT(refused, 400);
  site.TakeOut();
  EXPECT_EQ(site.holds, 0U);
}

}  // namespace plexel::activex
